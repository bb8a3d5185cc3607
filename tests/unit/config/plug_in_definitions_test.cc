// Plug-in definitions: the listing, and how their lines become the three work
// files.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/test_machine.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::TestMachine;

const std::string kFolder = "C:\\Program Files\\Tavr Wipe\\";

std::vector<std::string> texts(const TextList& list) {
  std::vector<std::string> rows;
  for (int i = 0; i < list.count(); ++i) rows.push_back(list.at(i));
  return rows;
}

std::vector<std::string> names(ListView& list) {
  std::vector<std::string> rows;
  for (int row = 1; row <= list.count(); ++row) rows.push_back(list.item(row).text);
  return rows;
}

// --- Listing ----------------------------------------------------------------------

TEST(PlugInListing, ShowsEveryDefinitionByNameWithoutItsExtension) {
  TestMachine machine;
  for (const char* file : {"beta.tv", "Alpha.TV", " blank .tv", "x.tv.txt", "y.tva", "C#.tv"}) {
    machine.file(kFolder + "plugins\\" + file);
  }
  machine.folder(kFolder + "plugins\\folder.tv");
  Form1& form = machine.program().form;
  form.View1.add("left over", "b");
  machine.program().plug_ins.listDefinitions();
  EXPECT_THAT(names(form.View1), ElementsAre("blank", "Alpha", "beta", "C#"));
  EXPECT_EQ(form.View1.item(1).small_icon, "b");
  EXPECT_FALSE(form.View1.item(1).checked);
}

TEST(PlugInListing, AFolderWithoutDefinitionsGivesAnEmptyList) {
  TestMachine machine;
  machine.folder(kFolder + "plugins");
  machine.program().plug_ins.listDefinitions();
  EXPECT_THAT(names(machine.program().form.View1), IsEmpty());
}

TEST(PlugInListing, AMissingFolderGivesAnEmptyListWhereverTheBoxStands) {
  TestMachine machine;
  machine.file("C:\\elsewhere\\x.tv");
  Form1& form = machine.program().form;
  form.File1.setPath("C:\\elsewhere");
  machine.program().plug_ins.listDefinitions();
  EXPECT_THAT(names(form.View1), IsEmpty());
}

TEST(PlugInListing, TheSelectionIsThereEvenWhenItIsEmpty) {
  TestMachine machine;
  EXPECT_FALSE(machine.program().plug_ins.hasSelection());
  machine.file(kFolder + "slectplg.cln", "");
  EXPECT_TRUE(machine.program().plug_ins.hasSelection());
}

// --- Reading a definition ---------------------------------------------------------

// The lists behind Command1 with one ticked definition of these lines.
class Definition : public ::testing::Test {
 protected:
  void read(const std::string& lines) { readWhole("Title\r\nAuthor\r\nDescription\r\n" + lines); }
  void readWhole(const std::string& lines) {
    machine.file(kFolder + "plugins\\P.tv", lines);
    form().View1.clear();
    form().View1.add("P", "b").checked = true;
    machine.program().plug_ins.Command1();
  }
  Form1& form() { return machine.program().form; }
  std::vector<std::string> files() { return texts(form().List4); }
  std::vector<std::string> folders() { return texts(form().List5); }
  std::vector<std::string> registry() { return texts(form().List6); }
  std::string written(const std::string& name) { return machine.read(kFolder + name); }

  TestMachine machine;
};

TEST_F(Definition, AFileLineIsThePathWithoutItsLastTwoCharacters) {
  read("files\r\nfile=C:\\a\\b.dat,1\r\nfile=C:\\c.datXY\r\n");
  EXPECT_THAT(files(), ElementsAre("C:\\a\\b.dat", "C:\\c.dat"));
  EXPECT_EQ(written("plgfile.cln"), "C:\\a\\b.dat\r\nC:\\c.dat\r\n");
}

TEST_F(Definition, AFileLineWithoutTheTwoCharactersLosesTheEndOfItsPath) {
  read("files\r\nfile=C:\\a\\b.dat\r\n");
  EXPECT_THAT(files(), ElementsAre("C:\\a\\b.d"));
}

TEST_F(Definition, TheCharacterBehindTheWordIsNotLookedAt) {
  read("files\r\nfile:C:\\a.dat,1\r\nfolder C:\\a,,* 0\r\n");
  EXPECT_THAT(files(), ElementsAre("C:\\a.dat"));
  EXPECT_THAT(folders(), ElementsAre("C:\\a", "* ", "0"));
}

