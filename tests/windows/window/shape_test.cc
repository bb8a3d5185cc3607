// The main form's shape, and its own move.
#include "tests/windows/window/window_test.h"

namespace tavr::testing {
namespace {

constexpr std::uint32_t kNoMove = 500;  // ms

class Shape : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    start();
    form_ = program().form("Form1");
  }
  RECT at() const {
    RECT place{};
    GetWindowRect(form_, &place);
    return place;
  }
  bool isIn(int x, int y) const {
    const HRGN region = CreateRectRgn(0, 0, 0, 0);
    const int kind = GetWindowRgn(form_, region);
    const bool inside = PtInRegion(region, x, y) != FALSE;
    DeleteObject(region);
    EXPECT_NE(kind, ERROR) << "it has no region at all";
    return inside;
  }
  // An empty place of the title strip, on the screen.
  POINT strip() const {
    const RECT place = at();
    return {place.left + (place.right - place.left) / 2, place.top + 20};
  }
  bool comesTo(int left, int top) const {
    return comes([this, left, top] { return at().left == left && at().top == top; });
  }

  HWND form_ = nullptr;
};

TEST_F(Shape, HasItsCornersCutOff) {
  const RECT place = at();
  const int right = place.right - place.left - 1;
  const int bottom = place.bottom - place.top - 1;
  for (const int x : {0, right}) {
    for (const int y : {0, bottom}) EXPECT_FALSE(isIn(x, y)) << x << ", " << y;
  }
  EXPECT_TRUE(isIn(right / 2, bottom / 2));
  for (const int x : {0, right}) EXPECT_TRUE(isIn(x, bottom / 2)) << "the middle of a side";
  for (const int y : {0, bottom}) EXPECT_TRUE(isIn(right / 2, y)) << "the middle of an edge";
}

// A window manager takes the mouse for a move of its own, and lets no program
// guide it: this form is none of the manager's.
class Move : public Shape {
 protected:
  void SetUp() override {
    constexpr wchar_t kNo[] = L"N";
    RegSetKeyValueW(HKEY_CURRENT_USER, kDriver, L"Managed", REG_SZ, kNo, sizeof(kNo));
    Shape::SetUp();
  }
  void TearDown() override {
    Shape::TearDown();
    RegDeleteKeyValueW(HKEY_CURRENT_USER, kDriver, L"Managed");
  }

 private:
  static constexpr wchar_t kDriver[] = L"Software\\Wine\\AppDefaults\\tavrwipe.exe\\X11 Driver";
};

TEST_F(Move, FollowsTheMouseThatHoldsTheStrip) {
  const RECT before = at();
  const POINT from = strip();
  dragMouse(from, {from.x - 120, from.y + 70});
  EXPECT_TRUE(comesTo(before.left - 120, before.top + 70))
      << at().left - before.left << ", " << at().top - before.top;
  EXPECT_EQ(at().right - at().left, before.right - before.left);
  EXPECT_EQ(at().bottom - at().top, before.bottom - before.top);
  movePointer({from.x + 200, from.y + 200});
  EXPECT_TRUE(comesTo(before.left - 120, before.top + 70)) << "it has been let go of";
}

TEST_F(Move, IsNotStartedOnAButtonOfTheStrip) {
  const RECT before = at();
  POINT from = middleOf(program().window("Form1.chameleonButton13"));
  ClientToScreen(program().window("Form1.chameleonButton13"), &from);
  dragMouse(from, {from.x - 120, from.y + 70});
  EXPECT_FALSE(comes([&] { return at().left != before.left; }, kNoMove));
  EXPECT_EQ(at().top, before.top);
}

}  // namespace
}  // namespace tavr::testing
