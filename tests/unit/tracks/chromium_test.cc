// The tracks of the Chromium family where they are alike: the profiles come
// from the registry, all entries run for one profile before the next.
#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Browser {
  std::string_view name;
  std::string_view key;
  std::string_view user_data;  // below the user's folder
  std::string_view passwords, cookies;
  std::string_view passwords_label;
};

constexpr Browser kBrowsers[] = {
    {"Chrome", "Software\\Google\\Chrome\\PreferenceMACs",
     "\\AppData\\Local\\Google\\Chrome\\User Data\\", "26", "28", "Google Login data ="},
    {"Edge", "Software\\Microsoft\\Edge\\PreferenceMACs",
     "\\AppData\\Local\\Microsoft\\Edge\\User Data\\", "41", "44", "MS Edge Saved passwords "},
    {"Yandex", "Software\\Yandex\\YandexBrowser\\PreferenceMACs",
     "\\AppData\\Local\\Yandex\\YandexBrowser\\User Data\\", "52", "54", "Yandex Passwords"},
    {"Vivaldi", "Software\\Vivaldi\\PreferenceMACs", "\\AppData\\Local\\Vivaldi\\User Data\\", "62",
     "64", "Vivaldi Passwords"},
    {"Brave", "Software\\BraveSoftware\\Brave-Browser\\PreferenceMACs",
     "\\AppData\\Local\\BraveSoftware\\Brave-Browser\\User Data\\", "72", "74",
     "Brave Browser Passwords"},
    {"Torch", "Software\\Torch\\PreferenceMACs", "\\AppData\\Local\\Torch\\User Data\\", "82", "84",
     "Torch Browser Passwords"},
    {"Maxthon", "Software\\Maxthon\\PreferenceMACs",
     "\\AppData\\Local\\Maxthon\\Application\\User Data\\", "92", "94",
     "Maxthon Browser Passwords"},
};

class ProfileBrowser : public TrackTest, public ::testing::WithParamInterface<Browser> {
 protected:
  std::string data(std::string_view below) const {
    return user(GetParam().user_data) + std::string(below);
  }
  void profile(std::string_view name) {
    world_.key(hkcu(GetParam().key) + "\\" + std::string(name));
  }
  static std::string clean(std::string_view number) { return "c" + std::string(number); }
  static std::string test(std::string_view number) { return "t" + std::string(number); }
};

TEST_P(ProfileBrowser, SearchesTheProfilesThatTheKeyNamesAndNoOther) {
  profile("Profile 1");
  profile("Default");
  for (const std::string_view name : {"Default", "Profile 1", "Guest Profile"}) {
    world_.file(data(std::string(name) + "\\Login Data"), "123");
  }
  call(test(GetParam().passwords));
  const std::string label = " " + std::string(GetParam().passwords_label);
  EXPECT_THAT(rows(), ElementsAre(data("Default\\Login Data") + label,
                                  data("Profile 1\\Login Data") + label));
  call(clean(GetParam().passwords));
  EXPECT_EQ(rows().size(), 4u);
  EXPECT_EQ(form().trackcount, 2);
  EXPECT_EQ(form().tracksize, 6);
  EXPECT_EQ(count(), "1");
  EXPECT_FALSE(world_.exists(data("Default\\Login Data")));
  EXPECT_FALSE(world_.exists(data("Profile 1\\Login Data")));
  EXPECT_TRUE(world_.exists(data("Guest Profile\\Login Data")));
  EXPECT_THAT(texts(form().List12), ElementsAre("Default", "Profile 1"));
}

TEST_P(ProfileBrowser, WithoutTheKeyNothingIsSearchedThoughTheFoldersExist) {
  world_.file(data("Default\\Login Data")).file(data("Default\\Cookies"));
  form().List12.add("left over");
  for (const std::string_view number : {GetParam().passwords, GetParam().cookies}) {
    call(clean(number));
    call(test(number));
  }
  EXPECT_THAT(rows(), IsEmpty());
  EXPECT_THAT(texts(form().List12), IsEmpty());
  EXPECT_TRUE(world_.exists(data("Default\\Login Data")));
}

TEST_P(ProfileBrowser, AKeyWithoutSubkeysSearchesNothing) {
  world_.key(hkcu(GetParam().key)).file(data("Default\\Login Data"));
  world_.file(data("Login Data"));
  for (const auto& side : {clean(GetParam().passwords), test(GetParam().passwords)}) {
    form().List12.add("left over");
    call(side);
    EXPECT_EQ(form().List12.count(), 0) << side;
  }
  EXPECT_THAT(rows(), IsEmpty());
  EXPECT_EQ(count(), "");
  EXPECT_TRUE(countCell().bold);  // the tail of the test runs all the same
}

TEST_P(ProfileBrowser, GrantsTheKeyAndThenListsIt) {
  profile("Default");
  call(clean(GetParam().passwords));
  const std::string key(GetParam().key);
  EXPECT_THAT(calls({""}), ElementsAre("grant " + key, "keys " + key));
}

TEST_P(ProfileBrowser, JournalsAndNamesThatBeginAlikeStay) {
  profile("Default");
  for (const std::string_view name : {"Login Data-journal", "Login Data For Account", "Login"}) {
    world_.file(data("Default\\" + std::string(name)));
  }
  call(clean(GetParam().passwords));
  EXPECT_THAT(rows(), IsEmpty());
}

TEST_P(ProfileBrowser, CookiesGoAtEveryDepthAndTheirJournalStays) {
  profile("Default");
  for (const std::string_view name :
       {"Cookies", "Network\\Cookies", "Network\\Cookies-journal", "Network\\cookies.bak"}) {
    world_.file(data("Default\\" + std::string(name)));
  }
  call(clean(GetParam().cookies));
  EXPECT_EQ(form().trackcount, 3);
  EXPECT_FALSE(world_.exists(data("Default\\Cookies")));
  EXPECT_FALSE(world_.exists(data("Default\\Network\\Cookies")));
  EXPECT_FALSE(world_.exists(data("Default\\Network\\cookies.bak")));
  EXPECT_TRUE(world_.exists(data("Default\\Network\\Cookies-journal")));
}

TEST_P(ProfileBrowser, AFileThatTheBrowserHoldsIsReportedAndStays) {
  profile("Default");
  world_.file(data("Default\\Login Data"));
  world_.machineFile("locked.txt", data("Default\\Login Data") + "\n");
  call(clean(GetParam().passwords));
  EXPECT_EQ(form().trackcount, 1);
  EXPECT_TRUE(world_.exists(data("Default\\Login Data")));
}

TEST_P(ProfileBrowser, AStopLetsEachProfileShowItsFirstFile) {
  profile("Default");
  profile("Profile 1");
  for (const std::string_view name : {"Default", "Profile 1"}) {
    world_.file(data(std::string(name) + "\\Login Data"));
  }
  form().stopflag = 1;
  call(clean(GetParam().passwords));
  EXPECT_EQ(rows().size(), 2u);
  EXPECT_EQ(form().trackcount, 0);
  EXPECT_TRUE(world_.exists(data("Profile 1\\Login Data")));
}

INSTANTIATE_TEST_SUITE_P(Catalogue, ProfileBrowser, ::testing::ValuesIn(kBrowsers),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace
}  // namespace tavr::testing
