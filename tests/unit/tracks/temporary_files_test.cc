// The temporary internet files: what is listed, counted, overwritten and
// removed.
#include "tests/unit/tracks/cached_pages.h"

namespace tavr::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

TEST_F(CachedPages, CleaningReportsCountsAndRemovesTheEntries) {
  call("c8");
  EXPECT_THAT(rows(), ElementsAre(" = C:\\cache\\a.htm  <OK>", " = C:\\cache\\b.htm  <OK>",
                                  " = C:\\cache\\c.htm  <OK>"));
  EXPECT_TRUE(ghosted(1) && ghosted(2) && ghosted(3));
  EXPECT_EQ(form().View200.ensuredRow(), 3u);
  EXPECT_EQ(fileCount(), "3");
  EXPECT_EQ(fileSize(), "60");
  EXPECT_EQ(form().trackcount, 3);  // so that the run counts them once more
  EXPECT_EQ(form().tracksize, 0);
  EXPECT_EQ(form().txtcountfil.text(), "50");  // without the first entry
  EXPECT_EQ(world_.readMachineFile("urlcache.txt"), "");
  EXPECT_THAT(texts(form().List13),
              ElementsAre("Removing : C:\\cache\\a.htm", "Removing : C:\\cache\\b.htm",
                          "Removing : C:\\cache\\c.htm"));
  EXPECT_EQ(texts(form().List20).size(), 3u);
  EXPECT_THAT(texts(form().List21), ElementsAre("http://x/a", "http://x/b", "http://x/c"));
}

TEST_F(CachedPages, WithoutSecureCleaningTheFilesThemselvesAreNotTouched) {
  keepEntries();
  secure("2", "1", "1");
  call("c8");
  EXPECT_EQ(left("a.htm"), std::string(10, 'a'));
  EXPECT_EQ(left("c.htm"), std::string(30, 'c'));
  EXPECT_EQ(fileCount(), "3");
}

TEST_F(CachedPages, TheReadOnlyMarkIsTakenOffInBoth) {
  keepEntries();
  for (const std::string_view procedure : {"c8", "t8"}) {
    world_.readOnly("C:\\cache\\b.htm");
    call(procedure);
    std::uint32_t attributes = 0;
    world_.machine().files.attributes("C:\\cache\\b.htm", attributes);
    EXPECT_EQ(attributes & kAttrReadOnly, 0u) << procedure;
  }
}

TEST_F(CachedPages, TheRowBeginsWithTheLanguagesText) {
  world_.file("C:\\Program Files\\Tavr Wipe\\lang\\x.ini", "[001]\r\n029=Cached\r\n");
  form().txtlang.setText("x.ini");
  call("c8");
  EXPECT_EQ(rows().front(), "Cached = C:\\cache\\a.htm  <OK>");
}

TEST_F(CachedPages, TestingReportsTheSameWithoutTheLanguagesTextAndRemovesNothing) {
  world_.file("C:\\Program Files\\Tavr Wipe\\lang\\x.ini", "[001]\r\n029=Cached\r\n");
  form().txtlang.setText("x.ini");
  const std::string before = world_.readMachineFile("urlcache.txt");
  call("t8");
  EXPECT_THAT(rows(), ElementsAre("IE cache temp files = C:\\cache\\a.htm  <OK>",
                                  "IE cache temp files = C:\\cache\\b.htm  <OK>",
                                  "IE cache temp files = C:\\cache\\c.htm  <OK>"));
  EXPECT_TRUE(ghosted(3));
  EXPECT_EQ(fileCount(), "3");
  EXPECT_EQ(fileSize(), "60");
  EXPECT_EQ(form().trackcount, 3);
  EXPECT_EQ(texts(form().List13).size(), 3u);
  EXPECT_EQ(left("a.htm"), std::string(10, 'a'));
  EXPECT_EQ(world_.readMachineFile("urlcache.txt"), before);
}