TEST_F(Definition, AFileLineShorterThanItsFixedPartsGivesNoEntry) {
  read("files\r\nfile\r\nfile=\r\nfile=a\r\n");
  EXPECT_THAT(files(), IsEmpty());
}

// The first three lines are title, author and description, and lines all the same.
TEST_F(Definition, ATitleThatNamesASectionOpensIt) {
  readWhole("files\r\nfile=C:\\a.dat,1\r\nregistry\r\nHKEY_CURRENT_USER\\a,1\r\n");
  EXPECT_THAT(files(), ElementsAre("C:\\a.dat"));
  EXPECT_THAT(texts(form().List6), ElementsAre("HKEY_CURRENT_USER\\a,1"));
}

TEST_F(Definition, AFolderLineGivesFolderMaskAndMark) {
  read("files\r\nfolder=C:\\a b\\c,,*.1\r\nfolder=C:\\d??lg0\r\n");
  EXPECT_THAT(folders(), ElementsAre("C:\\a b\\c", "*.", "1", "C:\\d", "lg", "0"));
  EXPECT_EQ(written("plgfoldr.cln"), "C:\\a b\\c\r\n*.\r\n1\r\nC:\\d\r\nlg\r\n0\r\n");
}

TEST_F(Definition, AMaskOfOneCharacterIsPrintedWithoutItsBlank) {
  read("files\r\nfolder=C:\\a,,* 1\r\n");
  EXPECT_THAT(folders(), ElementsAre("C:\\a", "* ", "1"));
  EXPECT_EQ(written("plgfoldr.cln"), "C:\\a\r\n*\r\n1\r\n");
}

TEST_F(Definition, AMaskOfBlanksIsNotPrintedAndShiftsWhatFollows) {
  read("files\r\nfolder=C:\\a,,  1\r\nfolder=C:\\b,,* 0\r\n");
  EXPECT_EQ(written("plgfoldr.cln"), "C:\\a\r\n1\r\nC:\\b\r\n*\r\n0\r\n");
  machine.program().plug_ins.Command3();
  EXPECT_THAT(texts(form().List8), ElementsAre("C:\\a", "*"));
  EXPECT_THAT(texts(form().List9), ElementsAre("1", "0"));
  EXPECT_THAT(texts(form().List10), ElementsAre("C:\\b", ""));
}

TEST_F(Definition, AFolderValueOfFiveCharactersHasNoFolderAndShiftsWhatFollows) {
  read("files\r\nfolder=,,* 1\r\nfolder=C:\\b,,* 0\r\n");
  EXPECT_THAT(folders(), ElementsAre("", "* ", "1", "C:\\b", "* ", "0"));
  EXPECT_EQ(written("plgfoldr.cln"), "*\r\n1\r\nC:\\b\r\n*\r\n0\r\n");
}

TEST_F(Definition, AFolderValueOfFewerCharactersGivesNoEntry) {
  read("files\r\nfolder\r\nfolder=\r\nfolder=abcd\r\n");
  EXPECT_THAT(folders(), IsEmpty());
}

TEST_F(Definition, CharactersNotBytesAreCounted) {
  read(
      "files\r\nfile=C:\\\xC3\xA4\xE2\x82\xAC.dat,1\r\nfolder=C:\\\xC3\xA4\xC3\xA9\xC3\xA9*\xC3\xA9"
      "1\r\n");
  EXPECT_THAT(files(), ElementsAre("C:\\\xC3\xA4\xE2\x82\xAC.dat"));
  EXPECT_THAT(folders(), ElementsAre("C:\\\xC3\xA4", "*\xC3\xA9", "1"));
}

TEST_F(Definition, ReferencesInPathsAreExpanded) {
  read(
      "files\r\nfile=%TEMP%\\a.dat,1\r\nfile=%NoSuch%\\b.dat,1\r\nfolder=%USERPROFILE%\\c,,* "
      "0\r\n");
  EXPECT_THAT(files(),
              ElementsAre("C:\\Users\\user\\AppData\\Local\\Temp\\a.dat", "%NoSuch%\\b.dat"));
  EXPECT_THAT(folders(), ElementsAre("C:\\Users\\user\\c", "* ", "0"));
}

TEST_F(Definition, TheNulBehindAnExpandedPathReachesNoFile) {
  read("files\r\nfile=C:\\a.dat,1\r\n");
  EXPECT_EQ(files().at(0).find('\0'), std::string::npos);
  EXPECT_EQ(written("plgfile.cln"), "C:\\a.dat\r\n");
}

