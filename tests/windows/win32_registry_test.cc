// What platform/win32/win32_registry.h does with names that are no text of UTF-8.
#include "platform/win32/win32_registry.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "platform/win32/wide.h"
#include "tests/contract/win32_scratch.h"

namespace tavr::win32 {
namespace {

// KEY_READ, KEY_WRITE.
constexpr std::uint32_t kAccess = 0x2001F;

TEST(Win32RegistryTest, NamesWithHalfAPairOfSurrogatesAreFoundAndDeleted) {
  const contract::ScratchKey scratch("Tavr Win32 Registry");
  const std::wstring name = std::wstring(L"half ") + wchar_t{0xD83D};
  Win32Registry registry;
  const OpenedKey key = registry.create(Root::kCurrentUser, scratch.path(), "", kAccess);
  ASSERT_EQ(key.status, kSuccess);
  // Planted by the calls of Windows, found by the names that the seam gives.
  HKEY native = nullptr;
  ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, wide(scratch.path()).c_str(), 0,
                          KEY_ALL_ACCESS | KEY_WOW64_32KEY, &native),
            ERROR_SUCCESS);
  const BYTE data[] = {1};
  EXPECT_EQ(RegSetValueExW(native, name.c_str(), 0, REG_BINARY, data, 1), ERROR_SUCCESS);
  HKEY made = nullptr;
  EXPECT_EQ(RegCreateKeyExW(native, name.c_str(), 0, nullptr, 0, KEY_READ, nullptr, &made, nullptr),
            ERROR_SUCCESS);
  RegCloseKey(made);
  RegCloseKey(native);

  std::string value;
  std::uint32_t type = 0;
  std::uint32_t size = 0;
  ASSERT_EQ(key.key->enumValue(0, value, type, size), kSuccess);
  EXPECT_EQ(wide(value), name);
  EXPECT_EQ(key.key->deleteValue(value), kSuccess);
  EXPECT_EQ(key.key->enumValue(0, value, type, size), kNoMoreItems);
  std::string subkey;
  ASSERT_EQ(key.key->enumKey(0, subkey), kSuccess);
  EXPECT_EQ(wide(subkey), name);
  EXPECT_EQ(key.key->deleteKey(subkey), kSuccess);
  EXPECT_EQ(key.key->enumKey(0, subkey), kNoMoreItems);
}

// A key of that name below a person's keys, gone with the test where there was none:
// Wine itself takes it for a second view.
class PersonsViews {
 public:
  PersonsViews() {
    RegCreateKeyExW(HKEY_CURRENT_USER, kPath, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_,
                    &made_);
  }
  ~PersonsViews() {
    RegCloseKey(key_);
    if (made_ == REG_CREATED_NEW_KEY) RegDeleteKeyExW(HKEY_CURRENT_USER, kPath, KEY_WOW64_64KEY, 0);
  }
  PersonsViews(const PersonsViews&) = delete;
  PersonsViews& operator=(const PersonsViews&) = delete;

 private:
  static constexpr wchar_t kPath[] = L"Software\\Wow6432Node";
  HKEY key_ = nullptr;
  DWORD made_ = 0;
};

TEST(Win32RegistryTest, APersonsKeysAreNotLookedForBelowWow6432Node) {
  const contract::ScratchKey scratch("Tavr Win32 Views");
  const PersonsViews views;
  Win32Registry registry;
  for (const std::uint32_t view : {0U, 0x100U, 0x200U}) {
    const OpenedKey made = registry.create(Root::kCurrentUser, scratch.path(), "", kAccess | view);
    ASSERT_EQ(made.status, kSuccess) << view;
    HKEY native = nullptr;
    EXPECT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, wide(scratch.path()).c_str(), 0,
                            KEY_ALL_ACCESS | KEY_WOW64_64KEY, &native),
              ERROR_SUCCESS)
        << view;
    RegCloseKey(native);
    EXPECT_EQ(registry.open(Root::kCurrentUser, scratch.path(), kAccess | view).status, kSuccess);
    EXPECT_EQ(made.key->deleteKey(""), kSuccess);
  }
}

// Whatever the view of the call, and however the path is spelled.
TEST(Win32RegistryTest, TheProgramsOwnKeysStandInTheViewThatIsAskedFor) {
  constexpr wchar_t kPath[] = L"Software\\Tavrwork\\Tavr Win32 Own";
  const auto standsIn = [&](REGSAM view) {
    HKEY key = nullptr;
    const LSTATUS status = RegOpenKeyExW(HKEY_LOCAL_MACHINE, kPath, 0, KEY_READ | view, &key);
    if (status == ERROR_SUCCESS) RegCloseKey(key);
    return status == ERROR_SUCCESS;
  };
  for (const REGSAM view : {KEY_WOW64_32KEY, KEY_WOW64_64KEY}) {  // of a run that broke off
    RegDeleteKeyExW(HKEY_LOCAL_MACHINE, kPath, view, 0);
  }
  Win32Registry registry;
  const std::string path = "SOFTWARE\\tavrwork\\Tavr Win32 Own";
  EXPECT_EQ(registry.open(Root::kLocalMachine, path, kAccess).status, kFileNotFound);
  for (const std::uint32_t view : {0U, 0x200U}) {
    const OpenedKey made = registry.create(Root::kLocalMachine, path, "1", kAccess | view);
    ASSERT_EQ(made.status, kSuccess);
    EXPECT_TRUE(standsIn(KEY_WOW64_32KEY));
    EXPECT_FALSE(standsIn(KEY_WOW64_64KEY));
    EXPECT_EQ(registry.open(Root::kLocalMachine, path + "\\", kAccess).status, kSuccess);
    EXPECT_EQ(registry.open(Root::kLocalMachine, path, kAccess | 0x100).status, kFileNotFound);
    EXPECT_EQ(made.key->deleteKey(""), kSuccess);
    EXPECT_FALSE(standsIn(KEY_WOW64_32KEY));
  }
  const OpenedKey made = registry.create(Root::kLocalMachine, path, "1", kAccess | 0x100);
  ASSERT_EQ(made.status, kSuccess);
  EXPECT_TRUE(standsIn(KEY_WOW64_64KEY));
  EXPECT_EQ(registry.open(Root::kLocalMachine, path, kAccess).status, kFileNotFound);
  EXPECT_EQ(made.key->deleteKey(""), kSuccess);
}

}  // namespace
}  // namespace tavr::win32
