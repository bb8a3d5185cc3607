// The shadow's window behind a form. Needs a display.
#include <gtest/gtest.h>

#include "tests/windows/accessible/shown_program.h"
#include "tests/windows/drawing/test_window.h"
#include "ui/win32/shadow.h"

namespace tavr::win32 {
namespace {

constexpr int kReach = 40;

BOOL CALLBACK countShadow(HWND window, LPARAM counted) {
  wchar_t name[32] = L"";
  GetClassNameW(window, name, 32);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  const bool own = process == GetCurrentProcessId();
  *reinterpret_cast<int*>(counted) += own && std::wstring_view(name) == L"TrickShadow";
  return TRUE;
}

int shadowsThatExist() {
  int count = 0;
  EnumWindows(&countShadow, reinterpret_cast<LPARAM>(&count));
  return count;
}

class WindowShadow : public ::testing::Test {
 protected:
  WindowShadow() : form_({300, 200}, false) { form_.show(); }
  HWND shadow() const { return static_cast<HWND>(GetPropA(form_.handle(), "TrickShadow")); }
  void expectAround(int reach) const {
    RECT wanted = form_.rect();
    InflateRect(&wanted, reach, reach);
    RECT place{};
    ASSERT_TRUE(GetWindowRect(shadow(), &place));
    EXPECT_EQ(place.left, wanted.left);
    EXPECT_EQ(place.top, wanted.top);
    EXPECT_EQ(place.right, wanted.right);
    EXPECT_EQ(place.bottom, wanted.bottom);
  }