TEST_F(Definition, CaseCountsForTheWordsAndNotForTheSections) {
  read(
      "  FILES \r\nFile=C:\\a.dat,1\r\nFOLDER=C:\\a,,* 0\r\n "
      "file=C:\\b.dat,1\r\nfile=C:\\c.dat,1\r\n");
  EXPECT_THAT(files(), ElementsAre("C:\\c.dat"));
  EXPECT_THAT(folders(), IsEmpty());
}

TEST_F(Definition, LinesOutsideASectionAreIgnored) {
  read("file=C:\\a.dat,1\r\nHKEY_CURRENT_USER\\A,1\r\nfiles\r\nfile=C:\\b.dat,1\r\nother\r\n");
  EXPECT_THAT(files(), ElementsAre("C:\\b.dat"));
  EXPECT_THAT(registry(), IsEmpty());
}

TEST_F(Definition, EveryLineOfTheRegistrySectionIsKeptAsItStands) {
  read("Registry\r\nHKEY_CURRENT_USER\\A,1\r\n  anything \r\nfile=C:\\a.dat,1\r\n");
  EXPECT_THAT(registry(), ElementsAre("HKEY_CURRENT_USER\\A,1", "  anything ", "file=C:\\a.dat,1"));
  EXPECT_THAT(files(), IsEmpty());  // it closes the file section
  EXPECT_EQ(written("plgreg.cln"), "HKEY_CURRENT_USER\\A,1\r\nanything\r\nfile=C:\\a.dat,1\r\n");
}

TEST_F(Definition, AFileSectionBehindTheRegistrySectionLeavesBothOpen) {
  read("registry\r\nHKEY_CURRENT_USER\\A,1\r\nfiles\r\nfile=C:\\a.dat,1\r\nfolder=C:\\b,,* 0\r\n");
  EXPECT_THAT(files(), ElementsAre("C:\\a.dat"));
  EXPECT_THAT(folders(), ElementsAre("C:\\b", "* ", "0"));
  EXPECT_THAT(registry(),
              ElementsAre("HKEY_CURRENT_USER\\A,1", "file=C:\\a.dat,1", "folder=C:\\b,,* 0"));
}

TEST_F(Definition, TheSectionsOfOneDefinitionDoNotReachTheNext) {
  machine.file(kFolder + "plugins\\A.tv", "a\r\na\r\na\r\nregistry\r\nHKEY_CURRENT_USER\\A,1\r\n");
  machine.file(kFolder + "plugins\\B.tv", "b\r\nb\r\nb\r\nfile=C:\\b.dat,1\r\n");
  form().View1.add("A", "b").checked = true;
  form().View1.add("B", "b").checked = true;
  machine.program().plug_ins.Command1();
  EXPECT_THAT(registry(), ElementsAre("HKEY_CURRENT_USER\\A,1"));
  EXPECT_THAT(files(), IsEmpty());
}

TEST_F(Definition, OneThatHasGoneLeavesItsEntriesOutAndTheNextIsRead) {
  machine.file(kFolder + "plugins\\B.tv", "b\r\nb\r\nb\r\nfiles\r\nfile=C:\\b.dat,1\r\n");
  form().View1.add("A", "b").checked = true;
  form().View1.add("B", "b").checked = true;
  machine.program().plug_ins.Command1();
  EXPECT_THAT(files(), ElementsAre("C:\\b.dat"));
  EXPECT_EQ(written("slectplg.cln"), "A\r\nB\r\n");
}

TEST_F(Definition, OnlyTickedRowsAreReadAndWritten) {
  machine.file(kFolder + "plugins\\A.tv", "a\r\na\r\na\r\nfiles\r\nfile=C:\\a.dat,1\r\n");
  form().View1.add("A", "b");
  machine.program().plug_ins.Command1();
  EXPECT_THAT(files(), IsEmpty());
  EXPECT_EQ(written("slectplg.cln"), "");
  EXPECT_EQ(written("plgfile.cln"), "");
}

TEST_F(Definition, AnEarlierReadingIsForgotten) {
  read("files\r\nfile=C:\\a.dat,1\r\n");
  read("files\r\nfile=C:\\b.dat,1\r\n");
  EXPECT_THAT(files(), ElementsAre("C:\\b.dat"));
}

TEST_F(Definition, LineEndsOfOtherSystemsAndAMissingLastOneAreRead) {
  read("files\nfile=C:\\a.dat,1\nfile=C:\\b.dat,1");
  EXPECT_THAT(files(), ElementsAre("C:\\a.dat", "C:\\b.dat"));
}

}  // namespace
}  // namespace tavr
