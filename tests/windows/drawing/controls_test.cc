// Plain buttons, check boxes, options, labels, frames and the title strip.
#include <gtest/gtest.h>

#include <string>

#include "tests/windows/drawing/picture.h"
#include "ui/win32/color.h"

namespace tavr::win32 {
namespace {

constexpr SIZE kSize{140, 36};
constexpr int kSeen = 40;
constexpr ButtonRole kRoles[] = {
    ButtonRole::kPlain,    ButtonRole::kStrip, ButtonRole::kCommand,   ButtonRole::kPrimary,
    ButtonRole::kOutlined, ButtonRole::kTool,  ButtonRole::kNavigation};

std::string longCaption() { return std::string(60, 'W') + " and more of it\nand more"; }

class ControlDrawing : public ::testing::Test {
 protected:
  ControlDrawing() { control_.caption = "Cookies"; }

  std::unique_ptr<Picture32> shown(const Draw& draw) const {
    return drawn(kSize, draw, palette_.window);
  }
  std::unique_ptr<Picture32> button(ButtonRole role, const DrawnState& state) const {
    return drawn(
        kSize,
        [&](HDC dc, const RECT& area) { drawButton(dc, area, control_, role, state, palette_); },
        role == ButtonRole::kStrip ? palette_.strip : palette_.window);
  }
  std::unique_ptr<Picture32> check(int value, const DrawnState& state = {}) const {
    return shown([&](HDC dc, const RECT& area) {
      drawCheckBox(dc, area, control_, value, state, palette_);
    });
  }
  std::unique_ptr<Picture32> option(bool value, const DrawnState& state = {}) const {
    return shown(
        [&](HDC dc, const RECT& area) { drawOption(dc, area, control_, value, state, palette_); });
  }
  std::unique_ptr<Picture32> label(bool heading, bool large, const DrawnState& state = {}) const {
    return shown([&](HDC dc, const RECT& area) {
      drawLabel(dc, area, control_, heading, large, state, palette_);
    });
  }
  void expectWithin(const Draw& draw) const {
    for (const SIZE size : {kSize, SIZE{20, 10}, SIZE{2, 2}, SIZE{50, 80}}) {
      EXPECT_EQ(touchedOutside(draw, size), 0) << size.cx;
    }
  }

