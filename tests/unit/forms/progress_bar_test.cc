#include "forms/progress_bar.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tavr {
namespace {

class RecordingDialogs : public Dialogs {
 public:
  int messageBox(std::string_view text, std::uint32_t /*flags*/, std::string_view title) override {
    boxes.push_back(std::string(title) + ": " + std::string(text));
    return 1;
  }
  void beep() override {}

  std::vector<std::string> boxes;
};

using Boxes = std::vector<std::string>;

class ProgressBarTest : public ::testing::Test {
 protected:
  RecordingDialogs dialogs;
  ProgressBar bar{dialogs};
};

TEST_F(ProgressBarTest, StartsAtZeroOfHundredAndHidden) {
  EXPECT_EQ(bar.value(), 0);
  EXPECT_EQ(bar.min(), 0);
  EXPECT_EQ(bar.max(), 100);
  EXPECT_FALSE(bar.visible());
}

TEST_F(ProgressBarTest, AValueBelowTheMinimumIsRefusedWithABox) {
  bar.setValue(5);
  bar.setValue(-1);
  EXPECT_EQ(dialogs.boxes, Boxes({"Error: Value can NOT be smaller than minimum !"}));
  EXPECT_EQ(bar.value(), 5);
}

TEST_F(ProgressBarTest, AValueAboveTheMaximumIsKept) {
  bar.setValue(101);
  EXPECT_TRUE(dialogs.boxes.empty());
  EXPECT_EQ(bar.value(), 101);
}

TEST_F(ProgressBarTest, AMinimumAboveTheMaximumIsRefused) {
  bar.setMin(101);
  EXPECT_EQ(dialogs.boxes, Boxes({"Error: Minimum can NOT be biger than maximum !"}));
  EXPECT_EQ(bar.min(), 0);
}

TEST_F(ProgressBarTest, AMinimumBelowZeroIsRefused) {
  bar.setMin(-1);
  EXPECT_EQ(dialogs.boxes, Boxes({"Error: Minimum can NOT be smaller then 0 !"}));
  EXPECT_EQ(bar.min(), 0);
}

TEST_F(ProgressBarTest, AMaximumBelowTheMinimumIsRefused) {
  bar.setMin(50);
  bar.setMax(49);
  EXPECT_EQ(dialogs.boxes, Boxes({"Error: Maximum can NOT be smaller than minimum !"}));
  EXPECT_EQ(bar.max(), 100);
}

TEST_F(ProgressBarTest, TheBoundsThemselvesAreAllowed) {
  bar.setMin(100);
  bar.setMax(100);
  bar.setValue(100);
  EXPECT_TRUE(dialogs.boxes.empty());
  EXPECT_EQ(bar.min(), 100);
  EXPECT_EQ(bar.value(), 100);
}

TEST_F(ProgressBarTest, EverySettingOfTheValueIsShownButNoBreach) {
  std::vector<int> shown;
  bar.onValue = [&](int value) { shown.push_back(value); };
  bar.setValue(100);
  bar.setValue(100);
  bar.setValue(-5);
  bar.setValue(0);
  EXPECT_EQ(shown, std::vector<int>({100, 100, 0}));
}

TEST_F(ProgressBarTest, CanBeShownAndHidden) {
  bar.setVisible(true);
  EXPECT_TRUE(bar.visible());
  bar.setVisible(false);
  EXPECT_FALSE(bar.visible());
}

TEST_F(ProgressBarTest, EveryPropertyThatIsSetRedrawsItAndABreachDoesNot) {
  int redrawn = 0;
  bar.onRedraw = [&] { ++redrawn; };
  bar.setValue(5);
  bar.setStyle(1);
  bar.setProgressLook(2);
  bar.setMin(1);
  bar.setMax(50);
  EXPECT_EQ(redrawn, 5);
  EXPECT_EQ(bar.style(), 1);
  EXPECT_EQ(bar.progressLook(), 2);
  bar.setValue(0);
  bar.setMin(51);
  bar.setMin(-1);
  bar.setMax(0);
  EXPECT_EQ(redrawn, 5);
  EXPECT_EQ(dialogs.boxes.size(), 4u);
}

TEST_F(ProgressBarTest, AFreshBarHasItsDefaultsInTheBag) {
  PropertyBag bag;
  bar.writeProperties(bag);
  EXPECT_EQ(
      bag,
      (PropertyBag{
          {"Value", "0"}, {"Style", "0"}, {"ProgressLook", "0"}, {"Min", "0"}, {"Max", "100"}}));
}

TEST_F(ProgressBarTest, ReadsBackWhatItWroteAndDefaultsForTheRest) {
  bar.setMin(10);
  bar.setMax(20);
  bar.setValue(15);
  bar.setStyle(3);
  bar.setProgressLook(4);
  PropertyBag bag;
  bar.writeProperties(bag);
  ProgressBar other(dialogs);
  other.readProperties(bag);
  EXPECT_EQ(other.min(), 10);
  EXPECT_EQ(other.max(), 20);
  EXPECT_EQ(other.value(), 15);
  EXPECT_EQ(other.style(), 3);
  EXPECT_EQ(other.progressLook(), 4);
  other.readProperties({});
  EXPECT_EQ(other.min(), 0);
  EXPECT_EQ(other.max(), 100);
  EXPECT_EQ(other.value(), 0);
  EXPECT_EQ(other.style(), 0);
  EXPECT_EQ(other.progressLook(), 0);
  EXPECT_TRUE(dialogs.boxes.empty());
}

}  // namespace
}  // namespace tavr
