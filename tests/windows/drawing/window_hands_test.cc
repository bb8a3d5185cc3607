// What the windows make of keys and the mouse beyond a plain click: what is held,
// what is broken off, and what a native control does by itself.
#include <gtest/gtest.h>
#include <windows.h>
// Behind windows.h.
#include <commctrl.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "tests/windows/accessible/shown_program.h"
#include "ui/win32/access_keys.h"
#include "ui/win32/form_window.h"

namespace tavr::win32::testing {
namespace {

constexpr LPARAM kRepeated = LPARAM{KF_REPEAT} << 16;

class WindowHands : public ::testing::Test {
 protected:
  void press(HWND window, WPARAM key, LPARAM data = 0) {
    const MSG message{window, WM_KEYDOWN, key, data, 0, {}};
    FormWindow* const form = FormWindow::of(window);
    if (!form->serveKey(message)) {
      SendMessageW(window, WM_KEYDOWN, key, data);
      if (key == VK_ESCAPE) SendMessageW(window, WM_CHAR, key, data);
    }
    shown_.pump();
  }
  void send(HWND window, UINT message, WPARAM wparam = 0, LPARAM lparam = MAKELPARAM(5, 5)) {
    SendMessageW(window, message, wparam, lparam);
    shown_.pump();
  }
  Form1& main() { return shown_.program().form; }

