#include "tracks/temporary_files.h"

#include <string>

#include "basic/number.h"
#include "basic/resume_next.h"
#include "basic/text.h"
#include "services/file_properties.h"
#include "services/file_statements.h"
#include "services/settings_keys.h"
#include "tracks/primitives.h"

namespace tavr::temporary_files {

namespace {

constexpr std::uint32_t kArchive = 32;

// Overwrites and removes one cached file, `rounds` times over: the later rounds
// work on a file that is gone. `value` is the procedure's one text: a read that
// meets a number appends to it, and what the last read leaves decides about the
// rows behind this one.
void overwriteAndKill(TrackContext& context, const std::string& file, const std::string& rounds,
                      std::string& value) {
  ResumeNext on;
  double k = 1;
  do {
    context.machine.events.doEvents();
    context.registry.fGetString(Root::kLocalMachine, settings::kOptionsKeyOfCache, "3", value);
    if (Val(value) == 1) {
      context.registry.fGetString(Root::kLocalMachine, settings::kMainKeyOfCache, "secure_value",
                                  value);
      double m = 1;
      do {
        context.machine.events.doEvents();
        context.deletion.fOverwriteFile(file);
        m += 1;
      } while (m <= Val(value));
    }
    on.next([&] { Kill(context.machine, file); });
    k += 1;
  } while (k <= Val(rounds));
}

// The steps of a row that both share, up to its size.
double reportRow(TrackContext& context, const std::string& file, const RowForm& row,
                 std::initializer_list<std::string_view> values, clsFileProp& properties) {
  ResumeNext on;
  on.next([&] { SetAttr(context.machine, file, kArchive); });
  showRow(context, row, values);
  addTo(context.form.txtfilecount, 1);
  properties.FindFileInfo(Trim(file));
  return Val(properties.ByteSize());
}

}  // namespace

void c8(TrackContext& context, const Procedure& self) {
  Form1& form = context.form;
  form.List20.clear();
  context.cache.fListCacheFiles();
  const std::string mesg = LangText(context, "029");
  std::string rounds;
  std::string value;
  context.registry.fGetString(Root::kLocalMachine, settings::kMainKeyOfCache, "secure_value",
                              rounds);
  context.registry.fGetString(Root::kLocalMachine, settings::kMainKeyOfCache, "secure_clean",
                              value);
  clsFileProp properties(context.machine);
  double total = 0;
  int i = 0;
  do {
    context.machine.events.doEvents();
    // Under this name to its end: a run that starts in a pump fills the list anew,
    // also with names that are no files.
    const std::string file = form.List20.at(i);
    total += reportRow(context, file, self.rows[0], {mesg, file}, properties);
    if (Val(value) == 1) overwriteAndKill(context, file, rounds, value);
    form.List13.add("Removing : " + file);
    context.cache.fDeleteCacheEntry(form.List21.at(i));
    ++i;
    form.trackcount += 1;
  } while (i <= form.List20.count() - 1);
  addTo(form.txtfilesize, total);
}

void t8(TrackContext& context, const Procedure& self) {
  Form1& form = context.form;
  form.List20.clear();
  context.cache.fListCacheFiles();
  // Both are read, and of no further use here.
  context.registry.setting(settings::kMainKeyOfCache, "secure_value");
  context.registry.setting(settings::kMainKeyOfCacheTest, "secure_clean");
  clsFileProp properties(context.machine);
  double total = 0;
  int i = 0;
  do {
    context.machine.events.doEvents();
    if (form.stopflag == 1) break;
    const std::string file = form.List20.at(i);
    total += reportRow(context, file, self.rows[0], {file}, properties);
    form.List13.add("Removing : " + file);
    ++i;
    form.trackcount += 1;
  } while (i <= form.List20.count() - 1);
  addTo(form.txtfilesize, total);
}

}  // namespace tavr::temporary_files
