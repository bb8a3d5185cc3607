#include "config/form2_code.h"

#include <array>

#include "basic/number.h"
#include "basic/resume_next.h"
#include "config/language.h"
#include "config/look_color.h"
#include "services/access.h"
#include "services/settings_keys.h"

namespace tavr {

namespace {

constexpr int kNone = -1;

// The box of each label, by the label's index; 6 and 15 are headings.
constexpr std::array<int, 16> kBoxOfLabel = {45, 46, 49, 44, 52, 43, kNone, 13,
                                             12, 11, 10, 8,  9,  53, 54,    kNone};

// The panel of each toolbar button 1 to 6.
constexpr std::array<int, 7> kPanelOfButton = {kNone, 9, 5, 4, 7, 8, 2};

constexpr int kBrowsers = 9;
constexpr int kWindows = 2;
constexpr int kApplications = 3;
// Everything but 6, which holds the toolbar.
constexpr int kPanels[] = {1, 2, 3, 4, 5, 7, 8, 9};

constexpr int kTickAll = 15;
constexpr int kTickNone = 14;

// The form stands 200 twips below the middle of the screen, 15 to a pixel.
constexpr int kBelowMiddle = 200 / 15;

std::size_t at(int index) { return static_cast<std::size_t>(index); }

}  // namespace

Form2Code::Form2Code(FormContext& context)
    : form(context.machine),
      context_(context),
      plug_ins_(context.machine, context.numbers, context.registry,
                {form.View1, form.File1, form.Text3, form.List4, form.List5, form.List6, form.List7,
                 form.List8, form.List9, form.List10, form.List11}) {
  connectBoxes();
  connectPanels();
  connectSelections();
  connectPlugIns();
}

void Form2Code::connectBoxes() {
  for (int i = 0; i < static_cast<int>(form.Check1.size()); ++i) {
    form.Check1[at(i)].onClick = [this, i] { Check1_Click(i); };
  }
  for (int i = 0; i < static_cast<int>(form.Label2.size()); ++i) {
    form.Label2[at(i)].onClick = [this, i] { Label2_Click(i); };
  }
}

void Form2Code::connectPanels() {
  auto& button = form.chameleonButton;
  form.cmd_plugin.onClick = [this] { showPanel(kBrowsers); };
  button[30].onClick = [this] { showPanel(kWindows); };
  button[31].onClick = [this] { chameleonButton3_Click(); };
  button[3].onClick = [this] { chameleonButton3_Click(); };
  button[1].onClick = [this] { showFirstPanels(1, kWindows); };
  button[2].onClick = [this] { showFirstPanels(kWindows, 1); };
  for (int i = 1; i < static_cast<int>(form.Toolbar1.size()); ++i) {
    form.Toolbar1[at(i)].onClick = [this, i] { Toolbar1_ButtonClick(i); };
  }
  button[6].onClick = [this] { openKeepList("Current Cookies List", "1"); };
  button[7].onClick = [this] { openKeepList("Current Location bar history List", "2"); };
  button[4].onClick = [this] { chameleonButton4_Click(); };
  form.chameleonButton32.onClick = [this] {
    form.shadow = false;
    context_.host.detachShadow(form.name());
    chameleonButton4_Click();
  };
  form.Image44.onClick = [this] { openHelp(); };
}

// Two of the pairs reach a box of another panel, and the Windows pair stops
// short of 53 and 54: the ranges are those of the panels' first versions.
void Form2Code::connectSelections() {
  auto& button = form.chameleonButton;
  const auto pair = [&](std::size_t all, int first, int last) {
    button[all].onClick = [this, first, last] { setBoxes(first, last, 1); };
    button[all + 1].onClick = [this, first, last] { setBoxes(first, last, 0); };
  };
  pair(15, 0, 4);
  pair(17, 8, 13);
  pair(19, 24, 26);
  pair(21, 19, 23);
  pair(23, 31, 35);
  pair(25, 37, 40);
  button[27].onClick = [this] { setBoxes({44, 45, 46, 49, 52}, 1); };
  button[28].onClick = [this] { setBoxes({44, 45, 46, 49, 52}, 0); };
  button[29].onClick = [this] {
    setBoxes({44, 45, 46, 49}, 0);
    setBoxes({52}, 1);
  };
}

void Form2Code::Form_Load() {
  ResumeNext on;
  on.next([&] {
    const std::int32_t color = lookColor(context_.machine);
    form.back_color = color;
    form.has_look_color = true;
    form.chameleonButton32.color = color;
    form.chameleonButton32.hover_color = color;
  });
  context_.language.apply(form);
  form.shadow = true;
  form.topmost = true;
  const ScreenSize screen = context_.machine.desktop.screen();
  form.left = (screen.width - form.width) / 2;
  form.top = (screen.height - form.height) / 2 + kBelowMiddle;
  for (int i = 0; i < static_cast<int>(form.Check1.size()); ++i) {
    context_.machine.events.doEvents();
    on.next([&] { readBox(i); });
  }
}

// A text that is no number, and a number that no box can have, leave the box as
// it is. A stored 1 or 2 turns the box, whose click stores the value again.
void Form2Code::readBox(int index) {
  const int value =
      toInteger(context_.registry.setting(settings::kSelectionKey, numberText(index)));
  if (value < 0 || value > 2) return;
  form.Check1[at(index)].setValue(value);
}

void Form2Code::Check1_Click(int index) {
  Machine& machine = context_.machine;
  context_.host.form1().grant_failed = !GrantKeyAccess(
      machine, Root::kLocalMachine, settings::kSelectionKey, machine.environment.get("UserName"));
  context_.registry.saveSetting(settings::kSelectionKey, numberText(index),
                                numberText(form.Check1[at(index)].value()));
  if (index != kTickAll && index != kTickNone) return;
  for (int row = 1; row <= form.View1.count(); ++row) {
    form.View1.item(row).checked = index == kTickAll;
  }
  form.Check1[at(index == kTickAll ? kTickNone : kTickAll)].setValue(0);
  makeWorkFiles();
}

void Form2Code::Label2_Click(int index) {
  const int box = kBoxOfLabel.at(at(index));
  if (box == kNone) return;
  CheckBox& check = form.Check1[at(box)];
  const int value = check.value();
  if (value == 0) check.setValue(1);
  if (value == 1) check.setValue(0);
}

void Form2Code::setBoxes(int first, int last, int value) {
  for (int i = first; i <= last; ++i) form.Check1[at(i)].setValue(value);
}

void Form2Code::setBoxes(std::initializer_list<int> indices, int value) {
  for (const int i : indices) form.Check1[at(i)].setValue(value);
}

// Wherever a panel was drawn, it is shown where the first one stands.
void Form2Code::showPanel(int number) {
  for (const int panel : kPanels) form.frame[at(panel)].visible = false;
  Frame& shown = form.frame[at(number)];
  shown.box.left = form.frame[kBrowsers].box.left;
  shown.box.top = form.frame[kBrowsers].box.top;
  shown.visible = true;
}

// The way between the panels of the form's first version: it knows three of
// them, and the Windows panel comes to where the first one was drawn.
void Form2Code::showFirstPanels(int shown, int hidden) {
  Frame& panel = form.frame[at(shown)];
  panel.box.left = form.frame[1].box.left;
  panel.box.top = form.frame[1].box.top;
  panel.visible = true;
  form.frame[at(hidden)].visible = false;
  form.frame[kApplications].visible = false;
}

void Form2Code::Toolbar1_ButtonClick(int index) {
  if (index == 7) return chameleonButton3_Click();
  showPanel(kPanelOfButton.at(at(index)));
}

void Form2Code::chameleonButton3_Click() {
  showPanel(kApplications);
  listPlugIns();
}

void Form2Code::openKeepList(std::string_view heading, std::string_view mode) {
  form.setTopmost(false);
  context_.host.openKeepList(heading, mode);
  form.setTopmost(true);
}

void Form2Code::chameleonButton4_Click() {
  context_.host.unload(form.name());
  if (context_.host.dialogMode() == "d") context_.host.endProcess();
}

}  // namespace tavr
