// The program's own pictures.
#include "ui/win32/artwork.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/windows/drawing/picture.h"
#include "ui/win32/icon_outlines.h"

namespace tavr::win32 {
namespace {

constexpr COLORREF kGround = RGB(255, 255, 255);
constexpr COLORREF kInkOfTest = RGB(10, 20, 160);

std::unique_ptr<Picture32> icon(std::string_view name, int size, double scale) {
  return drawn({size, size},
               [&](HDC dc, const RECT& area) { drawIcon(dc, area, name, kInkOfTest, scale); });
}

int touched(const Picture32& picture) { return picture.differing(picture.area(), kGround); }

TEST(Artwork, EveryIconIsDrawnAtEverySize) {
  for (const IconOutline& outline : iconOutlines()) {
    for (const int size : {16, 20, 24, 32, 48, 64}) {
      const auto picture = icon(outline.name, size, static_cast<double>(size) / outline.size);
      EXPECT_GE(touched(*picture), size * size / 40) << outline.name << " " << size;
      EXPECT_LT(touched(*picture), size * size) << outline.name << " " << size;
    }
  }
}

TEST(Artwork, AnIconIsSharpAtTwoHundredAndFiftySixPixels) {
  for (const char* name : {"erase", "firefox", "internet"}) {
    EXPECT_GE(touched(*icon(name, 256, 16)), 256 * 256 / 20) << name;
  }
}

TEST(Artwork, NoTwoIconsAreAlike) {
  for (const IconOutline& one : iconOutlines()) {
    const auto picture = icon(one.name, 16, 1);
    for (const IconOutline& other : iconOutlines()) {
      if (one.name >= other.name) continue;
      EXPECT_GE(picture->differing(*icon(other.name, 16, 1)), 12) << one.name << other.name;
    }
  }
}

TEST(Artwork, AnIconIsNoLargerThanItWasDesignedFor) {
  const auto large = icon("erase", 60, 1);
  EXPECT_GE(touched(*large), 60);
  EXPECT_EQ(large->differing({0, 0, 18, 60}, kGround), 0);
  EXPECT_EQ(large->differing({42, 0, 60, 60}, kGround), 0);
}

TEST(Artwork, EveryCommandAndTaskHasItsIcon) {
  for (const char* name :
       {"settings",  "options",  "plugins",   "test",       "erase",    "stop",    "view-log",
        "clear-log", "help",     "exit",      "tool",       "maker",    "about",   "close",
        "minimise",  "check",    "check-all", "check-none", "language", "link",    "info",
        "warning",   "question", "windows",   "internet",   "ie",       "firefox", "chrome",
        "opera",     "edge",     "yandex",    "vivaldi",    "brave",    "torch",   "maxthon",
        "plug-in",   "done",     "program"}) {
    EXPECT_TRUE(hasIcon(name)) << name;
  }
}

TEST(Artwork, TheLettersOfTheRowsMeanTheirIcons) {
  constexpr const char* kRows[][2] = {
      {"a", "internet"}, {"b", "windows"}, {"c", "plug-in"},  {"o", "done"},     {"ffo", "firefox"},
      {"chr", "chrome"}, {"opr", "opera"}, {"edg", "edge"},   {"ydx", "yandex"}, {"viv", "vivaldi"},
      {"brv", "brave"},  {"tor", "torch"}, {"max", "maxthon"}};
  for (const auto& row : kRows) {
    EXPECT_EQ(icon(row[0], 16, 1)->differing(*icon(row[1], 16, 1)), 0) << row[0];
    EXPECT_GE(touched(*icon(row[0], 16, 1)), 60) << row[0];
  }
}

TEST(Artwork, AnUnknownNameDrawsNothing) {
  EXPECT_FALSE(hasIcon("nothing"));
  EXPECT_FALSE(hasIcon(""));
  EXPECT_EQ(touched(*icon("nothing", 24, 1)), 0);
}

TEST(Artwork, AnIconWithoutColoursOfItsOwnTakesTheOneThatIsGiven) {
  EXPECT_GE(icon("stop", 24, 1)->count({0, 0, 24, 24}, kInkOfTest), 60);
  EXPECT_EQ(icon("firefox", 16, 1)->count({0, 0, 16, 16}, kInkOfTest), 0);
}

TEST(Artwork, AGreyIconHasNoColour) {
  for (const IconOutline& outline : iconOutlines()) {
    const auto grey = drawn({24, 24}, [&](HDC dc, const RECT& area) {
      drawGreyIcon(dc, area, outline.name, kInkOfTest, 1);
    });
    EXPECT_EQ(grey->colored(), 0) << outline.name;
    EXPECT_GE(touched(*grey), 12) << outline.name;
  }
}

TEST(Artwork, AnIconStaysWithinItsRectangle) {
  for (const IconOutline& outline : iconOutlines()) {
    const auto draw_it = [&](HDC dc, const RECT& area) {
      drawIcon(dc, area, outline.name, kInkOfTest, 3);
    };
    EXPECT_EQ(touchedOutside(draw_it, {13, 19}), 0) << outline.name;
  }
}

TEST(Artwork, TheProgramsIconIsThereAtEverySize) {
  for (const int size : {16, 20, 24, 32, 40, 48, 64, 128, 256}) {
    const HICON sign = programIcon(size);
    ASSERT_NE(sign, nullptr) << size;
    const auto picture = drawn({size, size}, [&](HDC dc, const RECT&) {
      DrawIconEx(dc, 0, 0, sign, size, size, 0, nullptr, DI_NORMAL);
    });
    DestroyIcon(sign);
    EXPECT_GT(touched(*picture), size * size * 7 / 10) << size;
    // Its corners are round.
    EXPECT_GT(GetRValue(picture->at(0, 0)), 200) << size;
  }
}

// Each size is a picture of its own, not one that is shrunk.
TEST(Artwork, TheProgramsIconIsDrawnForEachSize) {
  for (const int size : {16, 20, 24, 32, 40, 48, 64, 128, 256}) {
    const HICON sign = programIcon(size);
    ICONINFO info{};
    ASSERT_TRUE(GetIconInfo(sign, &info)) << size;
    BITMAP bitmap{};
    EXPECT_NE(GetObjectW(info.hbmColor, sizeof(bitmap), &bitmap), 0);
    EXPECT_EQ(bitmap.bmWidth, size);
    EXPECT_EQ(bitmap.bmBitsPixel, 32);
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
    DestroyIcon(sign);
  }
}

}  // namespace
}  // namespace tavr::win32
