// Typed URLs, cookies with DOM storage, and the extensible cache keys.
#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kTyped = "software\\microsoft\\internet explorer\\typedurls";
const std::string kTypedRead = "Software\\microsoft\\internet explorer\\typedurls";
const std::string kLow = "software\\microsoft\\internet explorer\\LowRegistry\\DOMStorage";
const std::string kLowGranted = "Software\\microsoft\\internet explorer\\LowRegistry\\DOMStorage";
const std::string kDom = "Software\\Microsoft\\Internet Explorer\\DOMStorage";
const std::string kDomLabel = " Microsoft IE DOM Store Cookies";

std::string extensible(std::string_view version) {
  return "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\" +
         std::string(version) + "\\Cache\\Extensible Cache";
}

class TypedUrls : public TrackTest {};

class Cookies : public TrackTest {
 protected:
  Cookies() {
    for (const std::string& path : {cookie, low_cookie, web_cache, low_store, local_store}) {
      world_.file(path, "123");
    }
    world_.file(user("\\AppData\\Local\\Microsoft\\Windows\\INetCookies\\container.dat"));
    world_.file(user("\\AppData\\LocalLow\\Microsoft\\Internet Explorer\\DOMStore\\index.dat"));
    world_.key(hkcu(kLow + "\\a.example\\deep")).key(hkcu(kLow + "\\b.example"));
    world_.key(hkcu(kDom + "\\c.example\\deep"));
  }
  const std::string cookie = user("\\AppData\\Local\\Microsoft\\Windows\\INetCookies\\a.txt");
  const std::string low_cookie =
      user("\\AppData\\Local\\Microsoft\\Windows\\INetCookies\\Low\\b.TXT");
  const std::string web_cache =
      user("\\AppData\\Local\\Microsoft\\Windows\\WebCache\\WebCacheV01.dat");
  const std::string low_store =
      user("\\AppData\\LocalLow\\Microsoft\\Internet Explorer\\DOMStore\\X\\s.xml");
  const std::string local_store =
      user("\\AppData\\Local\\Microsoft\\Internet Explorer\\DOMStore\\X\\s.xml");
  const std::vector<std::string> all_rows = {low_cookie + " IE Browser Localstorage",
                                             cookie + " IE Browser Localstorage",
                                             web_cache + kDomLabel,
                                             low_store + kDomLabel,
                                             local_store + kDomLabel,
                                             "IE Typed URL a.example",
                                             "IE Typed URL b.example",
                                             "IE Typed URL c.example"};
};

class ExtensibleCache : public TrackTest {};

TEST_F(TypedUrls, TestingCountsTheValuesWithEmptyDataToo) {
  world_.value(hkcu(kTyped), "url1", "http://a.example/").value(hkcu(kTyped), "url2", "");
  form().trackcount = 4;
  callProcedure(tracks(), "t6");
  EXPECT_THAT(rows(), ElementsAre("IE Typed URL http://a.example/", "IE Typed URL "));
  EXPECT_FALSE(ghosted(1));
  EXPECT_EQ(form().trackcount, 6);
  EXPECT_EQ(registryCount(), "2");
  EXPECT_TRUE(keyExists(kTyped));
  EXPECT_EQ(form().View200.ensuredRow(), 0u);
  EXPECT_THAT(texts(form().List20), ElementsAre("url1", "url2"));
}

TEST_F(TypedUrls, AnUnreadableTypeRepeatsTheTextBefore) {
  world_.value(hkcu(kTyped), "url1", "http://a.example/");
  world_.rawValue(hkcu(kTyped), "url2", "hex:01,02,03,04");
  call("t6");
  EXPECT_THAT(rows(),
              ElementsAre("IE Typed URL http://a.example/", "IE Typed URL http://a.example/"));
}

TEST_F(TypedUrls, CleaningDeletesTheKeyItselfAtTheEnd) {
  world_.value(hkcu(kTyped), "url1", "http://a.example/");
  call("c6");
  EXPECT_FALSE(keyExists(kTyped));
  EXPECT_THAT(rows(), ElementsAre("IE Typed URL http://a.example/"));
  EXPECT_EQ(form().trackcount, 1);
  EXPECT_THAT(calls({"grant", "values", "key "}),
              ElementsAre("grant " + kTypedRead, "values " + kTyped, "grant " + kTypedRead,
                          "key " + kTyped));
}

