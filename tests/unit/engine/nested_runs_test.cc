// Nothing guards against a run inside a run: the timer or the trigger box may
// start one whenever a run pumps. The run members are shared, and the outer run
// goes on with what the inner one leaves.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/browser_traces.h"
#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using testing::addCookies;
using ::testing::ElementsAre;
using testing::TestMachine;
using testing::WatchedProgram;

constexpr std::string_view kLog = "C:\\Program Files\\Tavr Wipe\\eraselog.txt";
constexpr std::string_view kStatistics =
    "software\\tavrwork\\Tavr Brightbox Deluxe\\statics\\tracks";

std::string startLine(const std::string& time) {
  return "\r\n\r\nTest Mode: Test Start --------------------at 11/20/2026  " + time + "\r\n";
}

std::string endLines(const std::string& totals, const std::string& time) {
  return std::string(155, '-') +
         "\r\nTest Mode: --Test Completed ----Registry Keys Scanned: " + totals +
         " *********  at 11/20/2026  " + time + "\r\n";
}

std::string logRow(const std::string& text) { return "Test Mode : Erasing " + text + "\r\n"; }

// A timer that starts an Erase run `times` times in all, from inside its own
// handler too.
void eraseFromTimer(WatchedProgram& program, int& times) {
  program.machine.events.startTimer(1000, [&] {
    if (times-- <= 0) return;
    program.form.Text5.setText("");
    program.form.Text5.setText("2");
  });
}

// The Run history waits two seconds, which is when the timer ticks.
class ARunInsideARun : public ::testing::Test {
 protected:
  ARunInsideARun() {
    machine.select("11").select("52");
    addCookies(machine, 2, 3, 1024);
  }

  TestMachine machine;
};

TEST_F(ARunInsideARun, LeavesTheOuterOneItsMembersAsTheyStand) {
  WatchedProgram program(machine);
  int times = 1;
  eraseFromTimer(program, times);
  program.run(RunKind::erase);
  EXPECT_EQ(program.form.View200.count(), 5u);  // the inner run's four and the outer's row
  EXPECT_EQ(program.task("Start Menu Run History"), "Finished|1");
  EXPECT_EQ(program.task("Google chrome Browser"), "Finished|3");
  EXPECT_EQ(program.form.taskrow, 23);  // moved on from where the inner run ended
  EXPECT_EQ(program.form.Text14.text(), "23");
  EXPECT_EQ(program.form.txtregcount.text(), "2");
  EXPECT_EQ(program.form.txtfilecount.text(), "3");
}

TEST_F(ARunInsideARun, WritesItsLogAndTheOuterOneWritesTheRowsOfBoth) {
  WatchedProgram program(machine);
  int times = 1;
  eraseFromTimer(program, times);
  program.run(RunKind::erase);
  const std::string folder =
      std::string(testing::kUser) + "\\AppData\\Local\\Google\\Chrome\\User Data\\Default\\s";
  std::string inner = logRow("Clean start run history  <OK>");
  for (const char* number : {"1", "2", "3"}) {
    inner += logRow(folder + number + "\\Cookies Google cookies");
  }
  EXPECT_EQ(machine.read(kLog),
            startLine("10:00:03 AM") + inner +
                endLines("1, Files : 3 , Hard Disk Space: 3.000 KB", "10:00:03 AM") +
                startLine("10:00:03 AM") + inner + logRow("Clean start run history  <OK>") +
                endLines("2, Files : 3 , Hard Disk Space: 3.000 KB", "10:00:03 AM"));
}

TEST_F(ARunInsideARun, AddsToTheStatisticsAndTheOuterOneAddsAllAgain) {
  WatchedProgram program(machine);
  int times = 1;
  eraseFromTimer(program, times);
  program.run(RunKind::erase);
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kStatistics, "rcount"), "3");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kStatistics, "count"), "6");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kStatistics, "size"), "9");
}

TEST_F(ARunInsideARun, MayComeFromTheSameTimerAgain) {
  WatchedProgram program(machine);
  int runs = 0;
  program.program.onRunFinished = [&](RunKind) { ++runs; };
  int times = 3;
  eraseFromTimer(program, times);
  program.run(RunKind::erase);
  EXPECT_EQ(runs, 4);
  EXPECT_EQ(program.form.txtregcount.text(), "4");
}

TEST_F(ARunInsideARun, StopsTheOuterOnesTicks) {
  machine.select("10").file("C:\\Users\\user\\AppData\\Local\\Temp\\a");
  WatchedProgram program(machine);
  bool inner = false;
  bool ticking = true;
  program.events.when([&] { return !inner && program.form.taskrow == 2; },
                      [&] {
                        inner = true;
                        program.form.Text5.setText("2");
                        ticking = program.form.Timer2.enabled();
                      });
  program.run(RunKind::erase);
  EXPECT_TRUE(inner);
  EXPECT_FALSE(ticking);
}

// The log has number 1 open while it pumps at each row. The inner run closes
// every number before it writes its own report, and the outer run's remaining
// lines have nowhere to go.
TEST(ARunInsideTheLog, TakesTheOuterRunsFileAway) {
  TestMachine machine;
  machine.select("10")
      .file("C:\\Users\\user\\AppData\\Local\\Temp\\a")
      .file("C:\\Users\\user\\AppData\\Local\\Temp\\b");
  WatchedProgram program(machine);
  int runs = 0;
  program.program.onRunFinished = [&](RunKind) { ++runs; };
  // Inside the second row's pump: the first has been printed.
  int log_pumps = 0;
  program.events.when([&] { return program.program.numbers.freeFile() == 2 && ++log_pumps == 2; },
                      [&] { program.form.Text5.setText("1"); });
  program.run(RunKind::test);
  EXPECT_EQ(runs, 2);
  const std::string first = logRow("C:\\Users\\user\\AppData\\Local\\Temp\\a windows temp folder");
  const std::string second = logRow("C:\\Users\\user\\AppData\\Local\\Temp\\b windows temp folder");
  EXPECT_EQ(machine.read(kLog),
            startLine("10:00:00 AM") + first + startLine("10:00:00 AM") + first + second +
                endLines("0, Files : 2 , Hard Disk Space: 0.002 KB", "10:00:00 AM"));
  EXPECT_EQ(program.program.numbers.freeFile(), 1);
}

TEST(ARunInsideTheLog, OfAnEraseRunStillLetsTheOuterStatisticsBeAdded) {
  TestMachine machine;
  machine.select("53");
  WatchedProgram program(machine);
  program.events.when([&] { return program.program.numbers.freeFile() == 2; },
                      [&] { program.form.Text5.setText("2"); });
  program.run(RunKind::erase);
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kStatistics, "rcount"), "4");
}

TEST(ARunInsideARunForACaller, EndsTheProcessWithinTheOuterOne) {
  TestMachine machine;
  machine.select("10").file("C:\\Users\\user\\AppData\\Local\\Temp\\a");
  WatchedProgram program(machine);
  program.form.resultMode = 2;
  int runs = 0;
  program.program.onRunFinished = [&](RunKind) { ++runs; };
  program.events.next([&] { program.form.Text5.setText("2"); });
  EXPECT_TRUE(program.run(RunKind::erase));
  EXPECT_EQ(runs, 1);
}

}  // namespace
}  // namespace tavr
