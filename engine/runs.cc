#include "engine/runs.h"

#include <array>

#include "basic/number.h"
#include "basic/resume_next.h"
#include "engine/counters.h"
#include "engine/erase_log.h"
#include "engine/executors.h"
#include "engine/run_tables.h"
#include "services/running_browsers.h"
#include "services/settings_keys.h"
#include "tracks/catalogue.h"
#include "tracks/primitives.h"

namespace tavr {

namespace {

constexpr std::string_view kInProgress = "Test Erasing";
constexpr std::string_view kFinished = "Finished";
// System modal, question mark, Yes and No.
constexpr std::uint32_t kPromptFlags = 0x1024;
constexpr int kStepProgress = 5;

using Selections = std::array<std::string, std::size(kBrowserValues)>;

void setStatus(Form1& form, std::string_view status) {
  ResumeNext on;
  on.next([&] { form.View100.item(form.taskrow).subItem(1).text = status; });
}

void finishRow(Form1& form) {
  ResumeNext on;
  on.next([&] {
    ListCell& cell = form.View100.item(form.taskrow).subItem(1);
    cell.text = kFinished;
    cell.report_icon = kReportIcon;
  });
}

void addTaskTotals(Form1& form) {
  addTo(form.txtfilecount, form.trackcount);
  addTo(form.txtfilesize, form.tracksize);
}

void setCommands(Form1& form, bool enabled) {
  for (Button* button : {&form.cmd_settings, &form.cmd_option, &form.cmd_plugin, &form.cmd_test,
                         &form.cmd_start, &form.cmd_view, &form.cmd_clear}) {
    button->enabled = enabled;
  }
  form.cmd_stop.enabled = !enabled;
}

Selections readSelections(Program& program) {
  Selections selections;
  for (std::size_t i = 0; i < selections.size(); ++i) {
    selections[i] = Str(Val(program.registry.setting(settings::kSelectionKey, kBrowserValues[i])));
  }
  return selections;
}

Selections startRun(Program& program) {
  Form1& form = program.form;
  form.stopflag = 0;
  form.Timer2.setEnabled(true);
  form.bar1.setVisible(true);
  form.Label1[0].visible = true;
  form.Label2.caption = form.Label4.caption = form.Label6.caption = "0";
  form.View1.clear();
  form.Text4.setText("");
  form.Text4.setText("1");
  form.View200.clear();
  form.txtregcount.setText("0");
  form.txtfilecount.setText("0");
  form.txtfilesize.setText("0");
  form.taskrow = 1;
  form.bar1.setMax(100);
  form.bar1.setValue(0);
  return readSelections(program);
}

// A procedure that fails is abandoned, and the run goes on behind its call.
void runProcedure(Program& program, std::string_view name) {
  ResumeNext on;
  if (!name.empty()) on.next([&] { callProcedure(program.tracks, name); });
}

void windowsStep(Program& program, const WindowsStep& step, RunKind kind) {
  Form1& form = program.form;
  if (Val(program.registry.setting(settings::kSelectionKey, step.value)) == 1) {
    setStatus(form, kInProgress);
    form.trackcount = 0;
    form.tracksize = 0;
    runProcedure(program, kind == RunKind::erase ? step.clean : step.test);
    finishRow(form);
    setCount(program.tracks, step.count == StepCount::one ? "1" : numberText(form.trackcount));
    if (step.count == StepCount::trackcountAndTotals) addTaskTotals(form);
    form.taskrow += 1;
  }
  form.bar1.setValue(form.bar1.value() + kStepProgress);
}

int prompt(Program& program, const BrowserGroup& group) {
  return program.machine.dialogs.messageBox(group.prompt, kPromptFlags, "confirmation");
}

// Asks about a running browser; true when the group's procedures are to be
// skipped. Two tests: with a parent, and interactively. Where neither can be met
// the processes are not looked at, which would be much of an unattended start.
bool browserIsKept(Program& program, const BrowserGroup& group) {
  int answer = kAnswerNo;
  bool skip = false;
  const bool asks = program.form.parentMode > 0 || program.form.unattended == 0;
  const auto runs = [&] { return asks && pid(program.machine, group.process).value_or(0) > 0; };
  if (runs() && program.form.parentMode > 0) {
    answer = prompt(program, group);
    skip = true;
  }
  if (runs() && program.form.unattended == 0) {
    answer = prompt(program, group);
    skip = true;
  }
  setStatus(program.form, kInProgress);
  program.form.trackcount = 0;
  program.form.tracksize = 0;
  if (answer == kAnswerYes) {
    fCloseByList(program.machine, group.process);
    fCloseByWmi(program.machine, group.wmi_process);
    skip = false;
  }
  return skip;
}

void browserGroup(Program& program, const BrowserGroup& group, const Selections& selections,
                  RunKind kind) {
  Form1& form = program.form;
  const auto& procedures = kind == RunKind::erase ? group.clean : group.test;
  if (!browserIsKept(program, group)) {
    for (std::size_t i = 0; i < selections.size(); ++i) {
      // No Internet Explorer track belongs to the third selection; Firefox's
      // fourth has no test, and then only the status is set.
      if (group.clean[i].empty() || Val(selections[i]) != 1) continue;
      setStatus(form, kInProgress);
      runProcedure(program, procedures[i]);
    }
  }
  finishRow(form);
  setCount(program.tracks, numberText(form.trackcount));
  addTaskTotals(form);
  form.taskrow += 1;
}

void walkCatalogue(Program& program, const Selections& selections, RunKind kind) {
  for (const WindowsStep& step : kWindowsSteps) windowsStep(program, step, kind);
  program.form.bar1.setValue(program.form.bar1.value() + kStepProgress);
  for (const BrowserGroup& group : kBrowserGroups) {
    browserGroup(program, group, selections, kind);
  }
}

void plugInPhase(Program& program) {
  Form1& form = program.form;
  form.bar1.setValue(85);
  form.Text14.setText(numberText(form.taskrow));
  form.bar1.setValue(100);
  Command400(program);
  command2(program);
  form.bar1.setValue(100);
  showTotals(program);
  if (Val(program.registry.setting(settings::kOptionsKey, "6")) != 1) appendEraseLog(program);
}

void endRun(Program& program, RunKind kind) {
  Form1& form = program.form;
  form.Text10.setText("0");
  form.bar1.setValue(0);
  form.bar1.setVisible(false);
  form.Label1[0].visible = false;
  form.Timer2.setEnabled(false);
  setCommands(form, true);
  if (program.onRunFinished) program.onRunFinished(kind);
}

}  // namespace

void eraseRun(Program& program) {
  const Selections selections = startRun(program);
  walkCatalogue(program, selections, RunKind::erase);
  plugInPhase(program);
  updateStatistics(program);
  endRun(program, RunKind::erase);
  const bool caller_waits = program.form.resultMode == 2 || program.form.parentMode > 0;
  if (!caller_waits) return;
  writeResultFile(program);
  throw ProcessEnd{};
}

void testRun(Program& program) {
  const Selections selections = startRun(program);
  walkCatalogue(program, selections, RunKind::test);
  // Before the plug-in phase: these totals lack the plug-ins.
  if (program.form.resultMode == 2) writeResultFile(program);
  if (program.form.parentMode > 0) {
    writeResultFile(program);
    writeResultRows(program);
  }
  plugInPhase(program);
  endRun(program, RunKind::test);
}

void cmd_start_Click(Program& program) {
  Form1& form = program.form;
  form.stopflag = 0;
  form.cmd_stop.enabled = true;
  form.Gif89a1.visible = true;
  eraseRun(program);
  form.Gif89a1.visible = false;
}

void cmd_test_Click(Program& program) {
  Form1& form = program.form;
  form.stopflag = 0;
  form.Text4.setText("");
  form.Text4.setText("1");
  setCommands(form, false);
  form.Gif89a1.visible = true;
  testRun(program);
  form.Gif89a1.visible = false;
  setCommands(form, true);
}

void cmd_stop_Click(Program& program) {
  Form1& form = program.form;
  form.stopflag = 1;
  form.Gif89a1.visible = false;
  setCommands(form, true);
  form.bar1.setVisible(false);
  form.Label1[0].visible = false;
}

void Text5_Change(Program& program) {
  if (Val(program.form.Text5.text()) == 1) testRun(program);
  if (Val(program.form.Text5.text()) == 2) eraseRun(program);
}

}  // namespace tavr
