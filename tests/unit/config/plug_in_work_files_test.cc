// The work files in the program's folder: written by one form, read into the
// work lists by each; and the finder's look-up in the registry lines.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "basic/resume_next.h"
#include "tests/support/test_machine.h"

namespace tavr {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::TestMachine;

const std::string kFolder = "C:\\Program Files\\Tavr Wipe\\";

std::vector<std::string> texts(const TextList& list) {
  std::vector<std::string> rows;
  for (int i = 0; i < list.count(); ++i) rows.push_back(list.at(i));
  return rows;
}

class WorkFiles : public ::testing::Test {
 protected:
  Form1& form() { return machine.program().form; }
  void fill() {
    for (TextList* list :
         {&form().List7, &form().List8, &form().List9, &form().List10, &form().List11}) {
      list->add("left over");
    }
  }
  void read() { machine.program().plug_ins.Command3(); }
  std::vector<int> counts() {
    return {form().List7.count(), form().List8.count(), form().List9.count(), form().List10.count(),
            form().List11.count()};
  }

  TestMachine machine;
};

TEST_F(WorkFiles, FillTheListsTheyBelongTo) {
  machine.file(kFolder + "plgfile.cln", "C:\\a\r\n\r\n   \r\n C:\\b\r\n")
      .file(kFolder + "plgfoldr.cln", "C:\\c\r\n*\r\n1\r\nC:\\d\r\n*.x\r\n0\r\n")
      .file(kFolder + "plgreg.cln", "HKEY_CURRENT_USER\\A,1\r\n\r\nx\r\n");
  fill();
  read();
  EXPECT_THAT(texts(form().List7), ElementsAre("C:\\a", " C:\\b"));
  EXPECT_THAT(texts(form().List8), ElementsAre("C:\\c", "C:\\d"));
  EXPECT_THAT(texts(form().List9), ElementsAre("*", "*.x"));
  EXPECT_THAT(texts(form().List10), ElementsAre("1", "0"));
  EXPECT_THAT(texts(form().List11), ElementsAre("HKEY_CURRENT_USER\\A,1", "", "x"));
}

TEST_F(WorkFiles, ABlankLineCountsAmongTheThreeOfAFolder) {
  machine.file(kFolder + "plgfile.cln", "C:\\a\r\n")
      .file(kFolder + "plgfoldr.cln", "C:\\c\r\n\r\n1\r\n\r\n*.x\r\n0\r\n");
  read();
  EXPECT_THAT(texts(form().List8), ElementsAre("C:\\c", ""));
  EXPECT_THAT(texts(form().List9), ElementsAre("", "*.x"));
  EXPECT_THAT(texts(form().List10), ElementsAre("1", "0"));
}

TEST_F(WorkFiles, WithoutTheFirstTheOthersStayUnread) {
  machine.file(kFolder + "plgfoldr.cln", "C:\\c\r\n*\r\n1\r\n")
      .file(kFolder + "plgreg.cln", "HKEY_CURRENT_USER\\A,1\r\n");
  fill();
  read();
  EXPECT_THAT(counts(), Each(0));
}

TEST_F(WorkFiles, WithoutTheSecondTheThirdStaysUnread) {
  machine.file(kFolder + "plgfile.cln", "C:\\a\r\n")
      .file(kFolder + "plgreg.cln", "HKEY_CURRENT_USER\\A,1\r\n");
  read();
  EXPECT_THAT(counts(), ElementsAre(1, 0, 0, 0, 0));
}

TEST_F(WorkFiles, WithoutTheThirdTheFirstTwoAreRead) {
  machine.file(kFolder + "plgfile.cln", "C:\\a\r\n")
      .file(kFolder + "plgfoldr.cln", "C:\\c\r\n*\r\n1\r\n");
  read();
  EXPECT_THAT(counts(), ElementsAre(1, 1, 1, 1, 0));
}

TEST_F(WorkFiles, AShortLastRecordReadsItsMissingFieldsAsEmpty) {
  machine.file(kFolder + "plgfile.cln", "")
      .file(kFolder + "plgfoldr.cln", "C:\\c\r\n*\r\n1\r\nC:\\d\r\n");
  read();
  EXPECT_THAT(texts(form().List8), ElementsAre("C:\\c", "C:\\d"));
  EXPECT_THAT(texts(form().List9), ElementsAre("*", ""));
  EXPECT_THAT(texts(form().List10), ElementsAre("1", ""));
}

TEST_F(WorkFiles, OneThatSomebodyHoldsReadsAsEmptyAndTheNextIsRead) {
  machine.file(kFolder + "plgfile.cln", "C:\\a\r\n")
      .file(kFolder + "plgfoldr.cln", "C:\\c\r\n*\r\n1\r\n")
      .machineFile("locked.txt", kFolder + "plgfile.cln\n");
  read();
  EXPECT_THAT(counts(), ElementsAre(0, 1, 1, 1, 0));
}

TEST_F(WorkFiles, AreWrittenAnewAlsoWhenReadOnly) {
  for (const char* name : {"slectplg.cln", "plgfile.cln", "plgfoldr.cln", "plgreg.cln"}) {
    machine.file(kFolder + name, "old\r\n").readOnly(kFolder + name);
  }
  machine.program().plug_ins.Command1();
  for (const char* name : {"slectplg.cln", "plgfile.cln", "plgfoldr.cln", "plgreg.cln"}) {
    EXPECT_EQ(machine.read(kFolder + name), "") << name;
  }
}

TEST_F(WorkFiles, WritingTheSelectionClosesEveryOtherFile) {
  machine.file("C:\\x.txt", "x");
  machine.program().numbers.open(5, "C:\\x.txt", OpenMode::kInput);
  machine.program().plug_ins.Command1();
  EXPECT_THROW(machine.program().numbers.eof(5), RuntimeError);
}

TEST_F(WorkFiles, ASelectionThatSomebodyHoldsKeepsTheOthersFromNothing) {
  machine.file(kFolder + "slectplg.cln", "old\r\n")
      .file(kFolder + "plugins\\P.tv", "p\r\np\r\np\r\nfiles\r\nfile=C:\\a.dat,1\r\n")
      .machineFile("locked.txt", kFolder + "slectplg.cln\n");
  form().View1.add("P", "b").checked = true;
  machine.program().plug_ins.Command1();
  EXPECT_EQ(machine.read(kFolder + "slectplg.cln"), "old\r\n");
  EXPECT_EQ(machine.read(kFolder + "plgfile.cln"), "C:\\a.dat\r\n");
}

// --- The finder's look-up ----------------------------------------------------------

TEST(FinderLookUp, GivesTheFirstRowWhosePatternTheLowerCasedNameMatches) {
  TextList list;
  for (const char* row : {"nothing", "Read*", "README.TXT"}) list.add(row);
  EXPECT_EQ(search_found(list, "ReadMe.txt"), 1);
  EXPECT_EQ(search_found(list, "NOTHING"), 0);
  EXPECT_EQ(search_found(list, "other"), -1);
  EXPECT_EQ(search_found(TextList(), "other"), -1);
}

TEST(FinderLookUp, ARowThatIsNoPatternCountsAsAMatch) {
  TextList list;
  list.add("[");
  EXPECT_EQ(search_found(list, "anything"), 0);
}

}  // namespace
}  // namespace tavr
