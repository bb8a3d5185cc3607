// The progress bar in its five looks.
#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

#include "tests/windows/drawing/picture.h"
#include "tests/windows/drawing/stubs.h"
#include "ui/win32/caption.h"

namespace tavr::win32 {
namespace {

constexpr SIZE kSize{300, 12};

struct Look {
  int style;
  int look;
  int step;  ///< pixels from one block to the next; 1: every pixel counts
};
constexpr Look kLooks[] = {{0, 0, 1}, {0, 1, 1}, {0, 2, 1}, {1, 0, 9}, {1, 1, 1}};

class ProgressDrawing : public ::testing::TestWithParam<Look> {
 protected:
  ProgressDrawing() : bar_(dialogs_) {
    bar_.setStyle(GetParam().style);
    bar_.setProgressLook(GetParam().look);
  }
  std::unique_ptr<Picture32> draw(int value, const DrawnState& state = {}) {
    bar_.setValue(value);
    return drawn(
        kSize, [&](HDC dc, const RECT& area) { drawProgressBar(dc, area, bar_, state, palette_); });
  }
  // How far the bar reaches in the middle row, from the side that it begins at.
  int reach(int value, const DrawnState& state = {}) {
    const auto empty = draw(bar_.min(), state);
    const auto part = draw(value, state);
    int farthest = 0;
    for (int x = 0; x < kSize.cx; ++x) {
      if (part->at(x, kSize.cy / 2) == empty->at(x, kSize.cy / 2)) continue;
      farthest = std::max(farthest, state.right_to_left ? static_cast<int>(kSize.cx) - x : x + 1);
    }
    return farthest;
  }

  NotingDialogs dialogs_;
  ProgressBar bar_;
  Palette palette_ = Palette::of(kStripColor);
};

INSTANTIATE_TEST_SUITE_P(Looks, ProgressDrawing, ::testing::ValuesIn(kLooks));

TEST_P(ProgressDrawing, ReachesAsFarAsItsValue) {
  for (int value = 0; value <= 100; value += 5) {
    const double wanted = kSize.cx * value / 100.0;
    // Blocks are whole: the one that is begun is shown.
    EXPECT_NEAR(reach(value), wanted, GetParam().step + 2) << value;
  }
}

TEST_P(ProgressDrawing, BeginsAtTheOtherSideWhenReadFromRightToLeft) {
  const DrawnState right{.right_to_left = true};
  EXPECT_NEAR(reach(30, right), kSize.cx * 0.3, GetParam().step + 2);
}

TEST_P(ProgressDrawing, MeasuresBetweenMinAndMax) {
  bar_.setMax(150);
  bar_.setMin(50);
  EXPECT_NEAR(reach(100), kSize.cx / 2, GetParam().step + 2);
}

TEST_P(ProgressDrawing, IsWholeForAValueAboveMax) {
  EXPECT_EQ(draw(100)->differing(*draw(250)), 0);
  EXPECT_GE(reach(250), kSize.cx - 3);
}

TEST_P(ProgressDrawing, GrowsWithEveryStepOfAVeryLargeSpan) {
  bar_.setMax(2000000000);
  EXPECT_NEAR(reach(1500000000), kSize.cx * 0.75, GetParam().step + 2);
}

TEST_P(ProgressDrawing, LooksLikeNoOther) {
  const auto own = draw(60);
  for (const Look& other : kLooks) {
    if (other.style == GetParam().style && other.look == GetParam().look) continue;
    bar_.setStyle(other.style);
    bar_.setProgressLook(other.look);
    EXPECT_GE(own->differing(*draw(60)), 200) << other.style << " " << other.look;
  }
}

// Any other style is the second, any other look the first.
TEST_P(ProgressDrawing, AnotherNumberIsOneOfTheFiveLooks) {
  const auto own = draw(60);
  if (GetParam().style == 1) {
    bar_.setStyle(7);
    EXPECT_EQ(own->differing(*draw(60)), 0);
  }
  if (GetParam().look == 0) {
    bar_.setProgressLook(9);
    EXPECT_EQ(own->differing(*draw(60)), 0);
  } else if (GetParam().style == 1) {
    bar_.setProgressLook(2);
    EXPECT_EQ(own->differing(*draw(60)), 0);
  }
}

TEST_P(ProgressDrawing, StaysWithinItsRectangle) {
  bar_.setValue(77);
  for (const double scale : {1.0, 2.0, 3.0}) {
    for (const SIZE size : {kSize, SIZE{5, 3}, SIZE{40, 40}}) {
      DrawnState state;
      state.scale = scale;
      const auto draw_it = [&](HDC dc, const RECT& area) {
        drawProgressBar(dc, area, bar_, state, palette_);
      };
      EXPECT_EQ(touchedOutside(draw_it, size), 0) << scale << " " << size.cx;
    }
  }
}

TEST_P(ProgressDrawing, IsSeenInHighContrast) {
  palette_ = Palette::ofSystem();
  EXPECT_NEAR(reach(50), kSize.cx / 2, GetParam().step + 2);
}

// Rounded corners are smooth in every scheme, so those rows are left out.
TEST_P(ProgressDrawing, MixesNoColoursInHighContrast) {
  palette_ = highContrast();
  for (const bool enabled : {true, false}) {
    const auto picture = draw(60, {.enabled = enabled});
    int mixed = 0;
    for (int y = kSize.cy / 3; y < kSize.cy * 2 / 3; ++y) {
      for (int x = 8; x < kSize.cx / 2; ++x) {
        const COLORREF color = picture->at(x, y);
        const bool of_scheme = color == palette_.panel || color == palette_.text ||
                               color == palette_.accent ||
                               color == disabledText(palette_, palette_.panel);
        mixed += of_scheme ? 0 : 1;
      }
    }
    EXPECT_EQ(mixed, 0) << enabled;
  }
}

}  // namespace
}  // namespace tavr::win32
