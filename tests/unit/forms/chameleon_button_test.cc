#include "forms/chameleon_button.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/test_machine.h"

namespace tavr {
namespace {

using State = ChameleonButton::State;
using Drawn = std::vector<int>;

class ChameleonButtonTest : public ::testing::Test {
 protected:
  ChameleonButtonTest() {
    button.onDraw = [this](int state) { drawn.push_back(state); };
    button.onMouseDown = [this](MouseButton) { ++downs; };
    button.onMouseUp = [this](MouseButton) { ++ups; };
    button.onMouseMove = [this] { ++moves; };
    button.onClick = [this] { ++clicks; };
    button.onSendKeys = [this](std::string_view text) { keys += text; };
  }

  testing::TestMachine machine;
  ChameleonButton button{machine.machine().events};
  Drawn drawn;
  int downs = 0;
  int ups = 0;
  int moves = 0;
  int clicks = 0;
  std::string keys;
};

TEST_F(ChameleonButtonTest, TheMouseOverItStartsTheTimerAndDrawsTheRestingState) {
  button.mouseMove();
  EXPECT_EQ(button.state(), State::kOver);
  EXPECT_TRUE(button.OverTimer.enabled());
  EXPECT_EQ(drawn, Drawn{0});
  button.mouseMove();
  EXPECT_EQ(drawn, Drawn{0});
  EXPECT_EQ(moves, 2);
}

TEST_F(ChameleonButtonTest, WithAButtonDownTheMouseDoesNotEnterIt) {
  button.mouseMove(true);
  EXPECT_EQ(button.state(), State::kNormal);
  EXPECT_FALSE(button.OverTimer.enabled());
  EXPECT_EQ(drawn, Drawn{});
  EXPECT_EQ(moves, 1);
}

TEST_F(ChameleonButtonTest, AMouseThatLeftIsNoticedByTheNextTick) {
  button.pointer_inside = true;
  button.mouseMove();
  machine.machine().events.wait(10 * ChameleonButton::kOverTimerInterval);
  EXPECT_EQ(button.state(), State::kOver);
  button.pointer_inside = false;
  machine.machine().events.wait(ChameleonButton::kOverTimerInterval + 1);
  EXPECT_EQ(button.state(), State::kNormal);
  EXPECT_FALSE(button.OverTimer.enabled());
  EXPECT_EQ(drawn, (Drawn{0, 0}));
}

TEST_F(ChameleonButtonTest, AMoveThatIsPassedOnWhenTheMouseHasLeftIsNoticedAsWell) {
  button.pointer_inside = false;
  button.mouseMove();
  EXPECT_EQ(button.state(), State::kOver);
  machine.machine().events.wait(ChameleonButton::kOverTimerInterval + 1);
  EXPECT_EQ(button.state(), State::kNormal);
  EXPECT_FALSE(button.OverTimer.enabled());
}

TEST_F(ChameleonButtonTest, PressAndReleaseReturnToTheStateBefore) {
  button.mouseMove();
  button.mouseDown(MouseButton::kLeft);
  EXPECT_EQ(button.state(), State::kPressed);
  button.mouseUp(MouseButton::kLeft);
  EXPECT_EQ(button.state(), State::kOver);
  EXPECT_EQ(drawn, (Drawn{0, 2, 0}));
  EXPECT_EQ(clicks, 1);
}

TEST_F(ChameleonButtonTest, APressFromNormalReturnsToNormal) {
  button.mouseDown(MouseButton::kMiddle);
  button.mouseUp(MouseButton::kMiddle);
  EXPECT_EQ(button.state(), State::kNormal);
  EXPECT_EQ(drawn, (Drawn{2, 0}));
}

TEST_F(ChameleonButtonTest, ARightClickRaisesTheEventsAndLeavesTheDrawingAlone) {
  button.mouseDown(MouseButton::kRight);
  button.mouseUp(MouseButton::kRight);
  EXPECT_EQ(downs, 1);
  EXPECT_EQ(ups, 1);
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(drawn, Drawn{});
  EXPECT_EQ(button.state(), State::kNormal);
}

TEST_F(ChameleonButtonTest, TheSpaceKeyPressesIt) {
  button.keyDown(ButtonKey::kSpace);
  EXPECT_EQ(button.state(), State::kPressed);
  button.keyUp(ButtonKey::kSpace);
  EXPECT_EQ(button.state(), State::kNormal);
  EXPECT_EQ(drawn, (Drawn{2, 0}));
  EXPECT_EQ(clicks, 1);
}

TEST_F(ChameleonButtonTest, ArrowsMoveTheFocusAsTabDoes) {
  button.keyDown(ButtonKey::kLeft);
  button.keyDown(ButtonKey::kUp);
  EXPECT_EQ(keys, "+{Tab}+{Tab}");
  keys.clear();
  button.keyDown(ButtonKey::kRight);
  button.keyDown(ButtonKey::kDown);
  EXPECT_EQ(keys, "{Tab}{Tab}");
  EXPECT_EQ(drawn, Drawn{});
}

TEST_F(ChameleonButtonTest, ADisabledButtonDoesNotClick) {
  button.enabled = false;
  button.mouseDown(MouseButton::kLeft);
  button.mouseUp(MouseButton::kLeft);
  EXPECT_EQ(clicks, 0);
}

TEST_F(ChameleonButtonTest, WithTheRefreshDisabledNothingIsDrawnUntilRefresh) {
  button.DisableRefresh();
  button.mouseDown(MouseButton::kLeft);
  EXPECT_EQ(drawn, Drawn{});
  EXPECT_EQ(button.drawn(), -1) << "nor is it what a view shows";
  button.Refresh();
  EXPECT_EQ(drawn, Drawn{2});
  EXPECT_EQ(button.drawn(), ChameleonButton::kPressed);
}

TEST_F(ChameleonButtonTest, TheRightButtonOnAPressedOneOnlyRaisesItsEvents) {
  button.mouseDown(MouseButton::kLeft);
  button.mouseDown(MouseButton::kRight);
  button.mouseUp(MouseButton::kRight);
  EXPECT_EQ(button.state(), State::kPressed);
  EXPECT_EQ(drawn, Drawn{2});
  EXPECT_EQ(downs, 2);
  EXPECT_EQ(ups, 1);
}

TEST_F(ChameleonButtonTest, OnlyTheButtonThatPressedItReleasesIt) {
  button.mouseDown(MouseButton::kLeft);
  button.mouseUp(MouseButton::kMiddle);
  EXPECT_EQ(button.state(), State::kPressed);
  EXPECT_EQ(ups, 1);
  button.mouseUp(MouseButton::kLeft);
  EXPECT_EQ(button.state(), State::kNormal);
  EXPECT_EQ(drawn, (Drawn{2, 0}));
}

TEST_F(ChameleonButtonTest, TheEventsAreRaisedBeforeTheirStateIsDrawn) {
  std::string order;
  button.onDraw = [&](int state) { order += "draw" + std::to_string(state) + " "; };
  button.onMouseDown = [&](MouseButton) { order += "down "; };
  button.onMouseUp = [&](MouseButton) { order += "up "; };
  button.mouseDown(MouseButton::kLeft);
  button.mouseUp(MouseButton::kLeft);
  EXPECT_EQ(order, "down draw2 up draw0 ");
}

TEST_F(ChameleonButtonTest, TheSpaceKeyLeavesItNormalAlsoUnderTheMouse) {
  button.mouseMove();
  button.keyDown(ButtonKey::kSpace);
  button.keyUp(ButtonKey::kSpace);
  EXPECT_EQ(button.state(), State::kNormal);
  EXPECT_EQ(drawn, (Drawn{0, 2, 0}));
  button.mouseMove();
  EXPECT_EQ(button.state(), State::kOver);
}

TEST_F(ChameleonButtonTest, TheMouseThatMovesOverAPressedOneDrawsNothing) {
  button.mouseMove();
  button.mouseDown(MouseButton::kLeft);
  button.mouseMove(true);
  EXPECT_EQ(button.state(), State::kPressed);
  EXPECT_EQ(drawn, (Drawn{0, 2}));
  EXPECT_EQ(moves, 2);
}

TEST_F(ChameleonButtonTest, AReleaseBesideItIsNoClick) {
  button.mouseDown(MouseButton::kLeft);
  button.mouseUp(MouseButton::kLeft, false);
  EXPECT_EQ(button.state(), State::kNormal);
  EXPECT_EQ(drawn, (Drawn{2, 0}));
  EXPECT_EQ(ups, 1);
  EXPECT_EQ(clicks, 0);
}

TEST_F(ChameleonButtonTest, APressThatIsLetGoOfIsNoClick) {
  button.letGo();
  EXPECT_EQ(drawn, Drawn{});
  button.keyDown(ButtonKey::kSpace);
  button.letGo();
  button.keyUp(ButtonKey::kSpace);
  EXPECT_EQ(button.state(), State::kNormal);
  EXPECT_EQ(drawn, (Drawn{2, 0}));
  EXPECT_EQ(clicks, 0);
}

TEST_F(ChameleonButtonTest, AReleaseOutsideIsFollowedByTheNextTick) {
  button.mouseMove();
  button.mouseDown(MouseButton::kLeft);
  button.pointer_inside = false;
  machine.machine().events.wait(3 * ChameleonButton::kOverTimerInterval);
  EXPECT_EQ(button.state(), State::kPressed);
  button.mouseUp(MouseButton::kLeft);
  machine.machine().events.wait(2 * ChameleonButton::kOverTimerInterval);
  EXPECT_EQ(button.state(), State::kNormal);
  EXPECT_FALSE(button.OverTimer.enabled());
  EXPECT_EQ(drawn, (Drawn{0, 2, 0, 0}));
}

}  // namespace
}  // namespace tavr
