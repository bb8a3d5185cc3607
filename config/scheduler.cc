#include "config/scheduler.h"

#include <string>
#include <string_view>

#include "basic/number.h"
#include "basic/resume_next.h"
#include "basic/text.h"
#include "config/dates.h"
#include "config/schedule.h"
#include "services/settings_keys.h"
#include "tracks/primitives.h"

namespace tavr {

namespace {

constexpr std::uint32_t kYesNoWarning = 52;  // style of the message box

std::string timerSetting(const FormContext& context, std::string_view name) {
  return context.registry.setting(settings::kTimerKey, name);
}

void saveTimer(const FormContext& context, std::string_view name, std::string_view text) {
  context.registry.saveSetting(settings::kTimerKey, name, text);
}

std::string browserSetting(const FormContext& context, std::string_view name) {
  std::string text;
  context.registry.fGetString(Root::kCurrentUser, settings::kBrowserKey, name, text);
  return text;
}

bool differs(std::string_view a, std::string_view b) { return LCase(Trim(a)) != LCase(Trim(b)); }

// The person takes the new page: from now on it is the one that is held.
void acceptPage(FormContext& context) {
  Form1& form = context.host.form1();
  const std::string page = browserSetting(context, settings::kStartPage);
  const std::string title = browserSetting(context, settings::kWindowTitle);
  context.registry.saveSetting(settings::kMainKey, "homepage", page);
  context.registry.saveSetting(settings::kMainKey, "titlepage", title);
  form.Text12.setText(Trim(page));
  form.Text13.setText(Trim(title));
}

void restorePage(FormContext& context) {
  const Form1& form = context.host.form1();
  context.registry.fSaveString(Root::kCurrentUser, settings::kBrowserKey, settings::kStartPage,
                               Trim(form.Text12.text()));
  context.registry.fSaveString(Root::kCurrentUser, settings::kBrowserKey, settings::kWindowTitle,
                               Trim(form.Text13.text()));
}

void protectHomePage(FormContext& context) {
  if (Val(context.registry.setting(settings::kMainKey, "protect_home")) != 1) return;
  const Form1& form = context.host.form1();
  const std::string page = browserSetting(context, settings::kStartPage);
  const std::string title = browserSetting(context, settings::kWindowTitle);
  if (!differs(page, form.Text12.text()) && !differs(title, form.Text13.text())) return;
  const std::string first = LangText(context.tracks, "016");
  const std::string second = LangText(context.tracks, "016");
  const int answer = context.machine.dialogs.messageBox(first + "\r" + second, kYesNoWarning, "");
  if (answer == kAnswerNo) {
    acceptPage(context);
  } else {
    restorePage(context);
  }
}

// A text that is no date leaves the date of an earlier tick; one that was never
// set is day 0, long past.
void readDate(FormContext& context, std::string_view name) {
  ResumeNext on;
  on.next([&] {
    context.host.form1().next_date = toDate(context.machine.locale, timerSetting(context, name));
  });
}

// Fills the working boxes from the settings; the kind stands in Text7.
void readSchedule(FormContext& context) {
  Form1& form = context.host.form1();
  timerSetting(context, "whattodo");  // read, and nothing asks for it
  form.Text7.setText(numberText(Val(timerSetting(context, "option"))));
  const double kind = Val(form.Text7.text());
  if (kind == 1) {
    const std::string minute = timerSetting(context, "nextmin");
    form.Text8.setText(timerSetting(context, "nexthoure"));
    form.Text9.setText(minute);
  } else if (kind == 2) {
    form.Text8.setText(timerSetting(context, "nexthoure"));
    form.Text9.setText(timerSetting(context, "min"));
  } else if (kind == 3) {
    readDate(context, "nextday");
  } else if (kind == 4) {
    readDate(context, "nextweek");
  } else if (kind == 5) {
    readDate(context, "nextmnth");
  } else if (kind == 6) {
    form.Text8.setText("now");
  }
}

void startRun(FormContext& context) {
  Form1& form = context.host.form1();
  saveTimer(context, "finish", "0");
  form.Text5.setText("");
  form.Text5.setText("2");
}

// For hours as for minutes the next time is a matter of minutes. An hours
// schedule asks for `min`, which stays: it fires at every tick of its minute,
// and from then on in the hour that is written here.
void fireAtMinute(FormContext& context, const LocalTime& now) {
  saveTimer(context, "cncl", "0");
  const double interval = Val(timerSetting(context, "value"));
  const ClockMinute next = afterMinutes(interval, now.hour, now.minute);
  const char decimal = context.machine.locale.decimalSign();
  saveTimer(context, "nextmin", numberText(next.minute, decimal));
  saveTimer(context, "nexthoure", numberText(next.hour, decimal));
  startRun(context);
}

void fireOnDate(FormContext& context, ScheduleKind kind, DateNumber today) {
  const std::string_view name = kind == ScheduleKind::kDays    ? "nextday"
                                : kind == ScheduleKind::kWeeks ? "nextweek"
                                                               : "nextmnth";
  if (kind == ScheduleKind::kDays) saveTimer(context, "cncl", "0");
  const double interval = Val(timerSetting(context, "value"));
  ResumeNext on;
  on.next([&] {
    const DateNumber next = addDays(today, interval * daysOf(kind));
    saveTimer(context, name, dateText(context.machine.locale, next));
  });
  startRun(context);
}

}  // namespace

void Timer1_Timer(FormContext& context) {
  if (Val(timerSetting(context, "runtype")) == 1) return;
  protectHomePage(context);
  readSchedule(context);
  const Form1& form = context.host.form1();
  const LocalTime now = context.machine.clock.now();
  const double kind = Val(form.Text7.text());
  if (kind == 1 || kind == 2) {
    if (now.minute == Val(form.Text9.text()) && now.hour == Val(form.Text8.text())) {
      fireAtMinute(context, now);
    }
    return;
  }
  const DateNumber today = dateOf(now);
  if (form.next_date - today > 0) return;
  if (kind == 3) fireOnDate(context, ScheduleKind::kDays, today);
  if (kind == 4) fireOnDate(context, ScheduleKind::kWeeks, today);
  if (kind == 5) fireOnDate(context, ScheduleKind::kMonths, today);
}

}  // namespace tavr
