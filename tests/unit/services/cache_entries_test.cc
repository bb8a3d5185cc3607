#include "services/cache_entries.h"

#include <gtest/gtest.h>

#include "tests/support/test_machine.h"

namespace tavr {
namespace {

using Names = std::vector<std::string>;

class CacheEntriesTest : public ::testing::Test {
 protected:
  Form1& form() { return machine.program().form; }
  CacheEntries& cache() { return machine.program().cache; }
  void entries(std::string_view lines) { machine.machineFile("urlcache.txt", lines); }
  static Names rows(const TextList& list) {
    Names all;
    for (int i = 0; i < list.count(); ++i) all.push_back(list.at(i));
    return all;
  }

  testing::TestMachine machine;
};

TEST_F(CacheEntriesTest, AnEmptyCacheLeavesBothListsEmptyAndTheCountUnchanged) {
  form().List20.add("old");
  form().List21.add("old");
  form().txtcountfil.setText("5");
  cache().fListCacheFiles();
  EXPECT_EQ(form().List20.count(), 0);
  EXPECT_EQ(form().List21.count(), 0);
  EXPECT_EQ(form().txtcountfil.text(), "5");
}

TEST_F(CacheEntriesTest, AnEmptyCountBecomesZero) {
  cache().fListCacheFiles();
  EXPECT_EQ(form().txtcountfil.text(), "0");
}

TEST_F(CacheEntriesTest, FilesAndTheirAddressesStandRowForRow) {
  machine.file("C:\\c\\a.htm", "12345").file("C:\\c\\b.htm", "1234567");
  entries("1\thttp://a\tC:\\c\\a.htm\n1\thttp://b\tC:\\c\\b.htm\n");
  cache().fListCacheFiles();
  EXPECT_EQ(rows(form().List20), Names({"C:\\c\\a.htm", "C:\\c\\b.htm"}));
  EXPECT_EQ(rows(form().List21), Names({"http://a", "http://b"}));
}

TEST_F(CacheEntriesTest, TheFirstEntrysSizeIsNotCounted) {
  machine.file("C:\\c\\a.htm", "12345").file("C:\\c\\b.htm", "1234567").file("C:\\c\\c.htm", "1");
  entries("1\thttp://a\tC:\\c\\a.htm\n1\thttp://b\tC:\\c\\b.htm\n1\thttp://c\tC:\\c\\c.htm\n");
  form().txtcountfil.setText("100");
  cache().fListCacheFiles();
  EXPECT_EQ(form().txtcountfil.text(), "108");
}

TEST_F(CacheEntriesTest, AFirstEntryOfAnyTypeIsListedAlsoOneThatEndsInTxt) {
  entries("1048577\tCookie:user@a\tC:\\c\\a.txt\n");
  cache().fListCacheFiles();
  EXPECT_EQ(rows(form().List20), Names({"C:\\c\\a.txt"}));
  EXPECT_EQ(rows(form().List21), Names({"Cookie:user@a"}));
}

TEST_F(CacheEntriesTest, AFirstEntryThatIsNoPageIsListedToo) {
  entries("2\thttp://a\tC:\\c\\a.htm\n");
  cache().fListCacheFiles();
  EXPECT_EQ(rows(form().List20), Names({"C:\\c\\a.htm"}));
}

TEST_F(CacheEntriesTest, AFirstEntryWithoutAFileIsAnEmptyRow) {
  entries("1\thttp://a\t\n");
  cache().fListCacheFiles();
  EXPECT_EQ(rows(form().List20), Names({""}));
  EXPECT_EQ(rows(form().List21), Names({"http://a"}));
}

TEST_F(CacheEntriesTest, ALaterEntryWithoutAFileHasItsAddressInBothListsAndNoSize) {
  entries("1\thttp://a\t\n1\thttp://b/page?x=1\t\n");
  cache().fListCacheFiles();
  EXPECT_EQ(rows(form().List20), Names({"", "http://b/page?x=1"}));
  EXPECT_EQ(rows(form().List21), Names({"http://a", "http://b/page?x=1"}));
  EXPECT_EQ(form().txtcountfil.text(), "0");
}

TEST_F(CacheEntriesTest, ALaterEntrysFileIsTrimmedItsAddressAndTheFirstEntryAreNot) {
  machine.file("C:\\c\\b.htm", "1234567");
  entries("1\t http://a \t C:\\c\\a.htm \n1\t http://b \t C:\\c\\b.htm \n1\t http://c \t\n");
  cache().fListCacheFiles();
  EXPECT_EQ(rows(form().List20), Names({" C:\\c\\a.htm ", "C:\\c\\b.htm", "http://c"}));
  EXPECT_EQ(rows(form().List21), Names({" http://a ", " http://b ", " http://c "}));
  EXPECT_EQ(form().txtcountfil.text(), "7");
}

TEST_F(CacheEntriesTest, ALaterEntryThatEndsInTxtInAnyCaseIsSkipped) {
  machine.file("C:\\c\\b.txt", "123").file("C:\\c\\c.TXT", "123");
  entries(
      "1\thttp://a\tC:\\c\\a.htm\n1\thttp://b\tC:\\c\\b.txt\n1\thttp://c\tC:\\c\\c.TXT\n"
      "1\thttp://d/e.txt\t\n1\thttp://f\tC:\\c\\f.txt.htm\n");
  cache().fListCacheFiles();
  EXPECT_EQ(rows(form().List20), Names({"C:\\c\\a.htm", "C:\\c\\f.txt.htm"}));
  EXPECT_EQ(form().txtcountfil.text(), "0");
}

TEST_F(CacheEntriesTest, ALaterEntryCountsOnlyWhenItIsAPage) {
  entries("1\thttp://a\tC:\\a\n2\thttp://b\tC:\\b\n9\thttp://c\tC:\\c\n");
  cache().fListCacheFiles();
  EXPECT_EQ(rows(form().List20), Names({"C:\\a", "C:\\c"}));
}

TEST_F(CacheEntriesTest, AFileThatIsGoneStandsInBothListsAndAddsNothing) {
  entries("1\thttp://a\tC:\\a\n1\thttp://b\tC:\\gone\n");
  form().txtcountfil.setText("7");
  cache().fListCacheFiles();
  EXPECT_EQ(rows(form().List20), Names({"C:\\a", "C:\\gone"}));
  EXPECT_EQ(form().txtcountfil.text(), "7");
}

TEST_F(CacheEntriesTest, AWalkThatCannotGoOnEndsAsIfNothingWereLeft) {
  entries("1\thttp://a\tC:\\a\n1\thttp://b\tC:\\b\n1\thttp://c\tC:\\c\n");
  machine.ini("[fault]\nFindNextUrlCacheEntry=2,5\n");
  cache().fListCacheFiles();
  EXPECT_EQ(rows(form().List20), Names({"C:\\a", "C:\\b"}));
}

TEST_F(CacheEntriesTest, TheCursorShowsOneEntryAtATime) {
  entries("1\thttp://a\tC:\\a\n5\thttp://b\t\n");
  EXPECT_FALSE(cache().fNextCacheEntry());
  ASSERT_TRUE(cache().fFirstCacheEntry());
  EXPECT_EQ(cache().fCacheEntryFile(), "C:\\a");
  EXPECT_EQ(cache().fCacheEntryUrl(), "http://a");
  EXPECT_EQ(cache().fCacheEntryType(), 1u);
  ASSERT_TRUE(cache().fNextCacheEntry());
  EXPECT_EQ(cache().fCacheEntryFile(), "");
  EXPECT_EQ(cache().fCacheEntryType(), 5u);
  EXPECT_FALSE(cache().fNextCacheEntry());
}

TEST_F(CacheEntriesTest, AWalkCanBeginAnew) {
  entries("1\thttp://a\tC:\\a\n1\thttp://b\tC:\\b\n");
  ASSERT_TRUE(cache().fFirstCacheEntry());
  ASSERT_TRUE(cache().fNextCacheEntry());
  ASSERT_TRUE(cache().fFirstCacheEntry());
  EXPECT_EQ(cache().fCacheEntryUrl(), "http://a");
  cache().fCloseCacheEnum();
  EXPECT_FALSE(cache().fNextCacheEntry());
}

TEST_F(CacheEntriesTest, AnEmptyCacheHasNoFirstEntry) {
  EXPECT_FALSE(cache().fFirstCacheEntry());
  EXPECT_EQ(cache().fCacheEntryFile(), "");
  EXPECT_EQ(cache().fCacheEntryUrl(), "");
}

TEST_F(CacheEntriesTest, AnEntryIsDeletedByItsAddressOnce) {
  machine.file("C:\\c\\a.htm");
  entries("1\thttp://a\tC:\\c\\a.htm\n1\thttp://b\tC:\\c\\b.htm\n");
  EXPECT_TRUE(cache().fDeleteCacheEntry("http://a"));
  EXPECT_FALSE(cache().fDeleteCacheEntry("http://a"));
  EXPECT_FALSE(cache().fDeleteCacheEntry(""));
  EXPECT_FALSE(machine.exists("C:\\c\\a.htm"));
}

}  // namespace
}  // namespace tavr
