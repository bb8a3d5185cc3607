// The forms as windows among others: minimised by whatever hand, larger than the
// screen, on a monitor of another resolution, shown again, at the end of the
// session, and beside a box that is open.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "platform/win32/win32_dialogs.h"
#include "services/settings_keys.h"
#include "tests/windows/accessible/shown_program.h"
#include "ui/win32/form_window.h"

namespace tavr::win32::testing {
namespace {

RECT placeOf(HWND window) {
  RECT place;
  GetWindowRect(window, &place);
  return place;
}

class WindowForms : public ::testing::Test {
 protected:
  HWND window(std::string_view form) const { return shown_.formWindow(form); }
  COLORREF strip(std::string_view form) const {
    return FormWindow::of(window(form))->palette().strip;
  }
  Form1& main() { return shown_.program().form; }

  ShownProgram shown_;
};

TEST_F(WindowForms, OnlyTheMainFormCanBeMinimised) {
  shown_.open("Form3");
  EXPECT_NE(GetWindowLongW(window("Form1"), GWL_STYLE) & WS_MINIMIZEBOX, 0);
  EXPECT_EQ(GetWindowLongW(window("Form3"), GWL_STYLE) & WS_MINIMIZEBOX, 0);
  SendMessageW(window("Form3"), WM_SYSCOMMAND, SC_MINIMIZE, 0);
  shown_.pump();
  EXPECT_FALSE(IsIconic(window("Form3")));
  ShowWindow(window("Form3"), SW_SHOWMINNOACTIVE);
  shown_.pump();
  EXPECT_FALSE(IsIconic(window("Form3"))) << "it has no task button to come back by";
}

TEST_F(WindowForms, WhatTheSystemMinimisesGoesToTheNotificationArea) {
  ShowWindow(window("Form1"), SW_MINIMIZE);
  shown_.pump();
  EXPECT_EQ(main().window_state, WindowState::kMinimised);
  EXPECT_FALSE(main().visible);
  EXPECT_TRUE(main().TrayArea1.visible());
  EXPECT_FALSE(IsWindowVisible(window("Form1")));
  main().TrayArea1.onDblClick();
  shown_.pump();
  EXPECT_TRUE(IsWindowVisible(window("Form1")));
  EXPECT_FALSE(IsIconic(window("Form1")));
}

// The buttons stand at the end of the strip.
TEST_F(WindowForms, OneThatIsLargerThanTheScreenKeepsTheEndOfItsStripInSight) {
  constexpr int kDpi = 576;
  const HWND form = window("Form1");
  SendMessageW(form, WM_DPICHANGED, MAKEWPARAM(kDpi, kDpi), 0);
  MONITORINFO monitor{};
  monitor.cbSize = sizeof(monitor);
  ASSERT_TRUE(GetMonitorInfoW(MonitorFromWindow(form, MONITOR_DEFAULTTOPRIMARY), &monitor));
  EXPECT_EQ(FormWindow::of(form)->scale(), 6.0);
  EXPECT_EQ(placeOf(form).top, monitor.rcWork.top);
  EXPECT_EQ(placeOf(form).right, monitor.rcWork.right);
  EXPECT_LT(placeOf(form).left, monitor.rcWork.left);
  shown_.program().form.language = "ar";
  shown_.pump();
  SendMessageW(form, WM_DPICHANGED, MAKEWPARAM(kDpi, kDpi), 0);
  EXPECT_EQ(placeOf(form).top, monitor.rcWork.top);
  EXPECT_EQ(placeOf(form).left, monitor.rcWork.left);
  EXPECT_GT(placeOf(form).right, monitor.rcWork.right);
}

TEST_F(WindowForms, OneThatFitsTheScreenKeepsItsMiddle) {
  constexpr int kDpi = 144;
  const HWND form = window("Form1");
  main().left = 320;
  main().top = 270;
  shown_.pump();
  const RECT before = placeOf(form);
  SendMessageW(form, WM_DPICHANGED, MAKEWPARAM(kDpi, kDpi), 0);
  const RECT after = placeOf(form);
  EXPECT_EQ(after.right - after.left, MulDiv(before.right - before.left, kDpi, 96));
  EXPECT_NEAR(after.left + after.right, before.left + before.right, 2);
  EXPECT_NEAR(after.top + after.bottom, before.top + before.bottom, 2);
}

TEST_F(WindowForms, OnAnotherMonitorItStandsWhereTheSystemSuggests) {
  constexpr int kDpi = 120;
  const HWND form = window("Form1");
  const RECT before = placeOf(form);
  const RECT suggested{70, 50, 70 + 1200, 50 + 825};
  SendMessageW(form, WM_DPICHANGED, MAKEWPARAM(kDpi, kDpi), reinterpret_cast<LPARAM>(&suggested));
  shown_.pump();
  const RECT after = placeOf(form);
  EXPECT_EQ(after.left, suggested.left);
  EXPECT_EQ(after.top, suggested.top);
  EXPECT_EQ(after.right - after.left, MulDiv(before.right - before.left, kDpi, 96));
  EXPECT_EQ(after.bottom - after.top, MulDiv(before.bottom - before.top, kDpi, 96));
}

TEST_F(WindowForms, BlackAndTheColoursOfTheSystemAreColoursOfTheStrip) {
  const COLORREF design = strip("Form1");
  EXPECT_EQ(design, 10118205U) << "no colour has been read";
  main().has_look_color = true;
  main().strip_color = 0;
  shown_.pump();
  EXPECT_EQ(strip("Form1"), 0U);
  main().strip_color = static_cast<std::int32_t>(0x80000000U | COLOR_HIGHLIGHT);
  shown_.pump();
  EXPECT_EQ(strip("Form1"), GetSysColor(COLOR_HIGHLIGHT));
}

TEST_F(WindowForms, OneThatIsShownAgainComesToTheFront) {
  shown_.open("Form4");
  shown_.open("frmmsg");
  SetForegroundWindow(window("Form4"));
  ASSERT_EQ(GetActiveWindow(), window("Form4"));
  shown_.open("frmmsg");
  EXPECT_EQ(GetActiveWindow(), window("frmmsg"));
}

TEST_F(WindowForms, TheFocusStaysWhereItIsWhenTheDirectionTurns) {
  SetForegroundWindow(window("Form1"));
  SetFocus(shown_.window("Form1", "cmd_view"));
  const HWND before = GetFocus();
  shown_.program().form.language = "ar";
  shown_.pump();
  EXPECT_FALSE(IsWindow(before));
  EXPECT_EQ(GetFocus(), shown_.window("Form1", "cmd_view"));
}

// A test ends no session and starts no run: the run on exit is only told.
class WindowAtSessionEnd : public WindowForms {
 protected:
  void SetUp() override {
    option("1");
    main().Text5.onChange = [this] {
      if (main().Text5.text() != "") runs_.push_back(main().Text5.text());
    };
  }
  void TearDown() override { option("0"); }
  void option(std::string_view text) {
    shown_.program().registry.saveSetting(settings::kOptionsKey, "1", text);
  }
  LRESULT asked(LPARAM reason = 0) {
    return SendMessageW(window("Form1"), WM_QUERYENDSESSION, 0, reason);
  }

