#include "tracks/extensible_cache.h"

#include <string>

#include "basic/number.h"
#include "basic/text.h"
#include "tracks/primitives.h"

namespace tavr::extensible_cache {

namespace {

constexpr std::string_view kCacheBase =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\";
constexpr std::string_view kCacheTail = "\\Cache\\Extensible Cache";

std::string extensibleCache(std::string_view version) {
  return std::string(kCacheBase) + std::string(version) + std::string(kCacheTail);
}

// Fills List12 from the first version that is there; returns the version of the
// last attempt.
std::string_view findVersion(TrackContext& context, std::string_view root,
                             const std::string& prefix) {
  std::string_view version;
  for (const std::string_view attempt : {"6.0", "4.0", "5.0"}) {
    version = attempt;
    if (context.registry.fEnumKey(root, prefix + extensibleCache(version)) == kSuccess) break;
  }
  return version;
}

// The rows of List12, once even when it is empty; `clean` is handed each name.
template <class Clean>
void historyRows(TrackContext& context, const RowForm& row, double& total, Clean&& clean) {
  Form1& form = context.form;
  int i = 0;
  do {
    context.machine.events.doEvents();
    clean(form.List12.at(i));
    showRow(context, row, {form.List12.at(i)});
    total += 1;
    form.trackcount += 1;
    addTo(form.txtregcount, 1);
    setCount(context, numberText(total));
    ++i;
  } while (i <= form.List12.count() - 1);
}

}  // namespace

void t11(TrackContext& context, const Procedure& self) {
  double total = 0;
  findVersion(context, "HKCU", "");
  historyRows(context, self.rows[0], total, [](const std::string&) {});
  if (total == 0) setCount(context, "0");  // never met: the loop counts at least one
}

void c11(TrackContext& context, const Procedure& self) {
  double total = 0;
  const std::string own = extensibleCache(findVersion(context, "HKCU", ""));
  historyRows(context, self.rows[0], total, [&](const std::string& name) {
    fDeleteKeyTree(context, Root::kCurrentUser, own + "\\" + std::string(Trim(name)));
  });
  if (total == 0) setCount(context, "0");
  std::string user;
  context.registry.fGetString(Root::kLocalMachine, "Network\\Logon", "username", user);
  const std::string prefix = std::string(Trim(user)) + "\\";
  const std::string logged_on = prefix + extensibleCache(findVersion(context, "HKU", prefix));
  // The names come from HKU; what is deleted lies under the current user.
  historyRows(context, self.rows[0], total, [&](const std::string& name) {
    fDeleteKeyTree(context, Root::kCurrentUser, logged_on + "\\" + name);
  });
}

}  // namespace tavr::extensible_cache
