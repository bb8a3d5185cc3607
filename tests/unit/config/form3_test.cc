// The clicks of the options form and the roads to its panels.
#include "tests/support/options_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tavr {
namespace {

using ::testing::ElementsAre;
using testing::kCreate;
using testing::kDelete;
using testing::kMainSettings;
using testing::kOptionSettings;
using testing::kTimerSettings;
using testing::Options;

TEST_F(Options, EveryBoxIsStoredAtItsClick) {
  load();
  for (int i = 0; i < 6; ++i) {
    CheckBox& box = form().Check1.at(static_cast<std::size_t>(i));
    box.press();
    EXPECT_EQ(stored(kOptionSettings, std::to_string(i)), "1") << i;
    box.press();
    EXPECT_EQ(stored(kOptionSettings, std::to_string(i)), "0") << i;
  }
}

TEST_F(Options, TheStartPageBoxSwitchesNoProtectionOn) {
  load();
  form().Check1[0].press();
  EXPECT_EQ(stored(kOptionSettings, "0"), "1");
  EXPECT_EQ(stored(kMainSettings, "protect_home"), "<none>");
}

TEST_F(Options, TheLogOnTaskIsMadeAndRemoved) {
  load();
  form().Check1[4].press();
  EXPECT_EQ(shellLog(), kCreate);
  form().Check1[4].press();
  EXPECT_EQ(shellLog(), kCreate + kDelete);
  EXPECT_EQ(stored(kOptionSettings, "4"), "0");
  EXPECT_EQ(stored(kTimerSettings, "winstart"), "<none>");
}

TEST_F(Options, AFailedTaskPlannerIsNotNoticed) {
  machine.ini("[fault]\nCreateProcess=0,2\n[clock]\nstart=2026-11-20T10:00:00\n");
  load();
  form().Check1[4].press();
  EXPECT_EQ(form().Check1[4].value(), 1);
  EXPECT_EQ(stored(kOptionSettings, "4"), "1");
}

TEST_F(Options, LabelsToggleTheirBoxes) {
  load();
  const auto toggles = [](Label& label, CheckBox& box) {
    label.press();
    EXPECT_EQ(box.value(), 1);
    label.press();
    EXPECT_EQ(box.value(), 0);
  };
  toggles(form().Label2[16], form().Check1[5]);
  toggles(form().Label2[18], form().Check1[3]);
  toggles(form().Label3[1], form().Check1[1]);
  toggles(form().Label3[2], form().Check1[4]);
  EXPECT_EQ(stored(kOptionSettings, "5"), "0");
}

TEST_F(Options, OtherLabelsToggleNothing) {
  load();
  for (std::size_t i = 0; i < form().Label2.size(); ++i) {
    if (i != 16 && i != 18) form().Label2.at(i).press();
  }
  for (std::size_t i = 0; i < form().Label3.size(); ++i) {
    if (i != 1 && i != 2) form().Label3.at(i).press();
  }
  form().Label1[0].press();
  for (const CheckBox& box : form().Check1) EXPECT_EQ(box.value(), 0);
}

TEST_F(Options, OneOfTheSchedulesIsOn) {
  load();
  form().Option1.press();
  form().Option3.press();
  EXPECT_FALSE(form().Option1.value());
  EXPECT_TRUE(form().Option3.value());
}

TEST_F(Options, AScrollBarSetsItsText) {
  for (std::size_t i = 0; i < form().intervals().size(); ++i) {
    form().scrollBars().at(i)->setValue(9);
    EXPECT_EQ(form().intervals().at(i)->text(), "9") << i;
    form().scrollBars().at(i)->setValue(0);
    EXPECT_EQ(form().intervals().at(i)->text(), "1") << i;
  }
}

TEST_F(Options, ATypedIntervalMovesNoScrollBarAndKeepsTheCaretBehindIt) {
  const auto texts = form().intervals();
  const auto bars = form().scrollBars();
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const int before = bars[i]->value();
    texts[i]->type("99999");
    EXPECT_EQ(texts[i]->text(), "99999") << i;
    EXPECT_EQ(bars[i]->value(), before) << i;
    EXPECT_EQ(texts[i]->caret, 5U) << i;
    texts[i]->type("");
    EXPECT_EQ(texts[i]->caret, 0U) << i;
  }
}

struct Road {
  const char* control;
  const char* frame;
};

TEST_F(Options, EveryRoadToAPanel) {
  const Road roads[] = {{"cmd_plugin", "Frame3"},       {"chameleonButton8", "Frame2"},
                        {"Toolbar1(2)", "Frame1"},      {"Toolbar1(1)", "Frame3"},
                        {"Toolbar1(3)", "Frame2"},      {"chameleonButton6", "Frame1"},
                        {"chameleonButton3", "Frame3"}, {"chameleonButton7", "Frame2"}};
  form().Frame1.box.left = 2000;
  for (const Road& road : roads) {
    control(road.control).press();
    for (const char* frame : {"Frame1", "Frame2", "Frame3"}) {
      EXPECT_EQ(control(frame).visible, std::string_view(frame) == road.frame) << road.control;
    }
    EXPECT_EQ(control(road.frame).box.left, form().Frame3.box.left);
    EXPECT_EQ(control(road.frame).box.top, form().Frame3.box.top);
  }
}

TEST_F(Options, TheVisibleButtonsPressTheHiddenOnes) {
  std::vector<std::string> pressed;
  form().chameleonButton3.onClick = [&] { pressed.emplace_back("3"); };
  form().chameleonButton7.onClick = [&] { pressed.emplace_back("7"); };
  form().cmd_plugin.press();
  form().chameleonButton8.press();
  EXPECT_THAT(pressed, ElementsAre("3", "7"));
}

TEST_F(Options, TheToolbarOpensTheHelp) {
  control("Toolbar1(5)").press();
  EXPECT_EQ(shellLog(), "htmlhelp 15 23 C:\\Program Files\\Tavr Wipe\\tavrwork-helpdoc.chm>sec\n");
}

TEST_F(Options, TheToolbarLeavesTheForm) {
  control("Toolbar1(6)").press();
  EXPECT_THAT(stage().host.calls, ElementsAre("unload Form3"));
}

}  // namespace
}  // namespace tavr
