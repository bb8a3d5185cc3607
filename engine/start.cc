#include "engine/start.h"

#include <vector>

#include "basic/like.h"
#include "basic/number.h"
#include "basic/resume_next.h"
#include "basic/text.h"
#include "config/look_color.h"
#include "engine/runs.h"
#include "engine/task_table.h"
#include "engine/window.h"
#include "services/access.h"
#include "services/program_folder.h"
#include "services/settings_keys.h"

namespace tavr {

namespace {

// Reading an element that is not there raises, and inside a test that counts as
// met: a line without a second word behaves as if the second word had matched.
const std::string& element(const std::vector<std::string>& words, std::size_t index) {
  if (index >= words.size()) throw RuntimeError{kErrSubscript, "Subscript out of range"};
  return words[index];
}

// The configured colour of the title strip; a text that is no number leaves the
// colours of the design. An unattended start ends without having shown the form:
// without a parent, waking WMI for a colour that nobody sees would be much of it.
// With one, WMI is asked for running browsers anyway.
void colorTitleStrip(Program& program) {
  Form1& form = program.form;
  if (form.unattended == 1 && form.parentMode == 0) return;
  ResumeNext on;
  on.next([&] {
    const std::int32_t color = lookColor(program.machine);
    form.strip_color = color;
    form.has_look_color = true;
    for (StripButton* button : {&form.chameleonButton9, &form.chameleonButton10,
                                &form.chameleonButton12, &form.chameleonButton13}) {
      button->color = color;
      button->hover_color = color;
    }
  });
}

// A task table of fewer than two rows means that it could not be built: the
// Windows tracks are then chosen. The ten browser rows keep that from happening.
void chooseDefaults(Program& program) {
  Form1& form = program.form;
  if (form.View100.count() >= 2 || form.unattended != 1) return;
  for (int value = 8; value <= 13; ++value) {
    program.registry.saveSetting(settings::kSelectionKey, numberText(value), "1");
  }
  form.Text4.setText("");
  form.Text4.setText("1");
}

// Two separate tests, not alternatives: without a mode of its own the line runs
// Test and then Erase.
void runUnattended(Program& program) {
  Form1& form = program.form;
  form.visible = false;
  if (form.parentMode == 0) {
    if (form.resultMode == 1) {
      form.chameleonButton5.click();
    } else {
      form.chameleonButton6.click();
    }
  }
  if (form.resultMode == 0) {
    if (form.parentMode == 1) {
      form.chameleonButton6.click();
    } else {
      form.chameleonButton5.click();
    }
  }
  program.registry.saveSetting(settings::kLiveKey, "ic", "1");
  throw ProcessEnd{};
}

void centre(Program& program) {
  const ScreenSize screen = program.machine.desktop.screen();
  program.form.left = (screen.width - program.form.width) / 2;
  program.form.top = (screen.height - program.form.height) / 2;
}

void readTexts(Program& program) {
  Form1& form = program.form;
  const std::string language = program.registry.setting(settings::kMainKey, "language");
  form.txtlang.setText(Trim(language).empty() ? "english.ini" : language);
  form.txtlang.setText(Trim(std::string(form.txtlang.text())));
  centre(program);
  form.Text12.setText(Trim(program.registry.setting(settings::kMainKey, "homepage")));
  form.Text13.setText(program.registry.setting(settings::kMainKey, "titlepage"));
}

// The log-on start asks for an Erase of its own.
void runAtWindowsStart(Program& program) {
  Form1& form = program.form;
  const double asked = Val(program.registry.setting(settings::kTimerKey, "winstart"));
  if (asked != 1 || Trim(form.Text11.text()) != "s") return;
  form.Text5.setText("0");
  form.Text5.setText("2");
}

// The very first start leads to the settings.
void openSettingsOnFirstStart(Program& program) {
  Form1& form = program.form;
  if (Val(program.registry.setting(settings::kFirstTimeKey, "firsttime")) != 0) return;
  if (form.unattended != 0) return;
  program.desk.openSettings();
  program.registry.saveSetting(settings::kFirstTimeKey, "firsttime", "1");
}

void loadInteractive(Program& program) {
  Form1& form = program.form;
  readTexts(program);
  runAtWindowsStart(program);
  Command5_Click(program);
  installHotKey(program);
  Command6_Click(program);
  if (form.unattended == 5) {
    form.chameleonButton7.click();
    form.visible = false;
  }
  openSettingsOnFirstStart(program);
  // The showing of the form, which follows its loading, raises these two.
  Form_Resize(program);
  if (form.visible) Form_Activate(program);
}

}  // namespace

void Form_Initialize(Program& program, std::string_view command) {
  Form1& form = program.form;
  const std::string line(Trim(LCase(command)));
  form.hasArguments = !line.empty();
  if (!form.hasArguments) return;
  ResumeNext on;
  const std::vector<std::string> words = Split(line, '-');
  const auto first = [&](std::string_view word) {
    return on.met([&] { return element(words, 0) == word; });
  };
  const auto second = [&](std::string_view word) {
    return on.met([&] { return element(words, 1) == word; });
  };
  if (first("w4")) {
    form.unattended = 1;
    form.parentMode = second("c4") ? 2 : 1;
    return;
  }
  if (on.met([&] { return Like(element(words, 0), "t"); })) {
    form.unattended = 1;
    if (second("c")) form.resultMode = 1;
    form.visible = false;
  }
  if (line == "d") {
    form.unattended = 5;
    form.dialog_mode = "d";
  }
  if (first("w2")) {
    form.unattended = 1;
    if (second("c2")) form.resultMode = 2;
  } else if (first("w3")) {
    form.unattended = 1;
    if (second("c3")) {
      form.resultMode = 2;
      form.hideOnLoad = 1;
    }
  } else if (line == "s") {
    form.window_state = WindowState::kMinimised;
    form.Text11.setText("s");
  }
}

void Form_Load(Program& program) {
  Form1& form = program.form;
  form.Timer1.setEnabled(true);
  program.desk.loadLanguages();
  colorTitleStrip(program);
  if (form.hideOnLoad == 1) form.visible = false;
  program.directory_search.found = [&form](const std::string& name, const std::string&) {
    search_found(form.List6, name);
  };
  form.stopflag = 0;
  form.Gif89a1.file = programFile(program.machine, "search.gif");
  form.Label222.caption = numberText(program.machine.clock.now().year);
  // The columns are no buttons: nothing sorts by them.
  for (ListHeader* header : {&form.View100.header, &form.View200.header}) {
    header->style ^= ListHeader::kButtons;
  }
  form.grant_failed = !GrantKeyAccess(program.machine, Root::kLocalMachine, settings::kSelectionKey,
                                      program.machine.environment.get("UserName"));
  form.Text4.setText("1");
  chooseDefaults(program);
  if (form.unattended == 1) runUnattended(program);
  loadInteractive(program);
}

void Text15_Change(Program& program) {
  Form1& form = program.form;
  if (form.resultMode == 1) {
    form.chameleonButton5.click();
  } else {
    form.chameleonButton6.click();
  }
  program.registry.saveSetting(settings::kWizardStatisticsKey, "rcount", form.txtregcount.text());
  program.registry.saveSetting(settings::kWizardStatisticsKey, "count", form.txtfilecount.text());
  program.registry.saveSetting(settings::kWizardStatisticsKey, "size", form.txtfilesize.text());
  program.registry.saveSetting(settings::kLiveKey, "ic", "1");
  throw ProcessEnd{};
}

}  // namespace tavr
