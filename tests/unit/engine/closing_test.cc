// The three roads out of the program and how they differ.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/window.h"
#include "tests/support/started_program.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace testing;

class ClosingTest : public ::testing::Test {
 protected:
  StartedProgram& started(std::string_view arguments, bool run_on_exit, bool stealth = false) {
    machine.setting(kOptionSetting, "firsttime", "1");
    if (run_on_exit) machine.setting(kOptionsSetting, "1", "1");
    if (stealth) machine.setting(kOptionsSetting, "5", "1").setting(kMainSetting, "key", "K");
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

TEST_F(ClosingTest, EveryRoadReleasesTheHotKeyBeforeTheRun) {
  StartedProgram& it = started("s", true, true);
  ASSERT_EQ(it.desktop().hotKeys().size(), 1u);
  bool released = false;
  it.program().onRunFinished = [&](RunKind) { released = it.desktop().hotKeys().empty(); };
  EXPECT_TRUE(it.ends([&] { it.form().chameleonButton11.press(); }));
  EXPECT_TRUE(released);
  EXPECT_FALSE(it.program().hot_key_installed);
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

}  // namespace
}  // namespace tavr
