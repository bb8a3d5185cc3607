// What platform/win32/win32_files.h does beyond the contract of all machines.
#include "platform/win32/win32_files.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "platform/win32/wide.h"
#include "tests/contract/win32_scratch.h"

namespace tavr::win32 {
namespace {

class Win32FilesTest : public ::testing::Test {
 protected:
  std::string at(std::string_view name) const { return scratch_.path() + "\\" + std::string(name); }
  std::string file(std::string_view name, std::string_view contents) {
    const std::string path = at(name);
    const OpenedFile made = files_.open(path, OpenMode::kOutput);
    EXPECT_TRUE(made.file != nullptr && made.file->write(0, contents) == kSuccess) << path;
    return path;
  }

  Win32Files files_;

 private:
  contract::ScratchFolder scratch_{"TavrWin32Files"};
};

TEST_F(Win32FilesTest, OutputEmptiesAHiddenFileAndLeavesItHidden) {
  const std::string path = file("hidden", "content");
  ASSERT_EQ(files_.setAttributes(path, kAttrHidden), kSuccess);
  const OpenedFile opened = files_.open(path, OpenMode::kOutput);
  ASSERT_EQ(opened.status, kSuccess);
  EXPECT_EQ(opened.file->length(), 0U);
  std::uint32_t attributes = 0;
  ASSERT_EQ(files_.attributes(path, attributes), kSuccess);
  EXPECT_NE(attributes & kAttrHidden, 0U);
}

TEST_F(Win32FilesTest, DevicesAreNoFiles) {
  for (const std::string& path : {std::string("nul"), at("nul")}) {
    EXPECT_NE(files_.open(path, OpenMode::kOutput).status, kSuccess) << path;
    EXPECT_FALSE(files_.canOpen(path)) << path;
  }
  std::uint32_t attributes = 0;
  EXPECT_EQ(files_.attributes("\\\\?\\" + at(""), attributes), kPathNotFound);
  EXPECT_EQ(files_.remove("\\\\.\\C:"), kPathNotFound);
}

TEST_F(Win32FilesTest, AStreamOfAFileIsNoFile) {
  const std::string path = file("a", "content");
  EXPECT_EQ(files_.open(path + ":stream", OpenMode::kOutput).status, kInvalidName);
  EXPECT_EQ(files_.remove(path + ":stream"), kInvalidName);
  EXPECT_EQ(files_.remove("http://example.org/a?b"), kInvalidName);
  EXPECT_TRUE(files_.canOpen(path));
}

TEST_F(Win32FilesTest, AFolderRefusesLikeAFolderWithASeparatorToo) {
  ASSERT_TRUE(CreateDirectoryW(wide(at("sub")).c_str(), nullptr));
  EXPECT_EQ(files_.remove(at("sub\\")), kAccessDenied);
  EXPECT_EQ(files_.open(at("sub\\"), OpenMode::kBinary).status, kAccessDenied);
}

TEST_F(Win32FilesTest, AnArchiveBitOutlivesOtherAttributes) {
  const std::string path = file("a", "");
  ASSERT_TRUE(SetFileAttributesW(wide(path).c_str(), FILE_ATTRIBUTE_ARCHIVE));
  ASSERT_EQ(files_.setAttributes(path, kAttrReadOnly), kSuccess);
  const DWORD with = GetFileAttributesW(wide(path).c_str());
  ASSERT_EQ(files_.setAttributes(path, 0), kSuccess);
  const DWORD without = GetFileAttributesW(wide(path).c_str());
  EXPECT_EQ(with & kAttrReadOnly, kAttrReadOnly);
  EXPECT_EQ(without & (kAttrReadOnly | kAttrArchive), with & kAttrArchive);
}

TEST_F(Win32FilesTest, AnAccessListReadsBackAsItWasSet) {
  const std::string path = file("a", "");
  SecurityDescriptor before;
  ASSERT_EQ(files_.security(path, before), kSuccess);
  ASSERT_TRUE(before.dacl.has_value());
  ASSERT_EQ(files_.setSecurity(path, before), kSuccess);
  SecurityDescriptor after;
  ASSERT_EQ(files_.security(path, after), kSuccess);
  EXPECT_EQ(after.dacl, before.dacl);
  EXPECT_EQ(files_.security(at("none"), after), kFileNotFound);
  EXPECT_EQ(files_.setSecurity(at("none\\a"), before), kPathNotFound);
}

}  // namespace
}  // namespace tavr::win32
