// The reporting executor: it lists and counts every queued item, clears the
// marks of files, and removes nothing.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "engine/executors.h"
#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::TestMachine;
using testing::WatchedProgram;

const std::string kRow = "Plug In Application Files = ";

void queueFolder(Form1& form, std::string_view folder, std::string_view mask,
                 std::string_view flag) {
  form.List8.add(folder);
  form.List9.add(mask);
  form.List10.add(flag);
}

TEST(ReportingExecutor, ReportsSizesAndCountsFilesAndClearsTheirMarks) {
  TestMachine machine;
  machine.file("C:\\a.dat", std::string(1000, 'a'))
      .readOnly("C:\\a.dat")
      .file("C:\\b.dat", "12345");
  WatchedProgram program(machine);
  program.form.List7.add("C:\\a.dat");
  program.form.List7.add("C:\\b.dat");
  command2(program.program);
  EXPECT_THAT(program.rows(), ElementsAre(kRow + "C:\\a.dat <OK>", kRow + "C:\\b.dat <OK>"));
  EXPECT_TRUE(program.form.View200.ghosted(1));
  EXPECT_EQ(program.form.View200.ensuredRow(), 2u);
  EXPECT_EQ(program.form.txtfilecount.text(), "2");
  EXPECT_EQ(program.form.Label4.caption, "2");
  EXPECT_EQ(program.form.txtfilesize.text(), "1005");
  EXPECT_EQ(program.form.Label6.caption, "1005");  // the number, without a unit
  EXPECT_THAT(program.files.attributes_set,
              ElementsAre(std::pair<std::string, std::uint32_t>("C:\\a.dat", 32),
                          std::pair<std::string, std::uint32_t>("C:\\b.dat", 32)));
  EXPECT_THAT(program.files.removed, IsEmpty());
  EXPECT_EQ(std::filesystem::status(machine.host("C:\\a.dat")).permissions() &
                std::filesystem::perms::owner_write,
            std::filesystem::perms::owner_write);
}

TEST(ReportingExecutor, AMissingFileAddsARowOfSizeZero) {
  TestMachine machine;
  WatchedProgram program(machine);
  program.form.List7.add("C:\\gone.dat");
  command2(program.program);
  EXPECT_THAT(program.rows(), ElementsAre(kRow + "C:\\gone.dat <OK>"));
  EXPECT_EQ(program.form.txtfilecount.text(), "1");
  EXPECT_EQ(program.form.txtfilesize.text(), "0");
}

TEST(ReportingExecutor, AddsToTheTotalsOfTheRun) {
  TestMachine machine;
  machine.file("C:\\a.dat", "12345");
  WatchedProgram program(machine);
  program.form.txtfilecount.setText("10");
  program.form.txtfilesize.setText("100");
  program.form.List7.add("C:\\a.dat");
  command2(program.program);
  EXPECT_EQ(program.form.Label4.caption, "11");
  EXPECT_EQ(program.form.Label6.caption, "105");
}

TEST(ReportingExecutor, EmptyListsOnlyBringTheSizeUpToDate) {
  TestMachine machine;
  WatchedProgram program(machine);
  command2(program.program);
  EXPECT_THAT(program.rows(), IsEmpty());
  EXPECT_EQ(program.form.txtfilecount.text(), "");
  EXPECT_EQ(program.form.txtfilesize.text(), "0");
}

TEST(ReportingExecutor, PumpsOnceForEachFileFolderRegistryLineAndRow) {
  TestMachine machine;
  machine.file("C:\\app\\a.log").file("C:\\app\\b.log").value("HKEY_CURRENT_USER\\A", "v", "1");
  WatchedProgram program(machine);
  for (const char* row : {"one", "two", "three", "four"}) program.form.View100.add(row, "c");
  program.form.Text14.setText("4");
  const auto pumps = [&] {
    const int before = program.events.pumped;
    command2(program.program);
    return program.events.pumped - before;
  };
  EXPECT_EQ(pumps(), 1) << "the row";
  program.form.Text14.setText("3");
  EXPECT_EQ(pumps(), 2) << "and another";
  for (int i = 0; i < 3; ++i) program.form.List7.add("C:\\gone.dat");
  EXPECT_EQ(pumps(), 5) << "and three files";
  queueFolder(program.form, "C:\\app", "*.*", "0");
  EXPECT_EQ(pumps(), 6) << "and a folder, whatever is in it";
  program.form.List11.add("HKEY_CURRENT_USER\\A,3");
  EXPECT_EQ(pumps(), 7) << "and a line, whatever it names";
  EXPECT_EQ(program.rows().size(), 3U + (3 + 2) + (3 + 2 + 1));
}