  ShownProgram shown_;
};

TEST_F(WindowHands, AKeyThatIsHeldPressesOnce) {
  int clicks = 0;
  for (Button* const button : std::initializer_list<Button*>{&main().cmd_clear, &main().cmd_test}) {
    button->onClick = [&clicks] { ++clicks; };
  }
  const HWND button = shown_.window("Form1", "cmd_clear");
  SetFocus(button);
  press(button, VK_RETURN);
  EXPECT_EQ(clicks, 1);
  for (int i = 0; i < 5; ++i) press(button, VK_RETURN, kRepeated);
  EXPECT_EQ(clicks, 1);
  press(button, VK_RETURN);
  EXPECT_EQ(clicks, 2);
}

// The dialog that disables it was opened by the keyboard, or by a timer.
TEST_F(WindowHands, APressIsNoneWhenItsFormIsDisabledMeanwhile) {
  int clicks = 0;
  main().cmd_test.onClick = main().cmd_clear.onClick = [&clicks] { ++clicks; };
  for (const char* const name : {"cmd_test", "cmd_clear"}) {
    const HWND button = shown_.window("Form1", name);
    send(button, WM_LBUTTONDOWN, MK_LBUTTON);
    ASSERT_EQ(GetCapture(), button);
    EnableWindow(shown_.formWindow("Form1"), FALSE);
    EXPECT_EQ(GetCapture(), nullptr);
    send(button, WM_LBUTTONUP);
    EnableWindow(shown_.formWindow("Form1"), TRUE);
    EXPECT_EQ(clicks, 0) << name;
    send(button, WM_LBUTTONDOWN, MK_LBUTTON);
    send(button, WM_LBUTTONUP);
    EXPECT_EQ(std::exchange(clicks, 0), 1) << name << ": the next one is a click again";
  }
}

TEST_F(WindowHands, TheSpaceBarMakesNoClickOfAPressThatWasDraggedOut) {
  shown_.open("Form2");
  const HWND box = shown_.window("Form2", "Check1(52)");
  Control& shown = shown_.control("Form2", "Check1(52)");
  const std::string before = shown.shown();
  constexpr LPARAM kBeside = MAKELPARAM(-20, 5);
  send(box, WM_LBUTTONDOWN, MK_LBUTTON);
  send(box, WM_MOUSEMOVE, MK_LBUTTON, kBeside);
  SendMessageW(box, WM_KEYDOWN, VK_SPACE, 0);
  send(box, WM_LBUTTONUP, 0, kBeside);
  EXPECT_EQ(shown.shown(), before);
}

TEST_F(WindowHands, AMousePressTakesTheRingOffTheControlThatKeepsTheFocus) {
  const HWND button = shown_.window("Form1", "cmd_clear");
  FormWindow& form = *FormWindow::of(button);
  SetFocus(button);
  form.showFocus();
  shown_.pump();
  ASSERT_TRUE(form.showsFocus());
  UpdateWindow(button);
  ASSERT_FALSE(GetUpdateRect(button, nullptr, FALSE));
  // A tool: the mouse gives it no focus, and it is not let go here.
  SendMessageW(shown_.window("Form1", "Toolbar1(2)"), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 1));
  EXPECT_EQ(GetFocus(), button);
  EXPECT_TRUE(GetUpdateRect(button, nullptr, FALSE)) << "it is drawn anew";
  EXPECT_FALSE(form.showsFocus());
  ReleaseCapture();
}

TEST_F(WindowHands, APressBesideACommandIsNoneWhenItIsDraggedIn) {
  int clicks = 0;
  main().cmd_test.onClick = [&clicks] { ++clicks; };
  const HWND button = shown_.window("Form1", "cmd_test");
  send(button, WM_RBUTTONDOWN, MK_RBUTTON);
  send(button, WM_LBUTTONDOWN, MK_LBUTTON | MK_RBUTTON, MAKELPARAM(-30, 5));
  send(button, WM_MOUSEMOVE, MK_LBUTTON | MK_RBUTTON);
  send(button, WM_LBUTTONUP, MK_RBUTTON);
  send(button, WM_RBUTTONUP);
  EXPECT_EQ(clicks, 0);
  send(button, WM_LBUTTONDOWN, MK_LBUTTON);
  send(button, WM_LBUTTONUP);
  EXPECT_EQ(clicks, 1);
}

TEST_F(WindowHands, AnAccessKeyThatIsHeldPressesOnceAndWantsAlt) {
  constexpr LPARAM kAlt = LPARAM{KF_ALTDOWN} << 16;
  int clicks = 0;
  main().cmd_test.onClick = [&clicks] { ++clicks; };
  const HWND button = shown_.window("Form1", "cmd_test");
  FormWindow* const form = FormWindow::of(button);
  wchar_t letter = 0;
  for (const AccessKey& key : accessKeys(form->form())) {
    if (key.target == &main().cmd_test) letter = static_cast<wchar_t>(key.letter);
  }
  ASSERT_NE(letter, 0);
  const auto typed = [&](LPARAM data) {
    form->serveKey({button, WM_SYSCHAR, letter, data, 0, {}});
    shown_.pump();
    return clicks;
  };
  EXPECT_EQ(typed(0), 0) << "a letter that came without a focus";
  EXPECT_EQ(typed(kAlt), 1);
  EXPECT_EQ(typed(kAlt | kRepeated), 1);
  EXPECT_EQ(typed(kAlt), 2);
}

// As a run does with its commands: the one that is pressed goes before the one that
// ends it comes.
TEST_F(WindowHands, TheFocusGoesOnFromACommandThatIsDisabled) {
  main().cmd_stop.enabled = false;
  shown_.pump();
  SetFocus(shown_.window("Form1", "cmd_test"));
  for (Button* const button : {&main().cmd_test, &main().cmd_start, &main().cmd_view}) {
    button->enabled = false;
  }
  main().cmd_stop.enabled = true;
  shown_.pump();
  EXPECT_EQ(GetFocus(), shown_.window("Form1", "cmd_stop"));
  main().cmd_stop.enabled = false;
  main().cmd_view.enabled = true;
  shown_.pump();
  EXPECT_EQ(GetFocus(), shown_.window("Form1", "cmd_view"));
}

TEST_F(WindowHands, TheFocusStaysInTheToolbarWhenItsToolIsDisabled) {
  const auto tool = [this](int index) -> Control& {
    return shown_.control("Form1", "Toolbar1(" + std::to_string(index) + ")");
  };
  tool(10).enabled = false;
  shown_.pump();
  SetFocus(shown_.window("Form1", "Toolbar1(6)"));
  for (const int index : {1, 2, 4, 6, 8, 11, 12}) tool(index).enabled = false;
  tool(10).enabled = true;
  shown_.pump();
  EXPECT_EQ(GetFocus(), shown_.window("Form1", "Toolbar1(10)"));
}

TEST_F(WindowHands, TheSpaceBarThatIsHeldWhileTheFocusGoesDoesNotPress) {
  int clicks = 0;
  ChameleonButton& button = main().chameleonButton11;
  button.onClick = [&clicks] { ++clicks; };
  const HWND window = shown_.window("Form1", "chameleonButton11");
  SetFocus(window);
  press(window, VK_SPACE);
  ASSERT_EQ(button.state(), ChameleonButton::State::kPressed);
  SetFocus(shown_.window("Form1", "cmd_test"));
  shown_.pump();
  EXPECT_EQ(button.state(), ChameleonButton::State::kNormal);
  send(window, WM_KEYUP, VK_SPACE);
  EXPECT_EQ(clicks, 0);
}

TEST_F(WindowHands, ADialogShowsWhereTheKeyboardIsThatOpenedIt) {
  const HWND command = shown_.window("Form1", "cmd_option");
  SetFocus(command);
  press(command, VK_TAB);
  press(command, VK_RETURN);
  ASSERT_NE(shown_.formWindow("Form3"), nullptr);
  EXPECT_TRUE(FormWindow::of(shown_.formWindow("Form3"))->showsFocus());
}

TEST_F(WindowHands, ADialogThatTheMouseOpenedShowsNoFocus) {
  const HWND command = shown_.window("Form1", "cmd_option");
  SetFocus(command);
  press(command, VK_TAB);
  ASSERT_TRUE(FormWindow::of(command)->showsFocus());
  send(command, WM_LBUTTONDOWN, MK_LBUTTON);
  send(command, WM_LBUTTONUP);
  ASSERT_NE(shown_.formWindow("Form3"), nullptr);
  EXPECT_FALSE(FormWindow::of(shown_.formWindow("Form3"))->showsFocus());
}

TEST_F(WindowHands, EscClosesAnOpenListBeforeTheForm) {
  open(shown_, {"Form3", "cmd_plugin"});
  HWND box = nullptr;
  for (const BoundControl* const bound : shown_.shown("Form3")) {
    if (dynamic_cast<ComboBox*>(&bound->control())) box = bound->window();
  }
  ASSERT_NE(box, nullptr);
  SetFocus(box);
  SendMessageW(box, CB_SHOWDROPDOWN, TRUE, 0);
  ASSERT_TRUE(SendMessageW(box, CB_GETDROPPEDSTATE, 0, 0));
  press(GetFocus(), VK_ESCAPE);
  EXPECT_FALSE(SendMessageW(box, CB_GETDROPPEDSTATE, 0, 0));
  ASSERT_NE(shown_.program().desk.loaded("Form3"), nullptr);
  press(GetFocus(), VK_ESCAPE);
  EXPECT_EQ(shown_.program().desk.loaded("Form3"), nullptr);
}

TEST_F(WindowHands, AListThatIsLeftWithoutAChoiceShowsTheTextOfTheForm) {
  open(shown_, {"Form3", "cmd_plugin"});
  auto& box = dynamic_cast<ComboBox&>(shown_.control("Form3", "Combo1"));
  const HWND window = shown_.window("Form3", "Combo1");
  ASSERT_NE(window, nullptr);
  box.setText("k");
  shown_.pump();
  SetWindowTextW(window, L"z");
  send(GetParent(window), WM_COMMAND, MAKEWPARAM(0, CBN_SELENDCANCEL),
       reinterpret_cast<LPARAM>(window));
  wchar_t text[8] = L"";
  GetWindowTextW(window, text, 8);
  EXPECT_STREQ(text, L"k");
}

TEST_F(WindowHands, AStoredNumberThatTheListDoesNotOfferIsShown) {
  open(shown_, {"Form3", "cmd_plugin"});
  dynamic_cast<ComboBox&>(shown_.control("Form3", "Combo1")).setText("20");
  shown_.pump();
  wchar_t text[8] = L"";
  GetWindowTextW(shown_.window("Form3", "Combo1"), text, 8);
  EXPECT_STREQ(text, L"20");
}

TEST_F(WindowHands, BehindWhatIsTypedTheCaretStandsAtTheEndOfAnInterval) {
  open(shown_, {"Form3", "chameleonButton8"});
  auto& box = dynamic_cast<TextBox&>(shown_.control("Form3", "Text1"));
  box.setText("12");
  shown_.pump();
  const HWND window = shown_.window("Form3", "Text1");
  SendMessageW(window, EM_SETSEL, 0, 0);
  send(window, WM_CHAR, L'7', 1);
  EXPECT_EQ(box.text(), "712");
  DWORD from = 0;
  DWORD to = 0;
  SendMessageW(window, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
  EXPECT_EQ(from, 3U);
  EXPECT_EQ(to, 3U);
}

TEST_F(WindowHands, AScrollBarGoesToItsEndsAndWhereItIsDragged) {
  open(shown_, {"Form3", "chameleonButton8"});
  auto& bar = dynamic_cast<ScrollBar&>(shown_.control("Form3", "VScroll1"));
  const HWND window = shown_.window("Form3", "VScroll1");
  const auto scrolled = [&](int code, int position = 0) {
    send(GetParent(window), WM_VSCROLL, MAKEWPARAM(code, position),
         reinterpret_cast<LPARAM>(window));
    return bar.value();
  };
  EXPECT_EQ(scrolled(SB_BOTTOM), bar.max);
  EXPECT_EQ(scrolled(SB_LINEUP), bar.max - 1);
  EXPECT_EQ(scrolled(SB_THUMBPOSITION, 7), 7);
  EXPECT_EQ(scrolled(SB_TOP), bar.min);
}

TEST_F(WindowHands, AScrollBarIsWorkedByTheKeyboardBehindItsBox) {
  open(shown_, {"Form3", "chameleonButton8"});
  auto& bar = dynamic_cast<ScrollBar&>(shown_.control("Form3", "VScroll1"));
  const HWND window = shown_.window("Form3", "VScroll1");
  SetFocus(shown_.window("Form3", "Text1"));
  press(GetFocus(), VK_TAB);
  ASSERT_EQ(GetFocus(), window);
  const int before = bar.value();
  press(window, VK_DOWN);
  EXPECT_EQ(bar.value(), before + 1);
  press(window, VK_UP);
  EXPECT_EQ(bar.value(), before);
  press(window, VK_END);
  EXPECT_EQ(bar.value(), bar.max);
  press(window, VK_HOME);
  EXPECT_EQ(bar.value(), bar.min);
  press(window, VK_TAB);
  EXPECT_EQ(GetFocus(), shown_.window("Form3", "Option2"));
}

// No keyboard types them directly, so a Latin letter stands behind.
TEST(WindowHandsIdeographs, ACaptionIsLongerWhileAltIsHeld) {
  ShownProgram shown("zh");
  const HWND window = shown.formWindow("Form1");
  FormWindow& form = *FormWindow::of(window);
  const Control& command = shown.control("Form1", "cmd_test");
  const std::string before = form.captionOf(command);
  form.serveKey({window, WM_SYSKEYDOWN, VK_MENU, 0, 0, {}});
  EXPECT_TRUE(form.captionOf(command).starts_with(before + " (")) << form.captionOf(command);
  form.serveKey({window, WM_SYSKEYUP, VK_MENU, 0, 0, {}});
  EXPECT_EQ(form.captionOf(command), before);
}

TEST(WindowHandsRightToLeft, LeftGoesBackOnEveryKindOfControl) {
  ShownProgram shown("ar");
  open(shown, {"Form2", "cmd_plugin"});
  const auto after = [&shown](WPARAM key) {
    SendMessageW(GetFocus(), WM_KEYDOWN, key, 0);
    shown.pump();
    return GetFocus();
  };
  const HWND box = shown.window("Form2", "Check1(44)");
  SetFocus(box);
  const HWND behind_box = after(VK_RIGHT);
  EXPECT_NE(behind_box, box);
  EXPECT_EQ(after(VK_LEFT), box);
  const HWND button = shown.window("Form2", "cmd_plugin");
  SetFocus(button);
  const HWND behind_button = after(VK_RIGHT);
  EXPECT_EQ(behind_button, shown.window("Form2", "chameleonButton30"));
  EXPECT_EQ(after(VK_LEFT), button);
}

}  // namespace
}  // namespace tavr::win32::testing
