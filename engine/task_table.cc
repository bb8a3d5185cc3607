#include "engine/task_table.h"

#include "basic/number.h"
#include "basic/resume_next.h"
#include "basic/text.h"
#include "engine/run_tables.h"
#include "services/settings_keys.h"

namespace tavr {

namespace {

// The selected plug-ins, one row each. A missing file adds none: its length
// cannot be read, which counts as met, and then it cannot be opened either.
void addPlugInRows(Program& program) {
  ResumeNext on;
  const std::string path = program.file("slectplg.cln");
  if (!on.met([&] { return FileLen(program.machine, path) > 0; })) return;
  const int number = program.numbers.freeFile();
  on.next([&] {
    program.numbers.open(number, path, OpenMode::kInput);
    while (!program.numbers.eof(number)) {
      const std::string line = program.numbers.lineInput(number);
      if (!Trim(line).empty()) program.form.View100.add(line, kPlugInIcon);
    }
  });
  on.next([&] { program.numbers.close(number); });
}

}  // namespace

void Text4_Change(Program& program) {
  if (Val(program.form.Text4.text()) != 1) return;
  ListView& table = program.form.View100;
  table.clear();
  for (const TaskRow& row : kTaskRows) {
    const bool shown =
        row.value.empty() || Val(program.registry.setting(settings::kSelectionKey, row.value)) == 1;
    if (shown) table.add(row.label, row.icon);
  }
  addPlugInRows(program);
}

}  // namespace tavr
