// platform/files.h: the four ways of opening a file, and the open file.
#include "tests/contract/files_contract_test.h"

namespace tavr::contract {
namespace {

constexpr OpenMode kModes[] = {OpenMode::kInput, OpenMode::kOutput, OpenMode::kAppend,
                               OpenMode::kBinary};

class OpenFilesContract : public FilesContractTest {
 protected:
  std::string read(OpenFile& opened, std::uint64_t offset, std::size_t size) {
    std::string bytes = "left over";
    EXPECT_EQ(opened.read(offset, size, bytes), kSuccess);
    return bytes;
  }
};

TEST_F(OpenFilesContract, ReadingNeedsAFile) {
  EXPECT_EQ(open(at("none")), kFileNotFound);
  EXPECT_FALSE(on().exists(at("none")));
}

TEST_F(OpenFilesContract, TheOtherModesMakeAMissingFile) {
  for (const OpenMode mode : {OpenMode::kOutput, OpenMode::kAppend, OpenMode::kBinary}) {
    const std::string path = at("new" + std::to_string(static_cast<int>(mode)));
    EXPECT_EQ(open(path, mode), kSuccess);
    EXPECT_TRUE(on().exists(path));
    EXPECT_EQ(open(at("none\\new"), mode), kPathNotFound);
    EXPECT_EQ(open(at("a*"), mode), kInvalidName);
  }
}

TEST_F(OpenFilesContract, OutputEmptiesAndTheOthersKeepWhatThereIs) {
  for (const OpenMode mode : kModes) {
    const std::string path = file("a", "content");
    const OpenedFile opened = files().open(path, mode);
    ASSERT_EQ(opened.status, kSuccess);
    EXPECT_EQ(opened.file->length(), mode == OpenMode::kOutput ? 0U : 7U);
  }
}

TEST_F(OpenFilesContract, AReadOnlyFileIsReadAndNotWritten) {
  const std::string path = file("a", "content");
  on().makeReadOnly(path);
  for (const OpenMode mode : kModes) {
    EXPECT_EQ(open(path, mode), mode == OpenMode::kInput ? kSuccess : kAccessDenied);
  }
  EXPECT_EQ(on().contents(path), "content");
  EXPECT_TRUE(files().canOpen(path));
}

TEST_F(OpenFilesContract, AHeldFileIsNotOpenedInAnyMode) {
  const std::string path = file("held", "content");
  on().hold(path);
  for (const OpenMode mode : kModes) EXPECT_EQ(open(path, mode), kSharingViolation);
  EXPECT_EQ(on().contents(path), "content");
  EXPECT_FALSE(files().canOpen(path));
}

TEST_F(OpenFilesContract, AFolderIsNotOpened) {
  for (const OpenMode mode : kModes) EXPECT_EQ(open(at(), mode), kAccessDenied);
  EXPECT_FALSE(files().canOpen(at()));
}

TEST_F(OpenFilesContract, CanOpenTellsWhetherThereIsAFile) {
  EXPECT_TRUE(files().canOpen(file("a")));
  EXPECT_FALSE(files().canOpen(at("none")));
  EXPECT_FALSE(on().exists(at("none")));
}

TEST_F(OpenFilesContract, ReadingIsCutAtTheEndOfTheFile) {
  const OpenedFile opened = files().open(file("a", "0123456789"), OpenMode::kInput);
  ASSERT_EQ(opened.status, kSuccess);
  EXPECT_EQ(opened.file->length(), 10U);
  EXPECT_EQ(read(*opened.file, 0, 4), "0123");
  EXPECT_EQ(read(*opened.file, 8, 4), "89");
  EXPECT_EQ(read(*opened.file, 10, 4), "");
  EXPECT_EQ(read(*opened.file, 1000, 4), "");
  EXPECT_EQ(read(*opened.file, 0, 0), "");
}

TEST_F(OpenFilesContract, WritingReplacesBytesAndGrowsTheFile) {
  const std::string path = file("a", "0123456789");
  OpenedFile opened = files().open(path, OpenMode::kBinary);
  ASSERT_EQ(opened.status, kSuccess);
  EXPECT_EQ(opened.file->write(2, "ab"), kSuccess);
  EXPECT_EQ(opened.file->write(9, "xyz"), kSuccess);
  EXPECT_EQ(opened.file->length(), 12U);
  EXPECT_EQ(read(*opened.file, 0, 99), "01ab45678xyz");
  opened.file.reset();
  EXPECT_EQ(on().contents(path), "01ab45678xyz");
}

TEST_F(OpenFilesContract, WritingBehindTheEndLeavesZerosBetween) {
  const std::string path = file("a", "01");
  OpenedFile opened = files().open(path, OpenMode::kBinary);
  ASSERT_EQ(opened.status, kSuccess);
  EXPECT_EQ(opened.file->write(4, "x"), kSuccess);
  opened.file.reset();
  EXPECT_EQ(on().contents(path), std::string("01\0\0x", 5));
}

TEST_F(OpenFilesContract, TheModesThatWriteReadBackWhatTheyWrote) {
  for (const OpenMode mode : {OpenMode::kOutput, OpenMode::kBinary}) {
    const OpenedFile opened = files().open(file("a", ""), mode);
    ASSERT_EQ(opened.status, kSuccess);
    EXPECT_EQ(opened.file->write(0, "text"), kSuccess);
    EXPECT_EQ(opened.file->length(), 4U);
  }
}

TEST_F(OpenFilesContract, AFileThatWasClosedCanBeDeleted) {
  const std::string path = file("a");
  OpenedFile opened = files().open(path, OpenMode::kBinary);
  ASSERT_EQ(opened.status, kSuccess);
  opened.file.reset();
  EXPECT_EQ(files().remove(path), kSuccess);
}

}  // namespace
}  // namespace tavr::contract
