// The three roads out of the program and how they differ.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <utility>
#include <vector>

#include "engine/window.h"
#include "tests/support/started_program.h"
#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace testing;

class ClosingTest : public ::testing::Test {
 protected:
  static void plant(TestMachine& on, bool run_on_exit, bool stealth) {
    on.setting(kOptionSetting, "firsttime", "1");
    if (run_on_exit) on.setting(kOptionsSetting, "1", "1");
    if (stealth) on.setting(kOptionsSetting, "5", "1").setting(kMainSetting, "key", "K");
  }
  StartedProgram& started(std::string_view arguments, bool run_on_exit, bool stealth = false) {
    plant(machine, run_on_exit, stealth);
    program = std::make_unique<StartedProgram>(machine);
    program->start(arguments);
    return *program;
  }

  TestMachine machine;
  std::unique_ptr<StartedProgram> program;
};

TEST_F(ClosingTest, TheSystemCloseOfASilentStartErasesThenEnds) {
  StartedProgram& it = started("s", true);
  EXPECT_TRUE(it.ends([&] { closeWindow(it.program()); }));
  EXPECT_THAT(it.runs, ElementsAre(RunKind::erase));
  EXPECT_EQ(it.form().Text5.text(), "2");
  EXPECT_EQ(it.form().Text10.text(), "0");
  EXPECT_FALSE(it.desktop().trayToolTip().has_value());
}

TEST_F(ClosingTest, TheSystemCloseErasesAgainAfterTheRunAtWindowsStart) {
  machine.setting("tavr wipe\\timer", "winstart", "1");
  StartedProgram& it = started("s", true);
  ASSERT_EQ(it.form().Text5.text(), "2");
  EXPECT_TRUE(it.ends([&] { closeWindow(it.program()); }));
  EXPECT_THAT(it.runs, ElementsAre(RunKind::erase, RunKind::erase));
}

TEST_F(ClosingTest, TheCloseButtonOfASilentStartTestsAndKeepsTheTrayIcon) {
  StartedProgram& it = started("s", true);
  EXPECT_TRUE(it.ends([&] { it.form().chameleonButton11.press(); }));
  EXPECT_THAT(it.runs, ElementsAre(RunKind::test));
  EXPECT_EQ(it.form().Text5.text(), "1");
  EXPECT_TRUE(it.desktop().trayToolTip().has_value());
}

TEST_F(ClosingTest, TerminateErasesAndKeepsTheTrayIcon) {
  StartedProgram& it = started("s", true);
  EXPECT_TRUE(it.ends([&] { Form_Terminate(it.program()); }));
  EXPECT_THAT(it.runs, ElementsAre(RunKind::erase));
  EXPECT_TRUE(it.desktop().trayToolTip().has_value());
}

TEST_F(ClosingTest, TheStripButtonTakesTheShadowAwayAndThenTheCloseButtonsRoad) {
  StartedProgram& it = started("", true);
  ASSERT_TRUE(it.form().shadow);
  EXPECT_TRUE(it.ends([&] { it.form().chameleonButton9.press(); }));
  EXPECT_FALSE(it.form().shadow);
  EXPECT_THAT(it.runs, IsEmpty());
}

TEST_F(ClosingTest, TheMenuEntryTakesTheCloseButtonsRoad) {
  StartedProgram& it = started("s", true);
  EXPECT_TRUE(it.ends([&] { it.form().menu[0].press(); }));
  EXPECT_THAT(it.runs, ElementsAre(RunKind::test));
}

TEST_F(ClosingTest, WithoutTheSilentStartNothingRunsOnExit) {
  StartedProgram& it = started("", true);
  EXPECT_TRUE(it.ends([&] { closeWindow(it.program()); }));
  EXPECT_THAT(it.runs, IsEmpty());
}

TEST_F(ClosingTest, WithoutTheOptionNothingRunsOnExit) {
  StartedProgram& it = started("s", false);
  EXPECT_TRUE(it.ends([&] { it.form().chameleonButton11.press(); }));
  EXPECT_THAT(it.runs, IsEmpty());
}

TEST_F(ClosingTest, TheOptionIsOnForExactlyTheNumberOne) {
  const std::pair<const char*, bool> kTexts[] = {{"1.0", true}, {"2", false}, {"abc", false}};
  for (const auto& [text, on] : kTexts) {
    TestMachine fresh;
    plant(fresh, false, false);
    fresh.setting(kOptionsSetting, "1", text);
    StartedProgram it(fresh);
    it.start("s");
    EXPECT_TRUE(it.ends([&] { closeWindow(it.program()); })) << text;
    EXPECT_EQ(it.runs.size(), on ? 1U : 0U) << text;
  }
}

