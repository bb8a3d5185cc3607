// What each procedure of the Chromium family shows of a profile that holds
// everything, in order and with its label, and what it takes. Kept by hand.
#include <set>

#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {
namespace {

struct Row {
  std::string_view file;  ///< below the profile
  std::string_view label;
};

struct Found {
  std::string_view procedure;
  std::vector<Row> rows;
  std::vector<std::string_view> deleted_by_test = {};
};

const Found kFound[] = {
    {"c24",
     {{"Cookies-journal", "Google chrome History ="},
      {"History-journal", "Google chrome History ="},
      {"Visited Links", "Google Visited Links ="},
      {"History Provider Cache", "Google history "},
      {"Network Action Predictor", "Google history "},
      {"Top Sites", "Google history "},
      {"History", "Google history "},
      {"Shortcuts", "Google history "}}},
    {"t24",
     {{"Cookies-journal", "Google chrome History ="},
      {"History-journal", "Google chrome History ="},
      {"Visited Links", "Google Visited Links ="},
      {"History Provider Cache", "Google history "},
      {"Network Action Predictor", "Google history "},
      {"Top Sites", "Google history "},
      {"History", "Google history "},
      {"Shortcuts", "Google history "}},
     {"Top Sites", "History"}},
    {"c25", {{"Web Data", "Google Autocomplete history ="}}},
    {"t25", {{"Web Data", "Google Autocomplete history ="}}},
    {"c26", {{"Login Data", "Google Login data ="}}},
    {"t26", {{"Login Data", "Google Login data ="}}},
    {"c27",
     {{"Extension State\\e.log", "Google session ="},
      {"Session Storage\\Current Session", "Google session ="},
      {"Session Storage\\s.log", "Google session ="},
      {"Storage\\ext\\x\\def\\Session Storage\\t.log", "Google session ="}}},
    {"t27",
     {{"Extension State\\e.log", "Google session ="},
      {"Session Storage\\Current Session", "Google session ="},
      {"Session Storage\\s.log", "Google session ="},
      {"Storage\\ext\\x\\def\\Session Storage\\t.log", "Google session ="}}},
    {"c28",
     {{"Cookies", "Google cookies "},
      {"IndexedDB\\i.ldb", "Google cookies "},
      {"QuotaManager", "Google cookies "}}},
    {"t28", {{"Cookies", "Google cookies "}}},
    {"c31",
     {{"History", "Opera History "},
      {"History Provider Cache", "Opera History "},
      {"Network Action Predictor", "Opera History "},
      {"Visited Links", "Opera History "}}},
    {"t31",
     {{"History", "Opera History "},
      {"History Provider Cache", "Opera History "},
      {"Network Action Predictor", "Opera History "},
      {"Visited Links", "Opera History "}}},
    {"c32", {{"Login Data", "Opera Passwords "}}},
    {"t32", {{"Login Data", "Opera Passwords "}}},
    {"c33", {{"Web Data", "Opera typed url "}}},
    {"t33", {{"Web Data", "Opera typed url "}}},
    {"c34",
     {{"Extension State\\e.log", "Opera Sessions "},
      {"Session Storage\\Current Session", "Opera Sessions "},
      {"Session Storage\\s.log", "Opera Sessions "}}},
    {"t34",
     {{"Extension State\\e.log", "Opera Sessions "},
      {"Session Storage\\Current Session", "Opera Sessions "},
      {"Session Storage\\s.log", "Opera Sessions "}}},
    {"c35",
     {{"Cookies", "Opera cookies "},
      {"QuotaManager", "Opera cookies "},
      {"IndexedDB\\i.ldb", "Opera cookies "}}},
    {"t35", {{"Cookies", "Opera cookies "}}},
    {"c40", {{"Web Data", "MS Edge Saved form information "}}},
    {"t40", {{"Web Data", "MS Edge Saved form information "}}},
    {"c41", {{"Login Data", "MS Edge Saved passwords "}}},
    {"t41", {{"Login Data", "MS Edge Saved passwords "}}},
    {"c42",
     {{"Extension State\\e.log", "MS Edge Session "},
      {"Session Storage\\Current Session", "MS Edge Session "},
      {"Session Storage\\s.log", "MS Edge Session "}}},
    {"t42",
     {{"Extension State\\e.log", "MS Edge Session "},
      {"Session Storage\\Current Session", "MS Edge Session "},
      {"Session Storage\\s.log", "MS Edge Session "}}},
    {"c43",
     {{"History Provider Cache", "MS Edge Local Storage "},
      {"Network Action Predictor", "MS Edge Local Storage "},
      {"Top Sites", "MS Edge Local Storage "},
      {"Visited Links", "MS Edge Local Storage "}}},
    {"t43",
     {{"History Provider Cache", "MS Edge Local Storage "},
      {"Network Action Predictor", "MS Edge Local Storage "},
      {"Top Sites", "MS Edge Local Storage "},
      {"Visited Links", "MS Edge Local Storage "}}},
    {"c44",
     {{"Cookies", "MS Edge cookies "},
      {"IndexedDB\\i.ldb", "MS Edge cookies "},
      {"QuotaManager", "MS Edge cookies "}}},
    {"t44", {{"Cookies", "MS Edge cookies "}}},
    {"c50",
     {{"Session Storage\\Current Session", "Yandex Localstorage"},
      {"Session Storage\\s.log", "Yandex Localstorage"}}},
    {"t50",
     {{"Session Storage\\Current Session", "Yandex Localstorage"},
      {"Session Storage\\s.log", "Yandex Localstorage"}}},
    {"c51", {{"Web Data", "Yandex Autocomplete form history"}}},
    {"t51", {{"Web Data", "Yandex Autocomplete form history"}}},
    {"c52", {{"Login Data", "Yandex Passwords"}}},
    {"t52", {{"Login Data", "Yandex Passwords"}}},
    {"c53", {{"Extension State\\e.log", "Yandex Session"}}},
    {"t53", {{"Extension State\\e.log", "Yandex Session"}}},
    {"c54", {{"Cookies", "Yandex Cookies"}, {"IndexedDB\\i.ldb", "Yandex Cookies"}}},
    {"t54", {{"Cookies", "Yandex Cookies"}}},
    {"c60",
     {{"Session Storage\\Current Session", "Vivaldi Localstorage"},
      {"Session Storage\\s.log", "Vivaldi Localstorage"}}},
    {"t60",
     {{"Session Storage\\Current Session", "Vivaldi Localstorage"},
      {"Session Storage\\s.log", "Vivaldi Localstorage"}}},
    {"c61", {{"Web Data", "Vivaldi Autocomplete form history"}}},
    {"t61", {{"Web Data", "Vivaldi Autocomplete form history"}}},
    {"c62", {{"Login Data", "Vivaldi Passwords"}}},
    {"t62", {{"Login Data", "Vivaldi Passwords"}}},
    {"c63", {{"Extension State\\e.log", "Vivaldi Session"}}},
    {"t63", {{"Extension State\\e.log", "Vivaldi Session"}}},
    {"c64", {{"Cookies", "Vivaldi Cookies"}, {"IndexedDB\\i.ldb", "Vivaldi Cookies"}}},
    {"t64", {{"Cookies", "Vivaldi Cookies"}}},
    {"c70",
     {{"History Provider Cache", "Brave Browser Localstorage"},
      {"Visited Links", "Brave Browser Localstorage"},
      {"Top Sites", "Brave Browser Localstorage"},
      {"Network Action Predictor", "Brave Browser Localstorage"}}},
    {"t70",
     {{"History Provider Cache", "Brave Browser Localstorage"},
      {"Visited Links", "Brave Browser Localstorage"},
      {"Top Sites", "Brave Browser Localstorage"},
      {"Network Action Predictor", "Brave Browser Localstorage"}}},
    {"c71", {{"Web Data", "Brave Browser Autocomplete form history"}}},
    {"t71", {{"Web Data", "Brave Browser Autocomplete form history"}}},
    {"c72", {{"Login Data", "Brave Browser Passwords"}}},
    {"t72", {{"Login Data", "Brave Browser Passwords"}}},
    {"c73",
     {{"Extension State\\e.log", "Brave Browser Session"},
      {"Session Storage\\Current Session", "Brave Browser Localstorage"},
      {"Session Storage\\s.log", "Brave Browser Localstorage"}}},
    {"t73",
     {{"Extension State\\e.log", "Brave Browser Session"},
      {"Session Storage\\Current Session", "Brave Browser Localstorage"},
      {"Session Storage\\s.log", "Brave Browser Localstorage"}}},
    {"c74", {{"Cookies", "Brave Browser Cookies"}, {"IndexedDB\\i.ldb", "Brave Browser Cookies"}}},
    {"t74", {{"Cookies", "Brave Browser Cookies"}}},
    {"c80",
     {{"History", "Torch Browser Localstorage"},
      {"Current Tabs", "Torch Browser Localstorage"},
      {"History Provider Cache", "Torch Browser Localstorage"},
      {"Visited Links", "Torch Browser Localstorage"},
      {"Top Sites", "Torch Browser Localstorage"},
      {"Network Action Predictor", "Torch Browser Localstorage"},
      {"Shortcuts", "Torch Browser Localstorage"}}},
    {"t80",
     {{"History Provider Cache", "Torch Browser Localstorage"},
      {"Visited Links", "Torch Browser Localstorage"},
      {"Top Sites", "Torch Browser Localstorage"},
      {"Network Action Predictor", "Torch Browser Localstorage"},
      {"Shortcuts", "Torch Browser Localstorage"},
      {"History", "Torch Browser Localstorage"}},
     {"History"}},
    {"c81", {{"Web Data", "Torch Browser Autocomplete form history"}}},
    {"t81", {{"Web Data", "Torch Browser Autocomplete form history"}}},
    {"c82", {{"Login Data", "Torch Browser Passwords"}}},
    {"t82", {{"Login Data", "Torch Browser Passwords"}}},
    {"c83",
     {{"Extension State\\e.log", "Torch Browser Session"},
      {"Session Storage\\Current Session", "Torch Browser Localstorage"},
      {"Session Storage\\s.log", "Torch Browser Localstorage"},
      {"Current Session", "Torch Browser Localstorage"}}},
    {"t83",
     {{"Extension State\\e.log", "Torch Browser Session"},
      {"Session Storage\\Current Session", "Torch Browser Localstorage"},
      {"Session Storage\\s.log", "Torch Browser Localstorage"},
      {"Session Storage\\Current Session", "Torch Browser Localstorage"}}},
    {"c84",
     {{"Cookies", "Torch Browser Cookies"},
      {"QuotaManager", "Torch Browser Cookies"},
      {"Origin Bound Certs", "Torch Browser Cookies"},
      {"databases\\d.db", "Torch Browser Cookies"}}},
    {"t84", {{"Cookies", "Torch Browser Cookies"}}},
    {"c90",
     {{"History Provider Cache", "Maxthon Browser Localstorage"},
      {"Visited Links", "Maxthon Browser Localstorage"},
      {"Top Sites", "Maxthon Browser Localstorage"},
      {"Network Action Predictor", "Maxthon Browser Localstorage"},
      {"Shortcuts", "Maxthon Browser Localstorage"}}},
    {"t90",
     {{"History Provider Cache", "Maxthon Browser Localstorage"},
      {"Visited Links", "Maxthon Browser Localstorage"},
      {"Top Sites", "Maxthon Browser Localstorage"},
      {"Network Action Predictor", "Maxthon Browser Localstorage"},
      {"Shortcuts", "Maxthon Browser Localstorage"}}},
    {"c91", {{"Web Data", "Maxthon Browser Autocomplete form history"}}},
    {"t91", {{"Web Data", "Maxthon Browser Autocomplete form history"}}},
    {"c92", {{"Login Data", "Maxthon Browser Passwords"}}},
    {"t92", {{"Login Data", "Maxthon Browser Passwords"}}},
    {"c93",
     {{"Extension State\\e.log", "Maxthon Browser Session"},
      {"Session Storage\\Current Session", "Maxthon Browser Localstorage"},
      {"Session Storage\\s.log", "Maxthon Browser Localstorage"}}},
    {"t93",
     {{"Extension State\\e.log", "Maxthon Browser Session"},
      {"Session Storage\\Current Session", "Maxthon Browser Localstorage"},
      {"Session Storage\\s.log", "Maxthon Browser Localstorage"}}},
    {"c94", {{"Cookies", "Maxthon Browser Cookies"}}},
    {"t94", {{"Cookies", "Maxthon Browser Cookies"}}},
};

constexpr std::string_view kProfileFiles[] = {"Cookies",
                                              "Cookies-journal",
                                              "Current Session",
                                              "Current Tabs",
                                              "History",
                                              "History Provider Cache",
                                              "History-journal",
                                              "Login Data",
                                              "Network Action Predictor",
                                              "Origin Bound Certs",
                                              "Preferences",
                                              "QuotaManager",
                                              "Shortcuts",
                                              "Top Sites",
                                              "Visited Links",
                                              "Web Data",
                                              "Extension State\\e.log",
                                              "IndexedDB\\i.ldb",
                                              "Session Storage\\Current Session",
                                              "Session Storage\\s.log",
                                              "Storage\\ext\\x\\def\\Session Storage\\t.log",
                                              "databases\\d.db",
                                              "databases\\d.txt"};

struct Home {
  std::string_view key;     // "" for a fixed folder
  std::string_view folder;  // of the profile, below the user's folder
};

Home homeOf(std::string_view procedure) {
  switch (procedure[1]) {
    case '2':
      return {"Software\\Google\\Chrome\\PreferenceMACs",
              "\\AppData\\Local\\Google\\Chrome\\User Data\\Default"};
    case '3':
      return {"", "\\AppData\\Roaming\\Opera Software\\Opera Stable"};
    case '4':
      return {"Software\\Microsoft\\Edge\\PreferenceMACs",
              "\\AppData\\Local\\Microsoft\\Edge\\User Data\\Default"};
    case '5':
      return {"Software\\Yandex\\YandexBrowser\\PreferenceMACs",
              "\\AppData\\Local\\Yandex\\YandexBrowser\\User Data\\Default"};
    case '6':
      return {"Software\\Vivaldi\\PreferenceMACs", "\\AppData\\Local\\Vivaldi\\User Data\\Default"};
    case '7':
      return {"Software\\BraveSoftware\\Brave-Browser\\PreferenceMACs",
              "\\AppData\\Local\\BraveSoftware\\Brave-Browser\\User Data\\Default"};
    case '8':
      return {"Software\\Torch\\PreferenceMACs", "\\AppData\\Local\\Torch\\User Data\\Default"};
    default:
      return {"Software\\Maxthon\\PreferenceMACs",
              "\\AppData\\Local\\Maxthon\\Application\\User Data\\Default"};
  }
}

class FullProfile : public TrackTest, public ::testing::WithParamInterface<Found> {};

TEST_P(FullProfile, ShowsAndTakesWhatTheTableSays) {
  const auto& [procedure, expected, deleted_by_test] = GetParam();
  const Home home = homeOf(procedure);
  if (!home.key.empty()) world_.key(hkcu(home.key) + "\\Default");
  const std::string folder = user(home.folder) + "\\";
  for (const std::string_view file : kProfileFiles) {
    world_.file(folder + std::string(file), "123");
  }
  call(procedure);

  std::vector<std::string> full;
  std::set<std::string_view> taken(deleted_by_test.begin(), deleted_by_test.end());
  for (const Row& row : expected) {
    full.push_back(folder + std::string(row.file) + " " + std::string(row.label));
    if (procedure.starts_with('c')) taken.insert(row.file);
  }
  EXPECT_EQ(rows(), full);
  EXPECT_EQ(form().trackcount, static_cast<double>(expected.size()));
  EXPECT_EQ(form().tracksize, 3.0 * static_cast<double>(expected.size()));
  EXPECT_EQ(count(), std::to_string(expected.size() - 1));
  for (const std::string_view file : kProfileFiles) {
    EXPECT_EQ(world_.exists(folder + std::string(file)), !taken.contains(file)) << file;
  }
}

INSTANTIATE_TEST_SUITE_P(Catalogue, FullProfile, ::testing::ValuesIn(kFound),
                         [](const auto& test) { return std::string(test.param.procedure); });

}  // namespace
}  // namespace tavr::testing
