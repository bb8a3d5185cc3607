// Form2 as it is designed: its controls, their captions and their places.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/unit/config/form2_fixture.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;

struct BoxDesign {
  std::string_view caption;
  std::string_view panel;
  bool visible;
};

constexpr std::string_view kWarning = "Show warning before cleaning, if the browser is running.";

const std::array<BoxDesign, kBoxes> kBoxDesigns = {{
    {"Location Bar History", "Frame1", true},
    {"Cookies", "Frame1", true},
    {"Temporary Internet Files (cache)", "Frame1", true},
    {"Internet History", "Frame1", false},
    {"Index.dat", "Frame1", true},
    {"Sellect All ", "Frame1", false},
    {"Select None", "Frame1", false},
    {"", "Frame2", false},
    {"", "Frame2", true},
    {"", "Frame2", true},
    {"", "Frame2", true},
    {"", "Frame2", true},
    {"", "Frame2", true},
    {"", "Frame2", true},
    {"", "Frame3", false},
    {"", "Frame3", false},
    {"Select None", "Frame2", false},
    {"Select None", "Frame4", false},
    {"Sellect All ", "Frame4", false},
    {"Stored form data", "Frame4", true},
    {"Download history", "Frame4", true},
    {"History or visited pages", "Frame4", true},
    {"Cookies", "Frame4", true},
    {"Data in browser cache", "Frame4", true},
    {"Files in the cache of the browser", "Frame5", true},
    {"Cookies", "Frame5", true},
    {"History or visited pages, download history, saved form information and Passwords", "Frame5",
     true},
    {"Select None", "Frame7", false},
    {"Sellect All ", "Frame7", false},
    {"Sellect All ", "Frame5", false},
    {"Select None", "Frame5", false},
    {"History or visited pages and passwords", "Frame7", true},
    {"Cookies", "Frame7", true},
    {"Data in browser cache", "Frame7", true},
    {"Saved icons of visited sites", "Frame7", true},
    {kWarning, "Frame5", true},
    {kWarning, "Frame7", true},
    {kWarning, "Frame4", true},
    {"Session", "Frame5", true},
    {"Cookies", "Frame8", true},
    {"History or visited pages", "Frame8", true},
    {"Sellect All ", "Frame8", false},
    {"Select None", "Frame8", false},
    {"", "Frame9", false},
    {"", "Frame9", true},
    {"", "Frame9", true},
    {"", "Frame9", true},
    {"Saved form data", "Frame8", true},
    {"Data in browser cache", "Frame8", true},
    {"", "Frame9", true},
    {"Sellect All ", "Frame9", false},
    {"Select None", "Frame9", false},
    {"", "Frame9", true},
    {"", "Frame2", true},
    {"", "Frame2", true},
}};

TEST_F(Form2Test, HasItsBoxesOnTheirPanels) {
  for (std::size_t i = 0; i < kBoxes; ++i) {
    SCOPED_TRACE(i);
    const CheckBox& check = form().Check1[i];
    EXPECT_EQ(check.caption, kBoxDesigns[i].caption);
    EXPECT_EQ(check.design.parent, kBoxDesigns[i].panel);
    EXPECT_EQ(check.visible, kBoxDesigns[i].visible);
    EXPECT_EQ(check.value(), 0);
    EXPECT_EQ(form().find("Check1(" + std::to_string(i) + ")"), &check);
  }
}

TEST_F(Form2Test, HasItsLabels) {
  const std::vector<std::pair<std::string, std::string>> expected = {
      {"Local Storage", "Frame9"},
      {"Auto Compleate Form History", "Frame9"},
      {"Saved Passwords", "Frame9"},
      {"Sessions", "Frame9"},
      {"Cookies", "Frame9"},
      {std::string(kWarning), "Frame9"},
      {"Web Browser Trace", "Frame9"},
      {"Recent Documents History", "Frame2"},
      {"Start Menu Search History", "Frame2"},
      {"Start Menu Run History", "Frame2"},
      {"Windows Temp", "Frame2"},
      {"Recycle Bin", "Frame2"},
      {"Open /Save Dialog Box History", "Frame2"},
      {"Notification Area Icon Cache", "Frame2"},
      {"Windows Searching History", "Frame2"},
      {"Windows", "Frame2"}};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(form().Label2[i].caption, expected[i].first);
    EXPECT_EQ(form().Label2[i].design.parent, expected[i].second);
    EXPECT_EQ(form().Label2[i].visible, i != 5);
  }
  EXPECT_EQ(form().caption, "Erasing Settings");
  EXPECT_EQ(form().Label1.caption, "(You need to restart windows)");
  EXPECT_EQ(form().Label1.design.parent, "Frame1");
  EXPECT_THAT(form().View1.columns, ElementsAre("Application Plugins"));
}