  Control control_;
  Palette palette_ = Palette::of(kStripColor);
};

TEST_F(ControlDrawing, AButtonShowsItsStateInEveryRole) {
  for (const bool high_contrast : {false, true}) {
    if (high_contrast) palette_ = Palette::ofSystem();
    for (const ButtonRole role : kRoles) {
      const auto rest = button(role, {});
      const std::string which = std::to_string(static_cast<int>(role));
      EXPECT_GE(rest->differing(*button(role, {.hovered = true})), kSeen) << which;
      EXPECT_GE(rest->differing(*button(role, {.pressed = true})), kSeen) << which;
      EXPECT_GE(rest->differing(*button(role, {.focused = true})), kSeen) << which;
      EXPECT_GE(rest->differing(*button(role, {.enabled = false})), kSeen) << which;
      EXPECT_GE(rest->differing(*button(role, {.checked = true})), kSeen) << which;
    }
  }
}

TEST_F(ControlDrawing, AButtonOfTheToolbarShowsItsIconAlone) {
  DrawnState state{.icon = "erase"};
  const auto named = button(ButtonRole::kTool, state);
  control_.caption = "Another";
  EXPECT_EQ(named->differing(*button(ButtonRole::kTool, state)), 0);
  state.icon = "test";
  EXPECT_GE(named->differing(*button(ButtonRole::kTool, state)), kSeen);
}

TEST_F(ControlDrawing, ACheckBoxShowsItsThreeValues) {
  EXPECT_GE(check(0)->differing(*check(1)), kSeen);
  EXPECT_GE(check(0)->differing(*check(2)), kSeen);
  EXPECT_GE(check(1)->differing(*check(2)), 8);
}

TEST_F(ControlDrawing, ACheckBoxShowsItsState) {
  for (const bool high_contrast : {false, true}) {
    if (high_contrast) palette_ = Palette::ofSystem();
    for (const int value : {0, 1}) {
      EXPECT_GE(check(value)->differing(*check(value, {.pressed = true})), kSeen);
      EXPECT_GE(check(value)->differing(*check(value, {.focused = true})), kSeen);
      EXPECT_GE(check(value)->differing(*check(value, {.enabled = false})), kSeen);
    }
    EXPECT_GE(check(0)->differing(*check(0, {.hovered = true})), 20);
  }
}

TEST_F(ControlDrawing, AnOptionShowsItsValueAndState) {
  EXPECT_GE(option(false)->differing(*option(true)), kSeen);
  EXPECT_GE(option(true)->differing(*check(1)), kSeen);
  EXPECT_GE(option(true)->differing(*option(true, {.focused = true})), kSeen);
  EXPECT_GE(option(true)->differing(*option(true, {.enabled = false})), kSeen);
  EXPECT_GE(option(false)->differing(*option(false, {.pressed = true})), kSeen);
}

TEST_F(ControlDrawing, TheSignOfACheckBoxStandsWhereReadingBegins) {
  const COLORREF accent = palette_.accent;
  const auto left = check(1);
  EXPECT_GE(left->count({0, 0, 17, kSize.cy}, accent), 100);
  EXPECT_EQ(left->count({kSize.cx - 17, 0, kSize.cx, kSize.cy}, accent), 0);
  const auto right = check(1, {.right_to_left = true});
  EXPECT_GE(right->count({kSize.cx - 17, 0, kSize.cx, kSize.cy}, accent), 100);
  EXPECT_EQ(right->count({0, 0, 17, kSize.cy}, accent), 0);
}

TEST_F(ControlDrawing, TheMarkOfACheckBoxIsNotMirrored) {
  const auto left = check(1);
  const auto right = check(1, {.right_to_left = true});
  for (int y = 0; y < kSize.cy; ++y) {
    for (int x = 0; x < 17; ++x) {
      ASSERT_EQ(left->at(x, y), right->at(kSize.cx - 17 + x, y)) << x << "," << y;
    }
  }
}

TEST_F(ControlDrawing, ALabelIsLargerAsAHeadingAndAsAFigure) {
  const auto plain = label(false, false);
  EXPECT_GE(plain->differing(*label(true, false)), kSeen);
  EXPECT_GE(plain->differing(*label(false, true)), kSeen);
  EXPECT_GE(label(true, false)->differing(*label(false, true)), kSeen);
}

TEST_F(ControlDrawing, ALabelBeginsAtTheRightWhenReadFromRightToLeft) {
  const auto ground = palette_.window;
  const RECT left{0, 0, 40, kSize.cy};
  const RECT right{kSize.cx - 40, 0, kSize.cx, kSize.cy};
  EXPECT_GE(label(false, false)->differing(left, ground), kSeen);
  EXPECT_EQ(label(false, false)->differing(right, ground), 0);
  EXPECT_GE(label(false, false, {.right_to_left = true})->differing(right, ground), kSeen);
  EXPECT_EQ(label(false, false, {.right_to_left = true})->differing(left, ground), 0);
}

TEST_F(ControlDrawing, ALabelBreaksIntoLinesWhereThereIsRoom) {
  control_.caption = "This text is longer than a single line of its label is wide.";
  const Picture32 screen(1, 1);
  const int one = captionSize(screen.dc(), control_, 1).cy;
  EXPECT_GE(labelHeight(screen.dc(), control_, kSize.cx, false, false, 1), 2 * one);
  const SIZE high{kSize.cx, 80};
  const auto lines = drawn(high, [&](HDC dc, const RECT& area) {
    drawLabel(dc, area, control_, false, false, {}, palette_);
  });
  EXPECT_GE(lines->differing({0, one, high.cx, 2 * one}, RGB(255, 255, 255)), kSeen);
}

TEST_F(ControlDrawing, AFrameHasALineOnlyWithACaption) {
  const auto with = shown(
      [&](HDC dc, const RECT& area) { drawFrame(dc, area, control_, DrawnState{}, palette_); });
  EXPECT_GE(with->count({0, 0, kSize.cx, kSize.cy}, palette_.border), 200);
  control_.caption = "";
  const auto without = shown(
      [&](HDC dc, const RECT& area) { drawFrame(dc, area, control_, DrawnState{}, palette_); });
  EXPECT_EQ(without->differing(without->area(), palette_.window), 0);
}

TEST_F(ControlDrawing, NoControlDrawsOutsideItsRectangle) {
  control_.caption = longCaption();
  for (const double scale : {1.0, 1.5, 3.0}) {
    for (const bool right_to_left : {false, true}) {
      DrawnState state{.hovered = true, .focused = true, .right_to_left = right_to_left};
      state.scale = scale;
      state.icon = "erase";
      for (const ButtonRole role : kRoles) {
        expectWithin([&](HDC dc, const RECT& area) {
          drawButton(dc, area, control_, role, state, palette_);
        });
      }
      expectWithin(
          [&](HDC dc, const RECT& area) { drawCheckBox(dc, area, control_, 1, state, palette_); });
      expectWithin(
          [&](HDC dc, const RECT& area) { drawOption(dc, area, control_, true, state, palette_); });
      expectWithin([&](HDC dc, const RECT& area) {
        drawLabel(dc, area, control_, true, true, state, palette_);
      });
      expectWithin(
          [&](HDC dc, const RECT& area) { drawFrame(dc, area, control_, state, palette_); });
      expectWithin([&](HDC dc, const RECT& area) {
        drawTitleStrip(dc, area, control_.caption, state, palette_);
      });
    }
  }
}

TEST_F(ControlDrawing, TheTitleStripHasTheConfiguredColour) {
  for (const COLORREF color : {kStripColor, RGB(20, 140, 90), RGB(250, 220, 90), RGB(0, 0, 0)}) {
    palette_ = Palette::of(color);
    const auto draw = [&](const char* title) {
      return shown([&](HDC dc, const RECT& area) {
        drawTitleStrip(dc, area, title, DrawnState{}, palette_);
      });
    };
    const auto strip = draw("Tavr");
    EXPECT_EQ(strip->at(0, 0), color);
    EXPECT_EQ(strip->at(kSize.cx - 1, kSize.cy - 1), color);
    EXPECT_GT(strip->count(strip->area(), color), kSize.cx * kSize.cy / 2);
    EXPECT_GE(strip->differing(*draw("")), kSeen);
    EXPECT_GE(draw("")->differing(strip->area(), color), kSeen) << "the program's sign";
  }
}

TEST_F(ControlDrawing, TheStripIsThirdOfAColourNumbersFourBytesOnly) {
  EXPECT_EQ(Palette::of(0x7F123456).strip, 0x123456U);
}

TEST_F(ControlDrawing, TextsCanBeReadWithEveryStripColour) {
  for (int red = 0; red < 256; red += 51) {
    for (int green = 0; green < 256; green += 51) {
      for (int blue = 0; blue < 256; blue += 51) {
        const Palette palette = Palette::of(RGB(red, green, blue));
        EXPECT_GE(contrast(palette.strip_text, palette.strip), 3.9);
        EXPECT_GE(contrast(palette.accent, kWhite), 4.5);
        EXPECT_GE(contrast(palette.accent_text, palette.accent), 4.5);
        EXPECT_GE(contrast(palette.text, palette.selection), 4.5);
        EXPECT_GE(contrast(palette.faint_text, palette.window), 4.5);
      }
    }
  }
}

TEST_F(ControlDrawing, HighContrastTakesTheSystemsColoursOnly) {
  const Palette palette = Palette::ofSystem();
  EXPECT_TRUE(palette.high_contrast);
  EXPECT_EQ(palette.window, GetSysColor(COLOR_WINDOW));
  EXPECT_EQ(palette.text, GetSysColor(COLOR_WINDOWTEXT));
  EXPECT_EQ(palette.accent, GetSysColor(COLOR_HIGHLIGHT));
  EXPECT_EQ(palette.accent_text, GetSysColor(COLOR_HIGHLIGHTTEXT));
}

TEST_F(ControlDrawing, ACaptionTakesMoreRoomAtALargerScale) {
  const Picture32 screen(1, 1);
  const SIZE once = captionSize(screen.dc(), control_, 1);
  EXPECT_GT(once.cx, 20);
  EXPECT_GT(once.cy, 8);
  SIZE before = once;
  for (const double scale : {1.25, 1.5, 2.0, 2.5, 3.0}) {
    const SIZE size = captionSize(screen.dc(), control_, scale);
    EXPECT_GT(size.cx, before.cx) << scale;
    EXPECT_GT(size.cy, before.cy) << scale;
    EXPECT_NEAR(size.cx, once.cx * scale, once.cx * scale * 0.12) << scale;
    before = size;
  }
}

TEST_F(ControlDrawing, ACaptionTakesMoreRoomInALargerAndABolderFont) {
  const Picture32 screen(1, 1);
  const SIZE plain = captionSize(screen.dc(), control_, 1);
  EXPECT_GT(captionSize(screen.dc(), control_, 1, true).cx, plain.cx);
  control_.font.size = "12";
  EXPECT_GT(captionSize(screen.dc(), control_, 1).cx, plain.cx);
}

TEST_F(ControlDrawing, AnAmpersandIsAPlainCharacter) {
  const Picture32 screen(1, 1);
  control_.caption = "ab";
  const SIZE without = captionSize(screen.dc(), control_, 1);
  control_.caption = "a&b";
  EXPECT_GT(captionSize(screen.dc(), control_, 1).cx, without.cx + 4);
}

TEST_F(ControlDrawing, TheAccessKeyIsUnderlined) {
  const auto plain = button(ButtonRole::kPlain, {});
  const auto marked = button(ButtonRole::kPlain, {.access_key = 0});
  EXPECT_GE(plain->differing(*marked), 3);
  EXPECT_LE(plain->differing(*marked), 40);
}

// What buttonSize and boxSize ask for is enough: with more room the caption looks
// the same, with less it ends in dots.
TEST_F(ControlDrawing, TheSizesThatAreAskedForShowTheWholeCaption) {
  control_.caption = "Erasing Settings";
  const Picture32 screen(1, 1);
  for (const double scale : {1.0, 1.5, 2.0, 3.0}) {
    DrawnState state;
    state.scale = scale;
    state.icon = "settings";
    const SIZE whole = buttonSize(screen.dc(), control_, ButtonRole::kCommand, state);
    const auto at = [&](int width) {
      return drawn({width, whole.cy}, [&](HDC dc, const RECT& area) {
        drawButton(dc, area, control_, ButtonRole::kCommand, state, palette_);
      });
    };
    const auto fits = at(whole.cx);
    const RECT common{0, 0, whole.cx - 20, whole.cy};
    EXPECT_EQ(at(whole.cx + 40)->differing(*fits, common), 0) << scale;
    EXPECT_GT(at(whole.cx - 20)->differing(*fits, common), 0) << scale;
  }
}

}  // namespace
}  // namespace tavr::win32
