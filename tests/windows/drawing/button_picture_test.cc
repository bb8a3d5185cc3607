// The picture on a chameleonButton, from a file and from the program's own.
#include <gtest/gtest.h>

#include <filesystem>

#include "platform/win32/wide.h"
#include "tests/windows/drawing/picture.h"
#include "tests/windows/drawing/sample_picture.h"
#include "tests/windows/drawing/stubs.h"

namespace tavr::win32 {
namespace {

constexpr SIZE kSize{120, 60};
constexpr RECT kWhole{0, 0, kSize.cx, kSize.cy};
// The disc of 12 pixels across, counted pixel by pixel.
constexpr int kDisc = 112;

class ButtonPicture : public ::testing::Test {
 protected:
  ButtonPicture() : button_(events_) {
    folder_ = std::filesystem::temp_directory_path() / "tavr-button-picture";
    std::filesystem::create_directories(folder_);
    saveSign((folder_ / "red.bmp").wstring(), kSignRed);
    saveSign((folder_ / "blue.bmp").wstring(), kSignBlue);
    button_.button_type = 2;
    button_.color = RGB(0, 96, 64);
    button_.picture_normal = file("red.bmp");
  }
  ~ButtonPicture() override { std::filesystem::remove_all(folder_); }

  std::string file(const char* name) const { return narrow((folder_ / name).wstring()); }
  std::unique_ptr<Picture32> draw(const DrawnState& state = {}) const {
    return drawn(kSize, [&](HDC dc, const RECT& area) {
      drawChameleonButton(dc, area, button_, state.pressed ? ChameleonButton::kPressed : 0,
                          ButtonRole::kPlain, state, palette_);
    });
  }
  // The middle of what is drawn in a colour.
  static POINT middleOf(const Picture32& picture, COLORREF color) {
    POINT sum{0, 0};
    int found = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        if (picture.at(x, y) != color) continue;
        sum = {sum.x + x, sum.y + y};
        ++found;
      }
    }
    return found == 0 ? POINT{-1, -1} : POINT{sum.x / found, sum.y / found};
  }

  StillEvents events_;
  Palette palette_ = Palette::of(kStripColor);
  std::filesystem::path folder_;
  ChameleonButton button_;
};

TEST_F(ButtonPicture, LeavesOutWhatIsInTheMaskColour) {
  const auto picture = draw();
  EXPECT_EQ(picture->count(kWhole, kSignRed), kDisc);
  EXPECT_EQ(picture->count(kWhole, kSignMask), 0);
}

TEST_F(ButtonPicture, IsWholeWithoutTheMask) {
  button_.use_mask_color = false;
  const auto picture = draw();
  EXPECT_EQ(picture->count(kWhole, kSignRed), kDisc);
  EXPECT_EQ(picture->count(kWhole, kSignMask), kSignSize * kSignSize - kDisc);
}

TEST_F(ButtonPicture, LeavesOutAnotherMaskColour) {
  button_.mask_color = static_cast<std::int32_t>(kSignRed);
  const auto picture = draw();
  EXPECT_EQ(picture->count(kWhole, kSignRed), 0);
  EXPECT_EQ(picture->count(kWhole, kSignMask), kSignSize * kSignSize - kDisc);
}

TEST_F(ButtonPicture, MixesNoMaskColourInWhereItIsEnlarged) {
  DrawnState state;
  state.scale = 2;
  const auto picture = draw(state);
  int discs = 0;
  for (int y = 0; y < kSize.cy; ++y) {
    for (int x = 0; x < kSize.cx; ++x) {
      const COLORREF color = picture->at(x, y);
      discs += color == kSignRed;
      // Between the disc's red and the button's green there is no bright grey.
      EXPECT_FALSE(GetRValue(color) > 150 && GetGValue(color) > 150 && x > 10 && x < 110 &&
                   y > 10 && y < 50)
          << x << "," << y;
    }
  }
  EXPECT_GT(discs, 3 * kDisc);
}

TEST_F(ButtonPicture, IsGreyWithGreyscaleAndWhenDisabled) {
  button_.color = RGB(240, 240, 240);
  button_.soft_bevel = true;
  palette_ = Palette::of(RGB(90, 90, 90));
  const auto colored = draw();
  EXPECT_GE(colored->count(kWhole, kSignRed), kDisc);
  button_.use_greyscale = true;
  const auto grey = draw();
  EXPECT_EQ(grey->count(kWhole, kSignRed), 0);
  constexpr int kLightness = (299 * 208 + 587 * 32 + 114 * 48 + 500) / 1000;
  const COLORREF middle = grey->at(kSize.cx / 2, kSize.cy / 2);
  EXPECT_NEAR(GetRValue(middle), kLightness, 1);
  EXPECT_EQ(GetRValue(middle), GetGValue(middle));
  EXPECT_EQ(GetGValue(middle), GetBValue(middle));
  button_.use_greyscale = false;
  button_.enabled = false;
  EXPECT_EQ(draw()->count(kWhole, kSignRed), 0);
}

TEST_F(ButtonPicture, IsAnotherWhileTheMouseIsOverTheButton) {
  button_.picture_over = file("blue.bmp");
  EXPECT_EQ(draw()->count(kWhole, kSignBlue), 0);
  const auto over = draw({.hovered = true});
  EXPECT_EQ(over->count(kWhole, kSignBlue), kDisc);
  EXPECT_EQ(over->count(kWhole, kSignRed), 0);
}

TEST_F(ButtonPicture, StaysWhereThereIsNoOtherForTheMouse) {
  EXPECT_EQ(draw({.hovered = true})->count(kWhole, kSignRed), kDisc);
}

TEST_F(ButtonPicture, StandsAtTheSideThatIsAskedFor) {
  button_.caption = "All";
  button_.picture_position = 0;
  EXPECT_LT(middleOf(*draw(), kSignRed).x, kSize.cx / 2 - 5);
  button_.picture_position = 1;
  EXPECT_GT(middleOf(*draw(), kSignRed).x, kSize.cx / 2 + 5);
  button_.picture_position = 2;
  EXPECT_LT(middleOf(*draw(), kSignRed).y, kSize.cy / 2 - 5);
  button_.picture_position = 3;
  EXPECT_GT(middleOf(*draw(), kSignRed).y, kSize.cy / 2 + 5);
}

TEST_F(ButtonPicture, ChangesItsSideWithTheReadingButIsNotMirrored) {
  button_.caption = "All";
  EXPECT_GT(middleOf(*draw({.right_to_left = true}), kSignRed).x, kSize.cx / 2 + 5);
}

TEST_F(ButtonPicture, MovesWithAPress) {
  const POINT rest = middleOf(*draw(), kSignRed);
  const POINT pressed = middleOf(*draw({.pressed = true}), kSignRed);
  EXPECT_EQ(pressed.x, rest.x + 1);
  EXPECT_EQ(pressed.y, rest.y + 1);
}

TEST_F(ButtonPicture, MayBeAnIconOfTheProgram) {
  button_.picture_normal = "";
  const auto none = draw();
  button_.picture_normal = "erase";
  EXPECT_GE(none->differing(*draw()), 60);
}

TEST_F(ButtonPicture, IsNotMissedWhenItsFileIs) {
  button_.picture_normal = "";
  const auto none = draw();
  button_.picture_normal = file("missing.bmp");
  EXPECT_EQ(none->differing(*draw()), 0);
}

}  // namespace
}  // namespace tavr::win32
