// Libraries of the system, and one that stands beside the program, where somebody
// may have put it.
#include "platform/win32/system_library.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

namespace tavr::win32 {
namespace {

constexpr wchar_t kName[] = L"tavr-planted.dll";

std::wstring besideTheProgram() {
  std::wstring path(MAX_PATH, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
  return path.substr(0, path.rfind(L'\\') + 1) + kName;
}

class PlantedLibrary : public ::testing::Test {
 protected:
  void SetUp() override {
    std::wstring system(MAX_PATH, L'\0');
    system.resize(GetSystemDirectoryW(system.data(), MAX_PATH));
    ASSERT_TRUE(CopyFileW((system + L"\\version.dll").c_str(), planted_.c_str(), FALSE));
  }
  ~PlantedLibrary() override { DeleteFileW(planted_.c_str()); }

  const std::wstring planted_ = besideTheProgram();
};

TEST_F(PlantedLibrary, IsNotTakenForOneOfTheSystem) {
  const HMODULE found_by_name = LoadLibraryW(kName);
  ASSERT_NE(found_by_name, nullptr) << "it could be loaded";
  EXPECT_NE(GetProcAddress(found_by_name, "GetFileVersionInfoSizeW"), nullptr) << "with all it has";
  FreeLibrary(found_by_name);
  EXPECT_EQ(SystemLibrary(kName).find<void*>("GetFileVersionInfoSizeW"), nullptr);
}

TEST(SystemLibraryTest, OneOfTheSystemIsFoundWithItsFunctions) {
  const SystemLibrary library(L"version.dll");
  EXPECT_NE(library.find<void*>("GetFileVersionInfoSizeW"), nullptr);
  EXPECT_EQ(library.find<void*>("NoSuchFunction"), nullptr);
}

TEST(SystemLibraryTest, OneThatIsNotThereHasNoFunctions) {
  const SystemLibrary library(L"tavr-not-there.dll");
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
  SetLastError(ERROR_SUCCESS);
  EXPECT_EQ(library.find<void*>("GetFileVersionInfoSizeW"), nullptr);
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_SUCCESS)) << "nothing was looked for";
}

}  // namespace
}  // namespace tavr::win32
