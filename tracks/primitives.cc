#include "tracks/primitives.h"

#include "basic/number.h"
#include "basic/resume_next.h"
#include "basic/text.h"
#include "services/access.h"
#include "services/search.h"

namespace tavr {

namespace {

// Adds the row, the count before this file, and the size, in this order: the
// number in the task row lags one behind, and the run writes the final one.
void report(TrackContext& context, const Search& search, std::size_t index, std::string& name,
            std::string_view label) {
  search.found().fullName(index, name);
  context.form.View200.add({name, " ", label});
  setCount(context, numberText(context.form.trackcount));
  context.form.tracksize += search.found().size(index);
}

bool stopped(const TrackContext& context) { return context.form.stopflag == 1; }

bool pending(const TrackContext& context, std::string_view name) {
  return InStr(context.form.Text16.text(), LCase(name)) != 0;
}

// The test of what remains asks about a row of the plug-in list that is never
// named: reading it fails, the test counts as met, for every file.
bool remainsByName(TrackContext& context, std::string_view name) {
  return context.deletion.fFileRemains(name) && InStr(context.form.Text15.text(), LCase(name)) == 0;
}

constexpr int kRowNeverAssigned = 0;

}  // namespace

void srch(TrackContext& context, std::string_view path, std::string_view pattern,
          std::string_view label) {
  Search search(context.machine, context.call_stack);
  search.SearchFiles(path, pattern, true);
  std::string name;
  for (std::size_t i = 1; i <= search.found().count(); ++i) {
    context.machine.events.doEvents();
    report(context, search, i, name, label);
    if (stopped(context)) break;
    context.form.trackcount += 1;
  }
}

void srchd(TrackContext& context, std::string_view path, std::string_view pattern,
           std::string_view label) {
  context.form.file_system_object.emplace();
  Search search(context.machine, context.call_stack);
  search.SearchFiles(path, pattern, true);
  std::string name;
  for (std::size_t i = 1; i <= search.found().count(); ++i) {
    context.machine.events.doEvents();
    report(context, search, i, name, label);
    if (stopped(context)) return;  // the object stays set
    context.form.trackcount += 1;
    context.deletion.DeleteAFile(name);
  }
  context.form.file_system_object.reset();
}

void srch2(TrackContext& context, std::string_view path, std::string_view pattern,
           std::string_view label) {
  context.deletion.pndtxt();
  Search search(context.machine, context.call_stack);
  search.SearchFiles(path, pattern, true);
  std::string name;
  for (std::size_t i = 1; i <= search.found().count(); ++i) {
    context.machine.events.doEvents();
    if (stopped(context)) break;
    search.found().fullName(i, name);
    if (pending(context, name)) continue;
    report(context, search, i, name, label);
    context.form.trackcount += 1;
  }
}

void srchd2(TrackContext& context, std::string_view path, std::string_view pattern,
            std::string_view label) {
  ResumeNext on;
  context.form.file_system_object.emplace();
  Search search(context.machine, context.call_stack);
  search.SearchFiles(path, pattern, true);
  context.deletion.pndtxt();
  bool queued = false;
  std::string name;
  const auto row = [&] { return context.form.View1.item(kRowNeverAssigned).text; };
  for (std::size_t i = 1; i <= search.found().count(); ++i) {
    context.machine.events.doEvents();
    if (stopped(context)) return;  // the object stays set, nothing is saved
    search.found().fullName(i, name);
    if (pending(context, name)) continue;
    report(context, search, i, name, label);
    context.form.trackcount += 1;
    context.deletion.DeleteAFile(name);
    if (on.met([&] { return remainsByName(context, row()); })) {
      context.deletion.queuePending([&] { return "\\??\\" + row(); });
      queued = true;
    }
  }
  if (queued) context.deletion.savepending();
  context.form.file_system_object.reset();
}

void runEntry(TrackContext& context, const Entry& entry, std::string_view folder) {
  switch (entry.primitive) {
    case Primitive::srch:
      return srch(context, folder, entry.pattern, entry.label);
    case Primitive::srch2:
      return srch2(context, folder, entry.pattern, entry.label);
    case Primitive::srchd:
      return srchd(context, folder, entry.pattern, entry.label);
    case Primitive::srchd2:
      return srchd2(context, folder, entry.pattern, entry.label);
  }
}

std::string expandPlace(TrackContext& context, std::string_view folder) {
  if (!folder.starts_with('%')) return std::string(folder);
  const std::size_t end = folder.find('%', 1);
  const std::string_view name = folder.substr(1, end - 1);
  return context.machine.environment.get(name) + std::string(folder.substr(end + 1));
}

std::string GetPath(Machine& machine, std::string_view path) {
  return machine.environment.expand(path) + '\0';
}

std::string LangText(TrackContext& context, std::string_view number) {
  const std::string file = std::string(Trim(context.machine.environment.appPath())) + "\\lang\\" +
                           context.form.txtlang.text();
  ReadValue text;
  context.registry.fReadValue(file, "001", number, "s", std::string(), text);
  return std::get<std::string>(text);
}

void grantKey(TrackContext& context, std::string_view key) {
  context.form.grant_failed = !GrantKeyAccess(context.machine, Root::kCurrentUser, key,
                                              context.machine.environment.get("UserName"));
}

void showRow(TrackContext& context, const RowForm& row,
             std::initializer_list<std::string_view> values) {
  std::string text;
  std::string_view rest = row.text;
  for (const std::string_view value : values) {
    const std::size_t open = rest.find('{');
    (text += rest.substr(0, open)) += value;
    rest.remove_prefix(rest.find('}') + 1);
  }
  text += rest;
  if (row.ghosted) {
    context.form.View200.addGhosted({text});
  } else {
    context.form.View200.add({text});
  }
}

void addTo(TextBox& total, double number) { total.setText(numberText(Val(total.text()) + number)); }

void setCount(TrackContext& context, std::string_view text) {
  ResumeNext on;
  on.next([&] { context.form.View100.item(context.form.taskrow).subItem(2).text = text; });
}

void rowTailBold(TrackContext& context) {
  ResumeNext on;
  on.next([&] {
    ListCell& count = context.form.View100.item(context.form.taskrow).subItem(2);
    count.bold = true;
    count.fore_color = kDarkRed;
  });
}

void rowTail(TrackContext& context) {
  ResumeNext on;
  rowTailBold(context);
  on.next([&] { context.form.View200.ensureLastVisible(); });
}

}  // namespace tavr
