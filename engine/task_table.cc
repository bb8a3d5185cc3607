#include "engine/task_table.h"

#include "basic/number.h"
#include "basic/resume_next.h"
#include "basic/text.h"
#include "engine/run_tables.h"
#include "services/program_folder.h"
#include "services/settings_keys.h"

namespace tavr {

namespace {

// The selected plug-ins, one row each. A missing file adds none: its length
// cannot be read, which counts as met, and then it cannot be opened either.
void addPlugInRows(Program& program) {
  ResumeNext on;
  const std::string path = programFile(program.machine, "slectplg.cln");
  if (!on.met([&] { return FileLen(program.machine, path) > 0; })) return;
  forEachLine(program.numbers, path, [&](const std::string& line) {
    if (!Trim(line).empty()) program.form.View100.add(line, kPlugInIcon);
  });
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
