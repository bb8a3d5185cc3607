#include "forms/form1_design.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "tests/support/test_machine.h"

namespace tavr {
namespace {

bool overlap(const Box& a, const Box& b) {
  return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
         b.top < a.top + a.height;
}

Box panelBox(std::string_view parent) {
  if (parent.empty()) return {0, 0, 960, 640};
  for (const ControlDesign& row : form1Design()) {
    if (row.name == parent && row.index == -1) return row.box;
  }
  return {};
}

std::string nameOf(const ControlDesign& row) { return fullName(row.name, row.index); }

TEST(Form1Design, NamesAreUnique) {
  std::set<std::string> names;
  for (const ControlDesign& row : form1Design()) {
    EXPECT_TRUE(names.insert(LCase(nameOf(row))).second) << nameOf(row);
  }
}

TEST(Form1Design, EveryControlLiesInsideItsPanel) {
  for (const ControlDesign& row : form1Design()) {
    const Box panel = panelBox(row.parent);
    EXPECT_GT(row.box.width, 0) << nameOf(row);
    EXPECT_GT(row.box.height, 0) << nameOf(row);
    EXPECT_GE(row.box.left, 0) << nameOf(row);
    EXPECT_GE(row.box.top, 0) << nameOf(row);
    EXPECT_LE(row.box.left + row.box.width, panel.width) << nameOf(row);
    EXPECT_LE(row.box.top + row.box.height, panel.height) << nameOf(row);
  }
}

TEST(Form1Design, NothingVisibleOverlapsInsideAPanel) {
  // Hidden on the fresh form, and seen during a run.
  const auto seen = [](const ControlDesign& row) {
    return row.visible || row.name == "bar1" || row.name == "Label1" || row.name == "Gif89a1";
  };
  for (const ControlDesign& one : form1Design()) {
    for (const ControlDesign& other : form1Design()) {
      if (&one == &other || one.parent != other.parent || !seen(one) || !seen(other)) continue;
      EXPECT_FALSE(overlap(one.box, other.box)) << nameOf(one) << " " << nameOf(other);
    }
  }
}

TEST(Form1Design, TabStopsAreUnique) {
  std::set<int> tabs;
  for (const ControlDesign& row : form1Design()) {
    if (row.tab >= 0) {
      EXPECT_TRUE(tabs.insert(row.tab).second) << nameOf(row);
    }
  }
  EXPECT_EQ(tabs.size(), 16u);
}

TEST(Form1Design, CaptionsHaveRoomForALongerLanguage) {
  for (const ControlDesign& row : form1Design()) {
    if (row.kind == ControlKind::kToolbarButton) continue;  // a picture; the text is its hint
    const int needed = static_cast<int>(row.caption.size()) * 7;
    EXPECT_GE(row.box.width, row.caption.size() < 4 ? needed : needed * 8 / 5) << nameOf(row);
  }
}

TEST(Form1Design, EveryRowIsAControlOfTheForm) {
  testing::TestMachine machine;
  const Form1 form(machine.machine());
  EXPECT_EQ(form.controls().size(), form1Design().size());
  for (const ControlDesign& row : form1Design()) {
    const Control* control = form.find(nameOf(row));
    ASSERT_NE(control, nullptr) << nameOf(row);
    EXPECT_EQ(control->caption, row.caption);
    EXPECT_EQ(control->visible, row.visible) << nameOf(row);
    EXPECT_EQ(control->enabled, row.enabled) << nameOf(row);
  }
}

TEST(Form1Design, TheFreshFormHidesAndDisablesWhatARunBrings) {
  testing::TestMachine machine;
  const Form1 form(machine.machine());
  EXPECT_TRUE(form.visible);
  EXPECT_FALSE(form.cmd_stop.enabled);
  EXPECT_FALSE(form.toolbar[10].enabled);
  EXPECT_FALSE(form.bar1.visible());
  EXPECT_FALSE(form.Label1[0].visible);
  EXPECT_FALSE(form.Gif89a1.visible);
  EXPECT_FALSE(form.pictrlang.visible);
  EXPECT_FALSE(form.TrayArea1.visible());
  EXPECT_FALSE(form.bccc.visible);
  EXPECT_FALSE(form.Timer1.enabled());
  EXPECT_EQ(form.Timer1.interval(), 10000u);
  EXPECT_EQ(form.Timer2.interval(), 100u);
}

TEST(Form1Design, TheTablesAreAboveOneAnotherWithTheirColumns) {
  testing::TestMachine machine;
  const Form1 form(machine.machine());
  EXPECT_LT(form.View100.box.top + form.View100.box.height, form.View200.box.top);
  EXPECT_EQ(form.View100.columns, (std::vector<std::string>{"Task", "Status", "# of Tracks"}));
  EXPECT_EQ(form.View200.columns, std::vector<std::string>{"Cleaning Results"});
}

TEST(Form1Design, TheMenuStandsInItsOrderWithItsSeparators) {
  std::vector<std::string> order;
  int top = -1;
  for (const ControlDesign& row : form1Design()) {
    if (row.kind != ControlKind::kMenuEntry) continue;
    EXPECT_GT(row.box.top, top);
    top = row.box.top;
    order.push_back(std::string(row.name) + " " + std::string(row.caption));
  }
  EXPECT_EQ(order,
            (std::vector<std::string>{"a10 Visit our web site", "a9 Help", "a8 -", "a7 Erase Now",
                                      "a6 -", "a5 Options", "a4 Erase Settings", "a3 -",
                                      "a2 Download Plugins", "a1 -", "a Exit"}));
}

TEST(Form1Design, ALanguageRowThatIsLoadedIsFoundByItsIndex) {
  testing::TestMachine machine;
  Form1 form(machine.machine());
  Label& row = form.lbllanguage.emplace_back();
  row.design = form.lbllanguage[0].design;
  row.design.index = 1;
  form.takeLanguageRow(row);
  EXPECT_EQ(form.find("lbllanguage(1)"), &row);
}

}  // namespace
}  // namespace tavr
