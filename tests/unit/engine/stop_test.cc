// Stop is a request: the search loops see it, every later step, the log and the
// statistics still run.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/support/browser_traces.h"
#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using testing::addCookies;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::TestMachine;
using testing::WatchedProgram;

constexpr std::string_view kTemp = "C:\\Users\\user\\AppData\\Local\\Temp\\";
constexpr std::string_view kLogs =
    "C:\\ProgramData\\Microsoft\\Search\\Data\\Applications\\Windows\\";
constexpr std::string_view kTypedPaths =
    "HKEY_CURRENT_USER\\software\\microsoft\\windows\\currentversion\\explorer\\TypedPaths";

void temporaryFiles(TestMachine& machine) {
  machine.select("10");
  for (const char* name : {"a", "b", "c"}) machine.file(std::string(kTemp) + name, "12345");
}

// Presses Stop inside the pump at the nth file that the run reports.
void stopAtRow(WatchedProgram& program, std::size_t rows_before) {
  program.events.when(
      [&program, rows_before] { return program.form.View200.count() == rows_before; },
      [&program] { program.form.cmd_stop.click(); });
}

TEST(Stop, ATestedFileIsShownAndSizedAndNotCounted) {
  TestMachine machine;
  temporaryFiles(machine);
  WatchedProgram program(machine);
  stopAtRow(program, 1);  // inside the second file's pump
  program.run(RunKind::test);
  EXPECT_THAT(program.rows(), ElementsAre(std::string(kTemp) + "a windows temp folder ",
                                          std::string(kTemp) + "b windows temp folder "));
  EXPECT_EQ(program.task("Windows Temporary"), "Finished|1");
  EXPECT_EQ(program.form.txtfilesize.text(), "10");
}

TEST(Stop, AFileAtWhichAnEraseStopsStaysAndTheObjectStaysSet) {
  TestMachine machine;
  temporaryFiles(machine);
  WatchedProgram program(machine);
  stopAtRow(program, 1);
  program.run(RunKind::erase);
  EXPECT_EQ(program.form.View200.count(), 2u);
  EXPECT_FALSE(machine.exists(std::string(kTemp) + "a"));
  EXPECT_TRUE(machine.exists(std::string(kTemp) + "b"));
  EXPECT_TRUE(machine.exists(std::string(kTemp) + "c"));
  EXPECT_EQ(program.task("Windows Temporary"), "Finished|1");
  EXPECT_TRUE(program.form.file_system_object.has_value());
}

TEST(Stop, WithoutAStopTheObjectIsReleased) {
  TestMachine machine;
  temporaryFiles(machine);
  WatchedProgram program(machine);
  program.run(RunKind::erase);
  EXPECT_FALSE(program.form.file_system_object.has_value());
}

TEST(Stop, AFurtherSearchShowsAndSizesOneMoreFileAndKeepsIt) {
  TestMachine machine;
  temporaryFiles(machine);
  machine.select("52");
  addCookies(machine, 2, 3, 100);
  addCookies(machine, 3, 3, 1000);
  for (const RunKind kind : {RunKind::test, RunKind::erase}) {
    WatchedProgram program(machine);
    stopAtRow(program, 0);
    program.run(kind);
    EXPECT_EQ(program.form.View200.count(), 3u);  // one of each search
    EXPECT_EQ(program.task("Windows Temporary"), "Finished|0");
    EXPECT_EQ(program.task("Google chrome Browser"), "Finished|0");
    EXPECT_EQ(program.task("Maxthon Browser"), "Finished|0");
    EXPECT_EQ(program.form.txtfilesize.text(), "1105");
    EXPECT_EQ(program.form.txtfilecount.text(), "0");
    EXPECT_TRUE(machine.exists(std::string(kTemp) + "a"));
  }
}

// The forms that skip pending files test at the top: nothing more is shown.
TEST(Stop, ThePendingAwareTestShowsNothingMore) {
  TestMachine machine;
  machine.select("54");
  for (const char* name : {"a.log", "b.log", "c.log"}) machine.file(std::string(kLogs) + name);
  WatchedProgram program(machine);
  stopAtRow(program, 1);
  program.run(RunKind::test);
  EXPECT_THAT(program.rows(),
              ElementsAre(std::string(kLogs) + "a.log Windows Searching History : "));
  EXPECT_EQ(program.task("Windows Searching History"), "Finished|1");
}

