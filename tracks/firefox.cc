// The tracks of Firefox. {R} is the roaming folder of a profile, {L} the local
// one of the same name.
#include <string>

#include "basic/number.h"
#include "basic/resume_next.h"
#include "services/file_properties.h"
#include "services/file_statements.h"
#include "tracks/catalogue.h"
#include "tracks/primitives.h"

namespace tavr {

namespace {

using enum Primitive;

// c21 names the session folder with a blank before the hyphen; the folder with
// the usual name is emptied by c231 alone.
constexpr Entry kC21[] = {
    {srchd, "{R}", "places.sqlite", "Firefox Autocomplete form history "},
    {srchd, "{R}\\sessionstore -backups", "*.*", "Firefox Autocomplete form history "},
};
constexpr Entry kT21[] = {
    {srch, "{R}", "places.sqlite", "Firefox Autocomplete form history "},
};

constexpr Entry kC22[] = {{srchd, "{R}", "logins.json", "Firefox Saved passwords "}};
constexpr Entry kT22[] = {{srch, "{R}", "logins.json", "Firefox Saved passwords "}};

// The test looks at the roaming cache only, lists cookies.sqlite twice, and
// lists two session files that c231 removes.
constexpr Entry kC23[] = {
    {srchd, "{R}\\cache2", "*.*", "Firefox Cache "},
    {srchd, "{L}\\cache2", "*.*", "Firefox Cache "},
    {srchd, "{R}", "cookies.sqlite", "Firefox cookies "},
    {srchd, "{R}", "formhistory.sqlite", "Firefox History "},
};
constexpr Entry kT23[] = {
    {srch, "{R}\\cache2", "*.*", "Firefox Cache "},
    {srch, "{R}", "cookies.sqlite", "Firefox cookies "},
    {srch, "{R}", "formhistory.sqlite", "Firefox History or visited pages "},
    {srch, "{R}", "cookies.sqlite", "Firefox cookies "},
    {srch, "{R}", "sessionCheckpoints.json", "Firefox History or visited pages "},
    {srch, "{R}", "sessionstore.jsonlz4", "Firefox History or visited pages "},
};

// No test twin.
constexpr Entry kC231[] = {
    {srchd, "{R}\\sessionstore-backups", "*.*", "Firefox Session "},
    {srchd, "{R}", "sessionCheckpoints.json", "Firefox Session pages "},
    {srchd, "{R}", "sessionstore.jsonlz4", "Firefox Session "},
};

// c23 has taken cookies.sqlite itself before: the companions are left for this.
constexpr Entry kC223[] = {
    {srchd, "{R}", "cookies.sqlite.*", "Firefox Cookies "},
    {srchd, "{R}", "webappsstore.sqlite", "Firefox Cookies "},
    {srchd, "{R}\\storage", "*.*", "Firefox Cookies "},
    {srchd, "{R}", "SiteSecurityServiceState.txt", "Firefox Cookies "},
};
constexpr Entry kT223[] = {
    {srch, "{R}", "cookies.sqlite.*", "Firefox Cookies "},
};

// --- c19, t19, c20, t20: the first profile's file, directly -----------------
// An older way of the same work; no run calls them.

constexpr RowForm kStoredFormRows[] = {{true, "Firefox Stored form data   <OK>"}};
constexpr RowForm kDownloadRows[] = {{true, "Firefox Download history   <OK>"}};

// The row claims a track, and one is counted, whether or not the file exists.
void firstProfileFile(TrackContext& context, const Procedure& self, std::string_view name,
                      bool clean) {
  ResumeNext on;
  Form1& form = context.form;
  on.next([&] {
    form.Dir1.setPath(context.machine.environment.get("USERPROFILE") +
                      "\\AppData\\Roaming\\Mozilla\\Firefox\\Profiles");
  });
  if (form.Dir1.list(0).empty()) return;
  const std::string file = form.Dir1.list(0) + "\\" + std::string(name);
  showRow(context, self.rows[0]);
  clsFileProp properties(context.machine);
  properties.FindFileInfo(file);
  addTo(form.txtfilecount, 1);
  addTo(form.txtfilesize, Val(properties.ByteSize()));
  if (clean) on.next([&] { Kill(context.machine, file); });
  setCount(context, "1");
  rowTailBold(context);
}

void c19(TrackContext& context, const Procedure& self) {
  firstProfileFile(context, self, "formhistory.sqlite", true);
}
void t19(TrackContext& context, const Procedure& self) {
  firstProfileFile(context, self, "formhistory.sqlite", false);
}
void c20(TrackContext& context, const Procedure& self) {
  firstProfileFile(context, self, "downloads.sqlite", true);
}
void t20(TrackContext& context, const Procedure& self) {
  firstProfileFile(context, self, "downloads.sqlite", false);
}

constexpr Procedure kFirefox[] = {
    {"c19", "Stored form data", OwnProcedure{c19}, RowTail::own, {}, {}, kStoredFormRows},
    {"t19", "Stored form data", OwnProcedure{t19}, RowTail::own, {}, {}, kStoredFormRows},
    {"c20", "Download history", OwnProcedure{c20}, RowTail::own, {}, {}, kDownloadRows},
    {"t20", "Download history", OwnProcedure{t20}, RowTail::own, {}, {}, kDownloadRows},
    {"c21", "Autocomplete form history", FirefoxProfiles{}, RowTail::full, kC21, {}, {}},
    {"t21", "Autocomplete form history", FirefoxProfiles{}, RowTail::full, kT21, {}, {}},
    {"c22", "Saved passwords", FirefoxProfiles{}, RowTail::full, kC22, {}, {}},
    {"t22", "Saved passwords", FirefoxProfiles{}, RowTail::full, kT22, {}, {}},
    {"c23", "Cache, cookies and history", FirefoxProfiles{}, RowTail::full, kC23, {}, {}},
    {"t23", "Cache, cookies and history", FirefoxProfiles{}, RowTail::full, kT23, {}, {}},
    {"c231", "Session", FirefoxProfiles{}, RowTail::none, kC231, {}, {}},
    {"c223", "Cookies and site storage", FirefoxProfiles{}, RowTail::full, kC223, {}, {}},
    {"t223", "Cookies and site storage", FirefoxProfiles{}, RowTail::full, kT223, {}, {}},
};
static_assert(wellFormed(kFirefox));

}  // namespace

std::span<const Procedure> firefoxTracks() { return kFirefox; }

}  // namespace tavr
