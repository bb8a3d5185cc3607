// The cells of a list, also on a device context that Windows has mirrored.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

#include "tests/windows/drawing/picture.h"
#include "ui/win32/draw_list.h"

namespace tavr::win32 {
namespace {

constexpr SIZE kSize{200, 26};
constexpr COLORREF kRed = RGB(192, 0, 0);
constexpr COLORREF kGreen = RGB(46, 125, 50);

class ListDrawing : public ::testing::Test {
 protected:
  ~ListDrawing() override { DeleteObject(font_); }
  std::unique_ptr<Picture32> draw(const DrawnCell& cell, DWORD layout = 0, bool cut = true) {
    return drawn(
        kSize,
        [&](HDC dc, const RECT& area) {
          SetLayout(dc, layout);
          width_ = drawListCell(dc, area, cell, font_, cut, 1, palette_);
          SetLayout(dc, 0);
        },
        palette_.panel);
  }
  /// Where what is drawn begins and ends.
  static std::pair<int, int> reach(const Picture32& picture, COLORREF ground) {
    std::pair<int, int> reach{picture.width(), 0};
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.differing({x, 0, x + 1, picture.height()}, ground) == 0) continue;
      reach = {std::min(reach.first, x), x + 1};
    }
    return reach;
  }

  Palette palette_ = Palette::of(kStripColor);
  HFONT font_ = CreateFontW(-13, 0, 0, 0, FW_SEMIBOLD, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0,
                            DEFAULT_PITCH, installedFamily("Segoe UI", 0).c_str());
  int width_ = 0;
};

TEST_F(ListDrawing, ATextHasTheColourThatIsAskedFor) {
  const auto picture = draw({.text = "888888", .color = kRed});
  EXPECT_GT(picture->count(picture->area(), kRed), 10);
}

TEST_F(ListDrawing, ATextBeginsBehindThePaddingAndANumberEndsBeforeIt) {
  const auto [text_begin, text_end] = reach(*draw({.text = "888"}), palette_.panel);
  EXPECT_NEAR(text_begin, kListPadding, 2);
  EXPECT_NEAR(text_end, kListPadding + width_, 2);
  const auto [begin, end] = reach(*draw({.text = "888", .at_far_edge = true}), palette_.panel);
  EXPECT_NEAR(end, kSize.cx - kListPadding, 2);
  EXPECT_NEAR(begin, kSize.cx - kListPadding - width_, 2);
}

TEST_F(ListDrawing, ATextThatIsTooLongEndsInDotsOrAtTheEdge) {
  const std::string text(60, 'W');
  const auto cut = draw({.text = text});
  const int whole = width_;
  EXPECT_GT(whole, kSize.cx);
  EXPECT_LE(reach(*cut, palette_.panel).second, kSize.cx - kListPadding + 1);
  EXPECT_GT(cut->differing(*draw({.text = text}, 0, false)), 0);
  EXPECT_EQ(width_, whole);
}

TEST_F(ListDrawing, ItsWidthIsThatOfTheSignsAndTheText) {
  draw({.text = "alpha"});
  const int text = width_;
  draw({.text = "alpha", .icon = "plugins", .has_box = true});
  EXPECT_EQ(width_, text + 2 * (kListSign + kListPadding / 2));
}

TEST_F(ListDrawing, ABoxAndAnIconStandBeforeTheText) {
  const RECT first{kListPadding, 0, kListPadding + kListSign, kSize.cy};
  const auto unticked = draw({.has_box = true});
  const auto ticked = draw({.has_box = true, .checked = true});
  EXPECT_GT(unticked->differing(*ticked, first), 40);
  EXPECT_EQ(unticked->differing(*ticked), unticked->differing(*ticked, first));
  const DrawnCell cell{.icon = "done", .icon_color = kGreen, .has_box = true};
  const RECT second{first.right + kListPadding / 2, 0, first.right + kListPadding / 2 + kListSign,
                    kSize.cy};
  const auto both = draw(cell);
  EXPECT_GT(both->differing(*unticked, second), 40);
  EXPECT_EQ(both->differing(*unticked), both->differing(*unticked, second));
}

// Pixel by pixel the same sign, at the other end.
TEST_F(ListDrawing, NoSignIsSeenFromBehindInAMirroredList) {
  for (const DrawnCell& cell : {DrawnCell{.icon = "done", .icon_color = kGreen},
                                DrawnCell{.has_box = true, .checked = true}}) {
    const auto plain = draw(cell);
    const auto mirrored = draw(cell, LAYOUT_RTL);
    const int there = kSize.cx - kListPadding - kListSign;
    EXPECT_GT(plain->differing({0, 0, kSize.cx, kSize.cy}, palette_.panel), 40);
    for (int y = 0; y < kSize.cy; ++y) {
      for (int x = 0; x < kListSign; ++x) {
        ASSERT_EQ(plain->at(kListPadding + x, y), mirrored->at(there + x, y)) << x << "," << y;
      }
    }
    EXPECT_EQ(mirrored->differing({0, 0, there, kSize.cy}, palette_.panel), 0);
  }
}

}  // namespace
}  // namespace tavr::win32