TEST(ReportingExecutor, AStopReachesNeitherTheRegistryLinesNorTheRows) {
  TestMachine machine;
  WatchedProgram program(machine);
  program.form.stopflag = 1;
  program.form.View100.add("one", "c");
  program.form.View100.add("two", "c");
  program.form.Text14.setText("1");
  program.form.List11.add("HKEY_CURRENT_USER\\A\\B,1");
  program.form.List11.add("HKEY_CURRENT_USER\\A\\C,1");
  command2(program.program);
  EXPECT_EQ(program.form.txtregcount.text(), "2");
  EXPECT_THAT(program.table(), ElementsAre("one|Done|", "two|Done|"));
}

// --- Folders --------------------------------------------------------------------

class Folders : public ::testing::Test {
 protected:
  Folders() {
    machine.file("C:\\app\\B.log", "22")
        .file("C:\\app\\a.log", "1")
        .file("C:\\app\\c.txt", "333")
        .file("C:\\app\\sub\\d.log", "4444")
        .file("C:\\other\\e.log", "55555");
  }
  TestMachine machine;
};

TEST_F(Folders, WithoutTheMarkListsTheFoldersOwnFilesByName) {
  WatchedProgram program(machine);
  queueFolder(program.form, " C:\\app ", " *.log ", "0");
  command2(program.program);
  EXPECT_THAT(program.rows(),
              ElementsAre(kRow + "C:\\app\\a.log <OK>", kRow + "C:\\app\\B.log <OK>"));
  EXPECT_TRUE(program.form.View200.ghosted(2));
  EXPECT_EQ(program.form.txtfilecount.text(), "2");
  EXPECT_EQ(program.form.txtfilesize.text(), "3");
}

TEST_F(Folders, WithTheMarkSearchesBelowAndCountsTheOwnFilesAgain) {
  WatchedProgram program(machine);
  program.form.View100.add("P", "c");
  program.form.taskrow = 1;
  program.form.trackcount = 7;  // what the last browser left
  queueFolder(program.form, "C:\\app", "*.log", "1");
  command2(program.program);
  EXPECT_THAT(program.rows(),
              ElementsAre(kRow + "C:\\app\\a.log <OK>", kRow + "C:\\app\\B.log <OK>",
                          "C:\\app\\sub\\d.log " + kRow + " <OK>",
                          "C:\\app\\a.log " + kRow + " <OK>", "C:\\app\\B.log " + kRow + " <OK>"));
  EXPECT_FALSE(program.form.View200.ghosted(3));
  EXPECT_EQ(program.form.txtfilecount.text(), "4");  // two and two more, none of the search's
  EXPECT_EQ(program.form.Label4.caption, "4");
  EXPECT_EQ(program.form.txtfilesize.text(), "3");
  // The search goes on from the last browser's count and lags one behind it.
  EXPECT_EQ(program.form.View100.item(1).subItem(2).text, "9");
  EXPECT_EQ(program.form.trackcount, 10);
}

TEST_F(Folders, AStopReachesTheSearchBelowAndNotTheOwnFiles) {
  WatchedProgram program(machine);
  program.form.stopflag = 1;
  queueFolder(program.form, "C:\\app", "*.log", "1");
  command2(program.program);
  EXPECT_THAT(program.rows(),
              ElementsAre(kRow + "C:\\app\\a.log <OK>", kRow + "C:\\app\\B.log <OK>",
                          "C:\\app\\sub\\d.log " + kRow + " <OK>"));
  EXPECT_EQ(program.form.trackcount, 0);
}