TEST_F(Cookies, TestingShowsEverythingAndDeletesNothing) {
  call("t7");
  EXPECT_EQ(rows(), all_rows);
  EXPECT_EQ(form().trackcount, 8);
  EXPECT_EQ(form().tracksize, 15);
  EXPECT_EQ(registryCount(), "3");
  for (const std::string& path : {cookie, low_cookie, web_cache, low_store, local_store}) {
    EXPECT_TRUE(world_.exists(path)) << path;
  }
  EXPECT_TRUE(keyExists(kLow + "\\a.example\\deep") && keyExists(kDom + "\\c.example"));
  EXPECT_THAT(calls({"grant", "key "}), ElementsAre("grant " + kLowGranted, "grant " + kDom));
}

TEST_F(Cookies, CleaningShowsTheSameAndLeavesTheLocalDomStore) {
  call("c7");
  EXPECT_EQ(rows(), all_rows);
  EXPECT_EQ(form().trackcount, 8);
  for (const std::string& path : {cookie, low_cookie, web_cache, low_store}) {
    EXPECT_FALSE(world_.exists(path)) << path;
  }
  EXPECT_TRUE(world_.exists(local_store));
  EXPECT_TRUE(
      world_.exists(user("\\AppData\\Local\\Microsoft\\Windows\\INetCookies\\container.dat")));
  EXPECT_TRUE(world_.exists(
      user("\\AppData\\LocalLow\\Microsoft\\Internet Explorer\\DOMStore\\index.dat")));
  EXPECT_FALSE(keyExists(kLow + "\\a.example") || keyExists(kDom + "\\c.example"));
  EXPECT_TRUE(keyExists(kLow) && keyExists(kDom));
  EXPECT_THAT(texts(form().List12), IsEmpty());
  EXPECT_EQ(form().View200.ensuredRow(), 0u);
}

TEST_F(Cookies, DomStorageKeysGoByTwoCallsTheSecondInVain) {
  call("c7");
  EXPECT_THAT(calls({"grant", "key "}),
              ElementsAre("grant " + kLowGranted, "grant " + kLowGranted + "\\a.example",
                          "key " + kLow + "\\a.example\\deep", "key " + kLow + "\\a.example",
                          "key " + kLow + "\\a.example", "grant " + kLowGranted + "\\b.example",
                          "key " + kLow + "\\b.example", "key " + kLow + "\\b.example",
                          "grant " + kDom, "key " + kDom + "\\c.example\\deep",
                          "key " + kDom + "\\c.example", "key " + kDom + "\\c.example"));
}

TEST_F(Cookies, TheFolderIsTheOneThatTheShellReports) {
  world_.ini("[folders]\ncookies=C:\\cook\n").file("C:\\cook\\c.txt");
  form().Text3.setText("C:\\old");
  call("c7");
  EXPECT_EQ(form().Text3.text(), "C:\\cook");
  EXPECT_FALSE(world_.exists("C:\\cook\\c.txt"));
  EXPECT_TRUE(world_.exists(cookie));
}

TEST_F(Cookies, WithoutTheShellsAnswerTheFolderStaysWhatItWas) {
  world_.ini("[fault]\nSHGetSpecialFolderLocation=0,5\n").file("C:\\old\\c.txt");
  form().Text3.setText("  C:\\old ");
  call("c7");
  EXPECT_EQ(form().Text3.text(), "  C:\\old ");
  EXPECT_FALSE(world_.exists("C:\\old\\c.txt"));
}

TEST_F(Cookies, WithoutAnyFolderNoDriveIsSearched) {
  world_.ini("[fault]\nSHGetSpecialFolderLocation=0,5\n").file("C:\\precious.txt");
  call("c7");
  EXPECT_TRUE(world_.exists("C:\\precious.txt") && world_.exists(cookie));
}

TEST_F(ExtensibleCache, TestingCountsTheNamesOfTheFirstVersionThere) {
  world_.key(hkcu(extensible("4.0") + "\\one")).key(hkcu(extensible("4.0") + "\\two"));
  world_.key(hkcu(extensible("5.0") + "\\three"));
  call("t11");
  EXPECT_THAT(rows(), ElementsAre("Cleaning Internet History value: one  <OK>",
                                  "Cleaning Internet History value: two  <OK>"));
  EXPECT_FALSE(ghosted(1));
  EXPECT_EQ(count(), "2");
  EXPECT_EQ(form().trackcount, 2);
  EXPECT_EQ(registryCount(), "2");
  EXPECT_TRUE(keyExists(extensible("4.0") + "\\one"));
  EXPECT_THAT(calls({"missing"}), ElementsAre("missing " + extensible("6.0")));
}

TEST_F(ExtensibleCache, TestingWithoutKeysCountsOneEmptyName) {
  call("t11");
  EXPECT_THAT(rows(), ElementsAre("Cleaning Internet History value:   <OK>"));
  EXPECT_EQ(count(), "1");
  EXPECT_THAT(calls({"missing"}),
              ElementsAre("missing " + extensible("6.0"), "missing " + extensible("4.0"),
                          "missing " + extensible("5.0")));
}

