// Which forms of the program have a shadow behind them, and of what look.
#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <string>

#include "tests/windows/accessible/shown_program.h"

namespace tavr::win32::testing {
namespace {

constexpr std::uint32_t kTimerOfForm = 300;  // ms, after which the options set theirs up
constexpr std::uint32_t kLongest = 3000;     // ms

void openForm(ShownProgram& shown, std::string_view form) {
  if (form == "Form1") {
    SetForegroundWindow(shown.formWindow(form));
    shown.pump();
  } else {
    shown.open(form);
  }
}

HWND shadowOf(const ShownProgram& shown, std::string_view form) {
  return static_cast<HWND>(GetPropW(shown.formWindow(form), L"TrickShadow"));
}

// With the timers of the program going on meanwhile.
HWND shadowThatComes(ShownProgram& shown, std::string_view form) {
  const ULONGLONG end = GetTickCount64() + kLongest;
  while (shadowOf(shown, form) == nullptr && GetTickCount64() < end) {
    shown.program().machine.events.wait(kTimerOfForm / 10);
    shown.pump();
  }
  return shadowOf(shown, form);
}

class WindowShadowOfAForm : public ::testing::TestWithParam<const char*> {};

TEST_P(WindowShadowOfAForm, IsSmallAndGreyAndFallsOffAsDesigned) {
  ShownProgram shown;
  openForm(shown, GetParam());
  const HWND shadow = shadowThatComes(shown, GetParam());
  ASSERT_NE(shadow, nullptr);
  std::array<LONG, 4> values{};
  for (int i = 0; i < 4; ++i) values[static_cast<std::size_t>(i)] = GetWindowLongW(shadow, 4 * i);
  EXPECT_EQ(values, (std::array<LONG, 4>{10, 0x808080, 25, 50}));
  EXPECT_TRUE(IsWindowVisible(shadow));
  EXPECT_EQ(GetWindow(shadow, GW_OWNER), shown.formWindow(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Forms, WindowShadowOfAForm, ::testing::Values("Form1", "Form2", "Form3"),
                         [](const auto& form) { return std::string(form.param); });

class WindowWithoutShadow : public ::testing::TestWithParam<const char*> {};

TEST_P(WindowWithoutShadow, HasNoneHoweverLongItIsOpen) {
  ShownProgram shown;
  openForm(shown, GetParam());
  ASSERT_TRUE(IsWindowVisible(shown.formWindow(GetParam())));
  shown.program().machine.events.wait(2 * kTimerOfForm);
  shown.pump();
  EXPECT_EQ(shadowOf(shown, GetParam()), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Forms, WindowWithoutShadow,
                         ::testing::Values("Form4", "Form52", "frmmsg", "frmabout"),
                         [](const auto& form) { return std::string(form.param); });

}  // namespace
}  // namespace tavr::win32::testing