TEST_F(Folders, AnEmptyMarkIsZero) {
  WatchedProgram program(machine);
  queueFolder(program.form, "C:\\app", "*.txt", "");
  command2(program.program);
  EXPECT_THAT(program.rows(), ElementsAre(kRow + "C:\\app\\c.txt <OK>"));
}

TEST_F(Folders, WithAnyOtherMarkTheBoxStaysWhereItStands) {
  WatchedProgram program(machine);
  queueFolder(program.form, "C:\\other", "*.log", "0");
  queueFolder(program.form, "C:\\app", "*.log", "7");
  command2(program.program);
  // The name is the other folder's, the row and the size are this folder's.
  EXPECT_THAT(program.rows(),
              ElementsAre(kRow + "C:\\other\\e.log <OK>", kRow + "C:\\app\\e.log <OK>"));
  EXPECT_EQ(program.form.txtfilecount.text(), "2");
  EXPECT_EQ(program.form.txtfilesize.text(), "5");
}

TEST_F(Folders, AMissingFolderIsPassedOver) {
  WatchedProgram program(machine);
  queueFolder(program.form, "C:\\other", "*.log", "0");
  queueFolder(program.form, "C:\\gone", "*.log", "1");
  command2(program.program);
  EXPECT_EQ(program.form.File1.pattern(), "tvn.a");
  EXPECT_EQ(program.form.File1.path(), "C:\\other");
  queueFolder(program.form, "C:\\app", "*.txt", "0");
  program.form.View200.clear();
  command2(program.program);
  EXPECT_THAT(program.rows(),
              ElementsAre(kRow + "C:\\other\\e.log <OK>", kRow + "C:\\app\\c.txt <OK>"));
}

TEST_F(Folders, TheCountOfEachFolderStartsFromZero) {
  machine.file("C:\\x.dat");
  WatchedProgram program(machine);
  program.form.List7.add("C:\\x.dat");
  queueFolder(program.form, "C:\\app", "*.txt", "0");
  queueFolder(program.form, "C:\\other", "*.*", "0");
  command2(program.program);
  EXPECT_EQ(program.form.txtfilecount.text(), "3");
}

// --- Plug-in rows ---------------------------------------------------------------

TEST(PlugInRows, FromTheNotedRowOnEndDone) {
  TestMachine machine;
  WatchedProgram program(machine);
  for (const char* row : {"one", "two", "three"}) program.form.View100.add(row, "c");
  program.form.View100.item(2).subItem(2).text = "5";
  program.form.Text14.setText("2");
  command2(program.program);
  EXPECT_THAT(program.table(), ElementsAre("one||", "two|Done|5", "three|Done|"));
  EXPECT_EQ(program.form.View100.item(1).small_icon, "c");
  EXPECT_EQ(program.form.View100.item(2).small_icon, "o");
  EXPECT_EQ(program.form.View100.item(2).subItem(1).report_icon, "");
}

TEST(PlugInRows, WithNothingSelectedTheWalkMeetsNoRows) {
  TestMachine machine;
  machine.file("C:\\Program Files\\Tavr Wipe\\slectplg.cln", "");
  machine.file("C:\\Program Files\\Tavr Wipe\\plugins\\P.tv",
               "P\r\n\r\n\r\nfiles\r\nfile=C:\\x,1\r\n");
  for (const char* name : {"plgfile.cln", "plgfoldr.cln", "plgreg.cln"}) {
    machine.file("C:\\Program Files\\Tavr Wipe\\" + std::string(name), "left over\r\n");
  }
  WatchedProgram program(machine);
  program.run(RunKind::test);
  for (const char* name : {"plgfile.cln", "plgfoldr.cln", "plgreg.cln"}) {
    EXPECT_EQ(machine.read("C:\\Program Files\\Tavr Wipe\\" + std::string(name)), "") << name;
  }
  EXPECT_EQ(program.form.List7.count() + program.form.List8.count() + program.form.List11.count(),
            0);
  EXPECT_EQ(program.task("Maxthon Browser"), "Finished|0");
  EXPECT_THAT(program.rows(), IsEmpty());
}

}  // namespace
}  // namespace tavr
