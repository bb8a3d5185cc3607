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
  std::vector<COLORREF> picture() {
    const HDC screen = GetDC(nullptr);
    const HDC dc = CreateCompatibleDC(screen);
    RECT area{};
    GetClientRect(window(), &area);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, area.right, area.bottom);
    const HGDIOBJ before = SelectObject(dc, bitmap);
    SendMessageW(window(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT);
    std::vector<COLORREF> pixels;
    for (int y = 0; y < area.bottom; ++y) {
      for (int x = 0; x < area.right; ++x) pixels.push_back(GetPixel(dc, x, y));
    }
    SelectObject(dc, before);
    DeleteObject(bitmap);
    DeleteDC(dc);
    ReleaseDC(nullptr, screen);
    return pixels;
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

TEST_F(WindowButtons, ARightClickIsToldAndLeavesTheDrawingAlone) {
  std::vector<std::string> told;
  button_.onMouseDown = [&told](MouseButton) { told.emplace_back("down"); };
  button_.onMouseUp = [&told](MouseButton) { told.emplace_back("up"); };
  button_.onClick = [&told] { told.emplace_back("click"); };
  int draws = 0;
  button_.onDraw = [&draws](int) { ++draws; };
  send(WM_RBUTTONDOWN, MK_RBUTTON);
  EXPECT_EQ(GetCapture(), window()) << "it comes up here, wherever that is";
  EXPECT_EQ(button_.state(), ChameleonButton::State::kNormal);
  send(WM_RBUTTONUP, 0, MAKELPARAM(-30, 5));
  EXPECT_EQ(draws, 0);
  EXPECT_EQ(told, (std::vector<std::string>{"down", "up"}));
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(WindowButtons, AnotherButtonThatComesUpLeavesTheHeldOneItsMouse) {
  int clicks = 0;
  button_.onClick = [&clicks] { ++clicks; };
  send(WM_LBUTTONDOWN, MK_LBUTTON);
  send(WM_MBUTTONDOWN, MK_LBUTTON | MK_MBUTTON);
  send(WM_MBUTTONUP, MK_LBUTTON);
  EXPECT_EQ(GetCapture(), window());
  send(WM_LBUTTONUP);
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(button_.state(), ChameleonButton::State::kNormal);
  EXPECT_EQ(clicks, 1);
}

TEST_F(WindowButtons, APressBesideTheButtonIsNoneWhileItHoldsTheMouse) {
  int clicks = 0;
  button_.onClick = [&clicks] { ++clicks; };
  const HWND focus = GetFocus();
  send(WM_RBUTTONDOWN, MK_RBUTTON);
  send(WM_LBUTTONDOWN, MK_LBUTTON | MK_RBUTTON, MAKELPARAM(-30, 5));
  EXPECT_EQ(button_.state(), ChameleonButton::State::kNormal);
  EXPECT_EQ(GetFocus(), focus);
  send(WM_LBUTTONUP, MK_RBUTTON, MAKELPARAM(-30, 5));
  send(WM_RBUTTONUP, 0, MAKELPARAM(-30, 5));
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(WindowButtons, AHandPointsAtOneThatWantsIt) {
  const auto cursor = [this] {
    SetCursor(LoadCursorW(nullptr, IDC_IBEAM));  // of the box that it comes from
    SendMessageW(window(), WM_SETCURSOR, reinterpret_cast<WPARAM>(window()),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    return GetCursor();
  };
  button_.hand_pointer = true;
  EXPECT_EQ(cursor(), LoadCursorW(nullptr, IDC_HAND));
  button_.hand_pointer = false;
  EXPECT_EQ(cursor(), LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(WindowButtons, WithItsRefreshDisabledAPressIsNotShownBeforeTheNextRefresh) {
  button_.onClick = nullptr;
  button_.DisableRefresh();
  const std::vector<COLORREF> before = picture();
  send(WM_LBUTTONDOWN, MK_LBUTTON);
  EXPECT_EQ(picture(), before);
  button_.Refresh();
  shown_.pump();
  EXPECT_NE(picture(), before);
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

// The state is what its look shows, not where the mouse is.
TEST_F(WindowButtons, AMouseThatComesWithAButtonDownLightsNothing) {
  const std::vector<COLORREF> rest = picture();
  send(WM_MOUSEMOVE, MK_RBUTTON);
  EXPECT_EQ(button_.state(), ChameleonButton::State::kNormal);
  EXPECT_EQ(picture(), rest);
  send(WM_MOUSELEAVE);
  send(WM_MOUSEMOVE);
  EXPECT_EQ(button_.state(), ChameleonButton::State::kOver);
  EXPECT_NE(picture(), rest);
}

// The moves wait together; the one without a button counts.
TEST_F(WindowButtons, AMoveWithoutAButtonIsNotLostBehindOneWithIt) {
  SendMessageW(window(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
  SendMessageW(window(), WM_MOUSEMOVE, MK_RBUTTON, MAKELPARAM(6, 5));
  shown_.pump();
  EXPECT_EQ(button_.state(), ChameleonButton::State::kOver);
}

TEST_F(WindowButtons, ASpaceBarDuringAPressLeavesTheMouseNoClick) {
  int clicks = 0;
  button_.onClick = [&clicks] { ++clicks; };
  SetFocus(window());
  send(WM_LBUTTONDOWN, MK_LBUTTON);
  send(WM_KEYDOWN, VK_SPACE, 1);
  EXPECT_EQ(button_.state(), ChameleonButton::State::kPressed);
  send(WM_KEYUP, VK_SPACE, 1);
  EXPECT_EQ(button_.state(), ChameleonButton::State::kNormal);
  ASSERT_EQ(clicks, 1) << "of the space bar";
  send(WM_LBUTTONUP);
  EXPECT_EQ(clicks, 1) << "it was no longer pressed";
}

TEST_F(WindowButtons, EveryArrowMovesTheFocus) {
  for (const WPARAM key : {VK_UP, VK_LEFT, VK_DOWN, VK_RIGHT}) {
    SetFocus(window());
    ASSERT_EQ(GetFocus(), window());
    send(WM_KEYDOWN, key, 1);
    const bool back = key == VK_UP || key == VK_LEFT;
    const HWND there = GetFocus();
    EXPECT_NE(there, window()) << key;
    send(WM_KEYUP, key, 1);
    SetFocus(window());
    send(WM_KEYDOWN, back ? VK_DOWN : VK_UP, 1);
    EXPECT_NE(GetFocus(), there) << key;
  }
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
  shown_.program().form.language = "ar";
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
  EXPECT_TRUE(redrawnBy(button_.color, 255));
  EXPECT_TRUE(redrawnBy(button_.hover_color, 255));
  EXPECT_TRUE(redrawnBy(button_.text_color, 255));
  EXPECT_TRUE(redrawnBy(button_.hover_text_color, 255));
  EXPECT_TRUE(redrawnBy(button_.mask_color, 255));
  EXPECT_TRUE(redrawnBy(button_.button_type, 4));
  EXPECT_TRUE(redrawnBy(button_.color_scheme, 2));
  EXPECT_TRUE(redrawnBy(button_.show_focus_rect, !button_.show_focus_rect));
  EXPECT_TRUE(redrawnBy(button_.soft_bevel, !button_.soft_bevel));
  EXPECT_TRUE(redrawnBy(button_.picture_normal, "a.bmp"));
  EXPECT_TRUE(redrawnBy(button_.picture_over, "b.bmp"));
  EXPECT_TRUE(redrawnBy(button_.picture_position, 2));
  EXPECT_TRUE(redrawnBy(button_.use_mask_color, !button_.use_mask_color));
  EXPECT_TRUE(redrawnBy(button_.use_greyscale, !button_.use_greyscale));
  EXPECT_TRUE(redrawnBy(button_.special_effect, 1));
  EXPECT_TRUE(redrawnBy(button_.check_box_behaviour, true));
  EXPECT_TRUE(redrawnBy(button_.value, true));
  EXPECT_TRUE(redrawnBy(button_.caption, "Another"));
}

TEST_F(WindowButtons, EveryPropertyOfTheProgressBarRedrawsIt) {
  ProgressBar& bar = shown_.program().form.bar1;
  bar.setVisible(true);
  shown_.pump();
  const HWND window = shown_.window("Form1", "bar1");
  const auto redrawnBy = [&](auto&& set) {
    UpdateWindow(window);
    ValidateRect(window, nullptr);
    set();
    BoundControl::of(window)->sync();
    return GetUpdateRect(window, nullptr, FALSE) != FALSE;
  };
  EXPECT_FALSE(redrawnBy([] {}));
  EXPECT_TRUE(redrawnBy([&] { bar.setValue(40); }));
  EXPECT_TRUE(redrawnBy([&] { bar.setMin(10); }));
  EXPECT_TRUE(redrawnBy([&] { bar.setMax(90); }));
  EXPECT_TRUE(redrawnBy([&] { bar.setStyle(1 - bar.style()); }));
  EXPECT_TRUE(redrawnBy([&] { bar.setProgressLook(2); }));
}

}  // namespace
}  // namespace tavr::win32::testing
