#include "platform/folder/folder_files.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/xattr.h>

#include <string>
#include <vector>

#include "tests/unit/platform/folder_fixture.h"

namespace tavr::folder {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FolderFilesTest : public FolderFixture {
 protected:
  std::vector<std::string> names(std::string_view path) {
    std::vector<FoundFile> found;
    files_.find(path, found);
    std::vector<std::string> all;
    for (const FoundFile& file : found) all.push_back(file.name);
    return all;
  }
  FolderListing list(std::string_view folder, std::string_view mask) {
    FolderListing listing;
    files_.listFolder(folder, mask, listing);
    return listing;
  }
  std::vector<std::string> listed(std::string_view folder, std::string_view mask) {
    std::vector<std::string> all;
    for (const FoundFile& file : list(folder, mask).files) all.push_back(file.name);
    return all;
  }
  Status find(std::string_view path) {
    std::vector<FoundFile> found;
    return files_.find(path, found);
  }
  std::uint32_t attributes(std::string_view path) {
    std::uint32_t bits = 0;
    return files_.attributes(path, bits) == kSuccess ? bits : 0xFFFFFFFF;
  }
  Status attributesStatus(std::string_view path) {
    std::uint32_t bits = 0;
    return files_.attributes(path, bits);
  }
  Status open(std::string_view path, OpenMode mode = OpenMode::kInput) {
    return files_.open(path, mode).status;
  }
  Status open(FolderFiles& files, std::string_view path, OpenMode mode) {
    return files.open(path, mode).status;
  }
  std::string xattr(std::string_view path) {
    char value[64];
    const ssize_t size = ::getxattr(host(path).c_str(), "user.DOSATTRIB", value, sizeof value);
    return size < 0 ? "none" : std::string(value, static_cast<std::size_t>(size));
  }
  void setXattr(std::string_view path, std::string_view value) {
    ASSERT_EQ(::setxattr(host(path).c_str(), "user.DOSATTRIB", value.data(), value.size(), 0), 0);
  }

