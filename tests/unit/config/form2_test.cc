// Form2: what a click stores, what load reads back, and the panels.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/machine_with.h"
#include "tests/support/observed_events.h"
#include "tests/unit/config/form2_fixture.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using testing::FakeFormHost;
using ::testing::IsEmpty;
using ::testing::Not;

const std::string kFolder = "C:\\Program Files\\Tavr Wipe\\";
constexpr int kBrowsers[] = {44, 45, 46, 49, 52};

// --- load -------------------------------------------------------------------

TEST_F(Form2Test, LoadReadsEveryBoxAndStoresTheOnesAgain) {
  for (std::size_t i = 0; i < kBoxes; ++i) machine.select(std::to_string(i), " 1 ");
  machine.select("14", "0").select("15", "0");
  code().Form_Load();
  for (int i = 0; i < static_cast<int>(kBoxes); ++i) {
    SCOPED_TRACE(i);
    const bool plug_ins = i == 14 || i == 15;
    EXPECT_EQ(box(i).value(), plug_ins ? 0 : 1);
    EXPECT_EQ(stored(i), plug_ins ? "0" : "1");  // written back without its blanks
  }
}

TEST_F(Form2Test, LoadLeavesAStoredZeroAsItIsWritten) {
  machine.select("52", "0.0");
  code().Form_Load();
  EXPECT_EQ(box(52).value(), 0);
  EXPECT_EQ(stored(52), "0.0");
}

TEST_F(Form2Test, ValuesThatAreNoBoxValueLeaveTheBoxOff) {
  machine.select("8", "").select("9", "abc").select("10", "7").select("11", "-1");
  code().Form_Load();
  EXPECT_THAT(on(), IsEmpty());
  EXPECT_EQ(stored(8), "");
  EXPECT_EQ(stored(9), "abc");
  EXPECT_EQ(stored(10), "7");
  EXPECT_EQ(stored(11), "-1");
  EXPECT_EQ(stored(12), "<none>");
}

TEST_F(Form2Test, AnEmptySelectionLeavesTheBoxOffAndTheRunSkipsTheTrack) {
  machine.select("52", "").file(
      "C:\\Users\\user\\AppData\\Local\\Microsoft\\Windows\\INetCookies\\a.txt");
  code().Form_Load();
  EXPECT_EQ(box(52).value(), 0);
  Form1& main_form = stage().program.form;
  main_form.Text4.setText("1");
  main_form.chameleonButton6.click();
  EXPECT_THAT(machine.rows(), IsEmpty());
  box(52).press();  // and the next run finds the track selected
  main_form.chameleonButton6.click();
  EXPECT_THAT(machine.rows(), Not(IsEmpty()));
}

TEST_F(Form2Test, TheThirdStateIsKeptAndWrittenBack) {
  machine.select("52", "2 ").select("44", "2");
  code().Form_Load();
  EXPECT_EQ(box(52).value(), 2);
  EXPECT_EQ(stored(52), "2");  // the blank is gone: it has been written
  form().Label2[4].press();    // neither 0 nor 1: the label leaves it
  EXPECT_EQ(box(52).value(), 2);
  box(44).press();
  EXPECT_EQ(stored(44), "0");
}

// A form whose machine tells of every pump.
class PumpingForm2 : public Form2Test {
 protected:
  Form2Code& start() {
    events = std::make_unique<testing::ObservedEvents>(stage().program.machine.events);
    observed = std::make_unique<Machine>(testing::machineWith(stage().program.machine, *events));
    Program& program = stage().program;
    context =
        std::make_unique<FormContext>(FormContext{*observed, program.registry, program.numbers,
                                                  program.tracks, stage().language, stage().host});
    pumping = std::make_unique<Form2Code>(*context);
    return *pumping;
  }

  std::unique_ptr<testing::ObservedEvents> events;
  std::unique_ptr<Machine> observed;
  std::unique_ptr<FormContext> context;
  std::unique_ptr<Form2Code> pumping;
};

