#include "config/form3_code.h"

#include <string>

#include "basic/number.h"
#include "basic/resume_next.h"
#include "basic/text.h"
#include "config/language.h"
#include "config/look_color.h"
#include "services/program_folder.h"
#include "services/settings_keys.h"

namespace tavr {

namespace {

constexpr int kAtShutdown = 1;
constexpr int kSecureErasing = 3;
constexpr int kAtStartUp = 4;
constexpr int kStealth = 5;

constexpr std::string_view kHelpFile = "tavrwork-helpdoc.chm>sec";
constexpr std::uint32_t kHelpContext = 15;  // the command: open at a number
constexpr std::uint32_t kHelpOfOptions = 23;

// The form stands 200 twips below the middle of the screen, 15 to a pixel.
constexpr int kBelowMiddle = 200 / 15;

std::size_t at(int index) { return static_cast<std::size_t>(index); }

void toggle(CheckBox& box) {
  if (box.value() == 0) {
    box.setValue(1);
  } else if (box.value() == 1) {
    box.setValue(0);
  }
}

}  // namespace

Form3Code::Form3Code(FormContext& context) : form(context.machine.events), context_(context) {
  connectBoxes();
  connectPanels();
  connectSchedule();
  connectSaving();
}

void Form3Code::connectBoxes() {
  for (int i = 0; i < static_cast<int>(form.Check1.size()); ++i) {
    form.Check1[at(i)].onClick = [this, i] { Check1_Click(i); };
  }
  for (int i = 0; i < static_cast<int>(form.Label2.size()); ++i) {
    form.Label2[at(i)].onClick = [this, i] { Label2_Click(i); };
  }
  for (int i = 0; i < static_cast<int>(form.Label3.size()); ++i) {
    form.Label3[at(i)].onClick = [this, i] { Label3_Click(i); };
  }
}

void Form3Code::connectPanels() {
  form.chameleonButton3.onClick = [this] { showPanel(form.Frame3); };
  form.chameleonButton6.onClick = [this] { showPanel(form.Frame1); };
  form.chameleonButton7.onClick = [this] { showPanel(form.Frame2); };
  form.cmd_plugin.onClick = [this] { form.chameleonButton3.click(); };
  form.chameleonButton8.onClick = [this] { form.chameleonButton7.click(); };
  for (int i = 1; i < static_cast<int>(form.Toolbar1.size()); ++i) {
    form.Toolbar1[at(i)].onClick = [this, i] { Toolbar1_ButtonClick(i); };
  }
  form.Timer1.onTick = [this] { Timer1_Timer(); };
}

void Form3Code::connectSaving() {
  form.chameleonButton1.onClick = [this] {
    form.Text10.setText("about:blank");
    form.Text20.setText("");
  };
  form.chameleonButton2.onClick = [this] { chameleonButton2_Click(); };
  form.chameleonButton4.onClick = [this] { chameleonButton4_Click(); };
  form.chameleonButton5.onClick = [this] { chameleonButton5_Click(); };
  form.chameleonButton9.onClick = [this] { chameleonButton9_Click(); };
  form.chameleonButton19.onClick = [this] { form.chameleonButton4.click(); };
  form.chameleonButton32.onClick = [this] { chameleonButton32_Click(); };
}

void Form3Code::Form_Load() {
  takeLook();
  readStartPage();
  ResumeNext on;
  for (int i = 0; i < static_cast<int>(form.Check1.size()); ++i) {
    on.next([&] { readBox(i); });
  }
  readSchedule();
  fillCombos();
  form.Image1.file = "ImageList1(1)";
  form.Timer1.setEnabled(true);
}

void Form3Code::takeLook() {
  ResumeNext on;
  on.next([&] {
    const std::int32_t color = lookColor(context_.machine);
    form.back_color = color;
    form.has_look_color = true;
    form.chameleonButton32.color = color;
    form.chameleonButton32.hover_color = color;
  });
  context_.language.apply(form);
  form.topmost = true;
  const ScreenSize screen = context_.machine.desktop.screen();
  form.left = (screen.width - form.width) / 2;
  form.top = (screen.height - form.height) / 2 + kBelowMiddle;
}

void Form3Code::readStartPage() {
  const RegistryLayer& registry = context_.registry;
  std::string text;
  registry.fGetString(Root::kCurrentUser, settings::kBrowserKey, settings::kStartPage, text);
  form.Text10.setText(text);
  text.clear();
  registry.fGetString(Root::kCurrentUser, settings::kBrowserKey, settings::kWindowTitle, text);
  form.Text20.setText(text);
}

// A text that is no number, and a number that no box can have, leave the box as
// it is. A stored 1 or 2 turns the box, whose click stores the value again.
void Form3Code::readBox(int index) {
  const int value = toInteger(context_.registry.setting(settings::kOptionsKey, numberText(index)));
  if (value < 0 || value > 2) return;
  form.Check1[at(index)].setValue(value);
}

// A combo box takes any text: one that is not stored leaves it empty.
void Form3Code::fillCombos() {
  for (int passes = 1; passes <= 10; ++passes) form.Combo1.items.push_back(numberText(passes));
  form.Combo1.setText(form.Combo1.items.front());
  form.Combo1.setText(context_.registry.setting(settings::kMainKey, "secure_value"));
  for (char letter = 'A'; letter <= 'Z'; ++letter) form.Combo2.items.emplace_back(1, letter);
  form.Combo2.setText(form.Combo2.items.front());
  form.Combo2.setText(context_.registry.setting(settings::kMainKey, "key"));
}

void Form3Code::Check1_Click(int index) {
  const int value = form.Check1[at(index)].value();
  context_.registry.saveSetting(settings::kOptionsKey, numberText(index), numberText(value));
  if (index == kAtStartUp && value != 2) setLogOnTask(value == 1);
}

void Form3Code::Label2_Click(int index) {
  if (index == 16) toggle(form.Check1[kStealth]);
  if (index == 18) toggle(form.Check1[kSecureErasing]);
}

void Form3Code::Label3_Click(int index) {
  if (index == 1) toggle(form.Check1[kAtShutdown]);
  if (index == 2) toggle(form.Check1[kAtStartUp]);
}

void Form3Code::Toolbar1_ButtonClick(int index) {
  if (index == 1) form.chameleonButton3.click();
  if (index == 2) form.chameleonButton6.click();
  if (index == 3) form.chameleonButton7.click();
  if (index == 5) openHelp();
  if (index == 6) form.chameleonButton4.click();
}

void Form3Code::openHelp() {
  context_.machine.shell.htmlHelp(programFile(context_.machine, kHelpFile), kHelpContext,
                                  kHelpOfOptions);
}

void Form3Code::showPanel(Frame& shown) {
  for (Frame* panel : {&form.Frame1, &form.Frame2, &form.Frame3}) panel->visible = panel == &shown;
  shown.box.left = form.Frame3.box.left;
  shown.box.top = form.Frame3.box.top;
}

void Form3Code::chameleonButton2_Click() {
  const RegistryLayer& registry = context_.registry;
  const std::string_view page = Trim(form.Text10.text());
  const std::string_view title = Trim(form.Text20.text());
  registry.fSaveString(Root::kCurrentUser, settings::kBrowserKey, settings::kStartPage, page);
  registry.fSaveString(Root::kCurrentUser, settings::kBrowserKey, settings::kWindowTitle, title);
  registry.saveSetting(settings::kMainKey, "homepage", page);
  registry.saveSetting(settings::kMainKey, "titlepage", title);
}

void Form3Code::chameleonButton9_Click() {
  const RegistryLayer& registry = context_.registry;
  registry.saveSetting(settings::kMainKey, "secure_value", Trim(form.Combo1.text()));
  registry.saveSetting(settings::kMainKey, "key", Trim(form.Combo2.text()));
}

void Form3Code::pressSaveButtons() {
  form.chameleonButton9.click();
  form.chameleonButton2.click();
  form.chameleonButton5.click();
}

void Form3Code::chameleonButton4_Click() {
  pressSaveButtons();
  context_.host.unload(form.name());
}

void Form3Code::chameleonButton32_Click() {
  pressSaveButtons();
  form.shadow = false;
  context_.host.detachShadow(form.name());
  context_.host.unload(form.name());
}

void Form3Code::Timer1_Timer() { form.shadow = true; }

}  // namespace tavr
