// The schedule panel of the options form, and the task that starts the program
// when somebody logs on.
#include <iterator>
#include <string>

#include "basic/number.h"
#include "basic/utf.h"
#include "config/form3_code.h"
#include "services/program_folder.h"
#include "services/settings_keys.h"

namespace tavr {

namespace {

constexpr int kHidden = 0;  // window style of a program
constexpr std::size_t kAtStartUp = 4;

}  // namespace

void Form3Code::connectSchedule() {
  for (OptionButton* option : form.options()) {
    option->onSelect = [this, option] {
      for (OptionButton* other : form.options()) {
        if (other != option) other->setValue(false);
      }
    };
  }
  for (std::size_t i = 0; i < form.intervals().size(); ++i) {
    Form3::CaretBox* const box = form.intervals().at(i);
    ScrollBar* const bar = form.scrollBars().at(i);
    box->onChange = [box] { box->caret = utf16Length(box->text()); };
    bar->onChange = [box, bar] { box->setText(numberText(bar->value())); };
  }
}

void Form3Code::readSchedule() {
  const double kind = Val(context_.registry.setting(settings::kTimerKey, "option"));
  const std::string value = context_.registry.setting(settings::kTimerKey, "value");
  for (std::size_t i = 0; i < form.options().size(); ++i) {
    if (kind != static_cast<double>(i + 1)) continue;
    form.options().at(i)->setValue(true);
    if (i < form.intervals().size()) {
      form.intervals().at(i)->setText(
          numberText(Val(value), context_.machine.locale.decimalSign()));
    }
  }
}

// Without a force switch a task that is there already stays as it is; the
// answer of neither is looked at.
void Form3Code::setLogOnTask(bool on) {
  Machine& machine = context_.machine;
  const std::string command =
      on ? "schtasks /create /SC ONLOGON /rl highest /tn \"Tavrwork Spoorwipe\" /tr \"'" +
               programFile(machine, "tavrwipe.exe") + " s'\""
         : "schtasks /Delete /TN \"Tavrwork Spoorwipe\" /F";
  machine.shell.run(command, kHidden);
}

ScheduleKind Form3Code::selectedKind() const {
  const OptionButton* const options[] = {&form.Option1, &form.Option2, &form.Option3, &form.Option4,
                                         &form.Option5};
  for (std::size_t i = 0; i < std::size(options); ++i) {
    if (options[i]->value()) return static_cast<ScheduleKind>(i + 1);
  }
  return ScheduleKind::kNone;
}

std::string Form3Code::selectedInterval(ScheduleKind kind) {
  if (kind == ScheduleKind::kNone) return "";
  return form.intervals().at(static_cast<std::size_t>(kind) - 1)->text();
}

void Form3Code::chameleonButton5_Click() {
  const RegistryLayer& registry = context_.registry;
  Locale& locale = context_.machine.locale;
  const LocalTime now = context_.machine.clock.now();
  const ScheduleKind kind = selectedKind();
  SavedSchedule saved = savedSchedule(locale, now, kind, selectedInterval(kind));
  registry.fDeleteValue("HKLM", settings::kRunKeyOfNt, settings::kRunValue);
  registry.fDeleteValue("HKLM", settings::kRunKey, settings::kRunValue);
  const int at_start_up = form.Check1[kAtStartUp].value();
  if (at_start_up == 1) {
    saveTimer("winstart", "1");
    saved.option = numberText(static_cast<int>(ScheduleKind::kWindowsStart));
    saved.value = "0";
  } else if (at_start_up == 0) {
    saveTimer("winstart", "0");
  }
  saveTimer("startdate", locale.shortDate(now));
  saveTimer("starttime", locale.longTime(now));
  saveTimer("option", saved.option);
  saveTimer("value", saved.value);
  saveTimer("min", numberText(now.minute));
  saveTimer("hour", numberText(now.hour));
  saveTimer("nextmin", saved.nextmin);
  for (const std::string_view name : {"nexthoure", "nextday", "nextweek", "nextmnth"}) {
    saveTimer(name, saved.slot);
  }
}

void Form3Code::saveTimer(std::string_view name, std::string_view text) {
  context_.registry.saveSetting(settings::kTimerKey, name, text);
}

}  // namespace tavr
