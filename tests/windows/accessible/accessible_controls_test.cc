// What a screen reader is told of every self-drawn control of every form.
#include <gmock/gmock.h>
#include <windows.h>
// Behind windows.h.
#include <commctrl.h>

#include <algorithm>
#include <array>
#include <map>

#include "forms/list_view.h"
#include "services/settings_keys.h"
#include "tests/windows/accessible/asked.h"
#include "tests/windows/accessible/shown_program.h"
#include "ui/win32/accessible_annotation.h"
#include "ui/win32/accessible_name.h"
#include "ui/win32/accessible_order.h"
#include "ui/win32/accessible_words.h"
#include "ui/win32/drawn_control.h"

namespace tavr::win32::testing {
namespace {

bool isDrawn(const BoundControl& bound) {
  wchar_t name[32] = L"";
  GetClassNameW(bound.window(), name, 32);
  return std::wstring_view(name) == DrawnControl::kClass;
}

std::string nameOf(const BoundControl& bound) {
  const ControlDesign& design = bound.control().design;
  return fullName(design.name, design.index);
}

// A line between two tools, and a label that shows nothing.
bool isSilent(const Control& control) {
  const ControlKind kind = control.design.kind;
  return control.caption.empty() &&
         (kind == ControlKind::kToolbarButton || kind == ControlKind::kLabel);
}

class AccessibleForms : public ::testing::TestWithParam<FormPanel> {};

TEST_P(AccessibleForms, EveryControlHasANameARoleAndTheStateOfItsForm) {
  ShownProgram shown;
  open(shown, GetParam());
  int asked = 0;
  for (const BoundControl* const bound : shown.shown(GetParam().form)) {
    if (!isDrawn(*bound)) continue;
    const Control& control = bound->control();
    const Asked told = ask(bound->window());
    SCOPED_TRACE(nameOf(*bound));
    EXPECT_EQ(told.name.empty(), isSilent(control)) << told.name;
    EXPECT_GT(told.role, 0);
    EXPECT_NE(told.role, ROLE_SYSTEM_CLIENT);
    EXPECT_EQ(told.has(STATE_SYSTEM_UNAVAILABLE), !control.enabled);
    EXPECT_FALSE(told.has(STATE_SYSTEM_INVISIBLE));
    if (control.design.tab >= 0) {
      EXPECT_EQ(told.has(STATE_SYSTEM_FOCUSABLE), control.enabled);
    }
    if (const auto* const box = dynamic_cast<const CheckBox*>(&control)) {
      EXPECT_EQ(told.role, ROLE_SYSTEM_CHECKBUTTON);
      EXPECT_EQ(told.has(STATE_SYSTEM_CHECKED), box->value() == 1);
      EXPECT_EQ(told.action, box->value() == 0 ? "Check" : "Uncheck");
    }
    ++asked;
  }
  EXPECT_GT(asked, 0);
}

TEST_P(AccessibleForms, EveryControlIsWhereItIsSeenAndFoundThere) {
  ShownProgram shown;
  open(shown, GetParam());
  for (const BoundControl* const bound : shown.shown(GetParam().form)) {
    if (!isDrawn(*bound)) continue;
    SCOPED_TRACE(nameOf(*bound));
    const ComPointer<IAccessible> object = accessibleOf(bound->window());
    ASSERT_TRUE(object);
    RECT seen{};
    GetWindowRect(bound->window(), &seen);
    long left = 0, top = 0, width = 0, height = 0;
    ASSERT_EQ(object->accLocation(&left, &top, &width, &height, self()), S_OK);
    EXPECT_THAT((std::array<long, 4>{left, top, left + width, top + height}),
                ::testing::ElementsAre(seen.left, seen.top, seen.right, seen.bottom));
    EXPECT_EQ(windowOf(*object.get()), bound->window());
    VARIANT hit{};
    EXPECT_EQ(object->accHitTest(left + width / 2, top + height / 2, &hit), S_OK);
    VariantClear(&hit);
  }
}

TEST_P(AccessibleForms, TheWindowsOfOneHolderStandInTheOrderOfReading) {
  ShownProgram shown;
  open(shown, GetParam());
  const Form& form = shown.form(GetParam().form);
  std::map<std::string_view, const BoundControl*> last;
  for (const BoundControl* const bound : shown.shown(GetParam().form)) {
    const BoundControl*& before = last[bound->control().design.parent];
    if (before) {
      EXPECT_FALSE(isReadBefore(form, bound->control(), before->control()))
          << nameOf(*bound) << " behind " << nameOf(*before);
    }
    before = bound;
  }
}

INSTANTIATE_TEST_SUITE_P(All, AccessibleForms, ::testing::ValuesIn(kFormPanels), nameOfPanel);

TEST(AccessibleControls, AFormIsReadFromItsStripToItsFoot) {
  ShownProgram shown;
  std::vector<std::string> names;
  for (const BoundControl* const bound : shown.shown("Form1")) names.push_back(nameOf(*bound));
  const auto at = [&names](std::string_view name) { return std::ranges::find(names, name); };
  EXPECT_EQ(names.front(), "chameleonButton12");
  EXPECT_LT(at("chameleonButton9"), at("Toolbar1"));
  EXPECT_LT(at("Toolbar1(14)"), at("cmd_settings"));
  EXPECT_LT(at("cmd_settings"), at("cmd_start"));
  EXPECT_LT(at("chameleonButton11"), at("View100"));
  EXPECT_LT(at("View100"), at("View200"));
  EXPECT_LT(at("View200"), at("Label2"));
}

TEST(AccessibleControls, AToolIsNamedLikeItsCommandAndSoIsItsTip) {
  ShownProgram shown("de");
  for (BoundControl* const bound : shown.shown("Form1")) {
    if (nameOf(*bound) != "Toolbar1(8)") continue;
    EXPECT_EQ(bound->tip(), "Löschen");
  }
  EXPECT_EQ(ask(shown.window("Form1", "Toolbar1(8)")).name, "Löschen");
}

TEST(AccessibleControls, AButtonIsPressedWhileItIsHeldAndPointedAtWhileItIs) {
  ShownProgram shown;
  shown.program().form.chameleonButton11.onClick = nullptr;  // it would end the program
  const HWND window = shown.window("Form1", "chameleonButton11");
  // Asked before the pump: the pointer of the display is elsewhere, and it tells.
  const auto told = [&](UINT message, WPARAM keys) {
    SendMessageW(window, message, keys, MAKELPARAM(5, 5));
    return ask(window);
  };
  EXPECT_FALSE(ask(window).has(STATE_SYSTEM_PRESSED));
  EXPECT_TRUE(told(WM_MOUSEMOVE, 0).has(STATE_SYSTEM_HOTTRACKED));
  EXPECT_TRUE(told(WM_LBUTTONDOWN, MK_LBUTTON).has(STATE_SYSTEM_PRESSED));
  EXPECT_FALSE(told(WM_LBUTTONUP, 0).has(STATE_SYSTEM_PRESSED));
  EXPECT_FALSE(told(WM_MOUSELEAVE, 0).has(STATE_SYSTEM_HOTTRACKED));
}

TEST(AccessibleControls, AButtonWithAValueIsPressedOnlyWhereItBehavesAsABox) {
  ShownProgram shown;
  ChameleonButton& button = shown.program().form.chameleonButton11;
  const HWND window = shown.window("Form1", "chameleonButton11");
  button.value = true;
  EXPECT_FALSE(ask(window).has(STATE_SYSTEM_PRESSED));
  button.check_box_behaviour = true;
  EXPECT_TRUE(ask(window).has(STATE_SYSTEM_PRESSED));
}

TEST(AccessibleControls, NothingIsPressedThroughADialogThatStandsAboveItsForm) {
  ShownProgram shown;
  const ComPointer<IAccessible> object = accessibleOf(shown.window("Form1", "cmd_option"));
  ASSERT_TRUE(object);
  open(shown, {"Form2", "cmd_plugin"});
  EXPECT_EQ(object->accDoDefaultAction(self()), S_FALSE);
  shown.pump();
  EXPECT_EQ(shown.program().desk.loaded("Form3"), nullptr);
}

// Natively Windows gives a list its rows, and reads its own boxes out.
TEST(AccessibleControls, TheTickOfAPlugInIsTheListsOwn) {
  ShownProgram shown;
  open(shown, {"Form2", "chameleonButton31"});
  auto& list = dynamic_cast<ListView&>(shown.control("Form2", "View1"));
  list.clear();
  list.add("First", "p").checked = true;
  list.add("Second", "p");
  shown.pump();
  const HWND window = shown.window("Form2", "View1");
  const auto ticked = [window](int row) { return ListView_GetCheckState(window, row); };
  EXPECT_EQ(ticked(0), 1U);
  EXPECT_EQ(ticked(1), 0U);
  list.item(2).checked = true;
  shown.pump();
  EXPECT_EQ(ticked(1), 1U);
}

TEST(AccessibleControls, ANativeBoxIsNamedByItsRow) {
  ShownProgram shown;
  open(shown, {"Form3", "cmd_plugin"});
  const HWND box = shown.window("Form3", "Combo1");
  EXPECT_EQ(accessibleName(shown.form("Form3"), shown.control("Form3", "Combo1"), "en"),
            "Overwrite File(s) Time(s) Before Deleting it.");
  AccessibleAnnotation annotation;
  if (!annotation.show(box, "Probe")) GTEST_SKIP() << "this system names no native windows";
  EXPECT_EQ(ask(box).name, "Probe");
}

TEST(AccessibleWords, EverySignHasAWordInEveryLanguage) {
  for (const std::string_view sign : {"close", "minimise", "about", "help", "check-all"}) {
    EXPECT_NE(wordOfSign(sign, "en"), "");
    for (const std::string_view language :
         {"de", "fr", "es", "it", "pt", "pl", "ru", "tr", "zh", "ja", "ar"}) {
      EXPECT_NE(wordOfSign(sign, language), wordOfSign(sign, "en")) << sign << language;
    }
  }
  EXPECT_EQ(wordOfSign("close", "xx"), "Close");
  EXPECT_EQ(wordOfSign("settings", "de"), "");
}

TEST(AccessibleControls, ACheckBoxIsNamedByTheLabelBesideIt) {
  ShownProgram shown("de");
  open(shown, {"Form2", "cmd_plugin"});
  EXPECT_EQ(ask(shown.window("Form2", "Check1(52)")).name, "Cookies");
  EXPECT_EQ(ask(shown.window("Form2", "Check1(44)")).name, "Sitzungen");
}

TEST(AccessibleControls, ASignIsReadOutInTheLanguageInForce) {
  ShownProgram shown("de");
  EXPECT_EQ(ask(shown.window("Form1", "chameleonButton10")).name, "Minimieren");
  EXPECT_EQ(ask(shown.window("Form1", "chameleonButton9")).name, "Schließen");
}

TEST(AccessibleControls, ASignIsReadOutInTheLanguageOfTheCaptions) {
  {
    ShownProgram shown("xx");  // of which there is no file
    EXPECT_EQ(shown.control("Form1", "cmd_start").caption, "Erase");
    EXPECT_EQ(ask(shown.window("Form1", "chameleonButton10")).name, "Minimize");
  }
  // Picked, and there is no file: what is open stays, what opens is as designed.
  ShownProgram german("de");
  german.program().registry.saveSetting(settings::kLanguageKey, "lang", "xx");
  german.program().language.apply(german.program().form);
  german.open("Form2");
  EXPECT_EQ(ask(german.window("Form1", "chameleonButton10")).name, "Minimieren");
  EXPECT_EQ(ask(german.window("Form2", "chameleonButton32")).name, "Close");
}

// The forms that no language file has captions for.
TEST(AccessibleControls, TheKeepListAndTheMessagesAreEnglishInEveryLanguage) {
  ShownProgram shown("de");
  for (const std::string_view form : {"Form52", "Form4", "frmmsg"}) shown.open(form);
  EXPECT_EQ(shown.control("Form1", "cmd_start").caption, "Löschen");
  EXPECT_EQ(ask(shown.window("Form52", "keepbutton10")).name, "Cancel");
  EXPECT_EQ(ask(shown.window("Form4", "command2")).name, "OK");
  EXPECT_EQ(ask(shown.window("frmmsg", "command2")).name, "No");
}

TEST(AccessibleControls, AFigureIsReadOutWithWhatItCounts) {
  ShownProgram shown("fr");
  auto& figure = dynamic_cast<Label&>(shown.control("Form1", "Label4"));
  figure.caption = "1 234";
  shown.pump();
  EXPECT_EQ(ask(shown.window("Form1", "Label4")).name,
            shown.control("Form1", "Label3").caption + " 1 234");
}

TEST(AccessibleControls, TheRowsOfAScheduleTellThemselvesApart) {
  ShownProgram shown;
  open(shown, {"Form3", "chameleonButton8"});
  auto& days = dynamic_cast<TextBox&>(shown.control("Form3", "Text3"));
  days.setText("3");
  shown.pump();
  const Asked told = ask(shown.window("Form3", "Option3"));
  EXPECT_EQ(told.role, ROLE_SYSTEM_RADIOBUTTON);
  EXPECT_THAT(told.name, ::testing::MatchesRegex("Every .* 3 Days.*"));
}

TEST(AccessibleControls, AnOptionThatIsTurnedOnIsChecked) {
  ShownProgram shown;
  open(shown, {"Form3", "chameleonButton8"});
  shown.control("Form3", "Option2").press();
  shown.pump();
  EXPECT_TRUE(ask(shown.window("Form3", "Option2")).has(STATE_SYSTEM_CHECKED));
  EXPECT_FALSE(ask(shown.window("Form3", "Option1")).has(STATE_SYSTEM_CHECKED));
}

TEST(AccessibleControls, AProgressBarTellsItsPart) {
  ShownProgram shown;
  ProgressBar& bar = shown.program().form.bar1;
  bar.setMax(200);
  bar.setValue(50);
  bar.setVisible(true);
  shown.pump();
  const Asked told = ask(shown.window("Form1", "bar1"));
  EXPECT_EQ(told.role, ROLE_SYSTEM_PROGRESSBAR);
  EXPECT_EQ(told.value, "25%");
  bar.setValue(58);  // 28.999... as a fraction of two
  shown.pump();
  EXPECT_EQ(ask(shown.window("Form1", "bar1")).value, "29%");
}

TEST(AccessibleControls, TheEntryOfTheOpenPanelIsSelected) {
  ShownProgram shown;
  open(shown, {"Form2", "chameleonButton30"});
  const Asked open_one = ask(shown.window("Form2", "chameleonButton30"));
  EXPECT_EQ(open_one.role, ROLE_SYSTEM_PAGETAB);
  EXPECT_TRUE(open_one.has(STATE_SYSTEM_SELECTED));
  EXPECT_FALSE(ask(shown.window("Form2", "cmd_plugin")).has(STATE_SYSTEM_SELECTED));
}

TEST(AccessibleControls, TheLanguageInForceIsTheSelectedRow) {
  ShownProgram shown;
  shown.control("Form1", "chameleonButton12").press();
  shown.pump();
  shown.control("Form1", "lbllanguage(1)").press();  // Deutsch; the list closes
  shown.control("Form1", "chameleonButton12").press();
  shown.pump();
  const Asked german = ask(shown.window("Form1", "lbllanguage(1)"));
  EXPECT_EQ(german.role, ROLE_SYSTEM_LISTITEM);
  EXPECT_EQ(german.name, "Deutsch");
  EXPECT_TRUE(german.has(STATE_SYSTEM_SELECTED));
  EXPECT_FALSE(ask(shown.window("Form1", "lbllanguage(0)")).has(STATE_SYSTEM_SELECTED));
}

TEST(AccessibleControls, AButtonTellsItsAccessKey) {
  ShownProgram shown;
  EXPECT_EQ(ask(shown.window("Form1", "cmd_settings")).shortcut, "Alt+E");
}

TEST(AccessibleControls, TheFocusIsTold) {
  ShownProgram shown;
  const HWND button = shown.window("Form1", "cmd_test");
  const ComPointer<IAccessible> object = accessibleOf(button);
  ASSERT_TRUE(object);
  EXPECT_FALSE(ask(button).has(STATE_SYSTEM_FOCUSED));
  EXPECT_EQ(object->accSelect(SELFLAG_TAKEFOCUS, self()), S_OK);
  EXPECT_EQ(GetFocus(), button);
  EXPECT_TRUE(ask(button).has(STATE_SYSTEM_FOCUSED));
}

}  // namespace
}  // namespace tavr::win32::testing
