// Minimising, the tray icon, and the hot key.
#include "engine/window.h"

#include <gtest/gtest.h>

#include <utility>

#include "forms/form3.h"
#include "tests/support/started_program.h"

namespace tavr {
namespace {

using namespace testing;

class WindowTest : public ::testing::Test {
 protected:
  StartedProgram& started(bool stealth = false, std::string_view key = "K") {
    machine.setting(kOptionSetting, "firsttime", "1");
    if (stealth) machine.setting(kOptionsSetting, "5", "1").setting(kMainSetting, "key", key);
    program = std::make_unique<StartedProgram>(machine);
    program->start();
    return *program;
  }

  TestMachine machine;
  std::unique_ptr<StartedProgram> program;
};

TEST_F(WindowTest, MinimisingHidesToTheTray) {
  StartedProgram& it = started();
  it.form().chameleonButton10.press();
  EXPECT_EQ(it.form().window_state, WindowState::kMinimised);
  EXPECT_FALSE(it.form().visible);
  EXPECT_TRUE(it.form().TrayArea1.visible());
  EXPECT_EQ(it.desktop().trayToolTip(), "Spoorwipe");
}

TEST_F(WindowTest, WithStealthThereIsNoTrayIcon) {
  StartedProgram& it = started(true);
  it.form().chameleonButton10.press();
  EXPECT_FALSE(it.form().visible);
  EXPECT_FALSE(it.form().TrayArea1.visible());
  EXPECT_FALSE(it.desktop().trayToolTip().has_value());
}

TEST_F(WindowTest, StealthWithoutAKeyHidesItForGood) {
  StartedProgram& it = started(true, "");
  it.form().chameleonButton10.press();
  hotKeyProcedure(it.program(), kHotKeyMessage, 1);
  EXPECT_FALSE(it.form().visible);
  EXPECT_FALSE(it.desktop().trayToolTip().has_value());
  EXPECT_TRUE(it.desktop().hotKeys().empty());
}

TEST_F(WindowTest, TheOptionIsReadAtEachMinimising) {
  StartedProgram& it = started();
  it.program().registry.saveSetting("software\\tavrwork\\Tavr wipe\\option\\option", "5", "1");
  it.form().chameleonButton10.press();
  EXPECT_FALSE(it.form().TrayArea1.visible());
}

TEST_F(WindowTest, TheOptionIsOnForExactlyTheNumberOne) {
  const std::pair<const char*, bool> kTexts[] = {{"1.0", true}, {"2", false}, {"abc", false}};
  for (const auto& [text, on] : kTexts) {
    TestMachine own;
    own.setting(kOptionSetting, "firsttime", "1").setting(kOptionsSetting, "5", text);
    StartedProgram it(own);
    it.start();
    it.form().chameleonButton10.press();
    EXPECT_EQ(it.form().TrayArea1.visible(), !on) << text;
  }
}

TEST_F(WindowTest, ResizingAWindowThatIsNotMinimisedDoesNothing) {
  StartedProgram& it = started();
  Form_Resize(it.program());
  EXPECT_TRUE(it.form().visible);
  EXPECT_FALSE(it.form().TrayArea1.visible());
}

TEST_F(WindowTest, ADoubleClickOrALeftPressOnTheIconRestores) {
  // Left press, left double click, right double click.
  for (const std::uint32_t message : {513u, 515u, 518u}) {
    TestMachine own;
    own.setting(kOptionSetting, "firsttime", "1");
    StartedProgram it(own);
    it.start();
    it.form().chameleonButton10.press();
    it.form().TrayArea1.message(message);
    EXPECT_TRUE(it.form().visible) << message;
    EXPECT_EQ(it.form().window_state, WindowState::kNormal) << message;
    EXPECT_FALSE(it.desktop().trayToolTip().has_value()) << message;
    EXPECT_FALSE(it.form().bccc.visible) << message;
  }
}

TEST_F(WindowTest, MovingOverTheIconAndReleasesDoNothing) {
  StartedProgram& it = started();
  it.form().chameleonButton10.press();
  for (const std::uint32_t message : {512u, 514u, 517u}) it.form().TrayArea1.message(message);
  EXPECT_FALSE(it.form().visible);
  EXPECT_FALSE(it.form().bccc.visible);
}

TEST_F(WindowTest, TheRightButtonOpensTheMenuAndLeavesTheWindowHidden) {
  StartedProgram& it = started();
  it.form().chameleonButton10.press();
  it.form().TrayArea1.message(516);
  EXPECT_TRUE(it.form().bccc.visible);
  EXPECT_FALSE(it.form().visible);
  EXPECT_TRUE(it.form().TrayArea1.visible());
}

TEST_F(WindowTest, TheHotKeyHidesAVisibleWindowAndUnloadsTheDialogs) {
  StartedProgram& it = started(true);
  it.form().chameleonButton7.press();
  it.form().chameleonButton8.press();
  it.program().desk.openKeepList("Current Cookies List", "1");
  ASSERT_TRUE(it.open("Form2") && it.open("Form3") && it.open("Form52"));
  hotKeyProcedure(it.program(), kHotKeyMessage, 1);
  EXPECT_FALSE(it.form().visible);
  for (const char* dialog : {"Form2", "Form3", "Form52"}) EXPECT_FALSE(it.open(dialog)) << dialog;
  EXPECT_TRUE(it.form().enabled);
  it.program().desk.freeUnloaded();
}

// The tray icon's road removes the icon, the hot key's leaves it, and the next
// minimising under stealth takes it away.
TEST_F(WindowTest, TheHotKeyLeavesATrayIconThatStealthThenHides) {
  constexpr std::string_view kOptions = "software\\tavrwork\\Tavr wipe\\option\\option";
  StartedProgram& it = started(true);
  it.program().registry.saveSetting(kOptions, "5", "0");
  it.form().chameleonButton10.press();
  ASSERT_TRUE(it.form().TrayArea1.visible());
  hotKeyProcedure(it.program(), kHotKeyMessage, 1);
  EXPECT_TRUE(it.form().visible);
  EXPECT_TRUE(it.form().TrayArea1.visible());
  EXPECT_TRUE(it.desktop().trayToolTip().has_value());
  it.program().registry.saveSetting(kOptions, "5", "1");
  it.form().chameleonButton10.press();
  EXPECT_FALSE(it.form().visible);
  EXPECT_FALSE(it.form().TrayArea1.visible());
}

TEST_F(WindowTest, AButtonOfAClosedFormNoLongerLooksForTheMouse) {
  StartedProgram& it = started();
  it.form().chameleonButton7.press();
  auto* const button =
      dynamic_cast<ChameleonButton*>(it.program().desk.loaded("Form2")->find("chameleonButton4"));
  ASSERT_NE(button, nullptr);
  button->mouseMove();
  ASSERT_TRUE(button->OverTimer.enabled());
  it.program().desk.unload("Form2");
  EXPECT_FALSE(button->OverTimer.enabled());
}

TEST_F(WindowTest, AHotKeyThatIsSetCountsFromTheNextStart) {
  StartedProgram& it = started();
  it.form().chameleonButton8.press();
  auto& options = dynamic_cast<Form3&>(*it.program().desk.loaded("Form3"));
  options.Check1[5].press();
  options.Combo2.setText("K");
  options.chameleonButton19.press();
  EXPECT_TRUE(it.desktop().hotKeys().empty());
  program.reset();
  EXPECT_EQ(started().desktop().hotKeys().size(), 1U);
}

TEST_F(WindowTest, TheHotKeyBringsAHiddenWindowBack) {
  StartedProgram& it = started(true);
  it.form().chameleonButton10.press();
  hotKeyProcedure(it.program(), kHotKeyMessage, 1);
  EXPECT_TRUE(it.form().visible);
  EXPECT_EQ(it.form().window_state, WindowState::kNormal);
}

TEST_F(WindowTest, OtherMessagesAndIdentifiersPass) {
  StartedProgram& it = started(true);
  hotKeyProcedure(it.program(), kHotKeyMessage, 2);
  hotKeyProcedure(it.program(), 0x10, 1);
  EXPECT_TRUE(it.form().visible);
}

TEST_F(WindowTest, WithoutAnInstalledProcedureTheMessageDoesNothing) {
  StartedProgram& it = started();
  hotKeyProcedure(it.program(), kHotKeyMessage, 1);
  EXPECT_TRUE(it.form().visible);
}

TEST_F(WindowTest, Command5ReleasesKeysAndProcedure) {
  StartedProgram& it = started(true);
  it.form().Command5.press();
  EXPECT_TRUE(it.desktop().hotKeys().empty());
  EXPECT_EQ(it.program().hot_key_count, 0);
  EXPECT_FALSE(it.program().hot_key_installed);
}

}  // namespace
}  // namespace tavr
