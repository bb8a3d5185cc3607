// The tracks of the Chromium family. {P} is a profile's folder. The browsers
// differ in what they search and in their labels, and so do the two sides of a
// pair; none of it is an oversight.
#include <string>
#include <vector>

#include "tracks/catalogue.h"
#include "tracks/primitives.h"
#include "tracks/profiles.h"

namespace tavr {

namespace {

using enum Primitive;
using enum KeyAct;

constexpr ProfileKey kChrome = {"Software\\Google\\Chrome\\PreferenceMACs",
                                "\\AppData\\Local\\Google\\Chrome\\User Data\\"};
constexpr ProfileKey kEdge = {"Software\\Microsoft\\Edge\\PreferenceMACs",
                              "\\AppData\\Local\\Microsoft\\Edge\\User Data\\"};
constexpr ProfileKey kYandex = {"Software\\Yandex\\YandexBrowser\\PreferenceMACs",
                                "\\AppData\\Local\\Yandex\\YandexBrowser\\User Data\\"};
constexpr ProfileKey kVivaldi = {"Software\\Vivaldi\\PreferenceMACs",
                                 "\\AppData\\Local\\Vivaldi\\User Data\\"};
constexpr ProfileKey kBrave = {"Software\\BraveSoftware\\Brave-Browser\\PreferenceMACs",
                               "\\AppData\\Local\\BraveSoftware\\Brave-Browser\\User Data\\"};
constexpr ProfileKey kTorch = {"Software\\Torch\\PreferenceMACs",
                               "\\AppData\\Local\\Torch\\User Data\\"};
constexpr ProfileKey kMaxthon = {"Software\\Maxthon\\PreferenceMACs",
                                 "\\AppData\\Local\\Maxthon\\Application\\User Data\\"};

// --- Chrome ------------------------------------------------------------------

// The first search reaches the journals of all profiles, named or not, and of
// the folders beside them. The test deletes "Top Sites.*" and "History.*".
constexpr Entry kC24[] = {
    {srchd, "%USERPROFILE%\\AppData\\Local\\Google\\Chrome\\User Data", "*-journal.*",
     "Google chrome History ="},
    {srchd, "{P}", "Visited Links.*", "Google Visited Links ="},
    {srchd, "{P}", "History Provider Cache.*", "Google history "},
    {srchd, "{P}", "Network Action Predictor.*", "Google history "},
    {srchd, "{P}", "Top Sites.*", "Google history "},
    {srchd, "{P}", "History.*", "Google history "},
    {srchd, "{P}", "Shortcuts.*", "Google history "},
};
constexpr Entry kT24[] = {
    {srch, "%USERPROFILE%\\AppData\\Local\\Google\\Chrome\\User Data", "*-journal.*",
     "Google chrome History ="},
    {srch, "{P}", "Visited Links.*", "Google Visited Links ="},
    {srch, "{P}", "History Provider Cache.*", "Google history "},
    {srch, "{P}", "Network Action Predictor.*", "Google history "},
    {srchd, "{P}", "Top Sites.*", "Google history "},
    {srchd, "{P}", "History.*", "Google history "},
    {srch, "{P}", "Shortcuts.*", "Google history "},
};

constexpr Entry kC25[] = {{srchd, "{P}", "web data.*", "Google Autocomplete history ="}};
constexpr Entry kT25[] = {{srch, "{P}", "web data.*", "Google Autocomplete history ="}};

constexpr Entry kC26[] = {{srchd, "{P}", "login data.*", "Google Login data ="}};
constexpr Entry kT26[] = {{srch, "{P}", "login data.*", "Google Login data ="}};

// The last entry stands for one search in each folder below Storage\ext.
constexpr Entry kC27[] = {
    {srchd, "{P}\\Extension State", "*.*", "Google session ="},
    {srchd, "{P}\\Session Storage", "*.*", "Google session ="},
    {srchd, "{P}\\Storage\\ext\\*\\def\\Session Storage", "*.*", "Google session ="},
};
constexpr Entry kT27[] = {
    {srch, "{P}\\Extension State", "*.*", "Google session ="},
    {srch, "{P}\\Session Storage", "*.*", "Google session ="},
    {srch, "{P}\\Storage\\ext\\*\\def\\Session Storage", "*.*", "Google session ="},
};

constexpr Entry kC28[] = {
    {srchd, "{P}", "Cookies.*", "Google cookies "},
    {srchd, "{P}\\IndexedDB", "*.*", "Google cookies "},
    {srchd, "{P}", "QuotaManager.*", "Google cookies "},
};
constexpr Entry kT28[] = {{srch, "{P}", "Cookies.*", "Google cookies "}};

constexpr KeyUse kChromeKeys[] = {{grant, kChrome.key}, {keys, kChrome.key}};

// Two row tails: behind the journals and at the end.
void chromeHistory(TrackContext& context, const Procedure& self) {
  context.form.List12.clear();
  const Entry& journals = self.searches[0];
  runEntry(context, journals, expandPlace(context, journals.folder));
  rowTail(context);
  forEachProfile(context, kChrome, [&](const std::string& profile) {
    for (const Entry& entry : self.searches.subspan(1)) {
      runEntry(context, entry, profileFolder(entry.folder, profile));
    }
  });
  rowTail(context);
}

// Session storage of the extensions: one search in each folder below `ext`.
void extensionSessions(TrackContext& context, const Entry& entry, const std::string& profile) {
  const std::size_t star = entry.folder.find('*');
  const std::string ext = profileFolder(entry.folder.substr(0, star - 1), profile);
  std::vector<std::string> names;
  context.machine.files.subfolders(ext, names);
  for (const std::string& name : names) {
    runEntry(context, entry, ext + "\\" + name + std::string(entry.folder.substr(star + 1)));
  }
}

void chromeSessions(TrackContext& context, const Procedure& self) {
  forEachProfile(context, kChrome, [&](const std::string& profile) {
    runEntry(context, self.searches[0], profileFolder(self.searches[0].folder, profile));
    runEntry(context, self.searches[1], profileFolder(self.searches[1].folder, profile));
    extensionSessions(context, self.searches[2], profile);
  });
}

// --- Opera: one fixed folder; no "Top Sites.*" and no "Shortcuts.*" ----------

constexpr FixedFolder kOpera = {.clears_list12 = true};

constexpr Entry kC31[] = {
    {srchd, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable", "History.*",
     "Opera History "},
    {srchd, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable",
     "History Provider Cache.*", "Opera History "},
    {srchd, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable",
     "Network Action Predictor.*", "Opera History "},
    {srchd, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable", "Visited Links.*",
     "Opera History "},
};
constexpr Entry kT31[] = {
    {srch, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable", "History.*",
     "Opera History "},
    {srch, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable",
     "History Provider Cache.*", "Opera History "},
    {srch, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable",
     "Network Action Predictor.*", "Opera History "},
    {srch, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable", "Visited Links.*",
     "Opera History "},
};

constexpr Entry kC32[] = {{srchd, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable",
                           "Login Data.*", "Opera Passwords "}};
constexpr Entry kT32[] = {{srch, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable",
                           "Login Data.*", "Opera Passwords "}};

constexpr Entry kC33[] = {{srchd, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable",
                           "Web Data.*", "Opera typed url "}};
constexpr Entry kT33[] = {{srch, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable",
                           "Web Data.*", "Opera typed url "}};

constexpr Entry kC34[] = {
    {srchd, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable\\Extension State", "*.*",
     "Opera Sessions "},
    {srchd, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable\\Session Storage", "*.*",
     "Opera Sessions "},
};
constexpr Entry kT34[] = {
    {srch, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable\\Extension State", "*.*",
     "Opera Sessions "},
    {srch, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable\\Session Storage", "*.*",
     "Opera Sessions "},
};

constexpr Entry kC35[] = {
    {srchd, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable", "Cookies.*",
     "Opera cookies "},
    {srchd, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable", "QuotaManager.*",
     "Opera cookies "},
    {srchd, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable\\IndexedDB", "*.*",
     "Opera cookies "},
};
constexpr Entry kT35[] = {
    {srch, "%USERPROFILE%\\AppData\\Roaming\\Opera Software\\Opera Stable", "Cookies.*",
     "Opera cookies "},
};

// --- Edge: no "History.*" and no "Shortcuts.*", so its main history stays ----

constexpr Entry kC40[] = {{srchd, "{P}", "Web Data.*", "MS Edge Saved form information "}};
constexpr Entry kT40[] = {{srch, "{P}", "Web Data.*", "MS Edge Saved form information "}};

constexpr Entry kC41[] = {{srchd, "{P}", "Login Data.*", "MS Edge Saved passwords "}};
constexpr Entry kT41[] = {{srch, "{P}", "Login Data.*", "MS Edge Saved passwords "}};

constexpr Entry kC42[] = {
    {srchd, "{P}\\Extension State", "*.*", "MS Edge Session "},
    {srchd, "{P}\\Session Storage", "*.*", "MS Edge Session "},
};
constexpr Entry kT42[] = {
    {srch, "{P}\\Extension State", "*.*", "MS Edge Session "},
    {srch, "{P}\\Session Storage", "*.*", "MS Edge Session "},
};

constexpr Entry kC43[] = {
    {srchd, "{P}", "History Provider Cache.*", "MS Edge Local Storage "},
    {srchd, "{P}", "Network Action Predictor.*", "MS Edge Local Storage "},
    {srchd, "{P}", "Top Sites.*", "MS Edge Local Storage "},
    {srchd, "{P}", "Visited Links.*", "MS Edge Local Storage "},
};
constexpr Entry kT43[] = {
    {srch, "{P}", "History Provider Cache.*", "MS Edge Local Storage "},
    {srch, "{P}", "Network Action Predictor.*", "MS Edge Local Storage "},
    {srch, "{P}", "Top Sites.*", "MS Edge Local Storage "},
    {srch, "{P}", "Visited Links.*", "MS Edge Local Storage "},
};

constexpr Entry kC44[] = {
    {srchd, "{P}", "Cookies.*", "MS Edge cookies "},
    {srchd, "{P}\\IndexedDB", "*.*", "MS Edge cookies "},
    {srchd, "{P}", "QuotaManager.*", "MS Edge cookies "},
};
constexpr Entry kT44[] = {{srch, "{P}", "Cookies.*", "MS Edge cookies "}};

constexpr KeyUse kEdgeKeys[] = {{grant, kEdge.key}, {keys, kEdge.key}};

// --- Yandex: no history track ------------------------------------------------

constexpr Entry kC50[] = {{srchd, "{P}\\Session Storage", "*.*", "Yandex Localstorage"}};
constexpr Entry kT50[] = {{srch, "{P}\\Session Storage", "*.*", "Yandex Localstorage"}};

constexpr Entry kC51[] = {{srchd, "{P}", "Web Data.*", "Yandex Autocomplete form history"}};
constexpr Entry kT51[] = {{srch, "{P}", "Web Data.*", "Yandex Autocomplete form history"}};

constexpr Entry kC52[] = {{srchd, "{P}", "Login Data.*", "Yandex Passwords"}};
constexpr Entry kT52[] = {{srch, "{P}", "Login Data.*", "Yandex Passwords"}};

constexpr Entry kC53[] = {{srchd, "{P}\\Extension State", "*.*", "Yandex Session"}};
constexpr Entry kT53[] = {{srch, "{P}\\Extension State", "*.*", "Yandex Session"}};

constexpr Entry kC54[] = {
    {srchd, "{P}", "Cookies.*", "Yandex Cookies"},
    {srchd, "{P}\\IndexedDB", "*.*", "Yandex Cookies"},
};
constexpr Entry kT54[] = {{srch, "{P}", "Cookies.*", "Yandex Cookies"}};

constexpr KeyUse kYandexKeys[] = {{grant, kYandex.key}, {keys, kYandex.key}};

// --- Vivaldi: no history track -----------------------------------------------

constexpr Entry kC60[] = {{srchd, "{P}\\Session Storage", "*.*", "Vivaldi Localstorage"}};
constexpr Entry kT60[] = {{srch, "{P}\\Session Storage", "*.*", "Vivaldi Localstorage"}};

constexpr Entry kC61[] = {{srchd, "{P}", "Web Data.*", "Vivaldi Autocomplete form history"}};
constexpr Entry kT61[] = {{srch, "{P}", "Web Data.*", "Vivaldi Autocomplete form history"}};

constexpr Entry kC62[] = {{srchd, "{P}", "Login Data.*", "Vivaldi Passwords"}};
constexpr Entry kT62[] = {{srch, "{P}", "Login Data.*", "Vivaldi Passwords"}};

constexpr Entry kC63[] = {{srchd, "{P}\\Extension State", "*.*", "Vivaldi Session"}};
constexpr Entry kT63[] = {{srch, "{P}\\Extension State", "*.*", "Vivaldi Session"}};

constexpr Entry kC64[] = {
    {srchd, "{P}", "Cookies.*", "Vivaldi Cookies"},
    {srchd, "{P}\\IndexedDB", "*.*", "Vivaldi Cookies"},
};
constexpr Entry kT64[] = {{srch, "{P}", "Cookies.*", "Vivaldi Cookies"}};

constexpr KeyUse kVivaldiKeys[] = {{grant, kVivaldi.key}, {keys, kVivaldi.key}};

// --- Brave -------------------------------------------------------------------

constexpr Entry kC70[] = {
    {srchd, "{P}", "History Provider Cache.*", "Brave Browser Localstorage"},
    {srchd, "{P}", "Visited Links.*", "Brave Browser Localstorage"},
    {srchd, "{P}", "Top Sites.*", "Brave Browser Localstorage"},
    {srchd, "{P}", "Network Action Predictor.*", "Brave Browser Localstorage"},
};
constexpr Entry kT70[] = {
    {srch, "{P}", "History Provider Cache.*", "Brave Browser Localstorage"},
    {srch, "{P}", "Visited Links.*", "Brave Browser Localstorage"},
    {srch, "{P}", "Top Sites.*", "Brave Browser Localstorage"},
    {srch, "{P}", "Network Action Predictor.*", "Brave Browser Localstorage"},
};

constexpr Entry kC71[] = {{srchd, "{P}", "Web Data.*", "Brave Browser Autocomplete form history"}};
constexpr Entry kT71[] = {{srch, "{P}", "Web Data.*", "Brave Browser Autocomplete form history"}};

constexpr Entry kC72[] = {{srchd, "{P}", "Login Data.*", "Brave Browser Passwords"}};
constexpr Entry kT72[] = {{srch, "{P}", "Login Data.*", "Brave Browser Passwords"}};

constexpr Entry kC73[] = {
    {srchd, "{P}\\Extension State", "*.*", "Brave Browser Session"},
    {srchd, "{P}\\Session Storage", "*.*", "Brave Browser Localstorage"},
};
constexpr Entry kT73[] = {
    {srch, "{P}\\Extension State", "*.*", "Brave Browser Session"},
    {srch, "{P}\\Session Storage", "*.*", "Brave Browser Localstorage"},
};

constexpr Entry kC74[] = {
    {srchd, "{P}", "Cookies.*", "Brave Browser Cookies"},
    {srchd, "{P}\\IndexedDB", "*.*", "Brave Browser Cookies"},
};
constexpr Entry kT74[] = {{srch, "{P}", "Cookies.*", "Brave Browser Cookies"}};

constexpr KeyUse kBraveKeys[] = {{grant, kBrave.key}, {keys, kBrave.key}};

// --- Torch: the test deletes the history files -------------------------------

constexpr Entry kC80[] = {
    {srchd, "{P}", "History.*", "Torch Browser Localstorage"},
    {srchd, "{P}", "Current Tabs.*", "Torch Browser Localstorage"},
    {srchd, "{P}", "History Provider Cache.*", "Torch Browser Localstorage"},
    {srchd, "{P}", "Visited Links.*", "Torch Browser Localstorage"},
    {srchd, "{P}", "Top Sites.*", "Torch Browser Localstorage"},
    {srchd, "{P}", "Network Action Predictor.*", "Torch Browser Localstorage"},
    {srchd, "{P}", "Shortcuts.*", "Torch Browser Localstorage"},
    {srchd, "{P}", "History.*", "Torch Browser Localstorage"},
};
constexpr Entry kT80[] = {
    {srch, "{P}", "History Provider Cache.*", "Torch Browser Localstorage"},
    {srch, "{P}", "Visited Links.*", "Torch Browser Localstorage"},
    {srch, "{P}", "Top Sites.*", "Torch Browser Localstorage"},
    {srch, "{P}", "Network Action Predictor.*", "Torch Browser Localstorage"},
    {srch, "{P}", "Shortcuts.*", "Torch Browser Localstorage"},
    {srchd, "{P}", "History.*", "Torch Browser Localstorage"},
};

constexpr Entry kC81[] = {{srchd, "{P}", "Web Data.*", "Torch Browser Autocomplete form history"}};
constexpr Entry kT81[] = {{srch, "{P}", "Web Data.*", "Torch Browser Autocomplete form history"}};

constexpr Entry kC82[] = {{srchd, "{P}", "Login Data.*", "Torch Browser Passwords"}};
constexpr Entry kT82[] = {{srch, "{P}", "Login Data.*", "Torch Browser Passwords"}};

constexpr Entry kC83[] = {
    {srchd, "{P}\\Extension State", "*.*", "Torch Browser Session"},
    {srchd, "{P}\\Session Storage", "*.*", "Torch Browser Localstorage"},
    {srchd, "{P}\\Session Storage", "Current Session.*", "Torch Browser Localstorage"},
    {srchd, "{P}", "Current Session.*", "Torch Browser Localstorage"},
};
constexpr Entry kT83[] = {
    {srch, "{P}\\Extension State", "*.*", "Torch Browser Session"},
    {srch, "{P}\\Session Storage", "*.*", "Torch Browser Localstorage"},
    {srch, "{P}\\Session Storage", "Current Session.*", "Torch Browser Localstorage"},
};

constexpr Entry kC84[] = {
    {srchd, "{P}", "Cookies.*", "Torch Browser Cookies"},
    {srchd, "{P}", "QuotaManager.*", "Torch Browser Cookies"},
    {srchd, "{P}", "Origin Bound Certs.*", "Torch Browser Cookies"},
    {srchd, "{P}\\databases", "*.db", "Torch Browser Cookies"},
};
constexpr Entry kT84[] = {{srch, "{P}", "Cookies.*", "Torch Browser Cookies"}};

constexpr KeyUse kTorchKeys[] = {{grant, kTorch.key}, {keys, kTorch.key}};

// --- Maxthon: t94 skips what waits on the pending list -----------------------

constexpr Entry kC90[] = {
    {srchd, "{P}", "History Provider Cache.*", "Maxthon Browser Localstorage"},
    {srchd, "{P}", "Visited Links.*", "Maxthon Browser Localstorage"},
    {srchd, "{P}", "Top Sites.*", "Maxthon Browser Localstorage"},
    {srchd, "{P}", "Network Action Predictor.*", "Maxthon Browser Localstorage"},
    {srchd, "{P}", "Shortcuts.*", "Maxthon Browser Localstorage"},
};
constexpr Entry kT90[] = {
    {srch, "{P}", "History Provider Cache.*", "Maxthon Browser Localstorage"},
    {srch, "{P}", "Visited Links.*", "Maxthon Browser Localstorage"},
    {srch, "{P}", "Top Sites.*", "Maxthon Browser Localstorage"},
    {srch, "{P}", "Network Action Predictor.*", "Maxthon Browser Localstorage"},
    {srch, "{P}", "Shortcuts.*", "Maxthon Browser Localstorage"},
};

constexpr Entry kC91[] = {
    {srchd, "{P}", "Web Data.*", "Maxthon Browser Autocomplete form history"}};
constexpr Entry kT91[] = {{srch, "{P}", "Web Data.*", "Maxthon Browser Autocomplete form history"}};

constexpr Entry kC92[] = {{srchd, "{P}", "Login Data.*", "Maxthon Browser Passwords"}};
constexpr Entry kT92[] = {{srch, "{P}", "Login Data.*", "Maxthon Browser Passwords"}};

constexpr Entry kC93[] = {
    {srchd, "{P}\\Extension State", "*.*", "Maxthon Browser Session"},
    {srchd, "{P}\\Session Storage", "*.*", "Maxthon Browser Localstorage"},
};
constexpr Entry kT93[] = {
    {srch, "{P}\\Extension State", "*.*", "Maxthon Browser Session"},
    {srch, "{P}\\Session Storage", "*.*", "Maxthon Browser Localstorage"},
};

constexpr Entry kC94[] = {{srchd, "{P}", "Cookies.*", "Maxthon Browser Cookies"}};
constexpr Entry kT94[] = {{srch2, "{P}", "Cookies.*", "Maxthon Browser Cookies"}};

constexpr KeyUse kMaxthonKeys[] = {{grant, kMaxthon.key}, {keys, kMaxthon.key}};

using enum RowTail;

constexpr Procedure kChromium[] = {
    {"c24", "Chrome history", OwnProcedure{chromeHistory}, own, kC24, kChromeKeys, {}},
    {"t24", "Chrome history", OwnProcedure{chromeHistory}, own, kT24, kChromeKeys, {}},
    {"c25", "Chrome autocomplete", kChrome, full, kC25, kChromeKeys, {}},
    {"t25", "Chrome autocomplete", kChrome, full, kT25, kChromeKeys, {}},
    {"c26", "Chrome saved logins", kChrome, full, kC26, kChromeKeys, {}},
    {"t26", "Chrome saved logins", kChrome, full, kT26, kChromeKeys, {}},
    {"c27", "Chrome sessions", OwnProcedure{chromeSessions}, full, kC27, kChromeKeys, {}},
    {"t27", "Chrome sessions", OwnProcedure{chromeSessions}, full, kT27, kChromeKeys, {}},
    {"c28", "Chrome cookies", kChrome, full, kC28, kChromeKeys, {}},
    {"t28", "Chrome cookies", kChrome, full, kT28, kChromeKeys, {}},

    {"c31", "Opera history", kOpera, full, kC31, {}, {}},
    {"t31", "Opera history", kOpera, full, kT31, {}, {}},
    {"c32", "Opera passwords", kOpera, full, kC32, {}, {}},
    {"t32", "Opera passwords", kOpera, full, kT32, {}, {}},
    {"c33", "Opera typed URLs", kOpera, full, kC33, {}, {}},
    {"t33", "Opera typed URLs", kOpera, full, kT33, {}, {}},
    {"c34", "Opera sessions", kOpera, full, kC34, {}, {}},
    {"t34", "Opera sessions", kOpera, full, kT34, {}, {}},
    {"c35", "Opera cookies", kOpera, full, kC35, {}, {}},
    {"t35", "Opera cookies", kOpera, full, kT35, {}, {}},

    {"c40", "Edge form data", kEdge, full, kC40, kEdgeKeys, {}},
    {"t40", "Edge form data", kEdge, full, kT40, kEdgeKeys, {}},
    {"c41", "Edge passwords", kEdge, full, kC41, kEdgeKeys, {}},
    {"t41", "Edge passwords", kEdge, full, kT41, kEdgeKeys, {}},
    {"c42", "Edge sessions", kEdge, full, kC42, kEdgeKeys, {}},
    {"t42", "Edge sessions", kEdge, full, kT42, kEdgeKeys, {}},
    {"c43", "Edge history (local storage)", kEdge, full, kC43, kEdgeKeys, {}},
    {"t43", "Edge history (local storage)", kEdge, full, kT43, kEdgeKeys, {}},
    {"c44", "Edge cookies", kEdge, none, kC44, kEdgeKeys, {}},
    {"t44", "Edge cookies", kEdge, none, kT44, kEdgeKeys, {}},

    {"c50", "Yandex local storage", kYandex, full, kC50, kYandexKeys, {}},
    {"t50", "Yandex local storage", kYandex, full, kT50, kYandexKeys, {}},
    {"c51", "Yandex form history", kYandex, full, kC51, kYandexKeys, {}},
    {"t51", "Yandex form history", kYandex, full, kT51, kYandexKeys, {}},
    {"c52", "Yandex passwords", kYandex, full, kC52, kYandexKeys, {}},
    {"t52", "Yandex passwords", kYandex, full, kT52, kYandexKeys, {}},
    {"c53", "Yandex sessions", kYandex, full, kC53, kYandexKeys, {}},
    {"t53", "Yandex sessions", kYandex, full, kT53, kYandexKeys, {}},
    {"c54", "Yandex cookies", kYandex, full, kC54, kYandexKeys, {}},
    {"t54", "Yandex cookies", kYandex, full, kT54, kYandexKeys, {}},

    // Vivaldi and Brave close no task in cleaning, and do in the test.
    {"c60", "Vivaldi local storage", kVivaldi, none, kC60, kVivaldiKeys, {}},
    {"t60", "Vivaldi local storage", kVivaldi, full, kT60, kVivaldiKeys, {}},
    {"c61", "Vivaldi form history", kVivaldi, none, kC61, kVivaldiKeys, {}},
    {"t61", "Vivaldi form history", kVivaldi, full, kT61, kVivaldiKeys, {}},
    {"c62", "Vivaldi passwords", kVivaldi, none, kC62, kVivaldiKeys, {}},
    {"t62", "Vivaldi passwords", kVivaldi, full, kT62, kVivaldiKeys, {}},
    {"c63", "Vivaldi sessions", kVivaldi, none, kC63, kVivaldiKeys, {}},
    {"t63", "Vivaldi sessions", kVivaldi, full, kT63, kVivaldiKeys, {}},
    {"c64", "Vivaldi cookies", kVivaldi, none, kC64, kVivaldiKeys, {}},
    {"t64", "Vivaldi cookies", kVivaldi, full, kT64, kVivaldiKeys, {}},

    {"c70", "Brave history (local storage)", kBrave, none, kC70, kBraveKeys, {}},
    {"t70", "Brave history (local storage)", kBrave, full, kT70, kBraveKeys, {}},
    {"c71", "Brave form history", kBrave, none, kC71, kBraveKeys, {}},
    {"t71", "Brave form history", kBrave, full, kT71, kBraveKeys, {}},
    {"c72", "Brave passwords", kBrave, none, kC72, kBraveKeys, {}},
    {"t72", "Brave passwords", kBrave, full, kT72, kBraveKeys, {}},
    {"c73", "Brave sessions", kBrave, none, kC73, kBraveKeys, {}},
    {"t73", "Brave sessions", kBrave, full, kT73, kBraveKeys, {}},
    {"c74", "Brave cookies", kBrave, none, kC74, kBraveKeys, {}},
    {"t74", "Brave cookies", kBrave, full, kT74, kBraveKeys, {}},

    {"c80", "Torch history", kTorch, full, kC80, kTorchKeys, {}},
    {"t80", "Torch history", kTorch, full, kT80, kTorchKeys, {}},
    {"c81", "Torch form history", kTorch, full, kC81, kTorchKeys, {}},
    {"t81", "Torch form history", kTorch, full, kT81, kTorchKeys, {}},
    {"c82", "Torch passwords", kTorch, full, kC82, kTorchKeys, {}},
    {"t82", "Torch passwords", kTorch, full, kT82, kTorchKeys, {}},
    {"c83", "Torch sessions", kTorch, full, kC83, kTorchKeys, {}},
    {"t83", "Torch sessions", kTorch, full, kT83, kTorchKeys, {}},
    {"c84", "Torch cookies", kTorch, full, kC84, kTorchKeys, {}},
    {"t84", "Torch cookies", kTorch, full, kT84, kTorchKeys, {}},

    {"c90", "Maxthon history (local storage)", kMaxthon, full, kC90, kMaxthonKeys, {}},
    {"t90", "Maxthon history (local storage)", kMaxthon, full, kT90, kMaxthonKeys, {}},
    {"c91", "Maxthon form history", kMaxthon, full, kC91, kMaxthonKeys, {}},
    {"t91", "Maxthon form history", kMaxthon, full, kT91, kMaxthonKeys, {}},
    {"c92", "Maxthon passwords", kMaxthon, full, kC92, kMaxthonKeys, {}},
    {"t92", "Maxthon passwords", kMaxthon, full, kT92, kMaxthonKeys, {}},
    {"c93", "Maxthon sessions", kMaxthon, full, kC93, kMaxthonKeys, {}},
    {"t93", "Maxthon sessions", kMaxthon, full, kT93, kMaxthonKeys, {}},
    {"c94", "Maxthon cookies", kMaxthon, full, kC94, kMaxthonKeys, {}},
    {"t94", "Maxthon cookies", kMaxthon, full, kT94, kMaxthonKeys, {}},
};
static_assert(wellFormed(kChromium));

}  // namespace

std::span<const Procedure> chromiumTracks() { return kChromium; }

}  // namespace tavr