  FolderTree tree_{machine().string(), "C:\\App"};
  Faults faults_;
  FolderFiles files_{tree_, {}, faults_};
};

TEST_F(FolderFilesTest, AFolderListsDotsFirstThenUpperCasedOrder) {
  for (const char* name : {"b", "A", "c", "_z", "a", "B2", "Zz"}) file(std::string("C/f/") + name);
  folder("C/f/sub");
  EXPECT_THAT(names("C:\\f\\*.*"),
              ElementsAre(".", "..", "A", "a", "b", "B2", "c", "sub", "Zz", "_z"));
  EXPECT_THAT(names("C:\\f\\b*"), ElementsAre("b", "B2"));
}

TEST_F(FolderFilesTest, LongCommonBeginningsAndOtherAlphabetsAreOrderedByUtf16Unit) {
  for (const char* name : {"commonprefix2", "COMMONPREFIX10", "commonprefix", "\xC3\xA9", "z",
                           "\xEF\xBD\x9E", "\xF0\x9F\x98\x80", "\xD0\xB6"}) {
    file(std::string("C/f/") + name);
  }
  EXPECT_THAT(listed("C:\\f\\", "*"),
              ElementsAre("commonprefix", "COMMONPREFIX10", "commonprefix2", "z", "\xC3\xA9",
                          "\xD0\xB6", "\xF0\x9F\x98\x80", "\xEF\xBD\x9E"));
}

TEST_F(FolderFilesTest, ADriveHasNoDots) { EXPECT_THAT(names("C:\\*"), ElementsAre("App")); }

TEST_F(FolderFilesTest, FindTellsAnEmptySearchFromAMissingFolder) {
  file("C/f/a");
  EXPECT_EQ(find("C:\\f\\x*"), kFileNotFound);
  EXPECT_EQ(find("C:\\none\\*"), kPathNotFound);
  EXPECT_EQ(find("C:\\f\\"), kFileNotFound);
  EXPECT_EQ(find("C:\\"), kFileNotFound);
  EXPECT_EQ(find(""), kPathNotFound);
  EXPECT_EQ(find("C:\\f\\a|b"), kInvalidName);
}

TEST_F(FolderFilesTest, APatternEndingInADotAsksForNamesWithoutExtension) {
  file("C/f/README");
  file("C/f/a.txt");
  EXPECT_THAT(listed("C:\\f\\", "*."), ElementsAre("README"));
  std::vector<FoundFile> found;
  ASSERT_EQ(files_.find("C:\\f\\R*.", found), kSuccess);
  EXPECT_EQ(found.front().name, "README");
}

TEST_F(FolderFilesTest, FindFirstGivesSizeTimesAndTheNameAsStored) {
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

TEST_F(FolderFilesTest, AFileOfMoreThanFourGigabytesHasAHighWord) {
  file("C/f/big");
  std::filesystem::resize_file(host("C/f/big"), (std::uintmax_t{5} << 32) + 9);
  FoundFile found;
  ASSERT_EQ(files_.findFirst("C:\\f\\big", found), kSuccess);
  EXPECT_EQ(found.size_high, 5u);
  EXPECT_EQ(found.size_low, 9u);
  EXPECT_EQ(list("C:\\f\\", "b*").files.at(0).size_high, 5u);
}

TEST_F(FolderFilesTest, FindFirstGivesAFolderAndTheFirstOfAPattern) {
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

TEST_F(FolderFilesTest, AListingHasAllSubfoldersAndTheFilesOfTheMask) {
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

TEST_F(FolderFilesTest, AListingIsEmptyForAMissingFolderAndAnEmptyMask) {
  file("C/f/a");
  EXPECT_THAT(list("C:\\none\\", "*").subfolders, IsEmpty());
  EXPECT_THAT(listed("C:\\none\\", "*"), IsEmpty());
  EXPECT_THAT(listed("C:\\f\\", ""), IsEmpty());
  EXPECT_THAT(listed("C:\\f\\", "a|b"), IsEmpty());
  EXPECT_THAT(list("C:\\", "").subfolders, ElementsAre("App", "f"));
}

TEST_F(FolderFilesTest, AMaskWithAFolderInItListsThatFolder) {
  file("C/f/sub/a.txt");
  file("C/f/b.txt");
  EXPECT_THAT(listed("C:\\f\\", "sub\\*.txt"), ElementsAre("a.txt"));
  EXPECT_THAT(list("C:\\f\\", "sub\\*.txt").subfolders, ElementsAre("sub"));
  EXPECT_THAT(listed("C:\\f\\sub\\", "..\\*.txt"), ElementsAre("b.txt"));
}

TEST_F(FolderFilesTest, NamesThatWindowsCannotHoldAreNeverListed) {
  for (const char* name : {"ok", "a:b", "dot.", "blank ", "q?", "s*", "back\\slash", "tab\tx"}) {
    file(std::string("C/f/") + name);
  }
  EXPECT_THAT(listed("C:\\f\\", "*"), ElementsAre("ok"));
  EXPECT_THAT(names("C:\\f\\*"), ElementsAre(".", "..", "ok"));
}

TEST_F(FolderFilesTest, EachHalfOfAListingEndsWhereItsOwnTextReaches260) {
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

TEST_F(FolderFilesTest, AFileWhoseOwnPathReaches260IsListedButNotDeleted) {
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

TEST_F(FolderFilesTest, LinksInsideTheMachineAreListedAsTheirTargets) {
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

TEST_F(FolderFilesTest, NoOperationReachesWhatIsOutside) {
  const auto before = outsideState();
  link("C/abs", outside());
  link("C/rel", "../../outside");
  link("C/chain", "rel/sub");
  link("C/secret", outside() / "secret.txt");
  link("C/new", outside() / "new.txt");
  file("C/own.txt", "own");
  for (const char* path :
       {"C:\\abs\\secret.txt", "C:\\rel\\secret.txt", "C:\\chain\\deep.txt", "C:\\secret",
        "C:\\..\\..\\outside\\secret.txt", "C:\\abs\\sub\\..\\secret.txt", "C:\\new",
        "..\\..\\..\\outside\\secret.txt", "C:\\App/../../../outside/secret.txt"}) {
    SCOPED_TRACE(path);
    std::uint32_t bits = 0;
    FoundFile found;
    EXPECT_NE(files_.attributes(path, bits), kSuccess);
    EXPECT_NE(files_.setAttributes(path, kAttrReadOnly), kSuccess);
    EXPECT_NE(files_.remove(path), kSuccess);
    EXPECT_NE(files_.findFirst(path, found), kSuccess);
    for (const OpenMode mode :
         {OpenMode::kInput, OpenMode::kOutput, OpenMode::kAppend, OpenMode::kBinary}) {
      EXPECT_NE(open(path, mode), kSuccess);
    }
    EXPECT_NE(files_.copy("C:\\own.txt", path), kSuccess);
    EXPECT_NE(files_.copy(path, "C:\\copy.txt"), kSuccess);
    EXPECT_NE(files_.setCurrentDirectory(path), kSuccess);
  }
  EXPECT_NE(files_.setCurrentDirectory("C:\\abs"), kSuccess);
  EXPECT_FALSE(exists("C/copy.txt"));
  EXPECT_TRUE(exists("C/secret"));
  EXPECT_EQ(outsideState(), before);
}

TEST_F(FolderFilesTest, ANewFileBesideALinkOutOfTheSameNameIsItsOwn) {
  const auto before = outsideState();
  link("C/f/secret.txt", outside() / "secret.txt");
  EXPECT_EQ(open("C:\\f\\SECRET.txt", OpenMode::kOutput), kSuccess);
  EXPECT_EQ(files_.remove("C:\\f\\Secret.TXT"), kSuccess);
  EXPECT_TRUE(exists("C/f/secret.txt"));
  EXPECT_FALSE(exists("C/f/SECRET.txt"));
  EXPECT_EQ(outsideState(), before);
}

TEST_F(FolderFilesTest, AFolderSwappedForALinkOutBetweenListingAndDeletingIsNotEntered) {
  file("C/a/b/secret.txt");
  std::filesystem::create_directories(outside() / "b");
  std::ofstream(outside() / "b/secret.txt") << "kept";
  const auto before = outsideState();
  EXPECT_THAT(listed("C:\\a\\", "*"), IsEmpty());
  EXPECT_THAT(listed("C:\\a\\b\\", "*"), ElementsAre("secret.txt"));
  std::filesystem::rename(host("C/a"), host("C/a.old"));
  link("C/a", outside());
  files_.remove("C:\\a\\b\\secret.txt");
  files_.remove("C:\\a\\b\\SECRET.txt");
  files_.open("C:\\a\\b\\secret.txt", OpenMode::kOutput);
  EXPECT_THAT(listed("C:\\a\\", "*"), IsEmpty());
  EXPECT_EQ(outsideState(), before);
}

TEST_F(FolderFilesTest, AttributesTellFoldersReadOnlyHiddenAndSystem) {
  file("C/f/a");
  file("C/f/ro");
  readOnly("C/f/ro");
  EXPECT_EQ(attributes("C:\\f"), kAttrDirectory);
  EXPECT_EQ(attributes("C:\\"), kAttrDirectory);
  EXPECT_EQ(attributes("C:\\f\\"), kAttrDirectory);
  EXPECT_EQ(attributes("C:\\f\\a"), kAttrArchive);
  EXPECT_EQ(attributes("C:\\f\\ro"), kAttrArchive | kAttrReadOnly);
  EXPECT_EQ(attributesStatus("C:\\f\\none"), kFileNotFound);
  EXPECT_EQ(attributesStatus("C:\\none\\a"), kPathNotFound);
  EXPECT_EQ(attributesStatus("C:\\f\\*"), kInvalidName);
  EXPECT_EQ(attributesStatus("C:\\f\\a\\"), kInvalidName);
}

TEST_F(FolderFilesTest, HiddenAndSystemAreReadFromTheServersAttribute) {
  file("C/f/a");
  setXattr("C/f/a", "0x6");
  EXPECT_EQ(attributes("C:\\f\\a"), kAttrArchive | kAttrHidden | kAttrSystem);
  setXattr("C/f/a", std::string_view("0x22\0\0\3\0rest", 12));
  EXPECT_EQ(attributes("C:\\f\\a"), kAttrArchive | kAttrHidden);
  FoundFile found;
  ASSERT_EQ(files_.findFirst("C:\\f\\a", found), kSuccess);
  EXPECT_EQ(found.attributes, kAttrArchive | kAttrHidden);
  for (const char* bad : {"garbage", "0x", "2", "0xZZ"}) {
    setXattr("C/f/a", bad);
    EXPECT_EQ(attributes("C:\\f\\a"), kAttrArchive) << bad;
  }
}

TEST_F(FolderFilesTest, SetAttributesSetsAndClearsTheThreeAndNothingElse) {
  file("C/f/a");
  ASSERT_EQ(files_.setAttributes("C:\\f\\a", kAttrHidden | kAttrReadOnly | kAttrTemporary), 0u);
  EXPECT_EQ(attributes("C:\\f\\a"), kAttrArchive | kAttrHidden | kAttrReadOnly);
  EXPECT_EQ(xattr("C/f/a"), "0x2");
  ASSERT_EQ(files_.setAttributes("C:\\f\\a", kAttrSystem | kAttrReadOnly), 0u);
  EXPECT_EQ(attributes("C:\\f\\a"), kAttrArchive | kAttrSystem | kAttrReadOnly);
  ASSERT_EQ(files_.setAttributes("C:\\f\\a", kAttrArchive), 0u);
  EXPECT_EQ(attributes("C:\\f\\a"), kAttrArchive);
  EXPECT_EQ(xattr("C/f/a"), "none");
  EXPECT_EQ(files_.setAttributes("C:\\f\\none", kAttrArchive), kFileNotFound);
  EXPECT_EQ(files_.setAttributes("C:\\f\\*", kAttrArchive), kInvalidName);
}

TEST_F(FolderFilesTest, SetAttributesWritesNothingWhenNothingChanges) {
  file("C/f/a");
  struct stat before {};
  ASSERT_EQ(::stat(host("C/f/a").c_str(), &before), 0);
  ASSERT_EQ(files_.setAttributes("C:\\f\\a", kAttrArchive), 0u);
  ASSERT_EQ(files_.setAttributes("C:\\f\\a", 0), 0u);
  struct stat after {};
  ASSERT_EQ(::stat(host("C/f/a").c_str(), &after), 0);
  EXPECT_EQ(before.st_ctim.tv_sec, after.st_ctim.tv_sec);
  EXPECT_EQ(before.st_ctim.tv_nsec, after.st_ctim.tv_nsec);
  EXPECT_EQ(xattr("C/f/a"), "none");
}

TEST_F(FolderFilesTest, DeletingRemovesTheFileWithoutCase) {
  file("C/f/A.txt");
  file("C/f/b.txt");
  EXPECT_EQ(files_.remove("c:/F/a.TXT"), kSuccess);
  EXPECT_FALSE(exists("C/f/A.txt"));
  EXPECT_TRUE(exists("C/f/b.txt"));
  EXPECT_EQ(files_.remove("C:\\f\\A.txt"), kFileNotFound);
  EXPECT_EQ(files_.remove("C:\\none\\A.txt"), kPathNotFound);
}

TEST_F(FolderFilesTest, DeletingAReadOnlyFileFailsWithAccessDenied) {
  file("C/f/ro");
  readOnly("C/f/ro");
  EXPECT_EQ(files_.remove("C:\\f\\ro"), kAccessDenied);
  EXPECT_TRUE(exists("C/f/ro"));
  ASSERT_EQ(files_.setAttributes("C:\\f\\ro", kAttrArchive), kSuccess);
  EXPECT_EQ(files_.remove("C:\\f\\ro"), kSuccess);
}

TEST_F(FolderFilesTest, DeletingAFolderOrAPatternFails) {
  file("C/f/a");
  folder("C/f/sub");
  EXPECT_EQ(files_.remove("C:\\f\\sub"), kAccessDenied);
  EXPECT_EQ(files_.remove("C:\\"), kAccessDenied);
  EXPECT_EQ(files_.remove("C:\\f\\*"), kInvalidName);
  EXPECT_EQ(files_.remove("C:\\f\\a?"), kInvalidName);
  EXPECT_TRUE(exists("C/f/a"));
  EXPECT_TRUE(exists("C/f/sub"));
}

TEST_F(FolderFilesTest, DeletingALinkKeepsWhatItLeadsTo) {
  file("D/target");
  folder("D/folder");
  link("C/f/l", "../../D/target");
  link("C/f/d", "../../D/folder");
  EXPECT_EQ(files_.remove("C:\\f\\L"), kSuccess);
  EXPECT_FALSE(exists("C/f/l"));
  EXPECT_TRUE(exists("D/target"));
  EXPECT_EQ(files_.remove("C:\\f\\d"), kAccessDenied);
}

TEST_F(FolderFilesTest, OpenModesCreateEmptyAndKeepAsTheyShould) {
  file("C/f/a", "12345");
  EXPECT_EQ(open("C:\\f\\none"), kFileNotFound);
  EXPECT_EQ(open("C:\\none\\a"), kPathNotFound);
  EXPECT_EQ(open("C:\\none\\a", OpenMode::kOutput), kPathNotFound);
  EXPECT_EQ(open("C:\\f\\a*", OpenMode::kOutput), kInvalidName);
  EXPECT_EQ(open("C:\\f", OpenMode::kInput), kAccessDenied);
  EXPECT_EQ(open("C:\\f", OpenMode::kAppend), kAccessDenied);
  EXPECT_EQ(open("C:\\f\\n\\", OpenMode::kOutput), kInvalidName);
  EXPECT_EQ(open("C:\\F\\A", OpenMode::kAppend), kSuccess);
  EXPECT_EQ(content("C/f/a"), "12345");
  EXPECT_EQ(open("C:\\f\\A", OpenMode::kBinary), kSuccess);
  EXPECT_EQ(content("C/f/a"), "12345");
  EXPECT_EQ(open("C:\\f\\A", OpenMode::kOutput), kSuccess);
  EXPECT_EQ(content("C/f/a"), "");
  for (const OpenMode mode : {OpenMode::kOutput, OpenMode::kAppend, OpenMode::kBinary}) {
    const std::string name = "new" + std::to_string(static_cast<int>(mode));
    EXPECT_EQ(open("C:\\f\\" + name, mode), kSuccess);
    EXPECT_TRUE(exists("C/f/" + name));
  }
}

TEST_F(FolderFilesTest, AReadOnlyFileOpensForInputAlone) {
  file("C/f/ro", "12345");
  readOnly("C/f/ro");
  EXPECT_EQ(open("C:\\f\\ro", OpenMode::kInput), kSuccess);
  EXPECT_EQ(open("C:\\f\\ro", OpenMode::kOutput), kAccessDenied);
  EXPECT_EQ(open("C:\\f\\ro", OpenMode::kAppend), kAccessDenied);
  EXPECT_EQ(open("C:\\f\\ro", OpenMode::kBinary), kAccessDenied);
  EXPECT_EQ(content("C/f/ro"), "12345");
}

TEST_F(FolderFilesTest, ReadsAndWritesAnywhere) {
  file("C/f/a", "0123456789");
  OpenedFile opened = files_.open("C:\\f\\a", OpenMode::kBinary);
  ASSERT_EQ(opened.status, kSuccess);
  std::string out = "old";
  EXPECT_EQ(opened.file->read(8, 100, out), kSuccess);
  EXPECT_EQ(out, "89");
  EXPECT_EQ(opened.file->read(10, 100, out), kSuccess);
  EXPECT_EQ(out, "");
  EXPECT_EQ(opened.file->write(2, "##"), kSuccess);
  EXPECT_EQ(opened.file->write(12, "end"), kSuccess);
  EXPECT_EQ(opened.file->length(), 15u);
  EXPECT_EQ(content("C/f/a"), std::string("01##456789\0\0end", 15));
  EXPECT_EQ(opened.file->write(~std::uint64_t{0}, "x"), kInvalidParameter);
  EXPECT_EQ(opened.file->read(~std::uint64_t{0}, 1, out), kInvalidParameter);
}

TEST_F(FolderFilesTest, WritingToAFileOpenForInputFails) {
  file("C/f/a", "0123");
  OpenedFile opened = files_.open("C:\\f\\a", OpenMode::kInput);
  ASSERT_EQ(opened.status, kSuccess);
  EXPECT_NE(opened.file->write(0, "x"), kSuccess);
  EXPECT_EQ(content("C/f/a"), "0123");
}

TEST_F(FolderFilesTest, LockedFilesAreSeenButNeitherOpenedNorDeleted) {
  file("C/f/Locked.db", "123");
  file("C/f/free.db");
  FolderFiles files(tree_, {"c:/F/x/../locked.DB", "C:\\f\\later"}, faults_);
  const std::string path = "C:\\f\\locked.db";
  for (const OpenMode mode :
       {OpenMode::kInput, OpenMode::kOutput, OpenMode::kAppend, OpenMode::kBinary}) {
    EXPECT_EQ(open(files, path, mode), kSharingViolation);
  }
  EXPECT_EQ(open(files, "C:\\f\\later", OpenMode::kOutput), kSharingViolation);
  EXPECT_FALSE(exists("C/f/later"));
  EXPECT_FALSE(files.canOpen(path));
  EXPECT_EQ(files.remove(path), kSharingViolation);
  EXPECT_EQ(files.copy(path, "C:\\f\\copy"), kSharingViolation);
  EXPECT_EQ(files.copy("C:\\f\\free.db", path), kSharingViolation);
  EXPECT_EQ(content("C/f/Locked.db"), "123");
  FoundFile found;
  EXPECT_EQ(files.findFirst(path, found), kSuccess);
  EXPECT_EQ(found.size_low, 3u);
  EXPECT_EQ(files.setAttributes(path, kAttrArchive), kSuccess);
  EXPECT_TRUE(files.canOpen("C:\\f\\free.db"));
  EXPECT_EQ(files.remove("C:\\f\\free.db"), kSuccess);
}

TEST_F(FolderFilesTest, ALockedFileThatIsReadOnlyToo) {
  file("C/f/l");
  readOnly("C/f/l");
  FolderFiles files(tree_, {"C:\\f\\l"}, faults_);
  EXPECT_EQ(files.remove("C:\\f\\l"), kSharingViolation);
  EXPECT_EQ(open(files, "C:\\f\\l", OpenMode::kOutput), kAccessDenied);
}

TEST_F(FolderFilesTest, ACopyHasContentAttributesAndLastWriteTime) {
  file("C/f/a", std::string(200000, 'a'));
  ASSERT_EQ(files_.setAttributes("C:\\f\\a", kAttrReadOnly | kAttrHidden), kSuccess);
  const timespec times[2] = {{.tv_sec = 5, .tv_nsec = 0}, {.tv_sec = 6, .tv_nsec = 0}};
  ASSERT_EQ(::utimensat(AT_FDCWD, host("C/f/a").c_str(), times, 0), 0);
  ASSERT_EQ(files_.copy("C:\\f\\A", "C:\\App\\b"), kSuccess);
  EXPECT_EQ(content("C/App/b"), content("C/f/a"));
  EXPECT_EQ(attributes("C:\\App\\b"), kAttrArchive | kAttrReadOnly | kAttrHidden);
  struct stat facts {};
  ASSERT_EQ(::stat(host("C/App/b").c_str(), &facts), 0);
  EXPECT_EQ(facts.st_mtim.tv_sec, 6);
}

TEST_F(FolderFilesTest, CopyRefusesWhatCopyFileRefuses) {
  file("C/f/a", "123");
  file("C/f/ro", "ro");
  readOnly("C/f/ro");
  EXPECT_EQ(files_.copy("C:\\f\\none", "C:\\f\\b"), kFileNotFound);
  EXPECT_EQ(files_.copy("C:\\none\\a", "C:\\f\\b"), kPathNotFound);
  EXPECT_EQ(files_.copy("C:\\f\\a", "C:\\none\\b"), kPathNotFound);
  EXPECT_EQ(files_.copy("C:\\f\\a", "C:\\f\\ro"), kAccessDenied);
  EXPECT_EQ(files_.copy("C:\\f\\a", "C:\\F\\A"), kSharingViolation);
  EXPECT_EQ(files_.copy("C:\\f", "C:\\g"), kAccessDenied);
  EXPECT_EQ(content("C/f/a"), "123");
  EXPECT_EQ(content("C/f/ro"), "ro");
  file("C/f/old", "a longer text than before");
  EXPECT_EQ(files_.copy("C:\\f\\a", "C:\\f\\old"), kSuccess);
  EXPECT_EQ(content("C/f/old"), "123");
}

TEST_F(FolderFilesTest, SubfoldersAreNamedInOrder) {
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

TEST_F(FolderFilesTest, TheCurrentDirectoryCountsForRelativePaths) {
  file("C/f/a");
  EXPECT_EQ(files_.remove("a"), kFileNotFound);
  EXPECT_EQ(files_.setCurrentDirectory("C:\\f"), kSuccess);
  EXPECT_EQ(files_.setCurrentDirectory("C:\\f\\a"), kDirectory);
  EXPECT_THAT(names("*"), ElementsAre(".", "..", "a"));
  EXPECT_EQ(files_.remove("a"), kSuccess);
}

TEST_F(FolderFilesTest, FaultsAnswerInPlaceOfEachOperation) {
  file("C/f/a", "12");
  for (const char* operation : {"FindFirstFile", "GetFileAttributes", "SetFileAttributes",
                                "DeleteFile", "CreateFile", "CopyFile", "SetCurrentDirectory"}) {
    faults_.set(operation, 1, 1117);
  }
  FoundFile found;
  EXPECT_EQ(files_.findFirst("C:\\f\\a", found), 1117u);
  EXPECT_EQ(files_.findFirst("C:\\f\\a", found), kSuccess) << "only the first call";
  EXPECT_EQ(attributesStatus("C:\\f\\a"), 1117u);
  EXPECT_EQ(files_.setAttributes("C:\\f\\a", 1), 1117u);
  EXPECT_EQ(attributes("C:\\f\\a"), kAttrArchive);
  EXPECT_EQ(files_.remove("C:\\f\\a"), 1117u);
  EXPECT_TRUE(exists("C/f/a"));
  EXPECT_EQ(open("C:\\f\\a", OpenMode::kOutput), 1117u);
  EXPECT_EQ(content("C/f/a"), "12");
  EXPECT_EQ(files_.copy("C:\\f\\a", "C:\\f\\b"), 1117u);
  EXPECT_FALSE(exists("C/f/b"));
  EXPECT_EQ(files_.setCurrentDirectory("C:\\f"), 1117u);
  faults_.set("FindFirstFile", 0, 5);
  EXPECT_EQ(find("C:\\f\\*"), 5u);
  EXPECT_THAT(listed("C:\\f\\", "*"), IsEmpty());
  EXPECT_THAT(list("C:\\", "*").subfolders, IsEmpty());
}

TEST_F(FolderFilesTest, FaultsOfReadingAndWritingTouchNothing) {
  file("C/f/a", "12");
  OpenedFile opened = files_.open("C:\\f\\a", OpenMode::kBinary);
  ASSERT_EQ(opened.status, kSuccess);
  faults_.set("ReadFile", 2, 23);
  faults_.set("WriteFile", 1, kDiskFull);
  std::string out;
  EXPECT_EQ(opened.file->read(0, 2, out), kSuccess);
  EXPECT_EQ(opened.file->read(0, 2, out), 23u);
  EXPECT_EQ(out, "");
  EXPECT_EQ(opened.file->write(0, "xx"), kDiskFull);
  EXPECT_EQ(content("C/f/a"), "12");
  EXPECT_EQ(opened.file->write(0, "xx"), kSuccess);
}

}  // namespace
}  // namespace tavr::folder
