// What a control tells of itself when the mouse rests on it.
#include <gtest/gtest.h>
#include <windows.h>
// Behind windows.h.
#include <commctrl.h>

#include <string>

#include "platform/win32/wide.h"
#include "tests/windows/accessible/shown_program.h"

namespace tavr::win32::testing {
namespace {

constexpr ULONGLONG kLongest = 3000;  // ms
constexpr ULONGLONG kLongEnough = 300;
constexpr LPARAM kDelay = 50;  // ms; a control may take its text from the mouse's coming

struct TipSearch {
  TTTOOLINFOW tool;
  HWND found = nullptr;
};

// Lists and headers have tips of their own.
BOOL CALLBACK hasTool(HWND window, LPARAM data) {
  auto& search = *reinterpret_cast<TipSearch*>(data);
  wchar_t name[32] = L"";
  GetClassNameW(window, name, 32);
  if (std::wstring_view(name) != TOOLTIPS_CLASSW) return TRUE;
  TTTOOLINFOW tool = search.tool;
  if (SendMessageW(window, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tool)) == 0) return TRUE;
  search.found = window;
  return FALSE;
}

class WindowTips : public ::testing::Test {
 protected:
  void SetUp() override { GetCursorPos(&before_); }
  void TearDown() override { SetCursorPos(before_.x, before_.y); }

  static TTTOOLINFOW toolOf(HWND form, HWND control) {
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof(tool);
    tool.hwnd = form;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    return tool;
  }
  HWND tipOf(HWND control) const {
    TipSearch search{toolOf(GetAncestor(control, GA_ROOT), control)};
    EnumThreadWindows(GetCurrentThreadId(), &hasTool, reinterpret_cast<LPARAM>(&search));
    return search.found;
  }
  // Its tool's window; null when it shows none.
  static HWND currentOf(HWND tip) {
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof(tool);
    const bool any =
        SendMessageW(tip, TTM_GETCURRENTTOOLW, 0, reinterpret_cast<LPARAM>(&tool)) != 0;
    return any ? reinterpret_cast<HWND>(tool.uId) : nullptr;
  }
  static std::string textOf(HWND tip) {
    wchar_t text[256] = L"";
    GetWindowTextW(tip, text, 256);
    return narrow(text);
  }
  // The mouse comes to rest on its middle.
  void moveOnto(HWND control, ULONGLONG longest = kLongest) {
    const HWND tip = tipOf(control);
    SendMessageW(tip, TTM_SETDELAYTIME, TTDT_INITIAL, kDelay);
    SendMessageW(tip, TTM_SETDELAYTIME, TTDT_RESHOW, kDelay);
    RECT area;
    GetClientRect(control, &area);
    const POINT middle{area.right / 2, area.bottom / 2};
    POINT screen = middle;
    ClientToScreen(control, &screen);
    SetCursorPos(screen.x, screen.y);
    SendMessageW(control, WM_MOUSEMOVE, 0, MAKELPARAM(middle.x, middle.y));
    const ULONGLONG end = GetTickCount64() + longest;
    while (currentOf(tip) != control && GetTickCount64() < end) {
      shown_.pump();
      Sleep(5);
    }
  }
  // As a tip asks its form.
  static std::string askedOf(HWND control) {
    const HWND form = GetAncestor(control, GA_ROOT);
    NMTTDISPINFOW question{};
    question.hdr.code = TTN_GETDISPINFOW;
    question.hdr.idFrom = reinterpret_cast<UINT_PTR>(control);
    question.uFlags = TTF_IDISHWND;
    question.lpszText = question.szText;
    SendMessageW(form, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&question));
    return narrow(question.lpszText);
  }
  void expectTip(HWND control, const std::string& text) {
    const HWND tip = tipOf(control);
    ASSERT_NE(tip, nullptr);
    moveOnto(control);
    EXPECT_EQ(currentOf(tip), control);
    EXPECT_TRUE(IsWindowVisible(tip));
    EXPECT_EQ(textOf(tip), text);
    EXPECT_EQ(askedOf(control), text);
  }

  ShownProgram shown_;

 private:
  POINT before_{};
};

TEST_F(WindowTips, AToolTellsTheCommandOfItsSign) {
  expectTip(shown_.window("Form1", "Toolbar1(8)"), "Erase");
}

TEST_F(WindowTips, AButtonOfTheStripTellsTheWordOfItsSign) {
  expectTip(shown_.window("Form1", "chameleonButton10"), "Minimize");
}

TEST_F(WindowTips, ACommandTellsMoreThanItsCaption) {
  shown_.program().form.txtlang.setText("english.ini");
  expectTip(shown_.window("Form1", "cmd_view"), "View the erase log");
}

TEST_F(WindowTips, AButtonOfTheFormTellsWhatItDoesOnceTheMouseIsOverIt) {
  shown_.program().form.txtlang.setText("english.ini");
  const HWND button = shown_.window("Form1", "chameleonButton11");
  ASSERT_EQ(askedOf(button), "");
  expectTip(button, "Close the program");
}

TEST_F(WindowTips, TheTextIsTheOneThatTheControlHasNow) {
  const HWND command = shown_.window("Form1", "cmd_option");
  shown_.control("Form1", "cmd_option").tool_tip = "one";
  EXPECT_EQ(askedOf(command), "one");
  shown_.control("Form1", "cmd_option").tool_tip = "another";
  EXPECT_EQ(askedOf(command), "another");
}

TEST_F(WindowTips, APlainLabelTellsNothing) {
  const HWND label = shown_.window("Form1", "Label3");
  ASSERT_NE(label, nullptr);
  const HWND tip = tipOf(label);
  ASSERT_NE(tip, nullptr);
  moveOnto(label, kLongEnough);
  EXPECT_EQ(currentOf(tip), nullptr);
  EXPECT_FALSE(IsWindowVisible(tip));
  EXPECT_EQ(askedOf(label), "");
}

TEST_F(WindowTips, TheNextToolsTipTakesItsPlace) {
  const HWND tool = shown_.window("Form1", "Toolbar1(8)");
  const HWND tip = tipOf(tool);
  moveOnto(tool);
  ASSERT_EQ(currentOf(tip), tool);
  moveOnto(shown_.window("Form1", "Toolbar1(6)"));
  EXPECT_EQ(currentOf(tip), shown_.window("Form1", "Toolbar1(6)"));
  EXPECT_EQ(textOf(tip), "Test");
}

}  // namespace
}  // namespace tavr::win32::testing
