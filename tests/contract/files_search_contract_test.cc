// platform/files.h: searches, listings and their patterns.
#include <algorithm>

#include "tests/contract/files_contract_test.h"

namespace tavr::contract {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FilesSearchContract : public FilesContractTest {};

TEST_F(FilesSearchContract, APatternOfAnyExtensionMatchesTheNameWithoutOne) {
  for (const char* name : {"History", "History.db", "History-journal", "History2", "x.History"}) {
    file(name);
  }
  EXPECT_THAT(found("History.*"), ElementsAre("History", "History.db"));
}

TEST_F(FilesSearchContract, AJournalPatternTakesWhatStandsBeforeIt) {
  for (const char* name : {"Cookies-journal", "Cookies-journal.old", "Cookies", "journal"}) {
    file(name);
  }
  EXPECT_THAT(found("*-journal.*"), ElementsAre("Cookies-journal", "Cookies-journal.old"));
}

TEST_F(FilesSearchContract, StarDotStarMatchesEveryName) {
  for (const char* name : {"README", "a.b.c", ".git", "x.txt"}) file(name);
  EXPECT_THAT(found("*.*"), ElementsAre(".git", "a.b.c", "README", "x.txt"));
  EXPECT_EQ(found("*"), found("*.*"));
}

TEST_F(FilesSearchContract, AnExtensionIsTheLastOneAndNoLonger) {
  for (const char* name : {"a.txt", "B.TXT", "c.b.txt", "d.txt.b", "e.txtx", "txt"}) file(name);
  EXPECT_THAT(found("*.txt"), ElementsAre("a.txt", "B.TXT", "c.b.txt"))
      << "names have no short forms";
}

TEST_F(FilesSearchContract, AQuestionMarkIsOneCharacterOrNoneAtTheEnd) {
  for (const char* name : {"a", "ab", "abc", "b"}) file(name);
  EXPECT_THAT(found("a?"), ElementsAre("a", "ab"));
}

TEST_F(FilesSearchContract, APlainNameFindsWithoutCaseAndShowsItsOwn) {
  file("Some Name.Txt");
  EXPECT_THAT(found("sOME nAME.tXT"), ElementsAre("Some Name.Txt"));
}

TEST_F(FilesSearchContract, EntriesComeInUpperCasedOrder) {
  for (const char* name : {"b", "_", "C", "a"}) file(name);
  EXPECT_THAT(found("*.*"), ElementsAre("a", "b", "C", "_"));
}

TEST_F(FilesSearchContract, TheDotsComeFirstWhereThePatternMatchesThem) {
  file("a");
  std::vector<FoundFile> entries;
  ASSERT_EQ(files().find(at("*.*"), entries), kSuccess);
  EXPECT_THAT(namesOf(entries), ElementsAre(".", "..", "a"));
  ASSERT_EQ(files().find(at("a*"), entries), kSuccess);
  EXPECT_THAT(namesOf(entries), ElementsAre("a"));
}

TEST_F(FilesSearchContract, NothingFoundIs2AndNoSuchFolderIs3) {
  std::vector<FoundFile> entries{FoundFile{}};
  EXPECT_EQ(files().find(at("none*"), entries), kFileNotFound);
  EXPECT_THAT(entries, IsEmpty());
  EXPECT_EQ(findStatus(at("none\\*.*")), kPathNotFound);
}

TEST_F(FilesSearchContract, AnEntryHasItsSizeAttributesAndTimes) {
  on().makeReadOnly(file("a", "12345"));
  on().makeHidden(file("b", ""));
  on().plantFolder(at("c"));
  std::vector<FoundFile> entries;
  ASSERT_EQ(files().find(at("?"), entries), kSuccess);
  std::erase_if(entries, [](const FoundFile& entry) { return entry.name.front() == '.'; });
  ASSERT_THAT(namesOf(entries), ElementsAre("a", "b", "c"));
  EXPECT_EQ(entries[0].size_low, 5U);
  EXPECT_EQ(entries[0].size_high, 0U);
  EXPECT_EQ(entries[0].attributes & (kAttrReadOnly | kAttrHidden | kAttrDirectory), kAttrReadOnly);
  EXPECT_GT(entries[0].written, 0U);
  EXPECT_EQ(entries[1].attributes & (kAttrReadOnly | kAttrHidden | kAttrDirectory), kAttrHidden);
  EXPECT_EQ(entries[2].attributes & kAttrDirectory, kAttrDirectory);
  EXPECT_EQ(entries[2].size_low, 0U) << "a folder has no size";
}

TEST_F(FilesSearchContract, TheFirstMatchIsTheSearchsFirst) {
  file("b", "12");
  file("a", "1");
  FoundFile entry;
  EXPECT_EQ(files().findFirst(at("?"), entry), kSuccess);
  std::vector<FoundFile> all;
  ASSERT_EQ(files().find(at("?"), all), kSuccess);
  EXPECT_EQ(entry.name, all.front().name);
  EXPECT_EQ(files().findFirst(at("none"), entry), kFileNotFound);
  EXPECT_EQ(files().findFirst(at("none\\a"), entry), kPathNotFound);
}

TEST_F(FilesSearchContract, ThePathOfAFolderGivesTheFolder) {
  on().plantFolder(at("Sub"));
  FoundFile entry;
  ASSERT_EQ(files().findFirst(at("sub"), entry), kSuccess);
  EXPECT_EQ(entry.name, "Sub");
  EXPECT_EQ(entry.attributes & kAttrDirectory, kAttrDirectory);
}

TEST_F(FilesSearchContract, HeldFilesAreFoundWithTheirSize) {
  on().hold(file("held", "12345"));
  FoundFile entry;
  ASSERT_EQ(files().findFirst(at("held"), entry), kSuccess);
  EXPECT_EQ(entry.size_low, 5U);
}

TEST_F(FilesSearchContract, SubfoldersAreTheFoldersInOrder) {
  for (const char* name : {"b", "C", "a"}) on().plantFolder(at(name));
  file("file");
  std::vector<std::string> names{"left over"};
  EXPECT_EQ(files().subfolders(at(), names), kSuccess);
  EXPECT_THAT(names, ElementsAre("a", "b", "C"));
  EXPECT_EQ(files().subfolders(at("none"), names), kPathNotFound);
  EXPECT_THAT(names, IsEmpty());
}

// listFolder ------------------------------------------------------------------------

class ListFolderContract : public FilesContractTest {
 protected:
  ListFolderContract() {
    for (const char* name : {"b.txt", "A.TXT", "History", "History-journal", "c.db", ".x"}) {
      file(name, name);
    }
    for (const char* name : {"Sub", "another.txt", "History.d"}) on().plantFolder(at(name));
  }
};

TEST_F(ListFolderContract, ItAgreesWithTheTwoSearchesThatItStandsFor) {
  for (const char* mask :
       {"*.*", "*", "*.txt", "History.*", "*-journal.*", "c.db", "none", "?.*"}) {
    std::vector<FoundFile> all;
    std::vector<FoundFile> matching;
    files().find(at("*.*"), all);
    files().find(at(mask), matching);
    const auto is_file = [](const FoundFile& f) { return (f.attributes & kAttrDirectory) == 0; };
    std::erase_if(all, is_file);
    std::erase_if(all, [](const FoundFile& f) { return f.name == "." || f.name == ".."; });
    std::erase_if(matching, [&](const FoundFile& f) { return !is_file(f); });

    const FolderListing listing = listed(at() + "\\", mask);
    EXPECT_EQ(listing.subfolders, namesOf(all)) << mask;
    ASSERT_EQ(namesOf(listing.files), namesOf(matching)) << mask;
    for (std::size_t i = 0; i < matching.size(); ++i) {
      EXPECT_EQ(listing.files[i].size_low, matching[i].size_low) << mask;
      EXPECT_EQ(listing.files[i].written, matching[i].written) << mask;
    }
  }
}

TEST_F(ListFolderContract, AMissingFolderIsEmpty) {
  const FolderListing listing = listed(at("none") + "\\", "*.*");
  EXPECT_THAT(listing.subfolders, IsEmpty());
  EXPECT_THAT(listing.files, IsEmpty());
}

TEST_F(ListFolderContract, WhatAListingHeldIsReplaced) {
  FolderListing listing = listed(at() + "\\", "*.*");
  files().listFolder(at("Sub") + "\\", "*.*", listing);
  EXPECT_THAT(listing.subfolders, IsEmpty());
  EXPECT_THAT(listing.files, IsEmpty());
}

TEST_F(ListFolderContract, EachOfItsTwoTextsCountsByItself) {
  const std::string folder = longPath(256);
  on().plantFolder(folder);
  on().plantFolder(folder + "\\s");
  on().plantFile(folder + "\\a", "x");
  const FolderListing both = listed(folder + "\\", "*");  // 257 and 1; 257 and 3 is too long
  EXPECT_THAT(both.subfolders, IsEmpty());
  EXPECT_THAT(namesOf(both.files), ElementsAre("a"));
  EXPECT_THAT(listed(folder + "\\", "*.*").files, IsEmpty());
}

TEST_F(FilesSearchContract, AFileInAFoldersPlaceIs267AndHasNoSubfolders) {
  const std::string path = file("a");
  EXPECT_EQ(findStatus(path + "\\*.*"), kDirectory);
  FoundFile first;
  EXPECT_EQ(files().findFirst(path + "\\*.*", first), kDirectory);
  std::vector<std::string> names{"left over"};
  EXPECT_EQ(files().subfolders(path, names), kPathNotFound);
  EXPECT_TRUE(names.empty());
}

TEST_F(FilesSearchContract, BlanksAndDotsBehindAPatternAreNoPartOfIt) {
  on().plantFile(at("in\\a.txt"), "x");
  on().plantFile(at("in\\b"), "x");
  EXPECT_THAT(found("in\\a.txt."), ElementsAre("a.txt"));
  EXPECT_THAT(found("in\\a.txt "), ElementsAre("a.txt"));
  EXPECT_THAT(found("in\\*.txt "), ElementsAre("a.txt"));
}

TEST_F(FilesSearchContract, APatternThatEndsInADotWantsNoExtension) {
  on().plantFile(at("in\\a.txt"), "x");
  on().plantFile(at("in\\b"), "x");
  EXPECT_THAT(found("in\\*."), ElementsAre("b"));
}

TEST_F(FilesSearchContract, AForwardSlashSeparatesToo) {
  on().plantFile(at("sub\\a.txt"), "x");
  std::string path = at("sub\\*.txt");
  std::replace(path.begin(), path.end(), '\\', '/');
  FoundFile first;
  EXPECT_EQ(files().findFirst(path, first), kSuccess);
  EXPECT_EQ(first.name, "a.txt");
  EXPECT_EQ(attributesStatus(path.substr(0, path.rfind('/'))), kSuccess);
}

TEST_F(ListFolderContract, AHiddenFolderIsListedLikeAnother) {
  on().plantFolder(at("in\\hidden"));
  on().makeHidden(at("in\\hidden"));
  on().plantFolder(at("in\\plain"));
  EXPECT_THAT(listed(at("in\\"), "*.*").subfolders, ElementsAre("hidden", "plain"));
}

}  // namespace
}  // namespace tavr::contract
