// The region that a picture with a mask colour gives a form.
#include <gtest/gtest.h>

#include "tests/windows/drawing/picture.h"
#include "ui/win32/trans_form.h"

namespace tavr::win32 {
namespace {

constexpr COLORREF kMask = 0xFF00FF;

class RegionTest : public ::testing::Test {
 protected:
  RegionTest() : picture_(30, 20, RGB(0, 128, 0)) {}
  ~RegionTest() override {
    if (region_ != nullptr) DeleteObject(region_);
  }
  void cut() {
    GdiFlush();
    region_ = regionOf(static_cast<HBITMAP>(GetCurrentObject(picture_.dc(), OBJ_BITMAP)), kMask);
  }
  void mask(const RECT& part) const {
    const HBRUSH brush = CreateSolidBrush(kMask);
    FillRect(picture_.dc(), &part, brush);
    DeleteObject(brush);
  }

  Picture32 picture_;
  HRGN region_ = nullptr;
};

TEST_F(RegionTest, HasEveryPixelButThoseInTheMaskColour) {
  mask({0, 0, 10, 5});
  mask({12, 8, 17, 11});
  SetPixel(picture_.dc(), 29, 19, kMask);
  cut();
  ASSERT_NE(region_, nullptr);
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < 30; ++x) {
      ASSERT_EQ(PtInRegion(region_, x, y) != FALSE, picture_.at(x, y) != kMask) << x << "," << y;
    }
  }
  EXPECT_FALSE(PtInRegion(region_, 30, 10));
  EXPECT_FALSE(PtInRegion(region_, 10, 20));
}

TEST_F(RegionTest, IsTheWholeRectangleWithoutMaskPixels) {
  cut();
  RECT box;
  EXPECT_EQ(GetRgnBox(region_, &box), SIMPLEREGION);
  EXPECT_EQ(box.right, 30);
  EXPECT_EQ(box.bottom, 20);
}

TEST_F(RegionTest, IsEmptyForAPictureOfMaskOnly) {
  mask(picture_.area());
  cut();
  RECT box;
  EXPECT_EQ(GetRgnBox(region_, &box), NULLREGION);
}

TEST_F(RegionTest, IsNoneWithoutAPicture) { EXPECT_EQ(regionOf(nullptr, kMask), nullptr); }

TEST_F(RegionTest, ARoundedPictureIsCutAtItsCornersOnly) {
  for (const COLORREF mask_color : {kMask, RGB(255, 255, 255)}) {
    const HBITMAP rounded = roundedPicture({40, 30}, 8, mask_color);
    const HRGN region = regionOf(rounded, mask_color);
    for (const POINT corner : {POINT{0, 0}, POINT{39, 0}, POINT{0, 29}, POINT{39, 29}}) {
      EXPECT_FALSE(PtInRegion(region, corner.x, corner.y)) << corner.x << "," << corner.y;
    }
    for (const POINT edge : {POINT{20, 0}, POINT{0, 15}, POINT{39, 15}, POINT{20, 29}}) {
      EXPECT_TRUE(PtInRegion(region, edge.x, edge.y)) << edge.x << "," << edge.y;
    }
    DeleteObject(region);
    DeleteObject(rounded);
  }
}

}  // namespace
}  // namespace tavr::win32
