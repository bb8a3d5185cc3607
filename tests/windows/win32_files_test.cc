// What platform/win32/win32_files.h does beyond the contract of all machines.
#include "platform/win32/win32_files.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "platform/win32/wide.h"
#include "platform/win32/win32_path.h"
#include "tests/contract/win32_differences.h"
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

TEST_F(Win32FilesTest, AttributesAreExactlyThoseGiven) {
  const std::string path = file("a", "");
  // Wine gives every file that is not hidden the archive bit.
  const DWORD kept = contract::onWine() ? 0x107 : 0x127;
  for (const std::uint32_t given : {0x20U, 0x0U, 0x21U, 0x80U, 0x20U, 0x700U}) {
    ASSERT_EQ(files_.setAttributes(path, given), kSuccess);
    const DWORD bits = GetFileAttributesW(wide(path).c_str());
    EXPECT_EQ(bits & kept, given & kept & 0x27) << given;
  }
  EXPECT_EQ(files_.setAttributes(at("none"), 0x20), kFileNotFound);
}

// Legal in NTFS, and no text of UTF-8.
TEST_F(Win32FilesTest, AFileWithHalfAPairInItsNameIsFoundOpenedAndDeleted) {
  const std::wstring name = std::wstring(L"half ") + wchar_t{0xD83D} + L".txt";
  const std::wstring whole = wide(at("")) + name;
  const HANDLE made = CreateFileW(whole.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
  if (made == INVALID_HANDLE_VALUE) GTEST_SKIP() << "no such name here: " << GetLastError();
  CloseHandle(made);
  std::vector<FoundFile> found;
  ASSERT_EQ(files_.find(at("*.txt"), found), kSuccess);
  ASSERT_EQ(found.size(), 1U);
  if (contract::onWine() && wide(found[0].name) != name) {
    GTEST_SKIP() << "Wine keeps another character in its place: " << found[0].name;
  }
  EXPECT_EQ(wide(found[0].name), name);
  FolderListing listing;
  files_.listFolder(at(""), "*.*", listing);
  ASSERT_EQ(listing.files.size(), 1U);
  EXPECT_EQ(listing.files[0].name, found[0].name);
  EXPECT_TRUE(files_.canOpen(at(found[0].name)));
  EXPECT_EQ(files_.remove(at(found[0].name)), kSuccess);
  EXPECT_EQ(GetFileAttributesW(whole.c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST(Win32PathTest, HalvesOfPairsCountAsOneUnit) {
  std::string path;
  for (int i = 0; i < 250; ++i) path += "\xED\xA0\xBD";
  EXPECT_EQ(NativePath(path + std::string(9, 'x')).refused(), kSuccess);
  EXPECT_EQ(NativePath(path + std::string(10, 'x')).refused(), kPathNotFound);
}

TEST(Win32WideTest, HalvesOfPairsReadBack) {
  const std::wstring high(1, wchar_t{0xD83D});
  const std::wstring low(1, wchar_t{0xDE00});
  for (const std::wstring& text :
       {high, low, low + high, L"a" + high + L"b", high + high + low, high + low}) {
    EXPECT_EQ(wide(narrow(text)), text);
  }
  EXPECT_EQ(narrow(high + low), "\xF0\x9F\x98\x80") << "a pair is a character";
  EXPECT_EQ(narrow(high), "\xED\xA0\xBD");
  EXPECT_EQ(wide("\xED\x9F\xBF"), std::wstring(1, wchar_t{0xD7FF})) << "the last before them";
  EXPECT_EQ(wide("\xED\xA0"), (std::wstring{0xED, 0xA0})) << "bytes that are no UTF-8";
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