  std::vector<std::string> runs_;
};

TEST_F(WindowAtSessionEnd, TheSessionWaitsForTheRunOnExit) {
  main().Text11.setText("s");
  EXPECT_FALSE(asked());
  EXPECT_TRUE(runs_.empty()) << "not inside the question";
  EXPECT_FALSE(asked());
  shown_.pump();
  EXPECT_EQ(runs_, (std::vector<std::string>{"2", "2"})) << "on the two roads of one closing";
}

TEST_F(WindowAtSessionEnd, TheSessionDoesNotWaitWithoutARun) {
  EXPECT_TRUE(asked());
  main().Text11.setText("s");
  EXPECT_TRUE(asked(ENDSESSION_CRITICAL));
  option("0");
  EXPECT_TRUE(asked());
  shown_.pump();
  EXPECT_TRUE(runs_.empty());
}

class WindowBoxes : public WindowForms {
 protected:
  static BOOL CALLBACK endBox(HWND box, LPARAM answer) {
    wchar_t name[16] = L"";
    GetClassNameW(box, name, 16);
    if (std::wstring_view(name) != L"#32770") return TRUE;
    EndDialog(box, answer);
    return FALSE;
  }
  int ask(Win32Events& events) {
    return Win32Dialogs(&events).messageBox("A question?", MB_YESNO, "");
  }

  Win32Events events_;
};

TEST_F(WindowBoxes, NoFormTakesAClickWhileOneIsOpen) {
  shown_.open("Form4");
  shown_.open("frmmsg");
  const std::vector<HWND> forms = {window("Form1"), window("Form4"), window("frmmsg")};
  SetForegroundWindow(window("frmmsg"));
  std::vector<bool> inside;
  const TimerId timer = events_.startTimer(100, [&] {
    shown_.pump();
    for (const HWND form : forms) inside.push_back(IsWindowEnabled(form) != FALSE);
    EnumThreadWindows(GetCurrentThreadId(), &endBox, IDYES);
  });
  EXPECT_EQ(ask(events_), IDYES);
  events_.stopTimer(timer);
  EXPECT_EQ(inside, std::vector<bool>(3, false));
  for (const HWND form : forms) EXPECT_TRUE(IsWindowEnabled(form));
}

TEST_F(WindowBoxes, AFormThatIsDisabledMeanwhileStaysSoBehindTheBox) {
  const TimerId timer = events_.startTimer(100, [&] {
    main().enabled = false;
    shown_.pump();
    EnumThreadWindows(GetCurrentThreadId(), &endBox, IDYES);
  });
  EXPECT_EQ(ask(events_), IDYES);
  events_.stopTimer(timer);
  shown_.pump();
  EXPECT_FALSE(IsWindowEnabled(window("Form1")));
}

TEST_F(WindowBoxes, WhatComesInIsServedWhileOneIsOpen) {
  bool came_in = false;
  const TimerId timer = events_.startTimer(100, [&came_in] { came_in = true; });
  events_.setAfterMessages([&came_in] {
    if (came_in) EnumThreadWindows(GetCurrentThreadId(), &endBox, IDNO);
  });
  EXPECT_EQ(ask(events_), IDNO);
  events_.stopTimer(timer);
}

}  // namespace
}  // namespace tavr::win32::testing