TEST_F(PumpingForm2, LoadPumpsAtEveryBoxInTheirOrder) {
  for (std::size_t i = 0; i < 10; ++i) machine.select(std::to_string(i));
  Form2Code& loading = start();
  std::vector<int> seen;
  events->onPump = [&] {
    int boxes_on = 0;
    for (const CheckBox& check : loading.form.Check1) boxes_on += check.value();
    seen.push_back(boxes_on);
  };
  loading.Form_Load();
  ASSERT_EQ(seen.size(), kBoxes);
  for (int i = 0; i < static_cast<int>(kBoxes); ++i) {
    EXPECT_EQ(seen[static_cast<std::size_t>(i)], std::min(i, 10)) << i;
  }
}

TEST_F(PumpingForm2, AClickDuringLoadIsServedInside) {
  machine.select("52");
  Form2Code& loading = start();
  events->onPump = [&] {
    if (events->pumped == 30) loading.form.Check1[20].press();
  };
  loading.Form_Load();
  EXPECT_EQ(loading.form.Check1[20].value(), 1);
  EXPECT_EQ(loading.form.Check1[52].value(), 1);
  EXPECT_EQ(stored(20), "1");
}

TEST_F(Form2Test, LoadTakesTheColourOfTheLook) {
  code().Form_Load();
  EXPECT_EQ(form().back_color, 10118205);
  EXPECT_EQ(form().chameleonButton32.color, 10118205);
  EXPECT_EQ(form().chameleonButton32.hover_color, 10118205);
}

TEST_F(Form2Test, LoadTakesTheColourThatIsSet) {
  machine.setting("tavrwork brightbox", "color", "255");
  code().Form_Load();
  EXPECT_EQ(form().back_color, 255);
  EXPECT_EQ(form().chameleonButton32.hover_color, 255);
}

TEST_F(Form2Test, AColourThatIsNoNumberLeavesTheDesign) {
  machine.setting("tavrwork brightbox", "color", "blue");
  code().Form_Load();
  EXPECT_EQ(form().back_color, 0);
  EXPECT_TRUE(form().topmost);
}

// 200 twips, 13 pixels, below the middle of 1920 x 1080.
TEST_F(Form2Test, LoadPutsItOnTopAndCentresIt) {
  code().Form_Load();
  EXPECT_TRUE(form().topmost);
  EXPECT_EQ(form().left, (1920 - form().width) / 2);
  EXPECT_EQ(form().top, (1080 - form().height) / 2 + 13);
}

TEST_F(Form2Test, HiddenPanelsKeepTheirValues) {
  const std::set<int> hidden = {0, 4, 17, 22, 26, 31, 35, 38, 40, 43, 47, 51};
  for (const int i : hidden) machine.select(std::to_string(i));
  code().Form_Load();
  EXPECT_EQ(on(), hidden);
  box(52).press();
  for (const int i : hidden) EXPECT_EQ(stored(i), "1") << i;
}

// --- clicks -----------------------------------------------------------------

TEST_F(Form2Test, EveryClickIsStoredAtOnce) {
  code();
  for (int i = 0; i < static_cast<int>(kBoxes); ++i) {
    SCOPED_TRACE(i);
    box(i).press();
    EXPECT_EQ(stored(i), "1");
    box(i).press();
    EXPECT_EQ(stored(i), "0");
  }
}

TEST_F(Form2Test, LabelsToggleTheirBoxes) {
  const std::map<std::size_t, int> boxes = {{0, 45}, {1, 46}, {2, 49},  {3, 44}, {4, 52},
                                            {5, 43}, {7, 13}, {8, 12},  {9, 11}, {10, 10},
                                            {11, 8}, {12, 9}, {13, 53}, {14, 54}};
  for (const auto& [label, index] : boxes) {
    SCOPED_TRACE(label);
    form().Label2[label].press();
    EXPECT_EQ(on(), std::set{index});
    EXPECT_EQ(stored(index), "1");
    form().Label2[label].press();
    EXPECT_THAT(on(), IsEmpty());
    EXPECT_EQ(stored(index), "0");
  }
}

