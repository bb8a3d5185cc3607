// The tracks of the Windows shell: Run box, search box, recent documents,
// recycle bin, open and save dialogs, temporary folder, notification area icons
// and the search index logs.
#include <string>

#include "basic/number.h"
#include "basic/text.h"
#include "tracks/catalogue.h"
#include "tracks/dialogs.h"
#include "tracks/primitives.h"
#include "tracks/searching_history.h"

namespace tavr {

namespace {

using searching_history::kSearch;
using enum Primitive;
using enum KeyAct;

// Key paths, under HKCU. The case differs between callers and is kept.
constexpr std::string_view kRunMru =
    "software\\microsoft\\windows\\currentversion\\explorer\\runmru";
constexpr std::string_view kRunMruNt =
    "software\\microsoft\\windows nt\\currentversion\\explorer\\runmru";
constexpr std::string_view kSearchGranted =
    "software\\microsoft\\windows\\currentversion\\explorer\\WordWheelQuery";
constexpr std::string_view kExplorerBars = "Software\\Microsoft\\Internet Explorer\\Explorer Bars";
constexpr std::string_view kFilesNamed =
    "Software\\Microsoft\\Internet Explorer\\Explorer Bars\\"
    "{C4EE31F3-4768-11D2-BE5C-00A0C9A83DA1}\\FilesNamedMRU";
constexpr std::string_view kContainingText =
    "Software\\Microsoft\\Internet Explorer\\Explorer Bars\\"
    "{C4EE31F3-4768-11D2-BE5C-00A0C9A83DA1}\\ContainingTextMRU";
constexpr std::string_view kRecentDocs =
    "software\\microsoft\\windows\\currentversion\\explorer\\RecentDocs";
constexpr std::string_view kRecentDocsNt =
    "software\\microsoft\\windows nt\\currentversion\\explorer\\RecentDocs";
constexpr std::string_view kTypedPaths =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\TypedPaths";
constexpr std::string_view kTrayNotify =
    "Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\TrayNotify";

constexpr std::uint32_t kRunWait = 2000;     // ms; part of the track
constexpr std::uint32_t kEmptySilently = 7;  // no confirmation, no progress, no sound

// --- c1, t1: Start Menu Run history ---------------------------------------

constexpr KeyUse kC1Keys[] = {
    {grant, kRunMru}, {grant, kRunMruNt}, {tree, kRunMru}, {tree, kRunMruNt}};
constexpr RowForm kC1Rows[] = {{true, "{033}Clean start run history  <OK>"}};
constexpr RowForm kT1Rows[] = {{true, "Windows Start Run History  <OK>"}};

void c1(TrackContext& context, const Procedure& self) {
  context.machine.events.wait(kRunWait);
  // Written before anything is deleted.
  showRow(context, self.rows[0], {LangText(context, "033")});
  grantKey(context, kRunMru);
  grantKey(context, kRunMruNt);
  fDeleteKeyTree(context, Root::kCurrentUser, kRunMru);
  fDeleteKeyTree(context, Root::kCurrentUser, kRunMruNt);
  addTo(context.form.txtregcount, 1);
}

// Reports one track whether or not the keys hold anything.
void t1(TrackContext& context, const Procedure& self) {
  context.machine.events.wait(kRunWait);
  showRow(context, self.rows[0]);
  addTo(context.form.txtregcount, 1);
}

// --- c2, t2: Start Menu Search history ------------------------------------

constexpr KeyUse kC2Keys[] = {{grant, kSearchGranted}, {values, kSearch},
                              {value, kSearch},        {grant, kExplorerBars},
                              {tree, kFilesNamed},     {tree, kContainingText}};
constexpr RowForm kC2Rows[] = {{true, "Clean start find history {name} <OK>"}};
constexpr KeyUse kT2Keys[] = {{values, kSearch}};
constexpr RowForm kT2Rows[] = {{false, "Clean start find history <OK>"}};

void showNoneFound(TrackContext& context) {
  if (Val(context.form.txtregcount.text()) == 0) setCount(context, "0");
}

void c2(TrackContext& context, const Procedure& self) {
  grantKey(context, kSearchGranted);
  context.registry.fEnumValueb("HKCU", kSearch);
  const int count = context.form.List20.count();
  for (int i = 0; i < count; ++i) {
    const std::string name = context.form.List20.at(i);
    showRow(context, self.rows[0], {name});
    context.form.trackcount += 1;
    addTo(context.form.txtregcount, 1);
    context.registry.fDeleteValue("HKCU", kSearch, name);
  }
  showNoneFound(context);
  rowTail(context);
  // Neither reported nor counted, and the test does not look at them.
  grantKey(context, kExplorerBars);
  fDeleteKeyTree(context, Root::kCurrentUser, kFilesNamed);
  fDeleteKeyTree(context, Root::kCurrentUser, kContainingText);
}

void t2(TrackContext& context, const Procedure& self) {
  context.registry.fEnumValueb("HKCU", kSearch);
  const int count = context.form.List20.count();
  for (int i = 0; i < count; ++i) {
    showRow(context, self.rows[0]);
    addTo(context.form.txtregcount, 1);
    context.form.trackcount += 1;
    if (Val(context.form.txtregcount.text()) > 0) setCount(context, numberText(i + 1));
  }
  showNoneFound(context);
}

// --- c3, t3: Recent documents and typed paths -----------------------------

constexpr Entry kC3Searches[] = {{srchd,
                                  "%USERPROFILE%\\AppData\\Roaming\\Microsoft\\Windows\\Recent",
                                  "*.*", "start documents history "}};
constexpr Entry kT3Searches[] = {{srch,
                                  "%USERPROFILE%\\AppData\\Roaming\\Microsoft\\Windows\\Recent",
                                  "*.*", "start documents history "}};
constexpr KeyUse kC3Keys[] = {{grant, kRecentDocs},  {grant, kRecentDocsNt}, {tree, kRecentDocs},
                              {tree, kRecentDocsNt}, {grant, kTypedPaths},   {values, kTypedPaths},
                              {read, kTypedPaths},   {tree, kTypedPaths}};
constexpr KeyUse kT3Keys[] = {{grant, kTypedPaths}, {values, kTypedPaths}, {read, kTypedPaths}};
constexpr RowForm kRecentRows[] = {{true, "start documents history  <OK>"},
                                   {false, "Typed URL {text}"}};

// The search and the typed paths: the same in both, the primitive apart.
void recentFilesAndTypedPaths(TrackContext& context, const Procedure& self) {
  const Entry& recent = self.searches[0];
  runEntry(context, recent, expandPlace(context, recent.folder));
  grantKey(context, kTypedPaths);
  context.registry.fEnumValueb("HKCU", kTypedPaths);
  const int count = context.form.List20.count();
  addTo(context.form.txtregcount, count);
  context.form.trackcount = count;  // the count of the search is overwritten
  std::string text;                 // one text for all reads
  for (int i = 0; i < count; ++i) {
    context.registry.fGetString(Root::kCurrentUser, kTypedPaths, context.form.List20.at(i), text);
    showRow(context, self.rows[1], {text});
  }
}

void c3(TrackContext& context, const Procedure& self) {
  grantKey(context, kRecentDocs);
  grantKey(context, kRecentDocsNt);
  fDeleteKeyTree(context, Root::kCurrentUser, kRecentDocs);
  fDeleteKeyTree(context, Root::kCurrentUser, kRecentDocsNt);
  showRow(context, self.rows[0]);
  addTo(context.form.txtregcount, 1);
  recentFilesAndTypedPaths(context, self);
  fDeleteKeyTree(context, Root::kCurrentUser, kTypedPaths);
}

void t3(TrackContext& context, const Procedure& self) {
  LangText(context, "031");  // read, and the text goes no further
  showRow(context, self.rows[0]);
  addTo(context.form.txtregcount, 1);
  recentFilesAndTypedPaths(context, self);
}

// --- c4, t4: Recycle bin ---------------------------------------------------

constexpr RowForm kBinRows[] = {{true, "Windows RecycleBin Files  <OK>"}};

void countRecycleBin(TrackContext& context, std::int64_t& items) {
  std::int64_t size = 0;
  context.machine.shell.queryRecycleBin(size, items);
  addTo(context.form.txtfilecount, static_cast<double>(items));
  addTo(context.form.txtfilesize, static_cast<double>(size));
}

void reportRecycleBin(TrackContext& context, const Procedure& self, std::int64_t items) {
  showRow(context, self.rows[0]);
  context.form.recycled_items = static_cast<double>(items);
}

void c4(TrackContext& context, const Procedure& self) {
  std::int64_t items = 0;
  countRecycleBin(context, items);
  context.machine.shell.emptyRecycleBin(kEmptySilently);
  context.machine.shell.updateRecycleBinIcon();
  reportRecycleBin(context, self, items);
}

void t4(TrackContext& context, const Procedure& self) {
  std::int64_t items = 0;
  countRecycleBin(context, items);
  reportRecycleBin(context, self, items);
}

// --- c10, t10: Windows Temp ------------------------------------------------

constexpr Entry kC10[] = {{srchd, "%Temp%", "*.*", "windows temp folder "}};
constexpr Entry kT10[] = {{srch, "%Temp%", "*.*", "windows temp folder "}};

// --- c96, t96: Notification area icon cache --------------------------------

constexpr std::string_view kPastIconsValue =
    "Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\TrayNotify\\"
    "PastIconsStream";
constexpr std::string_view kIconsValue =
    "Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\TrayNotify\\"
    "IconStreams";
constexpr KeyUse kC96Keys[] = {
    {grant, kTrayNotify}, {value, kPastIconsValue}, {value, kIconsValue}};
constexpr RowForm kIconRows[] = {
    {true,
     "Notification Area: Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\"
     "CurrentVersion\\TrayNotify\\PastIconsStream  <OK>"},
    {true,
     "Notification Area: Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\"
     "CurrentVersion\\TrayNotify\\IconStreams  <OK>"}};

// Two tracks whether or not the values exist.
void t96(TrackContext& context, const Procedure& self) {
  addTo(context.form.txtregcount, 2);
  for (const RowForm& row : self.rows) showRow(context, row);
}

void c96(TrackContext& context, const Procedure& self) {
  grantKey(context, kTrayNotify);
  context.registry.fDeleteValue("HKCU", kTrayNotify, "PastIconsStream");
  context.registry.fDeleteValue("HKCU", kTrayNotify, "IconStreams");
  t96(context, self);
}

constexpr Procedure kWindows[] = {
    {"c1", "Start Menu Run history", OwnProcedure{c1}, RowTail::full, {}, kC1Keys, kC1Rows},
    {"t1", "Start Menu Run history", OwnProcedure{t1}, RowTail::full, {}, {}, kT1Rows},
    {"c2", "Start Menu Search history", OwnProcedure{c2}, RowTail::own, {}, kC2Keys, kC2Rows},
    {"t2", "Start Menu Search history", OwnProcedure{t2}, RowTail::full, {}, kT2Keys, kT2Rows},
    {"c3", "Recent documents and typed paths", OwnProcedure{c3}, RowTail::none, kC3Searches,
     kC3Keys, kRecentRows},
    {"t3", "Recent documents and typed paths", OwnProcedure{t3}, RowTail::none, kT3Searches,
     kT3Keys, kRecentRows},
    {"c4", "Recycle Bin", OwnProcedure{c4}, RowTail::full, {}, {}, kBinRows},
    {"t4", "Recycle Bin", OwnProcedure{t4}, RowTail::full, {}, {}, kBinRows},
    {"c5",
     "Open and Save dialogs",
     OwnProcedure{dialogs::c5},
     RowTail::own,
     {},
     dialogs::kC5Keys,
     dialogs::kC5Rows},
    {"t5",
     "Open and Save dialogs",
     OwnProcedure{dialogs::t5},
     RowTail::own,
     {},
     dialogs::kT5Keys,
     dialogs::kT5Rows},
    {"c10", "Windows Temp", FixedFolder{}, RowTail::bold, kC10, {}, {}},
    {"t10", "Windows Temp", FixedFolder{}, RowTail::none, kT10, {}, {}},
    {"c95", "Windows Searching History", OwnProcedure{searching_history::c95}, RowTail::none,
     searching_history::kC95Searches, searching_history::kC95Keys, searching_history::kC95Rows},
    {"t95", "Windows Searching History", OwnProcedure{searching_history::t95}, RowTail::none,
     searching_history::kT95Searches, searching_history::kT95Keys, searching_history::kC95Rows},
    {"c96",
     "Notification Area icon cache",
     OwnProcedure{c96},
     RowTail::none,
     {},
     kC96Keys,
     kIconRows},
    {"t96", "Notification Area icon cache", OwnProcedure{t96}, RowTail::none, {}, {}, kIconRows},
};
static_assert(wellFormed(kWindows));

}  // namespace

std::span<const Procedure> windowsTracks() { return kWindows; }

}  // namespace tavr
