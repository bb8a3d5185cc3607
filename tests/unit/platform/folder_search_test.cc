#include "platform/folder/folder_files.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/unit/platform/folder_files_fixture.h"

namespace tavr::folder {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using FolderSearchTest = FolderFilesFixture;

TEST_F(FolderSearchTest, AFolderListsDotsFirstThenUpperCasedOrder) {
  for (const char* name : {"b", "A", "c", "_z", "a", "B2", "Zz"}) file(std::string("C/f/") + name);
  folder("C/f/sub");
  EXPECT_THAT(names("C:\\f\\*.*"),
              ElementsAre(".", "..", "A", "a", "b", "B2", "c", "sub", "Zz", "_z"));
  EXPECT_THAT(names("C:\\f\\b*"), ElementsAre("b", "B2"));
}

TEST_F(FolderSearchTest, LongCommonBeginningsAndOtherAlphabetsAreOrderedByUtf16Unit) {
  for (const char* name : {"commonprefix2", "COMMONPREFIX10", "commonprefix", "\xC3\xA9", "z",
                           "\xEF\xBD\x9E", "\xF0\x9F\x98\x80", "\xD0\xB6"}) {
    file(std::string("C/f/") + name);
  }
  EXPECT_THAT(listed("C:\\f\\", "*"),
              ElementsAre("commonprefix", "COMMONPREFIX10", "commonprefix2", "z", "\xC3\xA9",
                          "\xD0\xB6", "\xF0\x9F\x98\x80", "\xEF\xBD\x9E"));
}

TEST_F(FolderSearchTest, ADriveHasNoDots) { EXPECT_THAT(names("C:\\*"), ElementsAre("App")); }

TEST_F(FolderSearchTest, FindTellsAnEmptySearchFromAMissingFolder) {
  file("C/f/a");
  EXPECT_EQ(find("C:\\f\\x*"), kFileNotFound);
  EXPECT_EQ(find("C:\\none\\*"), kPathNotFound);
  EXPECT_EQ(find("C:\\f\\"), kFileNotFound);
  EXPECT_EQ(find("C:\\"), kFileNotFound);
  EXPECT_EQ(find(""), kPathNotFound);
  EXPECT_EQ(find("C:\\f\\a|b"), kInvalidName);
}

TEST_F(FolderSearchTest, AFileUsedAsAFolderIsTold) {
  file("C/x/f");
  link("C/x/l", "f");
  FoundFile found;
  for (const char* path : {"C:\\x\\f\\*.*", "C:\\X\\F\\a", "C:\\x\\l\\*.*"}) {
    EXPECT_EQ(find(path), kDirectory) << path;
    EXPECT_EQ(files_.findFirst(path, found), kDirectory) << path;
  }
  EXPECT_EQ(find("C:\\x\\f\\sub\\*.*"), kPathNotFound);
  EXPECT_EQ(find("C:\\x\\none\\*.*"), kPathNotFound);
  EXPECT_EQ(find("C:\\none\\*.*"), kPathNotFound);
  EXPECT_EQ(find("Q:\\*.*"), kPathNotFound);
  EXPECT_EQ(attributesStatus("C:\\x\\f\\a"), kPathNotFound) << "no search";
  EXPECT_THAT(listed("C:\\x\\f\\", "*.*"), IsEmpty());
}

TEST_F(FolderSearchTest, AListingIsTwoSearchesAndEitherMayFailAlone) {
  file("C/f/a.txt");
  file("C/f/sub/b.txt");
  for (const std::string mask : {"*.*", "sub\\*.txt", ""}) {
    SCOPED_TRACE(mask);
    Faults faults;
    faults.add("FindFirstFile", 3, 5);
    faults.add("FindFirstFile", 6, 5);
    FolderFiles files(tree_, {}, faults);
    const std::size_t all = mask.empty() ? 0 : 1;
    const auto expectListing = [&](std::size_t subfolders, std::size_t found) {
      FolderListing listing;
      files.listFolder("C:\\f\\", mask, listing);
      EXPECT_EQ(listing.subfolders.size(), subfolders);
      EXPECT_EQ(listing.files.size(), found);
    };
    expectListing(1, all);
    expectListing(0, all);
    expectListing(1, 0);
    expectListing(1, all);
  }
}

TEST_F(FolderSearchTest, APatternEndingInADotAsksForNamesWithoutExtension) {
  file("C/f/README");
  file("C/f/a.txt");
  EXPECT_THAT(listed("C:\\f\\", "*."), ElementsAre("README"));
  std::vector<FoundFile> found;
  ASSERT_EQ(files_.find("C:\\f\\R*.", found), kSuccess);
  EXPECT_EQ(found.front().name, "README");
}

TEST_F(FolderSearchTest, FindFirstGivesSizeTimesAndTheNameAsStored) {
  file("C/f/Data.bin", std::string(70000, 'x'));
  const timespec times[2] = {{.tv_sec = 1, .tv_nsec = 0},
                             {.tv_sec = 1'000'000'000, .tv_nsec = 700}};
  ASSERT_EQ(::utimensat(AT_FDCWD, host("C/f/Data.bin").c_str(), times, 0), 0);
  FoundFile found;
  ASSERT_EQ(files_.findFirst("C:\\F\\data.BIN", found), kSuccess);
  EXPECT_EQ(found.name, "Data.bin");
  EXPECT_EQ(found.size_low, 70000u);
  EXPECT_EQ(found.size_high, 0u);
  EXPECT_EQ(found.attributes, kAttrArchive);
  EXPECT_EQ(found.written, 126'444'736'000'000'007u) << "2001-09-09 01:46:40 and 700 ns";
  EXPECT_EQ(found.accessed, 116'444'736'010'000'000u);
  EXPECT_NE(found.created, 0u);
}

TEST_F(FolderSearchTest, AFileOfMoreThanFourGigabytesHasAHighWord) {
  file("C/f/big");
  std::filesystem::resize_file(host("C/f/big"), (std::uintmax_t{5} << 32) + 9);
  FoundFile found;
  ASSERT_EQ(files_.findFirst("C:\\f\\big", found), kSuccess);
  EXPECT_EQ(found.size_high, 5u);
  EXPECT_EQ(found.size_low, 9u);
  EXPECT_EQ(list("C:\\f\\", "b*").files.at(0).size_high, 5u);
}

TEST_F(FolderSearchTest, FindFirstGivesAFolderAndTheFirstOfAPattern) {
  file("C/f/b.txt");
  file("C/f/A.txt");
  FoundFile found;
  ASSERT_EQ(files_.findFirst("C:\\F", found), kSuccess);
  EXPECT_EQ(found.name, "f");
  EXPECT_EQ(found.attributes, kAttrDirectory);
  EXPECT_EQ(found.size_low, 0u);
  ASSERT_EQ(files_.findFirst("C:\\f\\*.txt", found), kSuccess);
  EXPECT_EQ(found.name, "A.txt");
  EXPECT_EQ(files_.findFirst("C:\\f\\none", found), kFileNotFound);
  EXPECT_EQ(found.name, "");
  EXPECT_EQ(files_.findFirst("C:\\f\\", found), kFileNotFound);
}

TEST_F(FolderSearchTest, AListingHasAllSubfoldersAndTheFilesOfTheMask) {
  file("C/f/a.log", "12345");
  file("C/f/b.txt");
  folder("C/f/x.log");
  folder("C/f/Sub");
  const FolderListing listing = list("C:\\f\\", "*.log");
  EXPECT_THAT(listing.subfolders, ElementsAre("Sub", "x.log"));
  ASSERT_EQ(listing.files.size(), 1u);
  EXPECT_EQ(listing.files[0].name, "a.log");
  EXPECT_EQ(listing.files[0].size_low, 5u);
}

TEST_F(FolderSearchTest, AListingIsEmptyForAMissingFolderAndAnEmptyMask) {
  file("C/f/a");
  EXPECT_THAT(list("C:\\none\\", "*").subfolders, IsEmpty());
  EXPECT_THAT(listed("C:\\none\\", "*"), IsEmpty());
  EXPECT_THAT(listed("C:\\f\\", ""), IsEmpty());
  EXPECT_THAT(listed("C:\\f\\", "a|b"), IsEmpty());
  EXPECT_THAT(list("C:\\", "").subfolders, ElementsAre("App", "f"));
}

TEST_F(FolderSearchTest, AMaskWithAFolderInItListsThatFolder) {
  file("C/f/sub/a.txt");
  file("C/f/b.txt");
  EXPECT_THAT(listed("C:\\f\\", "sub\\*.txt"), ElementsAre("a.txt"));
  EXPECT_THAT(list("C:\\f\\", "sub\\*.txt").subfolders, ElementsAre("sub"));
  EXPECT_THAT(listed("C:\\f\\sub\\", "..\\*.txt"), ElementsAre("b.txt"));
}

TEST_F(FolderSearchTest, NamesThatWindowsCannotHoldAreNeverListed) {
  for (const char* name : {"ok", "a:b", "dot.", "blank ", "q?", "s*", "back\\slash", "tab\tx"}) {
    file(std::string("C/f/") + name);
  }
  EXPECT_THAT(listed("C:\\f\\", "*"), ElementsAre("ok"));
  EXPECT_THAT(names("C:\\f\\*"), ElementsAre(".", "..", "ok"));
}

TEST_F(FolderSearchTest, EachHalfOfAListingEndsWhereItsOwnTextReaches260) {
  // 256, 257 and 258 characters of folder text: F\*.* has 259, 260, 261.
  const std::string part(100, 'p');
  const std::string base = "C:\\" + part + "\\" + part + "\\";
  const auto folderOf = [&](std::size_t length) {
    return base + std::string(length - base.size() - 1, 'q') + "\\";
  };
  for (const std::size_t length : {256, 257, 258, 259}) {
    const std::string text = folderOf(length);
    std::string path = "C/" + text.substr(3, text.size() - 4);
    for (char& c : path) c = c == '\\' ? '/' : c;
    file(path + "/f");
    folder(path + "/sub");
    EXPECT_EQ(list(text, "f").subfolders.size(), length < 257 ? 1u : 0u) << length;
    EXPECT_EQ(listed(text, "*").size(), length < 259 ? 1u : 0u) << length;
    EXPECT_EQ(listed(text, "*.*").size(), length < 257 ? 1u : 0u) << length;
  }
}

TEST_F(FolderSearchTest, AFileWhoseOwnPathReaches260IsListedButNotDeleted) {
  const std::string part(100, 'p');
  const std::string name(100, 'n');
  file("C/" + part + "/" + part + "/" + name, "1234");
  const std::string text = "C:\\" + part + "\\" + part + "\\";
  const FolderListing listing = list(text, "*");
  ASSERT_EQ(listing.files.size(), 1u);
  EXPECT_EQ(listing.files[0].size_low, 4u);
  EXPECT_EQ(files_.remove(text + name), kPathNotFound);
  EXPECT_EQ(open(text + name), kPathNotFound);
  EXPECT_TRUE(exists("C/" + part + "/" + part + "/" + name));
}

TEST_F(FolderSearchTest, LinksInsideTheMachineAreListedAsTheirTargets) {
  file("D/data/f.txt", "1234567");
  readOnly("D/data/f.txt");
  link("C/f/folder", "../../D/data");
  link("C/f/file", "folder/f.txt");
  link("C/f/out", outside());
  link("C/f/outfile", outside() / "secret.txt");
  link("C/f/dangling", "none");
  const FolderListing listing = list("C:\\f\\", "*");
  EXPECT_THAT(listing.subfolders, ElementsAre("folder"));
  ASSERT_EQ(listing.files.size(), 1u);
  EXPECT_EQ(listing.files[0].name, "file");
  EXPECT_EQ(listing.files[0].size_low, 7u);
  EXPECT_EQ(listing.files[0].attributes, kAttrArchive | kAttrReadOnly);
  EXPECT_THAT(listed("C:\\f\\folder\\", "*"), ElementsAre("f.txt"));
  EXPECT_THAT(listed("C:\\f\\out\\", "*"), IsEmpty());
  EXPECT_THAT(names("C:\\f\\*"), ElementsAre(".", "..", "file", "folder"));
}

TEST_F(FolderSearchTest, SubfoldersAreNamedInOrder) {
  folder("C/f/b");
  folder("C/f/A");
  file("C/f/file");
  link("C/f/l", "A");
  link("C/f/out", outside());
  std::vector<std::string> names;
  EXPECT_EQ(files_.subfolders("C:\\f", names), kSuccess);
  EXPECT_THAT(names, ElementsAre("A", "b", "l"));
  EXPECT_EQ(files_.subfolders("C:\\f\\", names), kSuccess);
  EXPECT_EQ(names.size(), 3u);
  EXPECT_EQ(files_.subfolders("C:\\none", names), kPathNotFound);
  EXPECT_EQ(files_.subfolders("C:\\f\\file", names), kPathNotFound);
  EXPECT_THAT(names, IsEmpty());
}

}  // namespace
}  // namespace tavr::folder