TEST_F(Form2Test, HeadingsToggleNothing) {
  form().Label2[6].press();
  form().Label2[15].press();
  EXPECT_THAT(on(), IsEmpty());
  EXPECT_FALSE(machine.keyExists(Root::kLocalMachine, settings::kSelectionKey));
}

struct Selection {
  std::size_t all;
  std::set<int> boxes;
};

TEST_F(Form2Test, SelectionButtonsTurnTheirBoxesAndNoOthers) {
  const std::vector<Selection> selections = {
      {15, {0, 1, 2, 3, 4}},      {17, {8, 9, 10, 11, 12, 13}}, {19, {24, 25, 26}},
      {21, {19, 20, 21, 22, 23}}, {23, {31, 32, 33, 34, 35}},   {25, {37, 38, 39, 40}},
      {27, {44, 45, 46, 49, 52}}};
  code();
  for (const Selection& selection : selections) {
    SCOPED_TRACE(selection.all);
    setAll(0);
    button(selection.all).press();
    EXPECT_EQ(on(), selection.boxes);
    for (const int i : selection.boxes) EXPECT_EQ(stored(i), "1");

    std::set<int> others;
    for (int i = 0; i < static_cast<int>(kBoxes); ++i) {
      if (i == 14 || i == 15) continue;  // they put each other out
      box(i).setValue(1);
      if (!selection.boxes.contains(i)) others.insert(i);
    }
    button(selection.all + 1).press();
    EXPECT_EQ(on(), others);
    for (const int i : selection.boxes) EXPECT_EQ(stored(i), "0");
  }
}

TEST_F(Form2Test, TheWindowsButtonsLeaveTheLastTwoBoxesOfTheirPanel) {
  machine.select("53", "1").select("54", "0");
  code().Form_Load();
  button(17).press();
  EXPECT_EQ(box(53).value(), 1);
  EXPECT_EQ(box(54).value(), 0);
  button(18).press();
  EXPECT_EQ(on(), std::set{53});
  EXPECT_EQ(stored(53), "1");
  EXPECT_EQ(stored(54), "0");
}

TEST_F(Form2Test, RecommendedIsCookiesOnly) {
  code();
  for (const int i : kBrowsers) box(i).setValue(1);
  button(29).press();
  EXPECT_EQ(on(), std::set{52});
  for (const int i : {44, 45, 46, 49}) EXPECT_EQ(stored(i), "0") << i;
  EXPECT_EQ(stored(52), "1");
}

TEST_F(Form2Test, RecommendedWritesOnlyWhatChanges) {
  button(29).press();
  EXPECT_EQ(stored(52), "1");
  EXPECT_EQ(stored(44), "<none>");
}

// --- panels -----------------------------------------------------------------

TEST_F(Form2Test, EveryRoadToAPanelShowsItAloneInTheFirstOnesPlace) {
  const Box home = form().frame[9].box;
  const std::vector<std::pair<Button*, int>> roads = {
      {&button(30), 2},         {&form().cmd_plugin, 9},  {&button(31), 3},
      {&form().Toolbar1[1], 9}, {&form().Toolbar1[2], 5}, {&form().Toolbar1[3], 4},
      {&form().Toolbar1[4], 7}, {&form().Toolbar1[5], 8}, {&form().Toolbar1[6], 2},
      {&form().Toolbar1[7], 3}, {&button(3), 3}};
  for (const auto& [road, panel] : roads) {
    SCOPED_TRACE(road->design.name);
    SCOPED_TRACE(road->design.index);
    road->press();
    EXPECT_EQ(visiblePanels(), std::set{panel});
    EXPECT_TRUE(standsAt(panel, home.left, home.top));
  }
}

// The toolbar's own panel is never moved in.
TEST_F(Form2Test, TheToolbarStaysBeyondTheEdge) {
  for (std::size_t i = 1; i < form().Toolbar1.size(); ++i) form().Toolbar1[i].press();
  EXPECT_GE(form().frame[6].box.left, form().width);
}