TEST_F(Form2Test, HasItsButtons) {
  const std::map<std::size_t, std::pair<std::string, std::string>> expected = {
      {1, {"", "Frame6"}},
      {2, {"", "Frame6"}},
      {3, {"", "Frame6"}},
      {4, {"Exit", ""}},
      {5, {"Select All", "Frame3"}},
      {6, {"View ", "Frame1"}},
      {7, {"View ", "Frame1"}},
      {8, {"Refresh", "Frame3"}},
      {9, {"Delete", "Frame3"}},
      {10, {"Plug in Info", "Frame3"}},
      {11, {"Import Plug In", "Frame3"}},
      {12, {"Download Plug-in", "Frame3"}},
      {13, {"Run PLUGIN MAKER", "Frame3"}},
      {14, {"Select None", "Frame3"}},
      {15, {"", "Frame1"}},
      {16, {"", "Frame1"}},
      {17, {"", "Frame2"}},
      {18, {"", "Frame2"}},
      {19, {"", "Frame5"}},
      {20, {"", "Frame5"}},
      {21, {"", "Frame4"}},
      {22, {"", "Frame4"}},
      {23, {"", "Frame7"}},
      {24, {"", "Frame7"}},
      {25, {"", "Frame8"}},
      {26, {"", "Frame8"}},
      {27, {"Select All", "Frame9"}},
      {28, {"Select None", "Frame9"}},
      {29, {"Recommended", "Frame9"}},
      {30, {"Windows", ""}},
      {31, {"Applications", ""}}};
  ASSERT_EQ(expected.size(), 31U);
  for (const auto& [number, design] : expected) {
    SCOPED_TRACE(number);
    EXPECT_EQ(button(number).caption, design.first);
    EXPECT_EQ(button(number).design.parent, design.second);
    EXPECT_EQ(form().find("chameleonButton" + std::to_string(number)), &button(number));
  }
  EXPECT_EQ(form().cmd_plugin.caption, "Browsers");
  EXPECT_EQ(form().find("chameleonButton32"), &form().chameleonButton32);
}

// Whether it is in reach at all: the panels of single browsers are not.
TEST_F(Form2Test, KeepsTheOldPanelsBeyondItsRightEdge) {
  for (const int number : {1, 4, 5, 6, 7, 8}) {
    EXPECT_GE(form().frame[static_cast<std::size_t>(number)].box.left, form().width) << number;
  }
  for (const int number : {2, 3, 9}) {
    const Box& place = form().frame[static_cast<std::size_t>(number)].box;
    EXPECT_LE(place.left + place.width, form().width) << number;
    EXPECT_LE(place.top + place.height, form().height) << number;
  }
  EXPECT_EQ(visiblePanels(), std::set{9});
  EXPECT_EQ(form().Toolbar1[1].design.parent, "Frame6");
}

bool overlap(const Box& a, const Box& b) {
  return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
         b.top < a.top + a.height;
}

TEST_F(Form2Test, PlacesEveryControlOnceWithoutOverlap) {
  const auto& controls = form().controls();
  EXPECT_EQ(controls.size(), form2Design().size());
  std::set<std::string> names;
  for (const Control* control : controls) {
    const std::string name = fullName(control->design.name, control->design.index);
    EXPECT_TRUE(names.insert(name).second) << name;
    int width = form().width;
    int height = form().height;
    if (!control->design.parent.empty()) {
      const Control* panel = form().find(control->design.parent);
      ASSERT_NE(panel, nullptr) << name;
      width = panel->box.width;
      height = panel->box.height;
    }
    const bool panel = control->design.kind == ControlKind::kFrame;
    if (panel) continue;
    EXPECT_LE(control->box.left + control->box.width, width) << name;
    EXPECT_LE(control->box.top + control->box.height, height) << name;
    for (const Control* other : controls) {
      if (other == control || other->design.parent != control->design.parent) continue;
      if (other->design.kind == ControlKind::kFrame && !other->design.visible) continue;
      EXPECT_FALSE(overlap(control->box, other->box))
          << name << " and " << fullName(other->design.name, other->design.index);
    }
  }
}

}  // namespace
}  // namespace tavr
