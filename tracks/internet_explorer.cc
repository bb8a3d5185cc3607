// The tracks of Internet Explorer and its shell integration: typed URLs,
// cookies and DOM storage. The cache files stand in temporary_files.cc, index.dat
// in index_dat.cc, the extensible cache keys in extensible_cache.cc.
#include <string>

#include "basic/text.h"
#include "services/cookies_folder.h"
#include "tracks/catalogue.h"
#include "tracks/extensible_cache.h"
#include "tracks/index_dat.h"
#include "tracks/primitives.h"
#include "tracks/temporary_files.h"

namespace tavr {

namespace {

using enum Primitive;
using enum KeyAct;

// Key paths, under HKCU. The case differs between callers and is kept.
constexpr std::string_view kTypedUrls = "software\\microsoft\\internet explorer\\typedurls";
constexpr std::string_view kTypedUrlsRead = "Software\\microsoft\\internet explorer\\typedurls";
constexpr std::string_view kLowDomGranted =
    "Software\\microsoft\\internet explorer\\LowRegistry\\DOMStorage";
constexpr std::string_view kLowDom =
    "software\\microsoft\\internet explorer\\LowRegistry\\DOMStorage";
constexpr std::string_view kDom = "Software\\Microsoft\\Internet Explorer\\DOMStorage";

// --- c6, t6: typed URLs ----------------------------------------------------

constexpr KeyUse kC6Keys[] = {
    {grant, kTypedUrlsRead}, {values, kTypedUrls}, {read, kTypedUrlsRead}, {tree, kTypedUrls}};
constexpr KeyUse kT6Keys[] = {
    {grant, kTypedUrlsRead}, {values, kTypedUrls}, {read, kTypedUrlsRead}};
constexpr RowForm kTypedRows[] = {{false, "IE Typed URL {data}"}};

void t6(TrackContext& context, const Procedure& self) {
  grantKey(context, kTypedUrlsRead);
  context.registry.fEnumValueb("HKCU", kTypedUrls);
  const int count = context.form.List20.count();
  addTo(context.form.txtregcount, count);
  context.form.trackcount += count;
  std::string data;  // one text for all reads
  for (int i = 0; i < count; ++i) {
    context.registry.fGetString(Root::kCurrentUser, kTypedUrlsRead, context.form.List20.at(i),
                                data);
    showRow(context, self.rows[0], {data});
  }
}

void c6(TrackContext& context, const Procedure& self) {
  t6(context, self);
  fDeleteKeyTree(context, Root::kCurrentUser, kTypedUrls);
}

// --- c7, t7: cookies and DOM storage ---------------------------------------

constexpr Entry kC7Searches[] = {
    {srchd, "{Cookies}", "*.txt", "IE Browser Localstorage"},
    {srchd, "%USERPROFILE%\\AppData\\Local\\Microsoft\\Windows\\WebCache", "*.*",
     "Microsoft IE DOM Store Cookies"},
    {srchd, "%USERPROFILE%\\AppData\\LocalLow\\Microsoft\\Internet Explorer\\DOMStore", "*.xml",
     "Microsoft IE DOM Store Cookies"},
    // Listed only, also in the cleaning: these files are counted and stay.
    {srch, "%USERPROFILE%\\AppData\\Local\\Microsoft\\Internet Explorer\\DOMStore", "*.xml",
     "Microsoft IE DOM Store Cookies"},
};
constexpr Entry kT7Searches[] = {
    {srch, "{Cookies}", "*.txt", "IE Browser Localstorage"},
    {srch, "%USERPROFILE%\\AppData\\Local\\Microsoft\\Windows\\WebCache", "*.*",
     "Microsoft IE DOM Store Cookies"},
    {srch, "%USERPROFILE%\\AppData\\LocalLow\\Microsoft\\Internet Explorer\\DOMStore", "*.xml",
     "Microsoft IE DOM Store Cookies"},
    {srch, "%USERPROFILE%\\AppData\\Local\\Microsoft\\Internet Explorer\\DOMStore", "*.xml",
     "Microsoft IE DOM Store Cookies"},
};
constexpr KeyUse kC7Keys[] = {
    {grant, kLowDomGranted},
    {keys, kLowDomGranted},
    {grant, "Software\\microsoft\\internet explorer\\LowRegistry\\DOMStorage\\{subkey}"},
    {tree, "software\\microsoft\\internet explorer\\LowRegistry\\DOMStorage\\{subkey}"},
    {key, "software\\microsoft\\internet explorer\\LowRegistry\\DOMStorage\\{subkey}"},
    {grant, kDom},
    {keys, kDom},
    {tree, "Software\\Microsoft\\Internet Explorer\\DOMStorage\\{subkey}"},
    {key, "Software\\Microsoft\\Internet Explorer\\DOMStorage\\{subkey}"},
};
constexpr KeyUse kT7Keys[] = {
    {grant, kLowDomGranted}, {keys, kLowDomGranted}, {grant, kDom}, {keys, kDom}};
constexpr RowForm kDomRows[] = {{false, "IE Typed URL {name}"}};

void searchCookies(TrackContext& context, const Procedure& self) {
  if (const auto folder = cookiesFolder(context.machine)) context.form.Text3.setText(*folder);
  for (const Entry& entry : self.searches) {
    const bool cookies = entry.folder == "{Cookies}";
    runEntry(context, entry,
             cookies ? std::string(Trim(context.form.Text3.text()))
                     : expandPlace(context, entry.folder));
  }
}

// How the subkeys of one DOM storage key go; the test names none of it.
struct DomCleaning {
  std::string_view grant_parent;  // of each subkey; "" for no grant
  std::string_view delete_parent;
};

void domStorage(TrackContext& context, const RowForm& row, std::string_view key,
                const DomCleaning* cleaning) {
  Form1& form = context.form;
  form.List12.clear();
  grantKey(context, key);
  context.registry.fEnumKey("HKCU", key);
  const int count = form.List12.count();
  addTo(form.txtregcount, count);
  for (int i = 0; i < count; ++i) {
    const std::string name = form.List12.at(i);
    showRow(context, row, {name});
    if (cleaning == nullptr) continue;
    if (!cleaning->grant_parent.empty()) {
      grantKey(context, std::string(cleaning->grant_parent) + "\\" + name);
    }
    fDeleteKeyTree(context, Root::kCurrentUser, std::string(cleaning->delete_parent) + "\\" + name);
    context.registry.fDeleteKey("HKCU", cleaning->delete_parent, name);
  }
  form.trackcount += form.List12.count();
}

void c7(TrackContext& context, const Procedure& self) {
  searchCookies(context, self);
  constexpr DomCleaning kLow = {kLowDomGranted, kLowDom};
  constexpr DomCleaning kPlain = {"", kDom};
  domStorage(context, self.rows[0], kLowDomGranted, &kLow);
  domStorage(context, self.rows[0], kDom, &kPlain);
  context.form.List12.clear();
}

void t7(TrackContext& context, const Procedure& self) {
  searchCookies(context, self);
  domStorage(context, self.rows[0], kLowDomGranted, nullptr);
  domStorage(context, self.rows[0], kDom, nullptr);
  context.form.List12.clear();
}

constexpr Procedure kInternetExplorer[] = {
    {"c6", "Typed URLs", OwnProcedure{c6}, RowTail::none, {}, kC6Keys, kTypedRows},
    {"t6", "Typed URLs", OwnProcedure{t6}, RowTail::none, {}, kT6Keys, kTypedRows},
    {"c7", "Cookies and DOM storage", OwnProcedure{c7}, RowTail::none, kC7Searches, kC7Keys,
     kDomRows},
    {"t7", "Cookies and DOM storage", OwnProcedure{t7}, RowTail::none, kT7Searches, kT7Keys,
     kDomRows},
    {"c8",
     "Temporary internet files",
     OwnProcedure{temporary_files::c8},
     RowTail::none,
     {},
     temporary_files::kC8Keys,
     temporary_files::kC8Rows},
    {"t8",
     "Temporary internet files",
     OwnProcedure{temporary_files::t8},
     RowTail::none,
     {},
     temporary_files::kT8Keys,
     temporary_files::kT8Rows},
    {"c9", "index.dat files", OwnProcedure{index_dat::c9}, RowTail::none, index_dat::kC9Searches,
     index_dat::kC9Keys, index_dat::kRows},
    {"t9", "index.dat files", OwnProcedure{index_dat::t9}, RowTail::full, index_dat::kT9Searches,
     index_dat::kT9Keys, index_dat::kRows},
    {"c11",
     "Extensible cache keys",
     OwnProcedure{extensible_cache::c11},
     RowTail::full,
     {},
     extensible_cache::kC11Keys,
     extensible_cache::kHistoryRows},
    {"t11",
     "Extensible cache keys",
     OwnProcedure{extensible_cache::t11},
     RowTail::full,
     {},
     extensible_cache::kT11Keys,
     extensible_cache::kHistoryRows},
};
static_assert(wellFormed(kInternetExplorer));

}  // namespace

std::span<const Procedure> internetExplorerTracks() { return kInternetExplorer; }

}  // namespace tavr