TEST_F(CachedPages, TestingReadsSecureCleaningFromAKeyOneLevelDeeper) {
  secure("1", "1", "1");
  call("t8");
  EXPECT_THAT(calls({"missing HKLM:"}),
              Contains("missing HKLM:software\\Tavrwork\\tavr wipe\\Tavr wipe"));
  EXPECT_THAT(calls({"read HKLM:"}),
              Not(Contains("read HKLM:software\\Tavrwork\\tavr wipe:secure_clean")));
  EXPECT_EQ(left("a.htm"), std::string(10, 'a'));
}

TEST_F(CachedPages, TestingStopsAheadOfARowAndCleaningDoesNot) {
  stopAtPump(2);
  call("t8");
  EXPECT_EQ(rows().size(), 1u);
  EXPECT_EQ(form().trackcount, 1);
  EXPECT_EQ(fileSize(), "10");
  call("c8");
  EXPECT_EQ(rows().size(), 4u);
}

TEST_F(CachedPages, SecureCleaningWithoutOverwritingKillsTheFirstFileOnly) {
  keepEntries();
  secure("1", "0", "1");
  call("c8");
  EXPECT_EQ(left("a.htm"), "<gone>");
  EXPECT_EQ(left("b.htm"), std::string(20, 'b'));
  EXPECT_EQ(left("c.htm"), std::string(30, 'c'));
  EXPECT_EQ(fileCount(), "3");
  EXPECT_EQ(fileSize(), "60");
}

// The first kill fails, so that the second round finds the file: as it was.
TEST_F(CachedPages, WithoutTheOptionAFileGoesToTheKillWithItsContent) {
  world_.ini("[fault]\nDeleteUrlCacheEntry=0,5\nDeleteFile=1,5\n");
  secure("1", "0", "2");
  program();
  std::string between = "<no second round>";
  events().actAt(3, [&] { between = left("a.htm"); });  // the row and the first round before
  call("c8");
  EXPECT_EQ(between, std::string(10, 'a'));
  EXPECT_EQ(left("a.htm"), "<gone>");
  EXPECT_EQ(left("b.htm"), std::string(20, 'b'));
  EXPECT_EQ(events().pumps, 2 + 3);  // two rounds, three rows
}

TEST_F(CachedPages, AnOptionOfAnotherNumberThanOneOverwritesNothing) {
  keepEntriesAndFiles();
  secure("1", "2", "1");
  call("c8");
  EXPECT_EQ(left("a.htm"), std::string(10, 'a'));
  EXPECT_EQ(left("b.htm"), std::string(20, 'b'));
  EXPECT_EQ(fileCount(), "3");
}

TEST_F(CachedPages, SettingsAreOnByTheirNumberHoweverItIsWritten) {
  keepEntriesAndFiles();
  secure("1.0", "1.0", "1");
  call("c8");
  EXPECT_EQ(left("a.htm"), "<overwritten>");
  EXPECT_EQ(left("b.htm"), "<overwritten>");
}

TEST_F(CachedPages, AnOptionThatIsNoNumberOverwritesNothing) {
  keepEntriesAndFiles();
  secure("1", "abc", "1");
  call("c8");
  EXPECT_EQ(left("a.htm"), std::string(10, 'a'));
}

TEST_F(CachedPages, SecureCleaningThatIsNoNumberLeavesTheFilesToTheCache) {
  keepEntries();
  secure("abc", "1", "1");
  call("c8");
  EXPECT_EQ(left("a.htm"), std::string(10, 'a'));
}

TEST_F(CachedPages, SecureOverwritingOfOneRoundTakesEveryFile) {
  keepEntries();
  secure("1", "1", "1");
  call("c8");
  EXPECT_EQ(left("a.htm") + left("b.htm") + left("c.htm"), "<gone><gone><gone>");
  EXPECT_EQ(fileSize(), "60");  // measured before the overwriting
}

TEST_F(CachedPages, SecureOverwritingWritesOverTheWholeFileBeforeItGoes) {
  keepEntriesAndFiles();
  secure("1", "1", "1");
  call("c8");
  EXPECT_EQ(left("a.htm"), "<overwritten>");
  EXPECT_EQ(left("c.htm"), "<overwritten>");
}

