// Files with more than one name: hard links, and links to files that somebody
// else holds open.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>
#include <vector>

#include "tests/unit/platform/folder_files_fixture.h"

namespace tavr::folder {
namespace {

using ::testing::ElementsAre;

class FolderFilesLinksTest : public FolderFilesFixture {
 protected:
  void hardLink(const std::filesystem::path& target, std::string_view path) const {
    std::filesystem::create_directories(host(path).parent_path());
    std::filesystem::create_hard_link(target, host(path));
  }
};

TEST_F(FolderFilesLinksTest, AFileWithASecondNameOutsideIsNotWritten) {
  hardLink(outside() / "secret.txt", "C/f/twin");
  file("C/f/own", "own");
  const auto before = outsideState();
  for (const OpenMode mode : {OpenMode::kOutput, OpenMode::kAppend, OpenMode::kBinary}) {
    EXPECT_EQ(open("C:\\f\\twin", mode), kAccessDenied);
  }
  EXPECT_EQ(files_.copy("C:\\f\\own", "C:\\f\\twin"), kAccessDenied);
  EXPECT_EQ(outsideState(), before);
}

TEST_F(FolderFilesLinksTest, AFileWithASecondNameOutsideKeepsItsAttributes) {
  hardLink(outside() / "secret.txt", "C/f/twin");
  const auto before = outsideState();
  for (const std::uint32_t bits : {kAttrReadOnly, kAttrHidden, kAttrSystem}) {
    EXPECT_EQ(files_.setAttributes("C:\\f\\twin", bits), kAccessDenied);
  }
  EXPECT_EQ(files_.setAttributes("C:\\f\\twin", kAttrArchive), kSuccess) << "nothing changes";
  EXPECT_EQ(attributes("C:\\f\\twin"), kAttrArchive);
  EXPECT_EQ(xattr("C/f/twin"), "none");
  EXPECT_EQ(outsideState(), before);
}

TEST_F(FolderFilesLinksTest, AFileWithASecondNameIsReadCopiedAndDeletedByTheOne) {
  hardLink(outside() / "secret.txt", "C/f/twin");
  const auto before = outsideState();
  OpenedFile opened = files_.open("C:\\f\\twin", OpenMode::kInput);
  ASSERT_EQ(opened.status, kSuccess);
  std::string text;
  EXPECT_EQ(opened.file->read(0, 100, text), kSuccess);
  EXPECT_EQ(text, "secret");
  EXPECT_EQ(files_.copy("C:\\f\\twin", "C:\\f\\copy"), kSuccess);
  EXPECT_EQ(open("C:\\f\\copy", OpenMode::kAppend), kSuccess) << "the copy is a file of its own";
  EXPECT_EQ(files_.remove("C:\\f\\twin"), kSuccess);
  EXPECT_FALSE(exists("C/f/twin"));
  EXPECT_EQ(outsideState(), before);
}

TEST_F(FolderFilesLinksTest, AFolderIsChangedHoweverManySubfoldersItHas) {
  folder("C/f/a");
  folder("C/f/b");
  EXPECT_EQ(files_.setAttributes("C:\\f", kAttrReadOnly), kSuccess);
  EXPECT_EQ(attributes("C:\\f"), kAttrDirectory | kAttrReadOnly);
}

TEST_F(FolderFilesLinksTest, ALockedFileIsHeldByEveryNameThatLeadsToIt) {
  file("C/f/held", "123");
  link("C/byfolder", "f");
  link("C/alias", "f/held");
  hardLink(host("C/f/held"), "D/twin");
  file("C/free", "12");
  FolderFiles files(tree_, {"C:\\f\\held"}, faults_);
  for (const char* path : {"C:\\f\\held", "C:\\byfolder\\held", "C:\\alias", "D:\\twin"}) {
    SCOPED_TRACE(path);
    EXPECT_EQ(open(files, path, OpenMode::kInput), kSharingViolation);
    EXPECT_EQ(open(files, path, OpenMode::kOutput), kSharingViolation);
    EXPECT_EQ(files.remove(path), kSharingViolation);
    EXPECT_EQ(files.copy("C:\\free", path), kSharingViolation);
  }
  EXPECT_EQ(content("D/twin"), "123");
  EXPECT_TRUE(exists("C/alias"));
  EXPECT_EQ(files.remove("C:\\free"), kSuccess);
}

TEST_F(FolderFilesLinksTest, ALockedPathThatIsALinkHoldsWhatItLeadsTo) {
  file("C/f/target");
  link("C/alias", "f/target");
  FolderFiles files(tree_, {"C:\\alias"}, faults_);
  EXPECT_EQ(files.remove("C:\\f\\target"), kSharingViolation);
  EXPECT_EQ(files.remove("C:\\alias"), kSharingViolation);
}

TEST_F(FolderFilesLinksTest, ALockedFileIsNotDeletedFromAListedFolderEither) {
  file("C/f/held");
  hardLink(host("C/f/held"), "C/g/twin");
  file("C/g/later");
  FolderFiles files(tree_, {"C:\\f\\held"}, faults_);
  FolderListing listing;
  files.listFolder("C:\\g\\", "*.*", listing);
  ASSERT_EQ(listing.files.size(), 2u);
  EXPECT_EQ(files.remove("C:\\g\\twin"), kSharingViolation);
  EXPECT_TRUE(exists("C/g/twin"));
  // Where something is locked every deletion looks at its file anew.
  readOnly("C/g/later");
  EXPECT_EQ(files.remove("C:\\g\\later"), kAccessDenied);
}

TEST_F(FolderFilesLinksTest, AListingOfARelativeFolderSaysNothingOfTheNextCurrentDirectory) {
  file("C/a/sub/x");
  file("C/b/sub/x");
  readOnly("C/b/sub/x");
  ASSERT_EQ(files_.setCurrentDirectory("C:\\a"), kSuccess);
  EXPECT_THAT(listed("sub\\", "*.*"), ElementsAre("x"));
  ASSERT_EQ(files_.setCurrentDirectory("C:\\b"), kSuccess);
  EXPECT_EQ(files_.remove("sub\\x"), kAccessDenied);
  EXPECT_TRUE(exists("C/b/sub/x"));
}

}  // namespace
}  // namespace tavr::folder
