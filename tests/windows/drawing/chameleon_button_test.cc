// How a chameleonButton looks in each style and state.
#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "tests/windows/drawing/picture.h"
#include "tests/windows/drawing/sample_picture.h"
#include "tests/windows/drawing/stubs.h"

namespace tavr::win32 {
namespace {

constexpr SIZE kSize{104, 28};
constexpr int kStyles[] = {0, 1, 2, 3, 4, 5, 6, 7, 9, 11, 13, 14};
// Fewer pixels than these are no difference that a person sees.
constexpr int kSeenStyle = 60;
constexpr int kSeenState = 60;

class ChameleonDrawing : public ::testing::Test {
 protected:
  std::unique_ptr<Picture32> draw(const ChameleonButton& button, DrawnState state = {},
                                  int asked = ChameleonButton::kNormal,
                                  ButtonRole role = ButtonRole::kPlain) const {
    return drawn(
        kSize,
        [&](HDC dc, const RECT& area) {
          drawChameleonButton(dc, area, button, asked, role, state, palette_);
        },
        palette_.window);
  }

  StillEvents events_;
  Palette palette_ = Palette::of(kStripColor);
};

class ChameleonStyle : public ChameleonDrawing, public ::testing::WithParamInterface<int> {
 protected:
  ChameleonStyle() : button_(events_) {
    button_.button_type = GetParam();
    button_.caption = "Select All";
  }
  int seen(const Picture32& other) const { return draw(button_)->differing(other); }

