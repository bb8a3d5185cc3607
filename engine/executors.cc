#include "engine/executors.h"

#include <random>

#include "basic/number.h"
#include "basic/resume_next.h"
#include "basic/text.h"
#include "engine/plug_in_registry.h"
#include "engine/run_tables.h"
#include "services/file_properties.h"
#include "services/settings_keys.h"
#include "tracks/primitives.h"

namespace tavr {

namespace {

constexpr std::uint32_t kArchive = 32;
constexpr std::string_view kFileRow = "Plug In Application Files = ";
// A mask that matches nothing.
constexpr std::string_view kNoFileMask = "tvn.a";
constexpr std::string_view kStampMask =
    "010101010111111111111111111000000000000000000000000011111111111111111111011010101";
static_assert(kStampMask.size() == 81);
constexpr int kStampPositions = 6;

struct Totals {
  double filecount = 0;
  double filesize = 0;
};

// Writes the pattern over the head of a file: of the Cookies folder with the
// list box's name, not of the entry itself; the form's text boxes lag behind.
void stamp(Program& program) {
  ResumeNext on;
  const Form1& form = program.form;
  if (Val(program.registry.setting(settings::kOptionsKey, "3")) != 1) return;
  const double passes = Val(program.registry.setting(settings::kMainKey, "secure_value"));
  const int number = program.numbers.freeFile();
  const std::string path = std::string(Trim(form.Text3.text())) + "\\" + form.File1.fileName();
  std::uniform_int_distribution<int> position(1, kStampPositions);
  for (double pass = 1; pass <= passes; ++pass) {
    program.machine.events.doEvents();
    on.next([&] { program.numbers.open(number, path, OpenMode::kBinary); });
    std::minstd_rand random(static_cast<unsigned>(program.machine.clock.ticks()));
    on.next([&] { program.numbers.put(number, position(random), kStampMask); });
    on.next([&] { program.numbers.close(number); });
  }
}

// One file: marks cleared, reported, sized and counted; then removed, if so. The
// path is a copy: events that are served on the way may clear the lists.
void fileItem(Program& program, std::string path, bool remove, Totals& totals) {
  ResumeNext on;
  on.next([&] { SetAttr(program.machine, Trim(path), kArchive); });
  program.form.View200.addGhosted({kFileRow, path, " <OK>"});
  clsFileProp properties(program.machine);
  properties.FindFileInfo(path);
  totals.filesize += Val(properties.ByteSize());
  totals.filecount += 1;
  if (!remove) return;
  stamp(program);
  on.next([&] { Kill(program.machine, Trim(path)); });
}

void addFileCount(Program& program, double filecount) {
  addTo(program.form.txtfilecount, filecount);
  program.form.Label4.caption = program.form.txtfilecount.text();
}

void files(Program& program, bool remove, Totals& totals) {
  const int count = program.form.List7.count();
  if (count == 0) return;
  for (int i = 0; i < count; ++i) {
    program.machine.events.doEvents();
    fileItem(program, program.form.List7.at(i), remove, totals);
  }
  addFileCount(program, totals.filecount);
}

void folder(Program& program, int i, bool remove, Totals& totals) {
  ResumeNext on;
  Form1& form = program.form;
  const std::string path(Trim(form.List8.at(i)));
  const std::string mask(Trim(form.List9.at(i)));
  const double flag = Val(form.List10.at(i));
  totals.filecount = 0;
  if (flag == 0 || flag == 1) {
    on.next([&] { form.File1.setPath(path); });
    if (on.number() != 0) {
      form.File1.setPattern(kNoFileMask);
      return;
    }
  }
  // With another flag the box still stands in the previous folder.
  form.File1.setPattern(mask);
  const int count = form.File1.count();
  for (int k = 0; k < count; ++k) {
    form.File1.list_index = k;  // the file at hand is the box's current one
    fileItem(program, path + "\\" + form.File1.list(k), remove, totals);
  }
  addFileCount(program, totals.filecount);
  if (flag != 1) return;
  const auto search = remove ? srchd : srch;
  search(program.tracks, path, mask, std::string(kFileRow) + " <OK>");
  addFileCount(program, totals.filecount);  // the folder's own files once more
}

// The row of a ticked plug-in, which the rebuild has put into the table.
void markPlugInRow(Program& program, const std::string& text) {
  ListView& table = program.form.View100;
  for (int row = 1; row <= table.count(); ++row) {
    ListRow& item = table.item(row);
    const bool plug_in = item.small_icon == kPlugInIcon;
    if (plug_in && sameText(Trim(item.text), Trim(text))) item.small_icon = kReportIcon;
  }
}

void finishPlugInRows(Program& program) {
  ResumeNext on;
  ListView& table = program.form.View100;
  const int count = table.count();
  for (double i = Val(program.form.Text14.text()); i <= count; ++i) {
    program.machine.events.doEvents();
    on.next([&] { table.item(i).subItem(1).text = "Erasing"; });
    on.next([&] { table.item(i).small_icon = kReportIcon; });
    on.next([&] { table.item(i).subItem(1).text = "Done"; });
  }
}

void execute(Program& program, bool remove) {
  Form1& form = program.form;
  Totals totals;
  files(program, remove, totals);
  const int folders = form.List8.count();
  for (int i = 0; i < folders; ++i) {
    program.machine.events.doEvents();
    folder(program, i, remove, totals);
  }
  addTo(form.txtfilesize, totals.filesize);
  form.Label6.caption = form.txtfilesize.text();
  const int lines = form.List11.count();
  for (int i = 0; i < lines; ++i) {
    program.machine.events.doEvents();
    plugInRegistryLine(program, form.List11.at(i), remove);
  }
  finishPlugInRows(program);
}

}  // namespace

void Command400(Program& program) {
  program.plug_ins.listDefinitions();
  if (!program.plug_ins.hasSelection()) return;
  program.plug_ins.restoreTicks([&](const std::string& text) { markPlugInRow(program, text); });
  program.plug_ins.Command1();
  program.plug_ins.Command3();
}

void command2(Program& program) { execute(program, false); }

void Command4(Program& program) { execute(program, true); }

}  // namespace tavr
