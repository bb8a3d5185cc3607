#include "tracks/searching_history.h"

#include <string>

#include "basic/text.h"
#include "tracks/primitives.h"

namespace tavr::searching_history {

namespace {

// Each subkey of the search key; with no subkey once, with an empty name. The
// values come from `in_subkey` the subkey or the key itself; their data is
// always looked up in the subkey.
void searchingValues(TrackContext& context, const RowForm& row, bool in_subkey, bool clean) {
  int j = 0;
  do {
    context.machine.events.doEvents();
    const std::string subkey = std::string(kSearch) + "\\" + context.form.List12.at(j);
    const std::string key = in_subkey ? subkey : std::string(kSearch);
    context.registry.fEnumValueb("HKCU", key);
    int i = 0;
    do {
      context.machine.events.doEvents();
      std::string data;
      context.registry.fGetString(Root::kCurrentUser, subkey, context.form.List20.at(i), data);
      if (!Trim(data).empty()) {
        // Nothing stands in front of the colon: the text for it is never set.
        showRow(context, row, {data});
        context.form.trackcount += 1;
      }
      if (clean) context.registry.fDeleteValue("HKCU", key, context.form.List20.at(i));
      ++i;
    } while (i <= context.form.List20.count() - 1);
    ++j;
  } while (j <= context.form.List12.count() - 1);
}

void searchingHistory(TrackContext& context, const Procedure& self, bool clean) {
  context.form.List12.clear();
  const Entry& logs = self.searches[0];
  runEntry(context, logs, expandPlace(context, logs.folder));
  grantKey(context, kSearch);
  context.registry.fEnumKey("HKCU", kSearch);
  searchingValues(context, self.rows[0], true, clean);
  searchingValues(context, self.rows[0], false, clean);
}

}  // namespace

void c95(TrackContext& context, const Procedure& self) { searchingHistory(context, self, true); }

void t95(TrackContext& context, const Procedure& self) { searchingHistory(context, self, false); }

}  // namespace tavr::searching_history
