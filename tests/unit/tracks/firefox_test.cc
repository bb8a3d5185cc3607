// The tracks of Firefox, profile by profile.
#include <algorithm>
#include <filesystem>

#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Firefox : public TrackTest {
 protected:
  static std::string roaming(std::string_view below) {
    return user("\\AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\") + std::string(below);
  }
  static std::string local(std::string_view below) {
    return user("\\AppData\\Local\\Mozilla\\Firefox\\Profiles\\") + std::string(below);
  }
  // Everything that the tracks name, in one profile; each file has two bytes.
  void profile(const std::string& name) {
    for (const std::string_view file :
         {"places.sqlite", "logins.json", "cookies.sqlite", "cookies.sqlite-wal",
          "cookies.sqlite.bak", "formhistory.sqlite", "sessionCheckpoints.json",
          "sessionstore.jsonlz4", "webappsstore.sqlite", "SiteSecurityServiceState.txt",
          "downloads.sqlite", "prefs.js", "cache2\\entries\\1", "storage\\default\\2",
          "sessionstore -backups\\old", "sessionstore-backups\\new"}) {
      world_.file(roaming(name + "\\" + std::string(file)), "12");
    }
  }
  // Names below the profile that a call deleted.
  std::vector<std::string> gone(std::string_view procedure, const std::string& name) {
    const std::vector<std::string> before = filesOf(name);
    call(procedure);
    std::vector<std::string> missing;
    for (const std::string& file : before) {
      if (!world_.exists(roaming(name + "\\" + file))) missing.push_back(file);
    }
    return missing;
  }
  std::vector<std::string> filesOf(const std::string& name) {
    std::vector<std::string> files;
    const std::filesystem::path root = world_.host(roaming(name));
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
      if (!entry.is_regular_file()) continue;
      std::string file = entry.path().lexically_relative(root).string();
      std::ranges::replace(file, '/', '\\');
      files.push_back(file);
    }
    std::ranges::sort(files);
    return files;
  }
};

TEST_F(Firefox, EachCleaningTakesItsFilesAndNoOther) {
  profile("p");
  EXPECT_THAT(gone("c21", "p"), ElementsAre("places.sqlite", "sessionstore -backups\\old"));
  EXPECT_THAT(gone("c22", "p"), ElementsAre("logins.json"));
  EXPECT_THAT(gone("c23", "p"),
              ElementsAre("cache2\\entries\\1", "cookies.sqlite", "formhistory.sqlite"));
  EXPECT_THAT(gone("c231", "p"), ElementsAre("sessionCheckpoints.json", "sessionstore-backups\\new",
                                             "sessionstore.jsonlz4"));
  EXPECT_THAT(gone("c223", "p"), ElementsAre("SiteSecurityServiceState.txt", "cookies.sqlite.bak",
                                             "storage\\default\\2", "webappsstore.sqlite"));
  EXPECT_THAT(filesOf("p"), ElementsAre("cookies.sqlite-wal", "downloads.sqlite", "prefs.js"));
}

TEST_F(Firefox, TheTestsDeleteNothing) {
  profile("p");
  const std::vector<std::string> before = filesOf("p");
  for (const std::string_view procedure : {"t21", "t22", "t23", "t223", "t19", "t20"}) {
    EXPECT_THAT(gone(procedure, "p"), IsEmpty()) << procedure;
  }
  EXPECT_EQ(filesOf("p"), before);
}

TEST_F(Firefox, TheCookieDatabaseGoesWithItsCompanionsWhereItStillIs) {
  profile("p");
  EXPECT_THAT(gone("c223", "p"),
              ElementsAre("SiteSecurityServiceState.txt", "cookies.sqlite", "cookies.sqlite.bak",
                          "storage\\default\\2", "webappsstore.sqlite"));
}

TEST_F(Firefox, TheSessionFolderWithTheBlankIsNotTheOneWithout) {
  profile("p");
  call("c21");
  EXPECT_THAT(rows(), ElementsAre(roaming("p\\places.sqlite Firefox Autocomplete form history "),
                                  roaming("p\\sessionstore -backups\\old "
                                          "Firefox Autocomplete form history ")));
  EXPECT_TRUE(world_.exists(roaming("p\\sessionstore-backups\\new")));
  EXPECT_TRUE(world_.exists(roaming("p\\sessionstore -backups")));
  form().View200.clear();
  call("t21");
  EXPECT_THAT(rows(), IsEmpty());  // it looks at neither folder
}

TEST_F(Firefox, TestingTheCookiesShowsFewerThanCleaningTakes) {
  profile("p");
  call("t223");
  EXPECT_THAT(rows(), ElementsAre(roaming("p\\cookies.sqlite Firefox Cookies "),
                                  roaming("p\\cookies.sqlite.bak Firefox Cookies ")));
  EXPECT_THAT(gone("c223", "p"),
              ElementsAre("SiteSecurityServiceState.txt", "cookies.sqlite", "cookies.sqlite.bak",
                          "storage\\default\\2", "webappsstore.sqlite"));
}

