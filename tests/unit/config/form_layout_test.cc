// How the forms are laid out, all by the same rules: names, places, and room for
// every language that ships.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "basic/text.h"
#include "basic/utf.h"
#include "config/language_keys.h"
#include "forms/form1.h"
#include "forms/form2.h"
#include "forms/form3.h"
#include "forms/form4.h"
#include "forms/form52.h"
#include "forms/frmabout.h"
#include "forms/frmmsg.h"
#include "tests/support/test_machine.h"

namespace tavr {
namespace {

using testing::TestMachine;

constexpr int kLineHeight = 18;

struct AllForms {
  explicit AllForms(Machine& machine)
      : form1(machine),
        form2(machine),
        form3(machine.events),
        form52(machine.events, machine.files),
        message(machine.events),
        about(machine.events) {}

  Form1 form1;
  Form2 form2;
  Form3 form3;
  Form4 form4;
  Form52 form52;
  frmmsg message;
  frmabout about;
};

class FormLayout : public ::testing::TestWithParam<const char*> {
 protected:
  Form& form() {
    for (Form* const found :
         std::initializer_list<Form*>{&forms_.form1, &forms_.form2, &forms_.form3, &forms_.form4,
                                      &forms_.form52, &forms_.message, &forms_.about}) {
      if (found->name() == GetParam()) return *found;
    }
    throw std::logic_error("no such form");
  }