TEST_F(ClosingTest, EveryRoadReleasesTheHotKeyBeforeTheRun) {
  const std::vector<std::function<void(Program&)>> roads = {
      [](Program& it) { it.form.chameleonButton11.press(); }, closeWindow, Form_Terminate};
  for (std::size_t road = 0; road < roads.size(); ++road) {
    TestMachine fresh;
    plant(fresh, true, true);
    StartedProgram it(fresh);
    it.start("s");
    ASSERT_EQ(it.desktop().hotKeys().size(), 1u) << road;
    bool released = false;
    it.program().onRunFinished = [&](RunKind) { released = it.desktop().hotKeys().empty(); };
    EXPECT_TRUE(it.ends([&] { roads[road](it.program()); })) << road;
    EXPECT_TRUE(released) << road;
    EXPECT_FALSE(it.program().hot_key_installed) << road;
  }
}

TEST_F(ClosingTest, TheTrayIconGoesBeforeTheRunOfTheSystemClose) {
  StartedProgram& it = started("s", true);
  bool gone = false;
  std::string text10;
  it.form().bar1.onValue = [&](int value) {
    if (value != 5) return;
    gone = !it.desktop().trayToolTip().has_value();
    text10 = it.form().Text10.text();
  };
  EXPECT_TRUE(it.ends([&] { closeWindow(it.program()); }));
  EXPECT_TRUE(gone);
  EXPECT_EQ(text10, "1");
}

TEST_F(ClosingTest, WhileARunOnExitGoesOnAnotherCloseDoesNotEndTheProcess) {
  StartedProgram& it = started("", false, true);
  it.form().Text10.setText("1");
  EXPECT_FALSE(it.ends([&] { it.form().chameleonButton11.press(); }));
  EXPECT_TRUE(it.desktop().hotKeys().empty());
  EXPECT_FALSE(it.ends([&] { closeWindow(it.program()); }));
  EXPECT_FALSE(it.form().visible);
}

// A run is a handler that pumps: what a person does meanwhile is served inside it.
class DuringARun : public ::testing::Test {
 protected:
  WatchedProgram& started(std::string_view arguments = "") {
    machine.setting(kOptionSetting, "firsttime", "1")
        .setting(kOptionsSetting, "5", "1")
        .setting(kMainSetting, "key", "K")
        .select("10")
        .file("C:\\Users\\user\\AppData\\Local\\Temp\\a");
    program = std::make_unique<WatchedProgram>(machine);
    program->program.onRunFinished = [this](RunKind kind) { runs.push_back(kind); };
    EXPECT_FALSE(program->start(arguments));
    return *program;
  }

  TestMachine machine;
  std::unique_ptr<WatchedProgram> program;
  std::vector<RunKind> runs;
};

TEST_F(DuringARun, TheCloseButtonEndsTheProcessAtOnce) {
  WatchedProgram& it = started();
  it.events.next([&] { it.form.chameleonButton11.press(); });
  EXPECT_TRUE(it.run(RunKind::erase));
  EXPECT_THAT(runs, IsEmpty());
  EXPECT_TRUE(machine.exists("C:\\Users\\user\\AppData\\Local\\Temp\\a"));
}

TEST_F(DuringARun, TheSystemCloseOfASilentStartErasesInsideItAndThenEndsTheProcess) {
  machine.setting(kOptionsSetting, "1", "1");
  WatchedProgram& it = started("s");
  it.events.next([&] { closeWindow(it.program); });
  EXPECT_TRUE(it.run(RunKind::test));
  EXPECT_THAT(runs, ElementsAre(RunKind::erase));
  EXPECT_FALSE(machine.exists("C:\\Users\\user\\AppData\\Local\\Temp\\a"));
}

TEST_F(DuringARun, TheHotKeyHidesTheWindowAndTheRunGoesOn) {
  WatchedProgram& it = started();
  it.events.next([&] { hotKeyProcedure(it.program, kHotKeyMessage, 1); });
  EXPECT_FALSE(it.run(RunKind::test));
  EXPECT_THAT(runs, ElementsAre(RunKind::test));
  EXPECT_FALSE(it.form.visible);
}

}  // namespace
}  // namespace tavr