TEST_F(Firefox, TestingTheCacheListsTheCookiesTwiceAndTheSessionFiles) {
  profile("p");
  call("t23");
  EXPECT_THAT(rows(),
              ElementsAre(roaming("p\\cache2\\entries\\1 Firefox Cache "),
                          roaming("p\\cookies.sqlite Firefox cookies "),
                          roaming("p\\formhistory.sqlite Firefox History or visited pages "),
                          roaming("p\\cookies.sqlite Firefox cookies "),
                          roaming("p\\sessionCheckpoints.json Firefox History or visited pages "),
                          roaming("p\\sessionstore.jsonlz4 Firefox History or visited pages ")));
  EXPECT_EQ(form().trackcount, 6);
  EXPECT_EQ(form().tracksize, 12);
  EXPECT_EQ(count(), "5");
}

TEST_F(Firefox, WithTwoProfilesEachCookieDatabaseIsListedTwice) {
  world_.file(roaming("b\\cookies.sqlite")).file(roaming("a\\cookies.sqlite"));
  call("t23");
  const std::string a = roaming("a\\cookies.sqlite Firefox cookies ");
  const std::string b = roaming("b\\cookies.sqlite Firefox cookies ");
  EXPECT_THAT(rows(), ElementsAre(a, a, b, b));
  EXPECT_EQ(form().trackcount, 4);
}

TEST_F(Firefox, CleaningLabelsTheFormHistoryOtherwiseThanTheTest) {
  world_.file(roaming("p\\formhistory.sqlite"));
  call("c23");
  EXPECT_THAT(rows(), ElementsAre(roaming("p\\formhistory.sqlite Firefox History ")));
}

TEST_F(Firefox, TheLocalCacheIsCleanedAndNotTested) {
  world_.folder(roaming("p")).file(local("p\\cache2\\entries\\1"), "123");
  call("t23");
  EXPECT_THAT(rows(), IsEmpty());
  call("c23");
  EXPECT_THAT(rows(), ElementsAre(local("p\\cache2\\entries\\1 Firefox Cache ")));
  EXPECT_FALSE(world_.exists(local("p\\cache2\\entries\\1")));
}

TEST_F(Firefox, AProfileThatExistsOnlyUnderLocalIsNotVisited) {
  world_.folder(roaming("p")).file(local("other\\cache2\\entries\\1"));
  call("c23");
  EXPECT_THAT(rows(), IsEmpty());
  EXPECT_TRUE(world_.exists(local("other\\cache2\\entries\\1")));
}

TEST_F(Firefox, PatternsReachIntoAllFoldersOfTheProfile) {
  world_.file(roaming("p\\backup\\deep\\PLACES.SQLITE")).file(roaming("p\\places.sqlite-wal"));
  call("c21");
  EXPECT_FALSE(world_.exists(roaming("p\\backup\\deep\\PLACES.SQLITE")));
  EXPECT_TRUE(world_.exists(roaming("p\\places.sqlite-wal")));
}

TEST_F(Firefox, AllEntriesRunForOneProfileBeforeTheNext) {
  profile("a");
  profile("b");
  call("c231");
  EXPECT_THAT(rows(), ElementsAre(roaming("a\\sessionstore-backups\\new Firefox Session "),
                                  roaming("a\\sessionCheckpoints.json Firefox Session pages "),
                                  roaming("a\\sessionstore.jsonlz4 Firefox Session "),
                                  roaming("b\\sessionstore-backups\\new Firefox Session "),
                                  roaming("b\\sessionCheckpoints.json Firefox Session pages "),
                                  roaming("b\\sessionstore.jsonlz4 Firefox Session ")));
  EXPECT_FALSE(countCell().bold);
  EXPECT_EQ(form().View200.ensuredRow(), 0u);
}

TEST_F(Firefox, WithoutTheProfileFolderNothingIsSearched) {
  world_.file(local("p\\cache2\\1"));
  call("c23");
  EXPECT_THAT(rows(), IsEmpty());
  EXPECT_TRUE(countCell().bold);  // the tail runs all the same
}

TEST_F(Firefox, AHeldFileIsReportedAndStays) {
  profile("p");
  world_.machineFile("locked.txt", roaming("p\\logins.json") + "\n");
  call("c22");
  EXPECT_THAT(rows(), ElementsAre(roaming("p\\logins.json Firefox Saved passwords ")));
  EXPECT_TRUE(world_.exists(roaming("p\\logins.json")));
}

TEST_F(Firefox, AfterAStopEachSearchOfEachProfileShowsItsFirstFile) {
  profile("a");
  profile("b");
  form().stopflag = 1;
  call("c231");
  EXPECT_EQ(rows().size(), 6u);
  EXPECT_EQ(form().trackcount, 0);
  EXPECT_TRUE(world_.exists(roaming("b\\sessionstore.jsonlz4")));
}

}  // namespace
}  // namespace tavr::testing
