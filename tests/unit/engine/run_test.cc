// A run from its head to its tail, in which both kinds are alike: the rows it
// finishes, the bar, and the totals it adds.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/browser_traces.h"
#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using testing::addCookies;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::SizeIs;
using testing::TestMachine;
using testing::WatchedProgram;

constexpr std::string_view kTemp = "C:\\Users\\user\\AppData\\Local\\Temp\\";

std::vector<int> barHistory(WatchedProgram& program, RunKind kind) {
  std::vector<int> values;
  program.form.bar1.onValue = [&](int value) { values.push_back(value); };
  program.run(kind);
  return values;
}

class EitherRun : public ::testing::TestWithParam<RunKind> {};
INSTANTIATE_TEST_SUITE_P(Kinds, EitherRun, ::testing::Values(RunKind::erase, RunKind::test),
                         [](const auto& kind) {
                           return kind.param == RunKind::erase ? "Erase" : "Test";
                         });

TEST_P(EitherRun, WithNothingSelectedWalksAllTenGroups) {
  TestMachine machine;
  WatchedProgram program(machine);
  program.run(GetParam());
  EXPECT_THAT(program.table(), SizeIs(10));
  EXPECT_THAT(program.table(), Each(EndsWith("|Finished|0")));
  EXPECT_EQ(program.form.View100.item(1).subItem(1).report_icon, "o");
  EXPECT_EQ(program.form.taskrow, 11);
  EXPECT_EQ(program.form.Text14.text(), "11");
}

TEST_P(EitherRun, MovesTheBarByEightStepsTheGroupsAndTheTail) {
  TestMachine machine;
  WatchedProgram program(machine);
  // The one 100 behind the log's rows is that of the row read that fails.
  EXPECT_THAT(barHistory(program, GetParam()),
              ElementsAre(0, 5, 10, 15, 20, 25, 30, 35, 40, 45, 85, 100, 100, 100, 0));
  EXPECT_EQ(program.form.bar1.max(), 100);
  EXPECT_FALSE(program.form.bar1.visible());
}

TEST_P(EitherRun, SetsTheBarTo100AtEveryLogRow) {
  TestMachine machine;
  machine.select("10");
  for (const char* name : {"a", "b", "c"}) machine.file(std::string(kTemp) + name);
  WatchedProgram program(machine);
  EXPECT_THAT(barHistory(program, GetParam()),
              ElementsAre(0, 5, 10, 15, 20, 25, 30, 35, 40, 45, 85, 100, 100, 100, 100, 100, 0));
}

TEST_P(EitherRun, SetsTheBarTo100TwiceWithoutALog) {
  TestMachine machine;
  machine.setting("Tavr wipe\\option\\option", "6", "1");
  WatchedProgram program(machine);
  EXPECT_THAT(barHistory(program, GetParam()),
              ElementsAre(0, 5, 10, 15, 20, 25, 30, 35, 40, 45, 85, 100, 100, 0));
}

TEST_P(EitherRun, ShowsItsStatusWhileATrackWorks) {
  TestMachine machine;
  machine.select("10").file(std::string(kTemp) + "a");
  WatchedProgram program(machine);
  std::string status;
  bool bar = false, label = false, timer = false;
  program.events.next([&] {
    status = program.task("Windows Temporary");
    bar = program.form.bar1.visible();
    label = program.form.Label1[0].visible;
    timer = program.form.Timer2.enabled();
  });
  program.run(GetParam());
  EXPECT_EQ(status, "Test Erasing|");  // in both runs
  EXPECT_TRUE(bar && label && timer);
  EXPECT_EQ(program.task("Windows Temporary"), "Finished|1");
  EXPECT_FALSE(program.form.Label1[0].visible);
  EXPECT_FALSE(program.form.Timer2.enabled());
}

TEST_P(EitherRun, StartsAnewEachTime) {
  TestMachine machine;
  // Read-only: an Erase run leaves it, so both runs find it again.
  machine.select("10").file(std::string(kTemp) + "a").readOnly(std::string(kTemp) + "a");
  WatchedProgram program(machine);
  program.form.stopflag = 1;
  program.form.Text10.setText("1");
  program.run(GetParam());
  program.run(GetParam());
  EXPECT_THAT(program.rows(), ElementsAre(std::string(kTemp) + "a windows temp folder "));
  EXPECT_EQ(program.form.txtfilecount.text(), "1");
  EXPECT_EQ(program.task("Windows Temporary"), "Finished|1");
  EXPECT_EQ(program.form.stopflag, 0);
  EXPECT_EQ(program.form.Text10.text(), "0");
}

