// The whole program by the keyboard.
#include <gmock/gmock.h>

#include "platform/win32/wide.h"
#include "services/settings_keys.h"
#include "tests/windows/window/window_test.h"

namespace tavr::testing {
namespace {

using ::testing::IsSupersetOf;

class Keyboard : public WindowTest {
 protected:
  HWND focus() {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(GetWindowThreadProcessId(program().form("Form1"), nullptr), &info);
    return info.hwndFocus;
  }
  bool hasFocus(std::string_view control) {
    return comes([&] { return focus() == program().window(control); });
  }
  // Which of the controls Tab comes by before it is around.
  std::vector<std::string> reachedByTab(const std::vector<std::string>& controls) {
    std::vector<std::string> reached;
    const HWND first = focus();
    do {
      for (const std::string& control : controls) {
        if (program().sees(control) && focus() == program().window(control)) {
          reached.push_back(control);
        }
      }
      const HWND before = focus();
      pressKey(VK_TAB);
      comes([&] { return focus() != before; }, 500);
    } while (focus() != first && reached.size() < 100);
    return reached;
  }
};

TEST_F(Keyboard, TabComesByEveryCommandOfTheMainForm) {
  const std::vector<std::string> commands = {
      "Form1.cmd_settings",      "Form1.cmd_option",        "Form1.cmd_plugin",
      "Form1.cmd_test",          "Form1.cmd_start",         "Form1.cmd_view",
      "Form1.cmd_clear",         "Form1.chameleonButton4",  "Form1.chameleonButton11",
      "Form1.View100",           "Form1.View200",           "Form1.chameleonButton12",
      "Form1.chameleonButton13", "Form1.chameleonButton10", "Form1.chameleonButton9",
      "Form1.Toolbar1(1)"};
  start();
  EXPECT_TRUE(hasFocus("Form1.cmd_settings"));
  EXPECT_THAT(reachedByTab(commands), IsSupersetOf(commands));
}

TEST_F(Keyboard, ArrowsMoveAlongTheToolbarAndEnterPresses) {
  start();
  EXPECT_TRUE(hasFocus("Form1.cmd_settings"));
  for (int i = 0; i < 40 && focus() != program().window("Form1.Toolbar1(1)"); ++i) {
    pressKey(VK_TAB);
    Sleep(50);
  }
  ASSERT_TRUE(hasFocus("Form1.Toolbar1(1)"));
  pressKey(VK_RIGHT);
  EXPECT_TRUE(hasFocus("Form1.Toolbar1(2)"));
  pressKey(VK_RETURN);
  EXPECT_TRUE(program().comesUp("Form3"));
}

TEST_F(Keyboard, ArrowsMoveTheFocusAsTabDoes) {
  start();
  EXPECT_TRUE(hasFocus("Form1.cmd_settings"));
  pressKey(VK_DOWN);
  EXPECT_TRUE(hasFocus("Form1.cmd_option"));
  pressKey(VK_UP);
  EXPECT_TRUE(hasFocus("Form1.cmd_settings"));
}

TEST_F(Keyboard, TheSpaceBarPressesWhenItIsLetGo) {
  start();
  EXPECT_TRUE(hasFocus("Form1.cmd_settings"));
  pressKey(VK_SPACE);
  EXPECT_TRUE(program().comesUp("Form2"));
}

TEST_F(Keyboard, AltShowsTheAccessKeysAndOneOfThemPresses) {
  start();
  EXPECT_TRUE(program().comesToFront("Form1"));
  const auto before = program().pixels("Form1.cmd_option");
  INPUT alt{};
  alt.type = INPUT_KEYBOARD;
  alt.ki.wVk = VK_MENU;
  SendInput(1, &alt, sizeof(alt));
  EXPECT_TRUE(comes([&] { return program().pixels("Form1.cmd_option") != before; }));
  alt.ki.dwFlags = KEYEVENTF_KEYUP;
  SendInput(1, &alt, sizeof(alt));
  EXPECT_TRUE(comes([&] { return program().pixels("Form1.cmd_option") == before; }));
  pressKey('O', VK_MENU);
  EXPECT_TRUE(program().comesUp("Form3"));
}

TEST_F(Keyboard, TheFocusIsSeenOnceTheKeyboardIsUsed) {
  start();
  EXPECT_TRUE(hasFocus("Form1.cmd_settings"));
  const auto before = program().pixels("Form1.cmd_option");
  pressKey(VK_TAB);
  EXPECT_TRUE(hasFocus("Form1.cmd_option"));
  EXPECT_TRUE(comes([&] { return program().pixels("Form1.cmd_option") != before; }));
}

TEST_F(Keyboard, EveryBoxOfTheSettingsIsReachedAndTicked) {
  start();
  pressKey(VK_SPACE);
  ASSERT_TRUE(program().comesUp("Form2"));
  const std::vector<std::string> boxes = {
      "Form2.Check1(44)",       "Form2.Check1(45)",        "Form2.Check1(46)",
      "Form2.Check1(49)",       "Form2.Check1(52)",        "Form2.chameleonButton27",
      "Form2.chameleonButton4", "Form2.chameleonButton30", "Form2.chameleonButton31"};
  EXPECT_THAT(reachedByTab(boxes), IsSupersetOf(boxes));
  for (int i = 0; i < 40 && focus() != program().window("Form2.Check1(44)"); ++i) {
    pressKey(VK_TAB);
    Sleep(50);
  }
  pressKey(VK_SPACE);
  EXPECT_TRUE(comes([] { return setting(settings::kSelectionKey, "44") == "1"; }));
}

TEST_F(Keyboard, ShiftAndTabGoBack) {
  start();
  EXPECT_TRUE(hasFocus("Form1.cmd_settings"));
  pressKey(VK_TAB);
  EXPECT_TRUE(hasFocus("Form1.cmd_option"));
  pressKey(VK_TAB, VK_SHIFT);
  EXPECT_TRUE(hasFocus("Form1.cmd_settings"));
}

TEST_F(Keyboard, ArrowsMoveInTheTaskTable) {
  start();
  for (int i = 0; i < 40 && focus() != program().window("Form1.View100"); ++i) {
    pressKey(VK_TAB);
    Sleep(50);
  }
  ASSERT_TRUE(hasFocus("Form1.View100"));
  const auto selected = [this] {
    return SendMessageW(program().window("Form1.View100"), 0x100C /* LVM_GETNEXTITEM */,
                        static_cast<WPARAM>(-1), 2 /* LVNI_SELECTED */);
  };
  pressKey(VK_DOWN);
  EXPECT_TRUE(comes([&] { return selected() >= 0; }));
  const LRESULT first = selected();
  pressKey(VK_DOWN);
  EXPECT_TRUE(comes([&] { return selected() == first + 1; }));
}

}  // namespace
}  // namespace tavr::testing
