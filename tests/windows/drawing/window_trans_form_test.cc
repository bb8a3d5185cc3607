// TransForm on a real window: the region, the drag, and two on a form. Needs a
// display.
#include <gtest/gtest.h>

#include <vector>

#include "tests/windows/drawing/picture.h"
#include "tests/windows/drawing/stubs.h"
#include "tests/windows/drawing/test_window.h"
#include "ui/win32/trans_form.h"

namespace tavr::win32 {
namespace {

constexpr COLORREF kMask = 0xFF00FF;

// A picture of 120 x 80 whose left upper quarter is masked.
class Shape {
 public:
  Shape() : picture_(120, 80, RGB(0, 128, 0)) {
    const HBRUSH brush = CreateSolidBrush(kMask);
    const RECT quarter{0, 0, 60, 40};
    FillRect(picture_.dc(), &quarter, brush);
    DeleteObject(brush);
    GdiFlush();
  }
  HBITMAP bitmap() const {
    return static_cast<HBITMAP>(GetCurrentObject(picture_.dc(), OBJ_BITMAP));
  }

 private:
  Picture32 picture_;
};

class WindowTransForm : public ::testing::Test {
 protected:
  WindowTransForm() : form_({120, 80}, false) {
    form_.onMessage = [this](UINT message, WPARAM wparam, LPARAM) -> std::optional<LRESULT> {
      if (message != WM_NCLBUTTONDOWN) return std::nullopt;
      moves_.push_back(wparam);
      captured_ = GetCapture();
      return 0;
    };
  }

  // The region's kind; ERROR (0) where there is none.
  static int kindOf(HWND window) {
    const HRGN region = CreateRectRgn(0, 0, 0, 0);
    const int kind = GetWindowRgn(window, region);
    DeleteObject(region);
    return kind;
  }
  static bool isIn(HWND window, int x, int y) {
    const HRGN region = CreateRectRgn(0, 0, 0, 0);
    GetWindowRgn(window, region);
    const bool inside = PtInRegion(region, x, y) != FALSE;
    DeleteObject(region);
    return inside;
  }
  void pressGround() const {
    SendMessageW(form_.handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(70, 50));
  }