TEST_F(Form2Test, TheFirstTwoButtonsSwitchBetweenTheFirstPanels) {
  const Box first = form().frame[1].box;
  button(31).press();
  button(1).press();
  EXPECT_EQ(visiblePanels(), std::set{1});
  button(2).press();
  EXPECT_EQ(visiblePanels(), std::set{2});
  EXPECT_TRUE(standsAt(2, first.left, first.top));
  button(30).press();
  EXPECT_TRUE(standsAt(2, form().frame[9].box.left, form().frame[9].box.top));
}

// They know three panels; a fourth that stands visible stays.
TEST_F(Form2Test, TheFirstTwoButtonsLeaveThePanelOfTheBrowsers) {
  button(1).press();
  EXPECT_EQ(visiblePanels(), (std::set{1, 9}));
}

// --- the ways out -----------------------------------------------------------

TEST_F(Form2Test, ExitLeavesTheForm) {
  button(4).press();
  EXPECT_THAT(stage().host.calls, ElementsAre("unload Form2"));
}

TEST_F(Form2Test, ExitEndsAProgramThatWasStartedForIt) {
  stage().program.form.dialog_mode = "d";
  EXPECT_THROW(button(4).press(), ProcessEnd);
  EXPECT_THAT(stage().host.calls, ElementsAre("unload Form2", "end"));
}

TEST_F(Form2Test, TheCloseButtonTakesTheShadowFirst) {
  code().Form_Load();
  EXPECT_TRUE(form().shadow);
  form().chameleonButton32.press();
  EXPECT_FALSE(form().shadow);
  EXPECT_THAT(stage().host.calls, ElementsAre("detach Form2", "unload Form2"));
}

TEST_F(Form2Test, TheCloseButtonEndsAProgramThatWasStartedForIt) {
  stage().program.form.dialog_mode = "d";
  EXPECT_THROW(form().chameleonButton32.press(), ProcessEnd);
  EXPECT_THAT(stage().host.calls, ElementsAre("detach Form2", "unload Form2", "end"));
}

TEST_F(Form2Test, LeavingWithoutMoreLosesNothing) {
  box(52).press();
  button(4).press();
  Form2Code again(stage().context);
  again.Form_Load();
  EXPECT_EQ(again.form.Check1[52].value(), 1);
}

TEST_F(Form2Test, TheViewButtonsOpenTheKeepList) {
  code().Form_Load();
  std::vector<bool> topmost;
  stage().host.onKeepList = [&] { topmost.push_back(form().topmost); };
  button(6).press();
  button(7).press();
  EXPECT_THAT(topmost, ElementsAre(false, false));  // out of the new form's way
  EXPECT_THAT(stage().host.keep_lists,
              ElementsAre(FakeFormHost::KeepList{"Current Cookies List", "1"},
                          FakeFormHost::KeepList{"Current Location bar history List", "2"}));
  EXPECT_TRUE(form().topmost);
}

TEST_F(Form2Test, WhileTheKeepListComesUpTheFormStepsAside) {
  std::vector<std::string> steps;
  form().onTopmost = [&](bool on) { steps.emplace_back(on ? "on top" : "aside"); };
  stage().host.onKeepList = [&] { steps.emplace_back("keep list"); };
  code().Form_Load();
  button(6).press();
  EXPECT_THAT(steps, ElementsAre("aside", "keep list", "on top"));
}

TEST_F(Form2Test, TheHelpPictureOpensItsPage) {
  form().Image44.press();
  machine.stop();
  EXPECT_EQ(machine.readMachineFile("shell.log"),
            "htmlhelp 15 22 " + kFolder + "tavrwork-helpdoc.chm>sec\n");
}

TEST_F(Form2Test, EveryButtonOfTheFreshFormCanBePressed) {
  code().Form_Load();
  for (Control* control : form().controls()) EXPECT_NO_THROW(control->press());
}

}  // namespace
}  // namespace tavr
