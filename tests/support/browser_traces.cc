#include "tests/support/browser_traces.h"

#include <string>

namespace tavr::testing {

namespace {

struct Place {
  std::string_view key;     // of the profiles, "" for none
  std::string_view folder;  // below the user's folder
  std::string_view file;
};

constexpr Place kPlaces[] = {
    {"", "AppData\\Local\\Microsoft\\Windows\\WebCache", "WebCacheV01.dat"},
    {"", "AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\p.default", "cookies.sqlite"},
    {"Software\\Google\\Chrome\\PreferenceMACs",
     "AppData\\Local\\Google\\Chrome\\User Data\\Default", "Cookies"},
    {"", "AppData\\Roaming\\Opera Software\\Opera Stable", "Cookies"},
    {"Software\\Microsoft\\Edge\\PreferenceMACs",
     "AppData\\Local\\Microsoft\\Edge\\User Data\\Default", "Cookies"},
    {"Software\\Yandex\\YandexBrowser\\PreferenceMACs",
     "AppData\\Local\\Yandex\\YandexBrowser\\User Data\\Default", "Cookies"},
    {"Software\\Vivaldi\\PreferenceMACs", "AppData\\Local\\Vivaldi\\User Data\\Default", "Cookies"},
    {"Software\\BraveSoftware\\Brave-Browser\\PreferenceMACs",
     "AppData\\Local\\BraveSoftware\\Brave-Browser\\User Data\\Default", "Cookies"},
    {"Software\\Torch\\PreferenceMACs", "AppData\\Local\\Torch\\User Data\\Default", "Cookies"},
    {"Software\\Maxthon\\PreferenceMACs",
     "AppData\\Local\\Maxthon\\Application\\User Data\\Default", "Cookies"},
};

}  // namespace

void addCookies(TestMachine& machine, int group, int count, std::size_t size) {
  const Place& place = kPlaces[group];
  if (!place.key.empty()) {
    machine.key("HKEY_CURRENT_USER\\" + std::string(place.key) + "\\Default");
  }
  for (int i = 1; i <= count; ++i) {
    machine.file(std::string(kUser) + "\\" + std::string(place.folder) + "\\s" + std::to_string(i) +
                     "\\" + std::string(place.file),
                 std::string(size, 'c'));
  }
}

void addDistinctCookies(TestMachine& machine) {
  for (int group = 0; group < 10; ++group) addCookies(machine, group, group + 1);
}

}  // namespace tavr::testing