TEST_F(ExtensibleCache, CleaningTakesTheUsersKeysAndThoseNamedByTheLoggedOnUser) {
  world_.key(hkcu(extensible("6.0") + "\\one\\deep")).key(hkcu(extensible("5.0") + "\\stays"));
  world_.value("HKEY_LOCAL_MACHINE\\Network\\Logon", "username", " ann ");
  world_.key("HKEY_USERS\\ann\\" + extensible("5.0") + "\\two");
  world_.key(hkcu("ann\\" + extensible("5.0") + "\\two\\deep"));
  call("c11");
  EXPECT_THAT(rows(), ElementsAre("Cleaning Internet History value: one  <OK>",
                                  "Cleaning Internet History value: two  <OK>"));
  EXPECT_FALSE(keyExists(extensible("6.0") + "\\one"));
  EXPECT_TRUE(keyExists(extensible("5.0") + "\\stays"));
  // The names come from all users, what goes lies under the current one.
  EXPECT_FALSE(keyExists("ann\\" + extensible("5.0") + "\\two"));
  EXPECT_TRUE(world_.keyExists(Root::kUsers, "ann\\" + extensible("5.0") + "\\two"));
  EXPECT_EQ(count(), "2");
  EXPECT_EQ(form().trackcount, 2);
  EXPECT_EQ(registryCount(), "2");
}

TEST_F(ExtensibleCache, CleaningTrimsTheUsersNamesAndNotThoseOfTheLoggedOnUser) {
  world_.key(hkcu(extensible("6.0") + "\\one "));
  world_.value("HKEY_LOCAL_MACHINE\\Network\\Logon", "username", "ann");
  world_.key("HKEY_USERS\\ann\\" + extensible("6.0") + "\\two ");
  world_.key(hkcu("ann\\" + extensible("6.0") + "\\two"));
  world_.key(hkcu("ann\\" + extensible("6.0") + "\\two "));
  call("c11");
  EXPECT_THAT(rows(), ElementsAre("Cleaning Internet History value: one   <OK>",
                                  "Cleaning Internet History value: two   <OK>"));
  EXPECT_THAT(calls({"key "}), ElementsAre("key " + extensible("6.0") + "\\one",
                                           "key ann\\" + extensible("6.0") + "\\two "));
  EXPECT_TRUE(keyExists(extensible("6.0") + "\\one "));
  EXPECT_TRUE(keyExists("ann\\" + extensible("6.0") + "\\two"));
  EXPECT_FALSE(keyExists("ann\\" + extensible("6.0") + "\\two "));
}

TEST_F(ExtensibleCache, CleaningAnEmptyKeyTakesTheKeyItself) {
  world_.key(hkcu(extensible("6.0")));
  world_.value("HKEY_LOCAL_MACHINE\\Network\\Logon", "username", "ann");
  call("c11");
  EXPECT_FALSE(keyExists(extensible("6.0")));
  EXPECT_TRUE(
      keyExists("Software\\Microsoft\\Windows\\CurrentVersion\\Internet "
                "Settings\\6.0\\Cache"));
  EXPECT_EQ(rows(), std::vector<std::string>(2, "Cleaning Internet History value:   <OK>"));
}

TEST_F(ExtensibleCache, WithoutALoggedOnUserTheSecondRoundCountsOneEmptyName) {
  world_.key(hkcu(extensible("6.0") + "\\one")).key(hkcu(extensible("6.0") + "\\two"));
  call("c11");
  EXPECT_THAT(rows(), ElementsAre("Cleaning Internet History value: one  <OK>",
                                  "Cleaning Internet History value: two  <OK>",
                                  "Cleaning Internet History value:   <OK>"));
  EXPECT_EQ(count(), "3");
  EXPECT_THAT(calls({"missing HKU:"}), ElementsAre("missing HKU:\\" + extensible("6.0"),
                                                   "missing HKU:\\" + extensible("4.0"),
                                                   "missing HKU:\\" + extensible("5.0")));
}

TEST_F(ExtensibleCache, WithoutALoggedOnUserTheUsersOtherVersionsStay) {
  world_.key(hkcu(extensible("6.0") + "\\one")).key(hkcu(extensible("5.0") + "\\stays"));
  call("c11");
  EXPECT_FALSE(keyExists(extensible("6.0") + "\\one"));
  EXPECT_TRUE(keyExists(extensible("5.0") + "\\stays"));  // no path begins with a backslash
}

}  // namespace
}  // namespace tavr::testing
