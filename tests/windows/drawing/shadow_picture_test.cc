// The pixels of a form's shadow.
#include "ui/win32/shadow_picture.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/windows/drawing/picture.h"

namespace tavr::win32 {
namespace {

int alphaOf(std::uint32_t pixel) { return static_cast<int>(pixel >> 24); }

TEST(ShadowPicture, HalfOfTheStrengthIsGoneAtTheFirstPercentage) {
  const ShadowLook look;
  EXPECT_DOUBLE_EQ(shadowStrength(look, 0), 0.5);
  EXPECT_NEAR(shadowStrength(look, 0.25), 0.25, 1e-9);
  EXPECT_DOUBLE_EQ(shadowStrength(look, 1), 0);
  EXPECT_DOUBLE_EQ(shadowStrength(look, 1.4), 0);
}

TEST(ShadowPicture, TheStrengthFallsAllTheWay) {
  const ShadowLook look;
  for (int i = 1; i <= 20; ++i) {
    EXPECT_LT(shadowStrength(look, i / 20.0), shadowStrength(look, (i - 1) / 20.0)) << i;
  }
}

TEST(ShadowPicture, BothPercentagesShapeTheCurve) {
  EXPECT_GT(shadowStrength({40, 0, 60, 50}, 0.25), shadowStrength({40, 0, 25, 50}, 0.25));
  EXPECT_DOUBLE_EQ(shadowStrength({40, 0, 25, 80}, 0), 0.8);
}

TEST(ShadowPicture, TheSourceHasFourByTwoTiles) {
  for (const int size : {1, 7, 40, 100}) {
    EXPECT_EQ(shadowTiles({size, 0xFF0000, 25, 50}).size(),
              static_cast<std::size_t>(4 * size * 2 * size));
  }
}

TEST(ShadowPicture, ThePixelsAreInTheColourTimesTheirOpacity) {
  for (const std::uint32_t pixel : shadowTiles({20, RGB(200, 100, 50), 25, 50})) {
    const double part = alphaOf(pixel) / 255.0;
    EXPECT_NEAR(pixel >> 16 & 0xFF, 200 * part, 1.5);
    EXPECT_NEAR(pixel >> 8 & 0xFF, 100 * part, 1.5);
    EXPECT_NEAR(pixel & 0xFF, 50 * part, 1.5);
  }
}

class ShadowLayout : public ::testing::Test {
 protected:
  static constexpr int kReach = 40;
  static constexpr SIZE kWhole{300, 220};

  ShadowLayout() : picture_(kWhole.cx, kWhole.cy, RGB(0, 0, 0)) {
    layShadowOut(picture_.dc(), ShadowLook{}, kWhole);
  }
  int alpha(int x, int y) const {
    return alphaOf(picture_.pixels()[static_cast<std::size_t>(y * kWhole.cx + x)]);
  }

  Picture32 picture_;
};

TEST_F(ShadowLayout, FallsOffOutwardsAtEverySide) {
  const int middle_x = kWhole.cx / 2;
  const int middle_y = kWhole.cy / 2;
  for (int i = 1; i < kReach; ++i) {
    EXPECT_GE(alpha(i, middle_y), alpha(i - 1, middle_y)) << i;
    EXPECT_GE(alpha(middle_x, i), alpha(middle_x, i - 1)) << i;
    EXPECT_GE(alpha(i, i), alpha(i - 1, i - 1)) << i;
  }
  EXPECT_NEAR(alpha(kReach - 1, middle_y), 255 * shadowStrength(ShadowLook{}, 0.5 / kReach), 1);
  EXPECT_GT(alpha(kReach - 1, middle_y), 110);
  EXPECT_LE(alpha(0, middle_y), 1);
  EXPECT_EQ(alpha(0, 0), 0);
}

TEST_F(ShadowLayout, IsTheSameAtOppositeSides) {
  for (int y = 0; y < kWhole.cy; ++y) {
    for (int x = 0; x < kWhole.cx; ++x) {
      ASSERT_EQ(alpha(x, y), alpha(kWhole.cx - 1 - x, y)) << x << "," << y;
      ASSERT_EQ(alpha(x, y), alpha(x, kWhole.cy - 1 - y)) << x << "," << y;
    }
  }
}

TEST_F(ShadowLayout, LeavesThePlaceOfTheFormOut) {
  for (int y = kReach; y < kWhole.cy - kReach; ++y) {
    for (int x = kReach; x < kWhole.cx - kReach; ++x) ASSERT_EQ(alpha(x, y), 0) << x << "," << y;
  }
}

TEST_F(ShadowLayout, IsStretchedAlongTheSides) {
  for (int x = kReach; x < kWhole.cx - kReach; ++x) {
    ASSERT_EQ(alpha(x, 20), alpha(kWhole.cx / 2, 20)) << x;
  }
  EXPECT_GT(alpha(kWhole.cx / 2, 20), 20);
}

TEST_F(ShadowLayout, HasNoSeamBetweenCornerAndSide) {
  EXPECT_NEAR(alpha(kReach - 1, 20), alpha(kReach, 20), 4);
  EXPECT_NEAR(alpha(20, kReach - 1), alpha(20, kReach), 4);
}

}  // namespace
}  // namespace tavr::win32