  TestWindow form_;
  NotingDialogs dialogs_;
  Shape shape_;
  std::vector<WPARAM> moves_;
  HWND captured_ = nullptr;
};

TEST_F(WindowTransForm, CutsTheFormToItsPicture) {
  TransForm one(form_.handle(), dialogs_);
  one.setPicture(shape_.bitmap());
  EXPECT_EQ(kindOf(form_.handle()), ERROR) << "not loaded yet";
  one.load();
  EXPECT_TRUE(one.working());
  EXPECT_EQ(kindOf(form_.handle()), COMPLEXREGION);
  EXPECT_FALSE(isIn(form_.handle(), 0, 0));
  EXPECT_FALSE(isIn(form_.handle(), 59, 39));
  EXPECT_TRUE(isIn(form_.handle(), 60, 39));
  EXPECT_TRUE(isIn(form_.handle(), 59, 40));
  EXPECT_TRUE(isIn(form_.handle(), 119, 79));
  EXPECT_TRUE(dialogs_.boxes.empty());
}

TEST_F(WindowTransForm, MovesTheRegionByTheFramesWidth) {
  TestWindow framed({300, 200}, true);
  POINT client{0, 0};
  ClientToScreen(framed.handle(), &client);
  const RECT window = framed.rect();
  const int left = client.x - window.left;
  const int top = client.y - window.top;
  ASSERT_GT(top, 0);
  TransForm one(framed.handle(), dialogs_);
  one.load();
  one.setPicture(shape_.bitmap());
  EXPECT_FALSE(isIn(framed.handle(), left + 59, top + 39));
  EXPECT_TRUE(isIn(framed.handle(), left + 60, top + 39));
  EXPECT_TRUE(isIn(framed.handle(), left + 119, top + 79));
  EXPECT_FALSE(isIn(framed.handle(), left + 120, top + 79));
}

TEST_F(WindowTransForm, RemovesTheRegionWhenItIsNotTransparent) {
  TransForm one(form_.handle(), dialogs_);
  one.setPicture(shape_.bitmap());
  one.load();
  one.Transparent = false;
  EXPECT_EQ(kindOf(form_.handle()), COMPLEXREGION) << "until the next event";
  one.Refresh();
  EXPECT_EQ(kindOf(form_.handle()), ERROR);
  one.Transparent = true;
  one.Refresh();
  EXPECT_EQ(kindOf(form_.handle()), COMPLEXREGION);
  one.setPicture(nullptr);
  EXPECT_EQ(kindOf(form_.handle()), ERROR);
}

TEST_F(WindowTransForm, TakesAnotherMaskColour) {
  TransForm one(form_.handle(), dialogs_);
  one.MaskColor = RGB(0, 128, 0);
  one.setPicture(shape_.bitmap());
  one.load();
  EXPECT_TRUE(isIn(form_.handle(), 0, 0));
  EXPECT_FALSE(isIn(form_.handle(), 60, 40));
}

TEST_F(WindowTransForm, WorksTheRegionOutAnewOnTheFormsEvents) {
  TransForm one(form_.handle(), dialogs_);
  one.setPicture(shape_.bitmap());
  one.load();
  SetWindowRgn(form_.handle(), nullptr, TRUE);
  form_.show();
  EXPECT_EQ(kindOf(form_.handle()), COMPLEXREGION);
  SetWindowRgn(form_.handle(), nullptr, TRUE);
  form_.moveTo(220, 170, 200, 160);
  EXPECT_EQ(kindOf(form_.handle()), COMPLEXREGION);
}

TEST_F(WindowTransForm, APressOnTheGroundStartsTheWindowsOwnMove) {
  TransForm one(form_.handle(), dialogs_);
  one.load();
  form_.show();
  SetCapture(form_.handle());
  pressGround();
  ASSERT_EQ(moves_.size(), 1U);
  EXPECT_EQ(moves_[0], static_cast<WPARAM>(HTCAPTION));
  EXPECT_EQ(captured_, nullptr) << "the mouse is let go of first";
}

TEST_F(WindowTransForm, APressDoesNothingWithoutAutoDrag) {
  TransForm one(form_.handle(), dialogs_);
  one.AutoDrag = false;
  one.load();
  pressGround();
  EXPECT_TRUE(moves_.empty());
}

TEST_F(WindowTransForm, TwoOnAFormTellOnceAndDoNothing) {
  TransForm one(form_.handle(), dialogs_);
  TransForm two(form_.handle(), dialogs_);
  TransForm three(form_.handle(), dialogs_);
  one.setPicture(shape_.bitmap());
  for (TransForm* const each : {&one, &two, &three}) each->load();
  ASSERT_EQ(dialogs_.boxes.size(), 1U);
  EXPECT_EQ(dialogs_.boxes[0].flags, 48U);
  EXPECT_EQ(dialogs_.boxes[0].title, "Multiple TransForm Controls");
  EXPECT_EQ(dialogs_.boxes[0].text,
            "Only one TransForm control is allowed or needed on a single form.\r\n"
            "All TransForm functionality will be disabled for this form.");
  EXPECT_FALSE(one.working() || two.working() || three.working());
  one.Refresh();
  EXPECT_EQ(kindOf(form_.handle()), ERROR);
  pressGround();
  EXPECT_TRUE(moves_.empty());
}

TEST_F(WindowTransForm, OneThatComesLaterStopsTheFirst) {
  TransForm one(form_.handle(), dialogs_);
  one.load();
  pressGround();
  ASSERT_EQ(moves_.size(), 1U);
  {
    TransForm two(form_.handle(), dialogs_);
    two.load();
    EXPECT_EQ(dialogs_.boxes.size(), 1U);
    pressGround();
    EXPECT_EQ(moves_.size(), 1U);
  }
  pressGround();
  EXPECT_EQ(moves_.size(), 2U) << "alone again";
}

TEST_F(WindowTransForm, OneOnEachOfTwoFormsIsNoMatter) {
  TestWindow other({100, 60}, false);
  TransForm one(form_.handle(), dialogs_);
  TransForm two(other.handle(), dialogs_);
  one.load();
  two.load();
  EXPECT_TRUE(one.working());
  EXPECT_TRUE(two.working());
  EXPECT_TRUE(dialogs_.boxes.empty());
}

TEST_F(WindowTransForm, StoresItsPropertiesUnderTheirNames) {
  TransForm one(form_.handle(), dialogs_);
  one.MaskColor = 0x123456;
  one.AutoDrag = false;
  PropertyBag bag;
  one.writeProperties(bag);
  EXPECT_EQ(
      bag, (PropertyBag{{"MaskColor", "1193046"}, {"Transparent", "True"}, {"AutoDrag", "False"}}));
  TransForm other(form_.handle(), dialogs_);
  other.readProperties(bag);
  EXPECT_EQ(other.MaskColor, 0x123456);
  EXPECT_FALSE(other.AutoDrag);
  EXPECT_TRUE(other.Transparent);
  bag = {{"Transparent", bag["AutoDrag"]}};
  other.readProperties(bag);
  EXPECT_FALSE(other.Transparent);
  // A colour of the system is stored as such, whatever it is at the moment.
  one.MaskColor = static_cast<std::int32_t>(0x8000000F);
  one.writeProperties(bag);
  other.readProperties(bag);
  EXPECT_EQ(other.MaskColor, one.MaskColor);
}

// Chosen by the keys, as a person does it; what is chosen goes the system's way.
TEST_F(WindowTransForm, TheWindowsOwnMenuOpensAndItsChoiceIsACommand) {
  TestWindow form({300, 200}, true);
  form.show();
  constexpr WPARAM kOwn = 0x100;
  AppendMenuW(GetSystemMenu(form.handle(), FALSE), MF_STRING, kOwn, L"The last entry");
  HMENU opened = nullptr;
  std::vector<WPARAM> commands;
  form.onMessage = [&](UINT message, WPARAM wparam, LPARAM) -> std::optional<LRESULT> {
    if (message == WM_INITMENUPOPUP) {
      opened = reinterpret_cast<HMENU>(wparam);
      PostMessageW(form.handle(), WM_KEYDOWN, VK_UP, 0);
      PostMessageW(form.handle(), WM_KEYDOWN, VK_RETURN, 0);
    }
    if (message != WM_SYSCOMMAND) return std::nullopt;
    commands.push_back(wparam);
    return 0;
  };
  TransForm one(form.handle(), dialogs_);
  one.PopupSysMenu();
  EXPECT_EQ(opened, nullptr) << "not loaded yet";
  one.load();
  one.PopupSysMenu();
  pump();
  EXPECT_EQ(opened, GetSystemMenu(form.handle(), FALSE));
  EXPECT_EQ(commands, (std::vector<WPARAM>{kOwn}));
  TransForm second(form.handle(), dialogs_);
  second.load();
  opened = nullptr;
  one.PopupSysMenu();
  EXPECT_EQ(opened, nullptr) << "two stand on the form";
}

// The loop of the move itself is the system's.
TEST_F(WindowTransForm, TheSystemIsAskedToMoveTheWindow) {
  TransForm one(form_.handle(), dialogs_);
  one.load();
  std::vector<WPARAM> commands;
  form_.onMessage = [&](UINT message, WPARAM wparam, LPARAM) -> std::optional<LRESULT> {
    if (message != WM_SYSCOMMAND) return std::nullopt;
    commands.push_back(wparam);
    return 0;
  };
  form_.show();
  pressGround();
  ASSERT_EQ(commands.size(), 1U);
  EXPECT_EQ(commands[0] & 0xFFF0, static_cast<WPARAM>(SC_MOVE));
}

}  // namespace
}  // namespace tavr::win32
