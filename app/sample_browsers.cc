// The browsers' files. Beside what a cleaner finds stand names that look like
// it and must stay ("History Export 2025.html"), journals of the databases and
// the settings, bookmarks and keys of each browser.
#include "app/sample_traces.h"

namespace tavr::sample {
namespace {

using enum Content;
using enum Wanted;

constexpr Trace kChrome[] = {
    {"Local State", kJson, kAlways, 180},
    {"Default/History", kDatabase, kAlways, 1800},
    {"Default/History-journal", kNoise, kAlways, 64},
    {"Default/Network/Cookies", kDatabase, kAlways, 900},
    {"Default/Login Data", kDatabase, kAlways, 700},
    {"Default/Web Data", kDatabase, kAlways, 650},
    {"Default/Top Sites", kDatabase, kAlways, 300},
    {"Default/Visited Links", kNoise, kAlways, 512},
    {"Default/Bookmarks", kJson, kAlways, 240},
    {"Default/History Export 2025.html", kNoise, kAlways, 120},
    {"Default/Cache/Cache_Data/f_000001", kNoise, kAlways, 1500},
    {"Default/Session Storage/000003.log", kNoise, kAlways, 210},
    {"Default/IndexedDB/https_mail.example.com_0.indexeddb.leveldb/000003.log", kNoise, kAlways,
     420},
    {"Default/Storage/ext/nmmhkkegccagdldgiimedpiccmgmieda/def/Session Storage/000003.log", kNoise,
     kAlways, 130},
    {"Profile 1/History", kDatabase, kAlways, 800},
    {"Default/Preferences", kJson, kMore, 320},
    {"Default/Secure Preferences", kJson, kMore, 280},
    {"Default/Favicons", kDatabase, kMore, 600},
    {"Default/Favicons-journal", kNoise, kMore, 32},
    {"Default/Shortcuts", kDatabase, kMore, 210},
    {"Default/Shortcuts-journal", kNoise, kMore, 0},
    {"Default/Network Action Predictor", kDatabase, kMore, 190},
    {"Default/Network/Cookies-journal", kNoise, kMore, 32},
    {"Default/Network/Network Persistent State", kJson, kMore, 90},
    {"Default/Login Data-journal", kNoise, kMore, 0},
    {"Default/Login Data For Account", kDatabase, kMore, 180},
    {"Default/Web Data-journal", kNoise, kMore, 0},
    {"Default/Top Sites-journal", kNoise, kMore, 0},
    {"Default/QuotaManager", kDatabase, kMore, 150},
    {"Default/Cookies of grandmother.docx", kNoise, kMore, 90},
    {"Default/Cache/Cache_Data/index", kNoise, kMore, 368},
    {"Default/Cache/Cache_Data/data_0", kNoise, kMore, 800},
    {"Default/Cache/Cache_Data/data_1", kNoise, kMore, 900},
    {"Default/Cache/Cache_Data/f_000002", kNoise, kMore, 1300},
    {"Default/Code Cache/js/index-dir/the-real-index", kNoise, kMore, 72},
    {"Default/Code Cache/js/0a1b2c3d4e5f6071_0", kNoise, kMore, 300},
    {"Default/Session Storage/CURRENT", kNoise, kMore, 16},
    {"Default/Session Storage/MANIFEST-000001", kNoise, kMore, 41},
    {"Default/Sessions/Session_13409999999000000", kNoise, kMore, 260},
    {"Default/Sessions/Tabs_13409999999000001", kNoise, kMore, 190},
    {"Default/Extension State/000003.log", kNoise, kMore, 110},
    {"Default/Extension State/MANIFEST-000001", kNoise, kMore, 41},
    {"Default/Extensions/nmmhkkegccagdldgiimedpiccmgmieda/1.0.0.6_0/manifest.json", kJson, kMore,
     200},
    {"Default/IndexedDB/https_mail.example.com_0.indexeddb.leveldb/MANIFEST-000001", kNoise, kMore,
     41},
    {"Default/IndexedDB/https_mail.example.com_0.indexeddb.blob/1/00/3", kNoise, kMore, 1100},
    {"Default/Local Storage/leveldb/000003.log", kNoise, kMore, 370},
    {"Profile 1/History-journal", kNoise, kMore, 0},
    {"Profile 1/Network/Cookies", kDatabase, kMore, 500},
    {"Profile 1/Login Data", kDatabase, kMore, 350},
    {"Profile 1/Preferences", kJson, kMore, 250},
    {"Profile 1/Bookmarks", kJson, kMore, 100},
    {"Guest Profile/History", kDatabase, kMore, 200},
    {"System Profile/Preferences", kJson, kMore, 60},
    {"Crashpad/settings.dat", kNoise, kMore, 40},
};

constexpr Trace kOpera[] = {
    {"History", kDatabase, kAlways, 900},
    {"Network/Cookies", kDatabase, kAlways, 500},
    {"Login Data", kDatabase, kAlways, 400},
    {"Preferences", kJson, kMore, 200},
    {"Bookmarks", kJson, kMore, 150},
    {"Local State", kJson, kMore, 120},
    {"History-journal", kNoise, kMore, 0},
    {"Web Data", kDatabase, kMore, 350},
    {"Visited Links", kNoise, kMore, 256},
    {"Top Sites", kDatabase, kMore, 120},
    {"Session Storage/000003.log", kNoise, kMore, 140},
    {"Extension State/000003.log", kNoise, kMore, 60},
    {"IndexedDB/https_news.example.org_0.indexeddb.leveldb/000003.log", kNoise, kMore, 210},
};

// Edge, Brave, Vivaldi, Yandex, Torch and Maxthon share their build of the
// profile folder; what a cleaner takes from it differs from one to the next.
constexpr Trace kProfile[] = {
    {"Default/History", kDatabase, kAlways, 700},
    {"Default/Network/Cookies", kDatabase, kAlways, 450},
    {"Local State", kJson, kMore, 130},
    {"Default/Login Data", kDatabase, kMore, 330},
    {"Default/Web Data", kDatabase, kMore, 300},
    {"Default/Preferences", kJson, kMore, 220},
    {"Default/Bookmarks", kJson, kMore, 140},
    {"Default/Top Sites", kDatabase, kMore, 170},
    {"Default/Visited Links", kNoise, kMore, 256},
    {"Default/Shortcuts", kDatabase, kMore, 120},
    {"Default/Favicons", kDatabase, kMore, 260},
    {"Default/History-journal", kNoise, kMore, 0},
    {"Default/Session Storage/000003.log", kNoise, kMore, 90},
    {"Default/Extension State/000003.log", kNoise, kMore, 50},
    {"Default/IndexedDB/https_shop.example.net_0.indexeddb.leveldb/000003.log", kNoise, kMore, 160},
    {"Default/Cache/Cache_Data/f_000001", kNoise, kMore, 800},
};

constexpr Trace kTorch[] = {
    {"Default/History", kDatabase, kAlways, 600},
    {"Default/Cookies", kDatabase, kAlways, 350},
    {"Default/Current Session", kNoise, kAlways, 210},
    {"Default/Login Data", kDatabase, kMore, 250},
    {"Default/Preferences", kJson, kMore, 180},
    {"Default/Bookmarks", kJson, kMore, 90},
    {"Default/Current Tabs", kNoise, kMore, 120},
    {"Default/Web Data", kDatabase, kMore, 220},
    {"Default/Origin Bound Certs", kDatabase, kMore, 90},
    {"Default/databases/Databases.db", kDatabase, kMore, 110},
};

constexpr Trace kFirefoxRoaming[] = {
    {"profiles.ini", kText, kAlways, 0,
     "[Profile0]\nName=default-release\nIsRelative=1\nPath=Profiles/k3x9w2ab.default-release\n"
     "Default=1\n\n[General]\nStartWithLastProfile=1\nVersion=2\n"},
    {"Profiles/k3x9w2ab.default-release/places.sqlite", kDatabase, kAlways, 2100},
    {"Profiles/k3x9w2ab.default-release/cookies.sqlite", kDatabase, kAlways, 800},
    {"Profiles/k3x9w2ab.default-release/cookies.sqlite-wal", kNoise, kAlways, 320},
    {"Profiles/k3x9w2ab.default-release/logins.json", kJson, kAlways, 230},
    {"Profiles/k3x9w2ab.default-release/key4.db", kDatabase, kAlways, 290},
    {"Profiles/k3x9w2ab.default-release/sessionstore-backups/recovery.jsonlz4", kNoise, kAlways,
     410},
    {"Profiles/k3x9w2ab.default-release/cookies.sqlite-shm", kNoise, kMore, 320},
    {"Profiles/k3x9w2ab.default-release/places.sqlite-wal", kNoise, kMore, 640},
    {"Profiles/k3x9w2ab.default-release/formhistory.sqlite", kDatabase, kMore, 260},
    {"Profiles/k3x9w2ab.default-release/webappsstore.sqlite", kDatabase, kMore, 180},
    {"Profiles/k3x9w2ab.default-release/sessionCheckpoints.json", kJson, kMore, 90},
    {"Profiles/k3x9w2ab.default-release/sessionstore-backups/previous.jsonlz4", kNoise, kMore, 350},
    {"Profiles/k3x9w2ab.default-release/SiteSecurityServiceState.txt", kNoise, kMore, 120},
    {"Profiles/k3x9w2ab.default-release/prefs.js", kNoise, kMore, 300},
    {"Profiles/k3x9w2ab.default-release/bookmarkbackups/bookmarks-2026-11-19_42.jsonlz4", kNoise,
     kMore, 220},
    {"Profiles/k3x9w2ab.default-release/storage/default/https+++maps.example.com/ls/data.sqlite",
     kDatabase, kMore, 240},
    {"Profiles/k3x9w2ab.default-release/storage/default/https+++maps.example.com/.metadata-v2",
     kNoise, kMore, 40},
    {"Profiles/p7q1r5st.work/places.sqlite", kDatabase, kMore, 500},
    {"Profiles/p7q1r5st.work/cookies.sqlite", kDatabase, kMore, 300},
};

constexpr Trace kFirefoxLocal[] = {
    {"k3x9w2ab.default-release/cache2/entries/0A5C3F1E77D24B9B8E6A1C0D2F4B6E8A9C7D5B31", kNoise,
     kAlways, 900},
    {"k3x9w2ab.default-release/cache2/entries/F00D1E2C3B4A596877869504132231405F6E7D8C", kNoise,
     kMore, 700},
    {"k3x9w2ab.default-release/cache2/index", kNoise, kMore, 90},
    {"k3x9w2ab.default-release/startupCache/startupCache.8.little", kNoise, kMore, 200},
};

constexpr Trace kInternetExplorer[] = {
    {"Windows/WebCache/WebCacheV01.dat", kNoise, kAlways, 2048},
    {"Windows/INetCookies/7F3K2M1Q.txt", kNoise, kAlways, 110},
    {"Windows/INetCache/IE/4QZ81XJC/logo[1].png", kPicture, kAlways, 320},
    {"Windows/INetCache/index.dat", kNoise, kAlways, 512},
    {"Windows/INetCookies/index.dat", kNoise, kMore, 512},
    {"Windows/INetCache/IE/9B5D0HTW/style[1].css", kNoise, kMore, 180},
    {"Windows/INetCache/IE/container.dat", kNoise, kMore, 0},
    {"Windows/WebCache/V01.log", kNoise, kMore, 400},
    {"Windows/WebCache/V01.chk", kNoise, kMore, 80},
    {"Internet Explorer/DOMStore/3ZP0VW9A/www.example[1].xml", kNoise, kMore, 70},
};

constexpr TraceGroup kGroups[] = {
    {"C/Users/user/AppData/Local/Google/Chrome/User Data", kChrome},
    {"C/Users/user/AppData/Roaming/Opera Software/Opera Stable", kOpera},
    {"C/Users/user/AppData/Local/Microsoft/Edge/User Data", kProfile},
    {"C/Users/user/AppData/Local/BraveSoftware/Brave-Browser/User Data", kProfile},
    {"C/Users/user/AppData/Local/Vivaldi/User Data", kProfile},
    {"C/Users/user/AppData/Local/Yandex/YandexBrowser/User Data", kProfile},
    {"C/Users/user/AppData/Local/Maxthon/Application/User Data", kProfile},
    {"C/Users/user/AppData/Local/Torch/User Data", kTorch},
    {"C/Users/user/AppData/Roaming/Mozilla/Firefox", kFirefoxRoaming},
    {"C/Users/user/AppData/Local/Mozilla/Firefox/Profiles", kFirefoxLocal},
    {"C/Users/user/AppData/Local/Microsoft", kInternetExplorer},
};

}  // namespace

std::span<const TraceGroup> browserTraces() { return kGroups; }

}  // namespace tavr::sample