TEST_F(CachedPages, SecureOverwritingOfTwoRoundsTakesTheFirstFileOnly) {
  keepEntries();
  secure("1", "1", "2");
  call("c8");
  // Behind the first row the test reads the "2" of the rounds.
  EXPECT_EQ(left("a.htm"), "<gone>");
  EXPECT_EQ(left("b.htm"), std::string(20, 'b'));
  // Each of the two rounds makes two overwrites of eleven passes, of one block
  // and of two; a pump for every block, pass, overwrite, round and row.
  EXPECT_EQ(events().pumps, 2 * (1 + (1 + 11 * 2) + (1 + 11 * 3)) + 3);
}

TEST_F(CachedPages, AnOptionKeptAsANumberAppendsToTheTextBefore) {
  keepEntriesAndFiles();
  secure("1", "", "1");
  world_.rawValue("HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\tavrwork\\tavr wipe\\option\\option",
                  "3", "dword:00000001");
  call("c8");
  EXPECT_EQ(left("a.htm"), std::string(10, 'a'));  // 4097 is not 1
}

// Only a text and a number are taken; another type leaves what was there before,
// and that is the "1" of the secure cleaning.
TEST_F(CachedPages, AnOptionOfAnotherTypeCountsAsOnWhateverItHolds) {
  keepEntriesAndFiles();
  secure("1", "", "1");
  world_.rawValue("HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\tavrwork\\tavr wipe\\option\\option",
                  "3", "hex(2):30,00,00,00");  // "0" as REG_EXPAND_SZ
  call("c8");
  EXPECT_EQ(left("a.htm") + left("b.htm") + left("c.htm"),
            "<overwritten><overwritten><overwritten>");
}

class OddCache : public TrackTest {};

TEST_F(OddCache, AnEmptyCacheStillGivesOneRowWithAnEmptyName) {
  call("c8");
  call("t8");
  EXPECT_THAT(rows(), ElementsAre(" =   <OK>", "IE cache temp files =   <OK>"));
  EXPECT_EQ(fileCount(), "2");
  EXPECT_EQ(fileSize(), "0");
  EXPECT_EQ(form().trackcount, 1);
  EXPECT_THAT(texts(form().List13), ElementsAre("Removing : ", "Removing : "));
  EXPECT_EQ(form().txtcountfil.text(), "0");
  EXPECT_THAT(texts(form().List20), IsEmpty());
}

TEST_F(OddCache, CookiesAndForeignTypesStayOutApartFromTheFirstEntry) {
  world_.machineFile("urlcache.txt",
                     "1048577\tcookie:a\tC:\\cache\\first.txt\n"
                     "1\tcookie:b\tC:\\cache\\second.TXT\n"
                     "2\thttp://x/other\tC:\\cache\\other.htm\n"
                     "9\thttp://x/page\tC:\\cache\\page.htm\n");
  world_.file("C:\\cache\\second.TXT").file("C:\\cache\\other.htm").file("C:\\cache\\page.htm");
  call("c8");
  EXPECT_THAT(texts(form().List20), ElementsAre("C:\\cache\\first.txt", "C:\\cache\\page.htm"));
  EXPECT_TRUE(world_.exists("C:\\cache\\second.TXT") && world_.exists("C:\\cache\\other.htm"));
}

TEST_F(OddCache, AnEntryWithoutAFileStandsWithItsUrlUnlessItIsTheFirst) {
  world_.machineFile("urlcache.txt", "1\thttp://x/first\t\n1\thttp://x/second\t\n");
  call("t8");
  EXPECT_THAT(rows(), ElementsAre("IE cache temp files =   <OK>",
                                  "IE cache temp files = http://x/second  <OK>"));
  EXPECT_THAT(texts(form().List21), ElementsAre("http://x/first", "http://x/second"));
  EXPECT_EQ(fileSize(), "0");
}

TEST_F(OddCache, AWildcardInAUrlKillsNothing) {
  world_.ini("[fault]\nDeleteUrlCacheEntry=0,5\n").file("C:\\cache\\a.htm");
  world_.machineFile("urlcache.txt", "1\tu\tC:\\cache\\?.htm\n");
  world_.setting("tavr wipe", "secure_clean", "1");
  call("c8");
  EXPECT_TRUE(world_.exists("C:\\cache\\a.htm"));
}

}  // namespace
}  // namespace tavr::testing