  ChameleonButton button_;
};

INSTANTIATE_TEST_SUITE_P(Styles, ChameleonStyle, ::testing::ValuesIn(kStyles));

TEST_P(ChameleonStyle, LooksLikeNoOther) {
  for (const int type : kStyles) {
    if (type == GetParam()) continue;
    ChameleonButton other(events_);
    other.button_type = type;
    other.caption = button_.caption;
    EXPECT_GE(seen(*draw(other)), kSeenStyle) << "type " << type;
  }
}

TEST_P(ChameleonStyle, ShowsTheMouseOverIt) {
  EXPECT_GE(seen(*draw(button_, {.hovered = true})), kSeenState);
}

TEST_P(ChameleonStyle, ShowsThatItIsPressed) {
  const auto pressed = draw(button_, {}, ChameleonButton::kPressed);
  EXPECT_GE(seen(*pressed), kSeenState);
  EXPECT_GE(pressed->differing(*draw(button_, {.hovered = true})), kSeenState);
}

TEST_P(ChameleonStyle, ShowsTheFocusUnlessItIsTurnedOff) {
  EXPECT_GE(seen(*draw(button_, {.focused = true})), kSeenState);
  button_.show_focus_rect = false;
  EXPECT_EQ(seen(*draw(button_, {.focused = true})), 0);
}

TEST_P(ChameleonStyle, ShowsThatItIsDisabledAndAnswersNoMouse) {
  const auto rest = draw(button_);
  button_.enabled = false;
  const auto disabled = draw(button_);
  EXPECT_GE(rest->differing(*disabled), kSeenState);
  EXPECT_EQ(draw(button_, {.hovered = true})->differing(*disabled), 0);
  EXPECT_EQ(draw(button_, {}, ChameleonButton::kPressed)->differing(*disabled), 0);
}

TEST_P(ChameleonStyle, ShowsItsValueWhenItBehavesAsACheckBox) {
  button_.value = true;
  const auto plain = draw(button_);
  button_.check_box_behaviour = true;
  EXPECT_GE(plain->differing(*draw(button_)), kSeenState);
  EXPECT_EQ(draw(button_)->differing(*draw(button_, {.checked = true})), 0);
}

TEST_P(ChameleonStyle, ShowsEveryStateInHighContrast) {
  palette_ = Palette::ofSystem();
  EXPECT_GE(seen(*draw(button_, {.hovered = true})), kSeenState);
  EXPECT_GE(seen(*draw(button_, {.pressed = true})), kSeenState);
  EXPECT_GE(seen(*draw(button_, {.focused = true})), kSeenState);
  EXPECT_GE(seen(*draw(button_, {.enabled = false})), kSeenState);
  EXPECT_GE(seen(*draw(button_, {.checked = true})), kSeenState);
}

// A mixed colour could come near to the text's.
TEST_P(ChameleonStyle, HasGroundsOfTheSystemsColoursOnlyInHighContrast) {
  palette_ = highContrast();
  button_.caption = "";
  button_.color_scheme = 2;
  button_.color = RGB(90, 90, 90);
  for (const DrawnState& state :
       {DrawnState{}, DrawnState{.hovered = true}, DrawnState{.pressed = true},
        DrawnState{.focused = true}, DrawnState{.enabled = false}, DrawnState{.checked = true}}) {
    const auto picture = draw(button_, state);
    for (int y = 8; y < 20; ++y) {
      const COLORREF ground = picture->at(kSize.cx / 2, y);
      EXPECT_TRUE(ground == palette_.panel || ground == palette_.accent || ground == palette_.text)
          << std::hex << ground;
    }
  }
}

// The bare style shows its ground only under the mouse.
TEST_P(ChameleonStyle, TakesItsOwnColours) {
  const DrawnState over{.hovered = true};
  const auto scheme = draw(button_, over);
  button_.color = RGB(76, 175, 111);
  const auto green = draw(button_, over);
  EXPECT_GE(scheme->differing(*green), kSeenState);
  button_.color = RGB(200, 120, 40);
  EXPECT_GE(green->differing(*draw(button_, over)), kSeenState);
  const auto dark_text = draw(button_);
  button_.text_color = RGB(255, 0, 255);
  EXPECT_GE(dark_text->differing(*draw(button_)), kSeenState);
}

TEST_P(ChameleonStyle, TakesItsOwnColoursForTheMouse) {
  const DrawnState over{.hovered = true};
  const auto rest = draw(button_);
  const auto scheme = draw(button_, over);
  button_.hover_color = RGB(200, 120, 40);
  button_.hover_text_color = RGB(0, 0, 128);
  EXPECT_EQ(rest->differing(*draw(button_)), 0);
  EXPECT_GE(scheme->differing(*draw(button_, over)), kSeenState);
}

TEST_P(ChameleonStyle, StaysWithinItsRectangleHoweverLongTheCaption) {
  button_.caption = std::string(80, 'W') + "\nand a second line\nand a third";
  button_.special_effect = 3;
  for (const double scale : {1.0, 1.5, 2.0, 3.0}) {
    for (const bool right_to_left : {false, true}) {
      for (const SIZE size : {kSize, SIZE{30, 12}, SIZE{3, 3}, SIZE{60, 90}}) {
        DrawnState state{.pressed = true, .focused = true, .right_to_left = right_to_left};
        state.scale = scale;
        state.icon = "erase";
        const auto draw_it = [&](HDC dc, const RECT& area) {
          drawChameleonButton(dc, area, button_, ChameleonButton::kPressed, ButtonRole::kPlain,
                              state, palette_);
        };
        EXPECT_EQ(touchedOutside(draw_it, size), 0) << scale << " " << size.cx;
      }
    }
  }
}

TEST_P(ChameleonStyle, KeepsItsEdgeFreeOfTheCaption) {
  button_.caption = std::string(80, 'W');
  const auto full = draw(button_);
  button_.caption = " ";
  const auto empty = draw(button_);
  EXPECT_EQ(full->differing(*empty, {0, 0, 6, kSize.cy}), 0);
  EXPECT_EQ(full->differing(*empty, {kSize.cx - 6, 0, kSize.cx, kSize.cy}), 0);
  EXPECT_GE(full->differing(*empty), 200);
}

TEST_F(ChameleonDrawing, DrawsTheStylesSevenEightAndTwelveAlike) {
  ChameleonButton button(events_);
  button.caption = "Select All";
  for (const DrawnState& state : {DrawnState{}, DrawnState{.hovered = true},
                                  DrawnState{.pressed = true}, DrawnState{.enabled = false}}) {
    button.button_type = 7;
    const auto seven = draw(button, state);
    for (const int type : {8, 12}) {
      button.button_type = type;
      EXPECT_EQ(seven->differing(*draw(button, state)), 0);
    }
  }
}

TEST_F(ChameleonDrawing, DrawsAnyOtherTypeInTheDefaultStyle) {
  ChameleonButton button(events_);
  button.caption = "Select All";
  const auto plain = draw(button);
  for (const int type : {-1, 10, 15, 99}) {
    button.button_type = type;
    EXPECT_EQ(plain->differing(*draw(button)), 0) << type;
  }
}

TEST_F(ChameleonDrawing, ColourSchemesEffectsAndSoftBevelChangeTheLook) {
  ChameleonButton button(events_);
  button.button_type = 1;
  button.caption = "Select All";
  const auto calm = draw(button);
  button.color_scheme = 2;
  EXPECT_GE(calm->differing(*draw(button)), kSeenState);
  button.color_scheme = 1;
  button.soft_bevel = true;
  EXPECT_GE(calm->differing(*draw(button)), kSeenState);
  button.soft_bevel = false;
  for (const int effect : {1, 2, 3}) {
    button.special_effect = effect;
    EXPECT_GE(calm->differing(*draw(button)), 20) << effect;
  }
  button.special_effect = 4;
  EXPECT_EQ(calm->differing(*draw(button)), 0);
}

TEST_F(ChameleonDrawing, TakesBlackForAColourOfItsOwn) {
  ChameleonButton button(events_);
  button.button_type = 11;
  button.color = RGB(255, 255, 0);
  button.caption = "";
  const RECT inside{8, 8, 96, 20};
  EXPECT_EQ(draw(button, {.hovered = true})->count(inside, RGB(0, 0, 0)), 0);
  button.hover_color = 0;
  EXPECT_EQ(draw(button)->count(inside, RGB(255, 255, 0)), 88 * 12);
  EXPECT_EQ(draw(button, {.hovered = true})->count(inside, RGB(0, 0, 0)), 88 * 12);
}

TEST_F(ChameleonDrawing, ShowsAPressOnBlackToo) {
  ChameleonButton button(events_);
  button.caption = "Erase";
  button.color = button.hover_color = 0;
  for (const int type : {0, 6, 11}) {
    button.button_type = type;
    const auto over = draw(button, {.hovered = true});
    EXPECT_GE(over->differing(*draw(button, {.hovered = true}, ChameleonButton::kPressed)),
              kSeenState)
        << type;
  }
}

TEST_F(ChameleonDrawing, TakesATextColourOfItsOwnWhateverItIs) {
  ChameleonButton button(events_);
  button.caption = "MMMM";
  button.color = RGB(60, 60, 200);
  const auto light = draw(button);
  button.text_color = static_cast<std::int32_t>(palette_.text);
  EXPECT_GE(light->differing(*draw(button)), 20);
}

// No line and no sign is mixed with what lies below it.
TEST_F(ChameleonDrawing, DisabledInHighContrastItsSignIsInTheSystemsGrey) {
  palette_ = highContrast();
  ChameleonButton button(events_);
  button.caption = "";
  const RECT all{0, 0, kSize.cx, kSize.cy};
  const auto picture = draw(button, {.enabled = false, .icon = "stop"});
  EXPECT_GE(picture->count(all, GetSysColor(COLOR_GRAYTEXT)), 12);
  button.button_type = 6;
  const auto pill = draw(button, {.enabled = false});
  EXPECT_EQ(pill->at(kSize.cx / 2, 0), GetSysColor(COLOR_GRAYTEXT));
}

// The strip in black, as a person may have it: its buttons take it like any colour.
TEST_F(ChameleonDrawing, KeepsTheColourOfABlackStripUnderTheMouse) {
  ChameleonButton button(events_);
  const DrawnState over{.hovered = true, .icon = "close"};
  const RECT all{0, 0, kSize.cx, kSize.cy};
  const int danger = draw(button, over, 0, ButtonRole::kStrip)->count(all, palette_.danger);
  EXPECT_GE(danger, kSeenState);
  button.color = button.hover_color = 0;
  const auto black = draw(button, over, 0, ButtonRole::kStrip);
  EXPECT_EQ(black->count(all, palette_.danger), 0);
  EXPECT_GE(black->count(all, RGB(0, 0, 0)), kSeenState);
}

TEST_F(ChameleonDrawing, ChangesWithEveryRoleThatDrawsItsDefaultStyle) {
  constexpr ButtonRole kRoles[] = {ButtonRole::kPlain, ButtonRole::kCommand, ButtonRole::kPrimary,
                                   ButtonRole::kOutlined};
  ChameleonButton button(events_);
  button.caption = "Erase";
  for (const ButtonRole one : kRoles) {
    for (const ButtonRole other : kRoles) {
      if (one == other) continue;
      EXPECT_GE(draw(button, {}, 0, one)->differing(*draw(button, {}, 0, other)), kSeenStyle);
    }
  }
}

}  // namespace
}  // namespace tavr::win32
