// What the window of a button makes of the mouse: clicks that are broken off or end
// beside it, and a pointer that comes and goes.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "tests/windows/accessible/shown_program.h"
#include "ui/win32/form_window.h"

namespace tavr::win32::testing {
namespace {

class WindowButtons : public ::testing::Test {
 protected:
  HWND window() { return shown_.window("Form1", "chameleonButton11"); }
  void send(UINT message, WPARAM wparam = 0, LPARAM lparam = MAKELPARAM(5, 5)) {
    SendMessageW(window(), message, wparam, lparam);
    shown_.pump();
  }

  ShownProgram shown_;
  ChameleonButton& button_ = shown_.program().form.chameleonButton11;
};

TEST_F(WindowButtons, TheMiddleButtonGoesDownAndUpButDoesNotClick) {
  std::vector<std::string> told;
  button_.onMouseDown = [&told](MouseButton which) {
    told.push_back("down " + std::to_string(static_cast<int>(which)));
  };
  button_.onMouseUp = [&told](MouseButton which) {
    told.push_back("up " + std::to_string(static_cast<int>(which)));
  };
  button_.onClick = [&told] { told.emplace_back("click"); };
  send(WM_MBUTTONDOWN, MK_MBUTTON);
  EXPECT_EQ(button_.state(), ChameleonButton::State::kPressed);
  send(WM_MBUTTONUP);
  EXPECT_EQ(button_.state(), ChameleonButton::State::kNormal);
  EXPECT_EQ(told, (std::vector<std::string>{"down 4", "up 4"}));
}

// Both are served before anything that they queue.
TEST_F(WindowButtons, AMouseThatLeavesQuicklyIsNoticedByTheNextTick) {
  SendMessageW(window(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
  SendMessageW(window(), WM_MOUSELEAVE, 0, 0);
  shown_.pump();
  EXPECT_EQ(button_.state(), ChameleonButton::State::kOver);
  EXPECT_TRUE(button_.OverTimer.enabled());
  shown_.program().machine.events.wait(ChameleonButton::kOverTimerInterval + 30);
  EXPECT_EQ(button_.state(), ChameleonButton::State::kNormal);
  EXPECT_FALSE(button_.OverTimer.enabled());
}

TEST_F(WindowButtons, AReleaseBesideTheButtonIsNoClick) {
  int clicks = 0;
  button_.onClick = [&clicks] { ++clicks; };
  constexpr LPARAM kBeside = MAKELPARAM(-30, 5);
  send(WM_LBUTTONDOWN, MK_LBUTTON);
  send(WM_MOUSEMOVE, MK_LBUTTON, kBeside);
  send(WM_LBUTTONUP, 0, kBeside);
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(button_.state(), ChameleonButton::State::kNormal);
  send(WM_LBUTTONDOWN, MK_LBUTTON);
  send(WM_MOUSEMOVE, MK_LBUTTON, kBeside);
  send(WM_MOUSEMOVE, MK_LBUTTON);
  send(WM_LBUTTONUP);
  EXPECT_EQ(clicks, 1) << "it came back";
}

TEST_F(WindowButtons, AButtonThatLosesItsWindowWhileItIsHeldIsLetGoOf) {
  send(WM_LBUTTONDOWN, MK_LBUTTON);
  ASSERT_EQ(button_.state(), ChameleonButton::State::kPressed);
  shown_.program().language.lang = "ar";
  shown_.pump();
  EXPECT_EQ(button_.state(), ChameleonButton::State::kNormal);
}

TEST_F(WindowButtons, AClickThatIsBrokenOffLetsTheButtonGo) {
  int clicks = 0;
  button_.onClick = [&clicks] { ++clicks; };
  send(WM_LBUTTONDOWN, MK_LBUTTON);
  ASSERT_EQ(button_.state(), ChameleonButton::State::kPressed);
  ReleaseCapture();
  shown_.pump();
  EXPECT_EQ(button_.state(), ChameleonButton::State::kNormal);
  send(WM_LBUTTONUP);
  EXPECT_EQ(clicks, 0);
  send(WM_LBUTTONDOWN, MK_LBUTTON);
  send(WM_LBUTTONUP);
  EXPECT_EQ(clicks, 1);
}

TEST_F(WindowButtons, EveryPropertyThatIsDrawnRedrawsItsButton) {
  const auto redrawnBy = [&](auto& property, auto value) {
    ValidateRect(window(), nullptr);
    property = value;
    BoundControl::of(window())->sync();
    return GetUpdateRect(window(), nullptr, FALSE) != FALSE;
  };
  EXPECT_FALSE(redrawnBy(button_.tag, "not drawn"));
  EXPECT_TRUE(redrawnBy(button_.text_color, 255));
  EXPECT_TRUE(redrawnBy(button_.hover_color, 255));
  EXPECT_TRUE(redrawnBy(button_.soft_bevel, !button_.soft_bevel));
  EXPECT_TRUE(redrawnBy(button_.picture_normal, "a.bmp"));
  EXPECT_TRUE(redrawnBy(button_.special_effect, 1));
  EXPECT_TRUE(redrawnBy(button_.check_box_behaviour, true));
}

}  // namespace
}  // namespace tavr::win32::testing
