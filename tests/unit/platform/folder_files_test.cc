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

using FolderFilesTest = FolderFilesFixture;

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
    faults_.add(operation, 1, 1117);
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
  faults_.add("FindFirstFile", 0, 5);
  EXPECT_EQ(find("C:\\f\\*"), 5u);
  EXPECT_THAT(listed("C:\\f\\", "*"), IsEmpty());
  EXPECT_THAT(list("C:\\", "*").subfolders, IsEmpty());
}

TEST_F(FolderFilesTest, FaultsOfReadingAndWritingTouchNothing) {
  file("C/f/a", "12");
  OpenedFile opened = files_.open("C:\\f\\a", OpenMode::kBinary);
  ASSERT_EQ(opened.status, kSuccess);
  faults_.add("ReadFile", 2, 23);
  faults_.add("WriteFile", 1, kDiskFull);
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