  TestWindow form_;
};

TEST_F(WindowShadow, IsALayeredWindowThatTheFormOwnsAndCarries) {
  ASSERT_TRUE(IsWindowVisible(form_.handle()));
  ASSERT_TRUE(attachShadow(form_.handle()));
  ASSERT_NE(shadow(), nullptr);
  wchar_t name[32] = L"";
  GetClassNameW(shadow(), name, 32);
  EXPECT_STREQ(name, L"TrickShadow");
  EXPECT_EQ(GetWindowLongW(shadow(), GWL_EXSTYLE) & 0x800A0, 0x800A0);
  EXPECT_EQ(static_cast<DWORD>(GetWindowLongW(shadow(), GWL_STYLE)) & 0xC0000000, 0x80000000);
  EXPECT_EQ(GetWindow(shadow(), GW_OWNER), form_.handle());
  EXPECT_TRUE(IsWindowVisible(shadow()));
  EXPECT_EQ(GetClassLongW(shadow(), GCL_CBWNDEXTRA), 16U);
  expectAround(kReach);
}

TEST_F(WindowShadow, CarriesItsFourValuesInOrder) {
  attachShadow(form_.handle());
  EXPECT_EQ(GetWindowLongW(shadow(), 0), 40);
  EXPECT_EQ(GetWindowLongW(shadow(), 4), 0xFF0000);
  EXPECT_EQ(GetWindowLongW(shadow(), 8), 25);
  EXPECT_EQ(GetWindowLongW(shadow(), 12), 50);
}

TEST_F(WindowShadow, IsOneHoweverOftenItIsAttached) {
  attachShadow(form_.handle());
  const HWND first = shadow();
  setShadowSize(form_.handle(), 12);
  EXPECT_TRUE(attachShadow(form_.handle()));
  EXPECT_EQ(shadow(), first);
  EXPECT_EQ(shadowsThatExist(), 1);
  EXPECT_EQ(GetWindowLongW(shadow(), 0), 12) << "left as it was";
}

TEST_F(WindowShadow, IsDetachedOnce) {
  EXPECT_FALSE(detachShadow(form_.handle()));
  const LONG_PTR procedure = GetWindowLongPtrW(form_.handle(), GWLP_WNDPROC);
  attachShadow(form_.handle());
  EXPECT_NE(GetWindowLongPtrW(form_.handle(), GWLP_WNDPROC), procedure);
  const HWND before = shadow();
  EXPECT_TRUE(detachShadow(form_.handle()));
  EXPECT_EQ(shadow(), nullptr);
  EXPECT_EQ(GetWindowLongPtrW(form_.handle(), GWLP_WNDPROC), procedure);
  EXPECT_FALSE(IsWindow(before));
  EXPECT_FALSE(detachShadow(form_.handle()));
  EXPECT_EQ(shadowsThatExist(), 0);
}

TEST_F(WindowShadow, MayBeAttachedAgain) {
  attachShadow(form_.handle());
  detachShadow(form_.handle());
  EXPECT_TRUE(attachShadow(form_.handle()));
  EXPECT_EQ(shadowsThatExist(), 1);
  expectAround(kReach);
}

TEST_F(WindowShadow, FollowsTheForm) {
  attachShadow(form_.handle());
  form_.moveTo(330, 260, 300, 200);
  expectAround(kReach);
  form_.moveTo(330, 260, 420, 150);
  expectAround(kReach);
  form_.moveTo(100, 90, 200, 240);
  expectAround(kReach);
}

TEST_F(WindowShadow, IsSeenOnlyWithItsForm) {
  attachShadow(form_.handle());
  ShowWindow(form_.handle(), SW_HIDE);
  pump();
  EXPECT_FALSE(IsWindowVisible(shadow()));
  form_.moveTo(100, 90, 250, 240);
  EXPECT_FALSE(IsWindowVisible(shadow())) << "a hidden form that is laid out";
  ShowWindow(form_.handle(), SW_SHOW);
  pump();
  EXPECT_TRUE(IsWindowVisible(shadow()));
  expectAround(kReach);
}

TEST_F(WindowShadow, TakesASizeFromOneToAHundred) {
  EXPECT_FALSE(setShadowSize(form_.handle(), 20)) << "no shadow yet";
  attachShadow(form_.handle());
  for (const int size : {1, 100, 15}) {
    EXPECT_TRUE(setShadowSize(form_.handle(), size));
    EXPECT_EQ(GetWindowLongW(shadow(), 0), size);
    expectAround(size);
  }
  for (const int size : {0, -1, 101}) {
    EXPECT_FALSE(setShadowSize(form_.handle(), size));
    EXPECT_EQ(GetWindowLongW(shadow(), 0), 15);
    expectAround(15);
  }
}

TEST_F(WindowShadow, TakesAColourAndKeepsTheOtherValues) {
  EXPECT_FALSE(setShadowColor(form_.handle(), 0x00FF00)) << "no shadow yet";
  attachShadow(form_.handle());
  EXPECT_TRUE(setShadowColor(form_.handle(), 0x102030));
  EXPECT_EQ(GetWindowLongW(shadow(), 0), 40);
  EXPECT_EQ(GetWindowLongW(shadow(), 4), 0x102030);
  EXPECT_EQ(GetWindowLongW(shadow(), 8), 25);
  EXPECT_EQ(GetWindowLongW(shadow(), 12), 50);
  expectAround(kReach);
}

TEST_F(WindowShadow, GoesWithItsForm) {
  attachShadow(form_.handle());
  const HWND before = shadow();
  form_.destroy();
  EXPECT_FALSE(IsWindow(before));
  EXPECT_EQ(shadowsThatExist(), 0);
}

TEST_F(WindowShadow, IsOneOfItsOwnForEachForm) {
  TestWindow other({200, 100}, false);
  other.show();
  attachShadow(form_.handle());
  attachShadow(other.handle());
  EXPECT_EQ(shadowsThatExist(), 2);
  EXPECT_TRUE(detachShadow(other.handle()));
  EXPECT_EQ(shadowsThatExist(), 1);
  EXPECT_NE(shadow(), nullptr);
}

TEST_F(WindowShadow, TakesNoMouse) {
  attachShadow(form_.handle());
  const RECT place = form_.rect();
  EXPECT_NE(WindowFromPoint({place.left + 50, place.top + 50}), shadow());
  EXPECT_NE(WindowFromPoint({place.left - 5, place.top + 50}), shadow());
}

TEST(WindowShadowOfTheProgram, OfAFormThatIsHiddenIsNotSeen) {
  testing::ShownProgram shown;
  shown.program().form.visible = false;
  shown.program().form.shadow = true;
  shown.pump();
  const HWND shadow = static_cast<HWND>(GetPropA(shown.formWindow("Form1"), "TrickShadow"));
  ASSERT_NE(shadow, nullptr);
  EXPECT_FALSE(IsWindowVisible(shadow));
  shown.program().form.visible = true;
  shown.pump();
  EXPECT_TRUE(IsWindowVisible(shadow));
}

TEST(WindowShadowOfTheProgram, IsSmallAndGrey) {
  testing::ShownProgram shown;
  const HWND form = shown.formWindow("Form1");
  // A window manager draws what begins beyond the screen's edge back into it.
  SetWindowPos(form, nullptr, 200, 150, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  shown.program().form.shadow = true;
  shown.pump();
  const HWND shadow = static_cast<HWND>(GetPropA(form, "TrickShadow"));
  ASSERT_NE(shadow, nullptr);
  EXPECT_EQ(GetWindowLongW(shadow, 0), 10);
  EXPECT_EQ(GetWindowLongW(shadow, 4), 0x808080);
  EXPECT_EQ(GetWindowLongW(shadow, 8), 25);
  EXPECT_EQ(GetWindowLongW(shadow, 12), 50);
  RECT around{};
  RECT inner{};
  GetWindowRect(shadow, &around);
  GetWindowRect(form, &inner);
  EXPECT_EQ(around.left, inner.left - 10);
  EXPECT_EQ(around.bottom, inner.bottom + 10);
  shown.program().form.shadow = false;
  shown.pump();
  EXPECT_EQ(GetPropA(form, "TrickShadow"), nullptr);
  EXPECT_FALSE(IsWindow(shadow));
}

}  // namespace
}  // namespace tavr::win32
