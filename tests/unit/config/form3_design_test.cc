// The options form as it stands when it is made.
#include "tests/support/options_form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "basic/utf.h"
#include "forms/form3_design.h"

namespace tavr {
namespace {

using testing::Options;

struct Caption {
  const char* control;
  const char* text;
};

TEST_F(Options, CaptionsAreThoseOfTheDesign) {
  const Caption captions[] = {
      {"cmd_plugin", "General settings"},
      {"chameleonButton8", "Schedule"},
      {"Label2(13)", " General Settings"},
      {"Label2(16)", "Run in stealth mode"},
      {"Label2(14)",
       "Let Spoorwipe operate in an invisible mode. This won't show an icon on the system tray but "
       "it will continue running in background."},
      {"Label2(15)", "To Show /Hide spoorwipe"},
      {"Label2(12)", "ALT + "},
      {"chameleonButton9", "Save changes"},
      {"Check1(2)", ""},
      {"Label2(17)", "Security Options"},
      {"Label2(18)", "Enable Secure Erasing"},
      {"Label2(8)",
       "Securely erase tracks by overwriting files specified number of times, this will prevent "
       "others from recovering your files using recovery tools."},
      {"Label2(2)", "Overwrite File(s)"},
      {"Label2(3)", "Time(s) Before Deleting it."},
      {"Label3(7)", "Every ...."},
      {"Label3(6)", "Every ...."},
      {"Label3(5)", "Every ...."},
      {"Label3(4)", "Every ...."},
      {"Label3(3)", "Every ...."},
      {"Label1(0)", "Minutes."},
      {"Label2(11)", "Hours."},
      {"Label2(10)", "Days."},
      {"Label2(7)", "Weeks."},
      {"Label2(6)", "Months"},
      {"Label3(2)", "At Windows StartUp"},
      {"Label3(1)", " At Windows Shutdown"},
      {"Label2(9)", "Run Erasing "},
      {"Label3(0)",
       "Please select from options below to specify when this operation will be performed."},
      {"chameleonButton5", "Save Changes"}};
  for (const Caption& row : captions) {
    EXPECT_EQ(control(row.control).caption, row.text) << row.control;
  }
  EXPECT_EQ(form().caption, "Options");
}

struct IntervalRow {
  const char* text;
  int max;
  int value;
};

TEST_F(Options, IntervalsStartAsDesigned) {
  const IntervalRow rows[] = {
      {"45", 1439, 45}, {"6", 23, 6}, {"6", 365, 6}, {"2", 52, 6}, {"1", 12, 6}};
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    EXPECT_EQ(form().intervals().at(i)->text(), rows[i].text) << i;
    EXPECT_EQ(form().scrollBars().at(i)->min, 1) << i;
    EXPECT_EQ(form().scrollBars().at(i)->max, rows[i].max) << i;
    EXPECT_EQ(form().scrollBars().at(i)->value(), rows[i].value) << i;
    EXPECT_FALSE(form().options().at(i)->value()) << i;
  }
}

TEST_F(Options, HiddenControlsAreHidden) {
  for (const char* name : {"Check1(2)", "Option6", "chameleonButton3", "chameleonButton4",
                           "chameleonButton6", "chameleonButton7", "Frame1", "Frame2"}) {
    EXPECT_FALSE(control(name).visible) << name;
  }
  for (const char* name : {"Frame3", "Frame4", "Check1(0)", "Check1(1)", "Check1(3)", "Check1(4)",
                           "Check1(5)", "chameleonButton19", "chameleonButton32"}) {
    EXPECT_TRUE(control(name).visible) << name;
  }
}

TEST_F(Options, EveryControlHasANameOfItsOwnAndAPlaceInItsPanel) {
  std::set<std::string> names;
  for (const Control* placed : form().controls()) {
    const ControlDesign& design = placed->design;
    EXPECT_TRUE(names.insert(fullName(design.name, design.index)).second) << design.name;
    if (design.kind == ControlKind::kTimer) continue;
    int width = form().width;
    int height = form().height;
    if (!design.parent.empty()) {
      width = control(design.parent).box.width;
      height = control(design.parent).box.height;
    }
    const Box& box = placed->box;
    const std::string name = fullName(design.name, design.index);
    EXPECT_GT(box.width, 0) << name;
    EXPECT_GT(box.height, 0) << name;
    EXPECT_GE(box.left, 0) << name;
    EXPECT_GE(box.top, 0) << name;
    if (name == "Frame6") {
      EXPECT_GE(box.left, form().width) << "out of reach";
      continue;
    }
    EXPECT_LE(box.left + box.width, width) << name;
    EXPECT_LE(box.top + box.height, height) << name;
  }
  EXPECT_EQ(names.size(), kForm3Design.size());
}

TEST_F(Options, NothingVisibleOverlapsInItsPanel) {
  const std::vector<Control*>& all = form().controls();
  for (std::size_t i = 0; i < all.size(); ++i) {
    for (std::size_t j = i + 1; j < all.size(); ++j) {
      if (!all[i]->visible || !all[j]->visible) continue;
      if (all[i]->design.parent != all[j]->design.parent) continue;
      const Box& a = all[i]->box;
      const Box& b = all[j]->box;
      const bool apart = a.left + a.width <= b.left || b.left + b.width <= a.left ||
                         a.top + a.height <= b.top || b.top + b.height <= a.top;
      EXPECT_TRUE(apart) << fullName(all[i]->design.name, all[i]->design.index) << " and "
                         << fullName(all[j]->design.name, all[j]->design.index);
    }
  }
}

// Other languages are longer than English.
TEST_F(Options, LabelsHaveRoomForLongerLanguages) {
  for (const Control* placed : form().controls()) {
    const ControlKind kind = placed->design.kind;
    if (kind != ControlKind::kLabel && kind != ControlKind::kButton) continue;
    const std::size_t units = utf16Length(placed->caption);
    const int lines = std::max(1, placed->box.height / 18);
    EXPECT_GE(placed->box.width * lines, static_cast<int>(static_cast<double>(units) * 7 * 1.6))
        << fullName(placed->design.name, placed->design.index);
  }
}

}  // namespace
}  // namespace tavr
