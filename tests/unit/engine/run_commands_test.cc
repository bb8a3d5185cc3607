// What the buttons and the trigger box add around a run.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::TestMachine;
using testing::WatchedProgram;

// The buttons that are enabled, in a fixed order.
std::string enabled(const Form1& form) {
  std::string names;
  const std::pair<const char*, const Button*> buttons[] = {
      {"settings ", &form.cmd_settings}, {"option ", &form.cmd_option},
      {"plugin ", &form.cmd_plugin},     {"test ", &form.cmd_test},
      {"start ", &form.cmd_start},       {"stop ", &form.cmd_stop},
      {"view ", &form.cmd_view},         {"clear ", &form.cmd_clear}};
  for (const auto& [name, button] : buttons) {
    if (button->enabled) names += name;
  }
  return names;
}

constexpr const char* kAtRest = "settings option plugin test start view clear ";
constexpr const char* kAll = "settings option plugin test start stop view clear ";

// A machine whose run pumps at least once before its log.
void oneFile(TestMachine& machine) {
  machine.select("10").file("C:\\Users\\user\\AppData\\Local\\Temp\\a");
}

struct Seen {
  std::string buttons;
  bool animation = false;
  int stopflag = -1;
};

void look(WatchedProgram& program, Seen& seen) {
  program.events.next([&] {
    seen = {enabled(program.form), program.form.Gif89a1.visible, program.form.stopflag};
  });
}

TEST(Buttons, StopStandsDisabledAndTheAnimationHiddenOnTheFreshForm) {
  TestMachine machine;
  WatchedProgram program(machine);
  EXPECT_EQ(enabled(program.form), kAtRest);
  EXPECT_FALSE(program.form.Gif89a1.visible);
  EXPECT_FALSE(program.form.bar1.visible());
  EXPECT_FALSE(program.form.Label1[0].visible);
}

TEST(Buttons, StartEnablesStopAndLeavesTheOthers) {
  TestMachine machine;
  oneFile(machine);
  WatchedProgram program(machine);
  program.form.stopflag = 1;
  Seen seen;
  look(program, seen);
  program.form.cmd_start.click();
  EXPECT_EQ(seen.buttons, kAll);
  EXPECT_TRUE(seen.animation);
  EXPECT_EQ(seen.stopflag, 0);
  EXPECT_EQ(enabled(program.form), kAtRest);
  EXPECT_FALSE(program.form.Gif89a1.visible);
  EXPECT_FALSE(machine.exists("C:\\Users\\user\\AppData\\Local\\Temp\\a"));
}

TEST(Buttons, TestDisablesAllButStop) {
  TestMachine machine;
  oneFile(machine);
  WatchedProgram program(machine);
  Seen seen;
  look(program, seen);
  program.form.cmd_test.click();
  EXPECT_EQ(seen.buttons, "stop ");
  EXPECT_TRUE(seen.animation);
  EXPECT_EQ(enabled(program.form), kAtRest);
  EXPECT_FALSE(program.form.Gif89a1.visible);
  EXPECT_TRUE(machine.exists("C:\\Users\\user\\AppData\\Local\\Temp\\a"));
}

TEST(Buttons, StopDuringATestGivesTheOthersBackAtOnce) {
  TestMachine machine;
  oneFile(machine);
  WatchedProgram program(machine);
  Seen seen;
  bool bar = true, label = true;
  program.form.toolbar[8].enabled = false;
  program.form.toolbar[10].enabled = true;
  program.events.next([&] {
    program.form.cmd_stop.click();
    seen = {enabled(program.form), program.form.Gif89a1.visible, program.form.stopflag};
    bar = program.form.bar1.visible();
    label = program.form.Label1[0].visible;
  });
  program.form.cmd_test.click();
  EXPECT_EQ(seen.buttons, kAtRest);
  EXPECT_FALSE(seen.animation);
  EXPECT_EQ(seen.stopflag, 1);
  EXPECT_FALSE(bar);
  EXPECT_FALSE(label);
  // The tools are the toolbar's Stop's.
  EXPECT_FALSE(program.form.toolbar[8].enabled);
  EXPECT_TRUE(program.form.toolbar[10].enabled);
}

// The three ways into the trigger box's handler.
std::vector<RunKind> runsOf(std::initializer_list<const char*> texts) {
  TestMachine machine;
  WatchedProgram program(machine);
  std::vector<RunKind> runs;
  program.program.onRunFinished = [&](RunKind kind) { runs.push_back(kind); };
  for (const char* text : texts) program.form.Text5.setText(text);
  return runs;
}

TEST(TriggerBox, OneTestsAndTwoErases) {
  EXPECT_THAT(runsOf({"1"}), ElementsAre(RunKind::test));
  EXPECT_THAT(runsOf({"2"}), ElementsAre(RunKind::erase));
  EXPECT_THAT(runsOf({"0", "", "3", "x"}), IsEmpty());
}

TEST(TriggerBox, TheSameTextAgainIsNoChange) {
  EXPECT_THAT(runsOf({"2", "2"}), ElementsAre(RunKind::erase));
  EXPECT_THAT(runsOf({"2", "", "2", "0", "2"}),
              ElementsAre(RunKind::erase, RunKind::erase, RunKind::erase));
}

TEST(TriggerBox, ItsValueIsReadAgainBehindATestRun) {
  TestMachine machine;
  oneFile(machine);
  WatchedProgram program(machine);
  std::vector<RunKind> runs;
  program.program.onRunFinished = [&](RunKind kind) { runs.push_back(kind); };
  // Set while the Test run pumps: an Erase run of its own, and, when the Test
  // run has come back, the value that now stands there counts once more.
  program.events.next([&] { program.form.Text5.setText("2"); });
  program.form.Text5.setText("1");
  EXPECT_THAT(runs, ElementsAre(RunKind::erase, RunKind::test, RunKind::erase));
}

TEST(TriggerBox, ItsRunDoesNotEnableStop) {
  TestMachine machine;
  oneFile(machine);
  WatchedProgram program(machine);
  Seen seen;
  look(program, seen);
  program.form.Text5.setText("2");
  EXPECT_EQ(seen.buttons, kAtRest);
  EXPECT_FALSE(seen.animation);
}

}  // namespace
}  // namespace tavr
