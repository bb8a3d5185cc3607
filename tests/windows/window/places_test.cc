// Where the dialogs stand, and which of them lies above the other.
#include <windows.h>
// Behind windows.h.
#include <commctrl.h>

#include <gmock/gmock.h>

#include "forms/form2.h"
#include "tests/windows/accessible/shown_program.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;

class Places : public ::testing::Test {
 protected:
  void SetUp() override { shown_.open("Form2"); }

  HWND window(std::string_view form) { return shown_.formWindow(form); }
  bool staysOnTop(std::string_view form) {
    return (GetWindowLongW(window(form), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
  }
  RECT placeOf(std::string_view form) {
    RECT place{};
    GetWindowRect(window(form), &place);
    return place;
  }
  // The first that is met from the top.
  HWND upper(HWND one, HWND other) {
    HWND at = GetTopWindow(nullptr);
    while (at != nullptr && at != one && at != other) at = GetWindow(at, GW_HWNDNEXT);
    return at;
  }
  // A display tells of the keyboard's ways late.
  void rest() {
    constexpr ULONGLONG kRest = 500;  // ms
    for (const ULONGLONG end = GetTickCount64() + kRest; GetTickCount64() < end; Sleep(10)) {
      shown_.pump();
    }
  }
  void openKeepList() {
    auto& settings = dynamic_cast<Form2&>(shown_.form("Form2"));
    settings.chameleonButton[7].press();
    shown_.pump();
  }

  win32::testing::ShownProgram shown_;
};

LRESULT CALLBACK noteOrder(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                           DWORD_PTR notes) {
  if (message == WM_WINDOWPOSCHANGING) {
    const auto& asked = *reinterpret_cast<const WINDOWPOS*>(lparam);
    if ((asked.flags & SWP_NOZORDER) == 0) {
      reinterpret_cast<std::vector<HWND>*>(notes)->push_back(asked.hwndInsertAfter);
    }
  }
  return DefSubclassProc(window, message, wparam, lparam);
}

TEST_F(Places, TheSettingsStayOnTopAndStepAsideAtOnce) {
  EXPECT_TRUE(staysOnTop("Form2"));
  shown_.form("Form2").setTopmost(false);
  EXPECT_FALSE(staysOnTop("Form2"));
  shown_.form("Form2").setTopmost(true);
  EXPECT_TRUE(staysOnTop("Form2"));
}

TEST_F(Places, TheSettingsStepAsideForTheKeepListAndComeBack) {
  std::vector<HWND> asked;
  SetWindowSubclass(window("Form2"), &noteOrder, 1, reinterpret_cast<DWORD_PTR>(&asked));
  dynamic_cast<Form2&>(shown_.form("Form2")).chameleonButton[7].press();
  RemoveWindowSubclass(window("Form2"), &noteOrder, 1);
  EXPECT_THAT(asked, ElementsAre(HWND_NOTOPMOST, HWND_TOPMOST));
  EXPECT_TRUE(staysOnTop("Form2"));
}

TEST_F(Places, TheKeepListLiesAboveTheSettings) {
  openKeepList();
  EXPECT_TRUE(staysOnTop("Form52"));
  EXPECT_EQ(upper(window("Form52"), window("Form2")), window("Form52"));
  rest();
  EXPECT_EQ(GetActiveWindow(), window("Form52"));
  SetForegroundWindow(window("Form2"));  // where the next click goes
  rest();
  ASSERT_EQ(GetActiveWindow(), window("Form2"));
  openKeepList();
  rest();
  EXPECT_EQ(upper(window("Form52"), window("Form2")), window("Form52"));
}

TEST_F(Places, TheKeepListStandsOverTheMiddleOfTheSettings) {
  SetWindowPos(window("Form2"), nullptr, 250, 190, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  openKeepList();
  const RECT list = placeOf("Form52");
  const RECT settings = placeOf("Form2");
  EXPECT_NEAR(list.left + list.right, settings.left + settings.right, 2);
  EXPECT_NEAR(list.top + list.bottom, settings.top + settings.bottom, 2);
}

// With the strip that their windows have above the form.
TEST_F(Places, TheSmallDialogsStandInTheMiddleOfTheScreenAndTheMessageOnTop) {
  for (const std::string_view form : {"frmmsg", "Form4"}) {
    shown_.open(form);
    rest();
    const RECT place = placeOf(form);
    EXPECT_NEAR(place.left + place.right, GetSystemMetrics(SM_CXSCREEN), 2) << form;
    EXPECT_NEAR(place.top + place.bottom, GetSystemMetrics(SM_CYSCREEN), 2) << form;
    // The note of a browser does not stay on top itself.
    EXPECT_EQ(staysOnTop(form), form == "frmmsg") << form;
  }
}

TEST_F(Places, WhatClosesAboveTheSettingsGivesThemTheKeyboardBack) {
  ASSERT_FALSE(IsWindowEnabled(window("Form1")));
  openKeepList();
  rest();
  ASSERT_EQ(GetActiveWindow(), window("Form52"));
  shown_.control("Form52", "keepbutton10").press();
  rest();
  EXPECT_EQ(GetActiveWindow(), window("Form2"));
  shown_.open("frmmsg");
  rest();
  ASSERT_EQ(GetActiveWindow(), window("frmmsg"));
  shown_.control("frmmsg", "command2").press();
  rest();
  EXPECT_EQ(GetActiveWindow(), window("Form2"));
}

TEST_F(Places, WhatClosesAboveADialogThatIsNotOnTopGivesItTheKeyboardBack) {
  shown_.program().desk.unload("Form2");
  shown_.open("frmabout");
  shown_.open("frmmsg");
  rest();
  ASSERT_EQ(GetActiveWindow(), window("frmmsg"));
  shown_.control("frmmsg", "command2").press();
  rest();
  EXPECT_EQ(GetActiveWindow(), window("frmabout"));
}

}  // namespace
}  // namespace tavr::testing
