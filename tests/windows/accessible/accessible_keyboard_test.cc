// Every command by the keyboard alone, in every language.
#include <gmock/gmock.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>

#include "tests/windows/accessible/asked.h"
#include "tests/windows/accessible/shown_program.h"
#include "ui/win32/access_keys.h"
#include "ui/win32/accessible_facts.h"
#include "ui/win32/accessible_name.h"
#include "ui/win32/control_places.h"

namespace tavr::win32::testing {
namespace {

std::string nameOf(const Control& control) {
  return fullName(control.design.name, control.design.index);
}

/// Where Tab leads on its way around, and from there the arrows.
std::set<const Control*> reached(const Form& form) {
  std::set<const Control*> found;
  for (const Control* at = nextFocus(form, nullptr, false); at && found.insert(at).second;
       at = nextFocus(form, at, false)) {
    if (!isGrouped(*at)) continue;
    for (const Control* next = nextInGroup(form, *at, false); next && next != at;
         next = nextInGroup(form, *next, false)) {
      found.insert(next);
    }
  }
  return found;
}

/// The sign beside Help on the main form presses the button beside it.
bool isDouble(const Form& form, const Control& control) {
  return form.name() == "Form1" && control.design.name == "Image44";
}

class KeyboardForms : public ::testing::TestWithParam<FormPanel> {};

TEST_P(KeyboardForms, WhatAPersonCanPressTabAndTheArrowsReach) {
  ShownProgram shown;
  open(shown, GetParam());
  const Form& form = shown.form(GetParam().form);
  const std::set<const Control*> found = reached(form);
  EXPECT_FALSE(found.empty());
  for (const BoundControl* const bound : shown.shown(GetParam().form)) {
    const Control& control = bound->control();
    if (!control.enabled || isDouble(form, control)) continue;
    if (accessibleFacts(form, control, "en").action.empty()) continue;
    EXPECT_TRUE(found.contains(&control)) << nameOf(control);
  }
}

INSTANTIATE_TEST_SUITE_P(All, KeyboardForms, ::testing::ValuesIn(kFormPanels), nameOfPanel);

bool hasCaption(const Control& control) {
  const ControlKind kind = control.design.kind;
  if (kind == ControlKind::kCheckBox || kind == ControlKind::kOption) return true;
  const auto letter = [](char c) { return static_cast<signed char>(c) < 0 || isalpha(c) != 0; };
  return kind == ControlKind::kButton && std::ranges::count_if(control.caption, letter) > 1;
}

class KeyboardLanguages : public ::testing::TestWithParam<std::string_view> {};

TEST_P(KeyboardLanguages, EveryCaptionHasAnAccessKeyOfItsOwn) {
  ShownProgram shown(GetParam());
  for (const FormPanel& panel : kFormPanels) {
    open(shown, panel);
    const Form& form = shown.form(panel.form);
    std::set<char32_t> letters;
    std::set<const Control*> targets;
    for (const AccessKey& key : accessKeys(form)) {
      EXPECT_TRUE(letters.insert(key.letter).second) << nameOf(*key.target);
      targets.insert(key.target);
    }
    for (const Control* const control : focusOrder(form)) {
      // Signs that stand where a dash or a cross is the caption.
      if (!hasCaption(*control) || showsSignAlone(form, *control)) continue;
      EXPECT_TRUE(targets.contains(control)) << nameOf(*control) << " of " << panel.form;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, KeyboardLanguages,
                         ::testing::Values("en", "de", "fr", "es", "it", "pt", "pl", "ru", "tr",
                                           "zh", "ja", "ar"),
                         [](const auto& language) { return std::string(language.param); });

/// A key as the loop passes it on; what it leaves goes to the window.
void press(ShownProgram& shown, HWND window, WPARAM key) {
  for (const UINT message : {WM_KEYDOWN, WM_KEYUP}) {
    const MSG pressed{window, message, key, 0, 0, {}};
    FormWindow* const form = FormWindow::of(window);
    if (form && !form->serveKey(pressed)) SendMessageW(window, message, key, 0);
  }
  shown.pump();
}

TEST(Keyboard, TheArrowsTurnTheNextOptionOn) {
  ShownProgram shown;
  open(shown, {"Form3", "chameleonButton8"});
  const auto value = [&shown](std::string_view name) {
    return dynamic_cast<OptionButton&>(shown.control("Form3", name)).value();
  };
  shown.control("Form3", "Option1").press();
  SetFocus(shown.window("Form3", "Option1"));
  press(shown, GetFocus(), VK_DOWN);
  EXPECT_EQ(GetFocus(), shown.window("Form3", "Option2"));
  EXPECT_TRUE(value("Option2"));
  EXPECT_FALSE(value("Option1"));
  press(shown, GetFocus(), VK_UP);
  press(shown, GetFocus(), VK_UP);
  EXPECT_EQ(GetFocus(), shown.window("Form3", "Option5"));
  EXPECT_TRUE(value("Option5"));
}

TEST(Keyboard, SpaceTicksABox) {
  ShownProgram shown;
  open(shown, {"Form2", "cmd_plugin"});
  const auto& box = dynamic_cast<CheckBox&>(shown.control("Form2", "Check1(44)"));
  const int before = box.value();
  SetFocus(shown.window("Form2", "Check1(44)"));
  press(shown, GetFocus(), VK_SPACE);
  EXPECT_EQ(box.value(), 1 - before);
}

TEST(Keyboard, EnterInABoxPressesTheDefaultButton) {
  ShownProgram shown;
  shown.open("Form4");
  SetFocus(shown.window("Form4", "Check1"));
  press(shown, GetFocus(), VK_RETURN);
  EXPECT_EQ(shown.formWindow("Form4"), nullptr);
}

TEST(Keyboard, EnterOnAButtonPressesThatButton) {
  ShownProgram shown;
  shown.open("frmmsg");
  SetFocus(shown.window("frmmsg", "command2"));
  press(shown, GetFocus(), VK_RETURN);
  EXPECT_EQ(shown.program().message.state, "vbNo");
}

TEST(Keyboard, EnterInATableOfTheMainFormPressesNothing) {
  ShownProgram shown;
  bool pressed = false;
  for (Control* const control : shown.program().form.controls()) {
    auto* const button = dynamic_cast<Button*>(control);
    if (button) button->onClick = [&pressed] { pressed = true; };
  }
  SetFocus(shown.window("Form1", "View100"));
  press(shown, GetFocus(), VK_RETURN);
  EXPECT_FALSE(pressed);
}

TEST(Keyboard, EscClosesADialogAndAnswersNo) {
  ShownProgram shown;
  shown.open("frmabout");
  press(shown, shown.formWindow("frmabout"), VK_ESCAPE);
  EXPECT_EQ(shown.formWindow("frmabout"), nullptr);
  shown.open("frmmsg");
  press(shown, shown.formWindow("frmmsg"), VK_ESCAPE);
  EXPECT_EQ(shown.program().message.state, "vbNo");
}

// Its button, and from there Tab, the arrows and Enter.
TEST(Keyboard, ALanguageIsChosenByTheKeyboardAlone) {
  ShownProgram shown;
  SetFocus(shown.window("Form1", "chameleonButton12"));
  press(shown, GetFocus(), VK_SPACE);
  ASSERT_NE(shown.window("Form1", "lbllanguage(0)"), nullptr);
  press(shown, GetFocus(), VK_TAB);
  EXPECT_EQ(GetFocus(), shown.window("Form1", "lbllanguage(0)"));
  press(shown, GetFocus(), VK_DOWN);
  press(shown, GetFocus(), VK_RETURN);
  EXPECT_EQ(shown.program().language.lang, "de");
  EXPECT_EQ(shown.control("Form1", "cmd_start").caption, "Löschen");
}

TEST(Keyboard, EscClosesTheListOfLanguages) {
  ShownProgram shown;
  SetFocus(shown.window("Form1", "chameleonButton12"));
  press(shown, GetFocus(), VK_SPACE);
  press(shown, GetFocus(), VK_TAB);
  press(shown, GetFocus(), VK_ESCAPE);
  EXPECT_FALSE(shown.program().form.pictrlang.visible);
  EXPECT_EQ(GetFocus(), shown.window("Form1", "chameleonButton12"));
}

TEST(Keyboard, TheHelpSignOfTheSettingsIsPressedBySpace) {
  ShownProgram shown;
  open(shown, {"Form2", "cmd_plugin"});
  bool pressed = false;
  dynamic_cast<Picture&>(shown.control("Form2", "Image44")).onClick = [&] { pressed = true; };
  const HWND sign = shown.window("Form2", "Image44");
  EXPECT_TRUE(ask(sign).has(STATE_SYSTEM_FOCUSABLE));
  SetFocus(sign);
  press(shown, sign, VK_SPACE);
  EXPECT_TRUE(pressed);
}

}  // namespace
}  // namespace tavr::win32::testing