TEST_P(EitherRun, AddsTheTotalsOfTheTemporaryFilesAndOfEveryGroup) {
  TestMachine machine;
  machine.select("10").select("52").file(std::string(kTemp) + "a", std::string(100, 'a'));
  addCookies(machine, 1, 2, 10);
  addCookies(machine, 9, 3, 1000);
  WatchedProgram program(machine);
  program.run(GetParam());
  EXPECT_EQ(program.form.txtfilecount.text(), "6");
  EXPECT_EQ(program.form.txtfilesize.text(), "3120");
  EXPECT_EQ(program.form.Label4.caption, "6");
  EXPECT_EQ(program.form.Label2.caption, "0");
  EXPECT_EQ(program.form.Label6.caption, "3.047 KB");
}

TEST(SharedSelections, AreOnForExactlyTheNumberOne) {
  constexpr std::string_view kProfile =
      "C:\\Users\\user\\AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\p\\";
  const std::pair<const char*, bool> kTexts[] = {
      {"1", true}, {"1.0", true}, {"2", false}, {"abc", false}};
  for (const char* selection : {"44", "45", "46", "49", "52"}) {
    for (const auto& [text, on] : kTexts) {
      TestMachine machine;
      machine.select(selection, text);
      for (const char* name : {"places.sqlite", "cookies.sqlite", "formhistory.sqlite",
                               "sessionstore.jsonlz4", "logins.json"}) {
        machine.file(std::string(kProfile) + name);
      }
      WatchedProgram program(machine);
      program.run(RunKind::erase);
      EXPECT_EQ(!program.rows().empty(), on) << selection << " " << text;
      EXPECT_EQ(program.task("Firefox Browser") != "Finished|0", on) << selection << " " << text;
    }
  }
}

TEST_P(EitherRun, ShowsOneForTheRunHistoryWhateverItFinds) {
  TestMachine machine;
  machine.select("11");
  WatchedProgram program(machine);
  program.run(GetParam());
  EXPECT_EQ(program.task("Start Menu Run History"), "Finished|1");
  EXPECT_EQ(program.form.txtregcount.text(), "1");
}

TEST_P(EitherRun, ShowsZeroForTheBinAndTheIconsWhileTheTotalsGrow) {
  TestMachine machine;
  machine.select("8").select("53").file("C:\\$Recycle.Bin\\S-1\\$RABC.txt", "12345");
  WatchedProgram program(machine);
  program.run(GetParam());
  EXPECT_EQ(program.task("Recycle Bin"), "Finished|0");
  EXPECT_EQ(program.task("Notification Area Icon Cache"), "Finished|0");
  EXPECT_EQ(program.form.txtfilecount.text(), "1");
  EXPECT_EQ(program.form.txtfilesize.text(), "5");
  EXPECT_EQ(program.form.txtregcount.text(), "2");
}

TEST_P(EitherRun, LeavesRecentFilesOutOfTheFileTotals) {
  TestMachine machine;
  machine.select("13").file("C:\\Users\\user\\AppData\\Roaming\\Microsoft\\Windows\\Recent\\a.lnk",
                            "12345");
  WatchedProgram program(machine);
  program.run(GetParam());
  EXPECT_EQ(program.task("Recent Documents History"), "Finished|0");
  EXPECT_EQ(program.form.txtfilecount.text(), "0");
  EXPECT_EQ(program.form.txtfilesize.text(), "0");
}

TEST_P(EitherRun, CountsTypedAddressesAsRegistryTracksAndAsFiles) {
  TestMachine machine;
  machine.select("46");
  for (const char* name : {"url1", "url2"}) {
    machine.value("HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\TypedURLs", name,
                  "http://x/");
  }
  WatchedProgram program(machine);
  program.run(GetParam());
  EXPECT_EQ(program.task("Internet Explorer Browser"), "Finished|2");
  EXPECT_EQ(program.form.txtregcount.text(), "2");
  EXPECT_EQ(program.form.txtfilecount.text(), "2");
}

TEST_P(EitherRun, CountsACachedFileTwice) {
  TestMachine machine;
  machine.select("45")
      .file("C:\\cache\\a.gif", "12345")
      .machineFile("urlcache.txt", "1\thttp://x/a.gif\tC:\\cache\\a.gif\n");
  WatchedProgram program(machine);
  program.run(GetParam());
  EXPECT_EQ(program.task("Internet Explorer Browser"), "Finished|1");
  EXPECT_EQ(program.form.txtfilecount.text(), "2");
}

TEST_P(EitherRun, ShowsTheSearchLogsAndLeavesThemOutOfTheFileTotals) {
  TestMachine machine;
  machine.select("54").file(
      "C:\\ProgramData\\Microsoft\\Search\\Data\\Applications\\Windows\\a.log", "12345");
  WatchedProgram program(machine);
  program.run(GetParam());
  EXPECT_EQ(program.task("Windows Searching History"), "Finished|1");
  EXPECT_EQ(program.form.txtfilecount.text(), "0");
  EXPECT_EQ(program.form.txtfilesize.text(), "0");
}

}  // namespace
}  // namespace tavr
