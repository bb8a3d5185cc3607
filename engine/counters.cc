#include "engine/counters.h"

#include "basic/number.h"
#include "basic/resume_next.h"
#include "services/program_folder.h"
#include "services/settings_keys.h"

namespace tavr {

namespace {

constexpr int kNumber = 1;
constexpr double kKilobyte = 1024;
constexpr double kMegabyte = 1048576;
constexpr double kKilobytesShown = 1000;

double total(const TextBox& box) { return Val(box.text()); }

}  // namespace

std::string displaySize(double bytes, char decimal) {
  std::string text;
  // Two tests, not an alternative: 1000 on the one side, 1024 as the divisor.
  if (bytes / kKilobyte < kKilobytesShown) {
    text = formatThousandths(bytes / kKilobyte, decimal) + " KB";
  }
  if (bytes / kKilobyte >= kKilobytesShown) {
    text = formatThousandths(bytes / kMegabyte, decimal) + " MB";
  }
  return text;
}

void showTotals(Program& program) {
  Form1& form = program.form;
  form.Label2.caption = form.txtregcount.text();
  form.Label4.caption = form.txtfilecount.text();
  form.Label6.caption = displaySize(total(form.txtfilesize), program.machine.locale.decimalSign());
}

void Timer2_Timer(Program& program) {
  Form1& form = program.form;
  form.Label2.caption = numberText(total(form.txtregcount));
  form.Label4.caption = numberText(total(form.txtfilecount));
  form.Label6.caption = displaySize(total(form.txtfilesize), program.machine.locale.decimalSign());
  program.registry.saveSetting(settings::kLiveFiguresKey, "tracks-reg-count",
                               form.txtregcount.text());
  program.registry.saveSetting(settings::kLiveFiguresKey, "tracks-file-count",
                               form.txtfilecount.text());
  program.registry.saveSetting(settings::kLiveFiguresKey, "tracks-size-count", form.Label6.caption);
}

void updateStatistics(Program& program) {
  const Form1& form = program.form;
  const char decimal = program.machine.locale.decimalSign();
  const auto read = [&](std::string_view name, std::string& v) {
    program.registry.fGetString(Root::kLocalMachine, settings::kStatisticsKey, name, v);
  };
  std::string v;  // one text throughout: a value that is no text leaves it as it was
  read("rcount", v);
  v = numberText(Val(v) + Val(form.Label2.caption), decimal);
  program.registry.saveSetting(settings::kStatisticsKey, "rcount", v);
  read("count", v);
  v = numberText(Val(v) + Val(form.Label4.caption), decimal);
  program.registry.saveSetting(settings::kStatisticsKey, "count", v);
  program.registry.saveSetting(settings::kStatisticsKey, "size", v);
  v = numberText(Val(v) + total(form.txtfilesize) / kKilobyte, decimal);
  program.registry.saveSetting(settings::kStatisticsKey, "size", v);
}

void writeResultFile(Program& program) {
  ResumeNext on;
  const Form1& form = program.form;
  const std::string line = numberText(total(form.txtfilecount) + total(form.txtregcount)) + "|" +
                           numberText(total(form.txtfilesize));
  on.next([&] {
    program.numbers.open(kNumber, programFile(program.machine, "eresst.txt"), OpenMode::kOutput);
  });
  on.next([&] { program.numbers.print(kNumber, line); });
  on.next([&] { program.numbers.close(kNumber); });
}

void writeResultRows(Program& program) {
  ResumeNext on;
  on.next([&] {
    program.numbers.open(kNumber, programFile(program.machine, "eresetmp.txt"), OpenMode::kOutput);
  });
  for (int row = 1; row <= program.form.View1.count(); ++row) {
    on.next([&] {
      program.numbers.print(kNumber, program.form.View200.text(static_cast<std::size_t>(row)));
    });
  }
  on.next([&] { program.numbers.close(kNumber); });
}

void txtfilecount_Change(Program& program) {
  const Form1& form = program.form;
  if (form.parentMode <= 0) return;
  program.parent_totals.send("t|" + numberText(total(form.txtregcount) + total(form.txtfilecount)) +
                             "|" + form.txtfilesize.text());
}

}  // namespace tavr
