// The animation of a run, by timers of a window that is never shown.
#include "ui/win32/animation.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>

#include "platform/win32/wide.h"
#include "tests/windows/drawing/picture.h"

namespace tavr::win32 {
namespace {

constexpr SIZE kSize{108, 108};
constexpr int kFrames = 24;
constexpr int kDelay = 50;  // ms
constexpr COLORREF kGround = RGB(120, 170, 160);
// No file of this name is there: it is the one that the program carries.
constexpr char kOwn[] = "C:\\nowhere\\search.gif";

class AnimationTest : public ::testing::Test {
 protected:
  AnimationTest()
      : window_(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                                nullptr)) {}
  ~AnimationTest() override { DestroyWindow(window_); }

  std::unique_ptr<Picture32> draw() const {
    return drawn(
        kSize, [this](HDC dc, const RECT& area) { animation_.draw(dc, area); }, kGround);
  }
  static void pumpFor(DWORD milliseconds) {
    const ULONGLONG end = GetTickCount64() + milliseconds;
    MSG message;
    while (GetTickCount64() < end) {
      MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
      while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    }
  }

  HWND window_;
  Animation animation_;
};

TEST_F(AnimationTest, HasItsFramesAndTheirDelays) {
  ASSERT_TRUE(animation_.load(kOwn));
  EXPECT_EQ(animation_.frames(), kFrames);
  EXPECT_EQ(animation_.frame(), 0);
  for (int i = 0; i < kFrames; ++i) EXPECT_EQ(animation_.delay(i), kDelay) << i;
  EXPECT_EQ(animation_.delay(-1), 0);
  EXPECT_EQ(animation_.delay(kFrames), 0);
  EXPECT_EQ(animation_.size().cx, kSize.cx);
  EXPECT_EQ(animation_.size().cy, kSize.cy);
}

TEST_F(AnimationTest, IsReadFromAFileThatIsThere) {
  const HRSRC place = FindResourceW(nullptr, L"SEARCH.GIF", RT_RCDATA);
  ASSERT_NE(place, nullptr);
  const auto* const data = static_cast<const char*>(LockResource(LoadResource(nullptr, place)));
  const auto path = std::filesystem::temp_directory_path() / "tavr-animation.gif";
  std::ofstream(path, std::ios::binary)
      .write(data, static_cast<std::streamsize>(SizeofResource(nullptr, place)));
  EXPECT_TRUE(animation_.load(narrow(path.wstring())));
  EXPECT_EQ(animation_.frames(), kFrames);
  animation_.load("C:\\nowhere\\other.gif");  // lets go of the file
  std::filesystem::remove(path);
}

TEST_F(AnimationTest, IsEmptyWithoutFileAndOwnData) {
  ASSERT_TRUE(animation_.load(kOwn));
  EXPECT_FALSE(animation_.load("C:\\nowhere\\other.gif"));
  EXPECT_EQ(animation_.frames(), 0);
  EXPECT_EQ(draw()->differing(draw()->area(), kGround), 0);
  animation_.start(window_);
  EXPECT_FALSE(animation_.running());
}

TEST_F(AnimationTest, ShowsAnotherPictureWithEachFrameAndBeginsAgain) {
  ASSERT_TRUE(animation_.load(kOwn));
  const auto first = draw();
  auto before = draw();
  for (int i = 1; i < kFrames; ++i) {
    animation_.advance();
    EXPECT_EQ(animation_.frame(), i);
    auto now = draw();
    EXPECT_GE(now->differing(*before), 60) << i;
    before = std::move(now);
  }
  animation_.advance();
  EXPECT_EQ(animation_.frame(), 0);
  EXPECT_EQ(draw()->differing(*first), 0);
}

TEST_F(AnimationTest, LetsTheGroundShowAroundEveryFrame) {
  ASSERT_TRUE(animation_.load(kOwn));
  for (int i = 0; i < kFrames; ++i) {
    const auto picture = draw();
    EXPECT_EQ(picture->at(0, 0), kGround) << i;
    EXPECT_EQ(picture->at(kSize.cx - 1, kSize.cy - 1), kGround) << i;
    EXPECT_NE(picture->at(30, 90), kGround) << i;
    animation_.advance();
  }
}

TEST_F(AnimationTest, KeepsItsShapeInARectangleOfAnother) {
  ASSERT_TRUE(animation_.load(kOwn));
  const auto wide_one = drawn(
      {200, 54}, [this](HDC dc, const RECT& area) { animation_.draw(dc, area); }, kGround);
  EXPECT_EQ(wide_one->differing({0, 0, 72, 54}, kGround), 0);
  EXPECT_EQ(wide_one->differing({128, 0, 200, 54}, kGround), 0);
  EXPECT_GT(wide_one->differing({73, 0, 127, 54}, kGround), 500);
}

TEST_F(AnimationTest, GoesOnByItselfUntilItIsStopped) {
  ASSERT_TRUE(animation_.load(kOwn));
  pumpFor(3 * kDelay);
  EXPECT_EQ(animation_.frame(), 0);
  animation_.start(window_);
  EXPECT_TRUE(animation_.running());
  pumpFor(6 * kDelay + kDelay / 2);
  const int reached = animation_.frame();
  EXPECT_GE(reached, 3);
  EXPECT_LE(reached, 7);
  animation_.stop();
  EXPECT_FALSE(animation_.running());
  pumpFor(3 * kDelay);
  EXPECT_EQ(animation_.frame(), reached);
}

TEST_F(AnimationTest, RunsOnceHoweverOftenItIsStarted) {
  ASSERT_TRUE(animation_.load(kOwn));
  for (int i = 0; i < 5; ++i) animation_.start(window_);
  pumpFor(4 * kDelay + kDelay / 2);
  EXPECT_LE(animation_.frame(), 5);
  animation_.stop();
  const int reached = animation_.frame();
  pumpFor(3 * kDelay);
  EXPECT_EQ(animation_.frame(), reached);
}

TEST_F(AnimationTest, StopsWhenAnotherIsLoaded) {
  ASSERT_TRUE(animation_.load(kOwn));
  animation_.start(window_);
  pumpFor(3 * kDelay);
  ASSERT_TRUE(animation_.load(kOwn));
  EXPECT_FALSE(animation_.running());
  EXPECT_EQ(animation_.frame(), 0);
  animation_.start(window_);
  EXPECT_TRUE(animation_.running());
  animation_.stop();
}

}  // namespace
}  // namespace tavr::win32