 private:
  TestMachine machine_;
  AllForms forms_{machine_.machine()};
};

std::string nameOf(const Control& control) {
  return fullName(control.design.name, control.design.index);
}

// Shows nothing on the form itself: it may stand anywhere.
bool isUnseen(const Control& control) {
  const ControlKind kind = control.design.kind;
  return kind == ControlKind::kTimer || kind == ControlKind::kTray;
}

// A list of languages and a menu that come up over what stands below.
bool popsUp(const Control& control) {
  return control.design.name == "pictrlang" || control.design.name == "bccc";
}

// Hidden on the fresh form and shown by a run.
bool isShownByARun(const Control& control) {
  const std::string name = nameOf(control);
  return name == "bar1" || name == "Label1(0)" || name == "Gif89a1";
}

// Drawn beyond the right edge: what nobody is to reach.
bool isOutOfReach(std::string_view form, const Control& control) {
  const std::set<std::string> settings = {"Frame1", "Frame4", "Frame5",
                                          "Frame6", "Frame7", "Frame8"};
  if (form == "Form2") return settings.contains(nameOf(control));
  return form == "Form3" && control.design.name == "Frame6";
}

TEST_P(FormLayout, NamesAreUniqueWithTheirIndices) {
  std::set<std::string> names;
  for (const Control* const control : form().controls()) {
    EXPECT_FALSE(control->design.name.empty());
    EXPECT_TRUE(names.insert(LCase(nameOf(*control))).second) << nameOf(*control);
    EXPECT_EQ(form().find(nameOf(*control)), control);
  }
  EXPECT_FALSE(names.empty());
}

// Names without and with an index are never mixed within one name.
TEST_P(FormLayout, AnArrayHasIndicesThroughout) {
  std::map<std::string, std::set<bool>> indexed;
  for (const Control* const control : form().controls()) {
    if (control->design.kind == ControlKind::kToolbarButton) continue;  // beside its toolbar
    if (control->design.kind == ControlKind::kFrame) continue;
    indexed[LCase(control->design.name)].insert(control->design.index >= 0);
  }
  for (const auto& [name, kinds] : indexed) EXPECT_EQ(kinds.size(), 1U) << name;
}

TEST_P(FormLayout, EverythingLiesInsideTheFormOrItsPanel) {
  for (const Control* const control : form().controls()) {
    if (isUnseen(*control)) continue;
    SCOPED_TRACE(nameOf(*control));
    const Box& box = control->box;
    if (isOutOfReach(form().name(), *control)) {
      EXPECT_GE(box.left, form().width);
      continue;
    }
    Box around = {0, 0, form().width, form().height};
    if (!control->design.parent.empty()) {
      const Control* const panel = form().find(control->design.parent);
      ASSERT_NE(panel, nullptr);
      around = panel->box;
    }
    EXPECT_TRUE(box.left >= 0 && box.top >= 0 && box.width > 0 && box.height > 0);
    EXPECT_LE(box.left + box.width, around.width);
    EXPECT_LE(box.top + box.height, around.height);
  }
}

bool overlap(const Box& a, const Box& b) {
  return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
         b.top < a.top + a.height;
}

// Also of the panels that are hidden on the fresh form: each is shown some time.
TEST_P(FormLayout, NothingSeenOverlapsInsideAPanel) {
  std::vector<const Control*> seen;
  for (const Control* const control : form().controls()) {
    if (isUnseen(*control) || popsUp(*control)) continue;
    if (control->visible || isShownByARun(*control)) seen.push_back(control);
  }
  for (std::size_t i = 0; i < seen.size(); ++i) {
    for (std::size_t k = i + 1; k < seen.size(); ++k) {
      if (seen[i]->design.parent != seen[k]->design.parent) continue;
      EXPECT_FALSE(overlap(seen[i]->box, seen[k]->box))
          << nameOf(*seen[i]) << " and " << nameOf(*seen[k]);
    }
  }
}

TEST_P(FormLayout, TabStopsAreUniqueAndBelongToWhatTakesTheFocus) {
  std::set<int> stops;
  for (const Control* const control : form().controls()) {
    if (control->design.tab < 0) continue;
    EXPECT_TRUE(stops.insert(control->design.tab).second) << nameOf(*control);
    EXPECT_NE(control->design.kind, ControlKind::kFrame) << nameOf(*control);
    EXPECT_NE(control->design.kind, ControlKind::kTimer) << nameOf(*control);
  }
  EXPECT_TRUE(stops.contains(0));
}

// Pixels a text takes at most: 7 a character, 14 a wide one.
int pixels(std::string_view text) {
  int width = 0;
  for (const char16_t unit : toUtf16(text)) width += unit >= 0x2E80 ? 14 : 7;
  return width;
}

// The longest caption that the form's section of any shipped file gives a key.
std::map<std::string, std::string> longestCaptions(std::string_view form) {
  std::map<std::string, std::string> longest;
  for (const auto& entry :
       std::filesystem::directory_iterator(std::string(TAVR_SOURCE_DIR) + "/lang")) {
    if (!entry.path().filename().string().starts_with("tavrwipe-")) continue;
    std::ifstream file(entry.path(), std::ios::binary);
    bool own = false;
    for (std::string line; std::getline(file, line);) {
      if (line.starts_with('[')) own = line == "[" + std::string(form) + "]";
      const std::size_t equals = line.find('=');
      if (!own || equals == std::string::npos) continue;
      std::string& kept = longest[LCase(line.substr(0, equals))];
      const std::string caption = line.substr(equals + 1);
      if (pixels(caption) > pixels(kept)) kept = caption;
    }
  }
  return longest;
}

// A label breaks its text between words, and its lines are not filled to the end.
TEST_P(FormLayout, EveryCaptionHasRoomInTheLongestLanguage) {
  const std::map<std::string, std::string> longest = longestCaptions(form().name());
  ASSERT_EQ(longest.size(), languageKeys(form().name()).size());
  for (const Control* const control : form().controls()) {
    const ControlDesign& design = control->design;
    if (design.kind == ControlKind::kToolbarButton) continue;  // a picture with a hint
    const auto translated = longest.find(LCase(nameOf(*control)));
    const std::string text = translated == longest.end() ? control->caption : translated->second;
    const int mark = design.kind == ControlKind::kCheckBox ? kLineHeight : 0;
    const bool wraps = design.kind == ControlKind::kLabel || design.kind == ControlKind::kCheckBox;
    const int lines = wraps ? std::max(1, control->box.height / kLineHeight) : 1;
    const int width = control->box.width - (text.empty() ? 0 : mark);
    EXPECT_LE(pixels(text), lines == 1 ? width : width * lines * 85 / 100)
        << nameOf(*control) << " " << text;
  }
}

INSTANTIATE_TEST_SUITE_P(Forms, FormLayout,
                         ::testing::Values("Form1", "Form2", "Form3", "Form4", "Form52", "frmmsg",
                                           "frmabout"),
                         [](const auto& form) { return std::string(form.param); });

}  // namespace
}  // namespace tavr