TEST(Stop, ThePendingAwareEraseKeepsTheRestAndSavesNothing) {
  TestMachine machine;
  machine.select("54");
  for (const char* name : {"a.log", "b.log", "c.log"}) machine.file(std::string(kLogs) + name);
  WatchedProgram program(machine);
  stopAtRow(program, 1);
  program.run(RunKind::erase);
  EXPECT_EQ(program.form.View200.count(), 1u);
  EXPECT_FALSE(machine.exists(std::string(kLogs) + "a.log"));
  EXPECT_TRUE(machine.exists(std::string(kLogs) + "b.log"));
  EXPECT_TRUE(program.form.file_system_object.has_value());
  EXPECT_FALSE(machine.keyExists(Root::kLocalMachine,
                                 "SYSTEM\\CurrentControlSet\\Control\\Session Manager"));
}

void cachedFiles(TestMachine& machine) {
  machine.select("45");
  std::string cache;
  for (const char* name : {"a.gif", "b.gif", "c.gif"}) {
    machine.file("C:\\cache\\" + std::string(name), "123");
    cache += "1\thttp://x/" + std::string(name) + "\tC:\\cache\\" + std::string(name) + "\n";
  }
  machine.machineFile("urlcache.txt", cache);
}

TEST(Stop, TheCacheTestLeavesItsLoop) {
  TestMachine machine;
  cachedFiles(machine);
  WatchedProgram program(machine);
  stopAtRow(program, 1);
  program.run(RunKind::test);
  EXPECT_THAT(program.rows(), ElementsAre("IE cache temp files = C:\\cache\\a.gif  <OK>"));
  EXPECT_EQ(program.task("Internet Explorer Browser"), "Finished|1");
}

TEST(Stop, TheCacheCleaningDoesNotLookAtIt) {
  TestMachine machine;
  cachedFiles(machine);
  WatchedProgram program(machine);
  stopAtRow(program, 1);
  program.run(RunKind::erase);
  EXPECT_EQ(program.form.View200.count(), 3u);
  EXPECT_FALSE(machine.exists("C:\\cache\\c.gif"));
}

TEST(Stop, LaterStepsTheLogAndTheStatisticsStillRun) {
  TestMachine machine;
  temporaryFiles(machine);
  machine.select("53");
  WatchedProgram program(machine);
  stopAtRow(program, 1);
  program.run(RunKind::erase);
  EXPECT_EQ(program.task("Notification Area Icon Cache"), "Finished|0");
  EXPECT_EQ(program.task("Maxthon Browser"), "Finished|0");
  EXPECT_EQ(program.form.txtregcount.text(), "2");
  EXPECT_THAT(machine.read("C:\\Program Files\\Tavr Wipe\\eraselog.txt"),
              HasSubstr("Registry Keys Scanned: 2, Files : 1 , Hard Disk Space: 0.010 KB"));
  EXPECT_EQ(
      machine.registryText(Root::kLocalMachine,
                           "software\\tavrwork\\Tavr Brightbox Deluxe\\statics\\tracks", "count"),
      "1");
}

TEST(Stop, TheTypedPathsAreReportedAndRemovedAllTheSame) {
  TestMachine machine;
  machine.select("13").value(kTypedPaths, "url1", "C:\\x");
  const std::string recent = "C:\\Users\\user\\AppData\\Roaming\\Microsoft\\Windows\\Recent\\";
  machine.file(recent + "a.lnk").file(recent + "b.lnk");
  WatchedProgram program(machine);
  program.events.next([&] { program.form.cmd_stop.click(); });
  program.run(RunKind::erase);
  EXPECT_EQ(program.task("Recent Documents History"), "Finished|1");
  EXPECT_TRUE(machine.exists(recent + "a.lnk"));
  EXPECT_FALSE(machine.keyExists(
      Root::kCurrentUser, "software\\microsoft\\windows\\currentversion\\explorer\\TypedPaths"));
}

TEST(Stop, DoesNotReachThePlugInLoops) {
  TestMachine machine;
  temporaryFiles(machine);
  machine.file("C:\\Program Files\\Tavr Wipe\\slectplg.cln", "P\r\n")
      .file("C:\\Program Files\\Tavr Wipe\\plugins\\P.tv",
            "P\r\n\r\n\r\nfiles\r\nfile=C:\\x,1\r\nfile=C:\\y,1\r\n");
  WatchedProgram program(machine);
  stopAtRow(program, 0);
  program.run(RunKind::test);
  EXPECT_EQ(program.form.View200.count(), 3u);
  EXPECT_EQ(program.form.txtfilecount.text(), "2");
}

TEST(Stop, TheNextRunStartsWithoutIt) {
  TestMachine machine;
  temporaryFiles(machine);
  WatchedProgram program(machine);
  stopAtRow(program, 0);
  program.run(RunKind::test);
  program.run(RunKind::test);
  EXPECT_EQ(program.task("Windows Temporary"), "Finished|3");
}

}  // namespace
}  // namespace tavr
