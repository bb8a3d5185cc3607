#include "tests/contract/win32_scratch.h"

#include <windows.h>

#include <stdexcept>
#include <vector>

#include "platform/win32/wide.h"

namespace tavr::contract {

namespace {

using win32::narrow;
using win32::wide;

std::string temporaryFolder() {
  wchar_t path[MAX_PATH + 1] = {};
  wchar_t whole[MAX_PATH + 1] = {};
  // In its long form: a short one would compare unequal to what searches give.
  if (GetTempPathW(MAX_PATH, path) == 0 || GetLongPathNameW(path, whole, MAX_PATH) == 0) {
    throw std::runtime_error("no temporary folder");
  }
  return narrow(whole);
}

}  // namespace

std::wstring longForm(std::string_view path) { return L"\\\\?\\" + wide(path); }

void removeTree(const std::wstring& folder) {
  WIN32_FIND_DATAW entry = {};
  const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &entry);
  if (search != INVALID_HANDLE_VALUE) {
    std::vector<std::wstring> names;
    do {
      names.emplace_back(entry.cFileName);
    } while (FindNextFileW(search, &entry) != 0);
    FindClose(search);
    for (const std::wstring& name : names) {
      if (name == L"." || name == L"..") continue;
      const std::wstring path = folder + L"\\" + name;
      const DWORD attributes = GetFileAttributesW(path.c_str());
      SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
      if ((attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
        DeleteFileW(path.c_str());
      } else if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        RemoveDirectoryW(path.c_str());  // the link, not where it leads
      } else {
        removeTree(path);
      }
    }
  }
  RemoveDirectoryW(folder.c_str());
}

ScratchFolder::ScratchFolder(std::string_view name)
    : path_(temporaryFolder() + std::string(name) + "." + std::to_string(GetCurrentProcessId())) {
  removeTree(longForm(path_));
  if (CreateDirectoryW(wide(path_).c_str(), nullptr) == 0) {
    throw std::runtime_error("cannot make " + path_);
  }
}

ScratchFolder::~ScratchFolder() {
  SetCurrentDirectoryW(wide(temporaryFolder()).c_str());  // a current folder cannot be removed
  removeTree(longForm(path_));
}

ScratchKey::ScratchKey(std::string_view name)
    : path_("Software\\" + std::string(name) + "." + std::to_string(GetCurrentProcessId())) {
  remove();
}

ScratchKey::~ScratchKey() { remove(); }

void ScratchKey::remove() const {
  constexpr std::size_t kSoftware = 9;
  const std::wstring name = wide(path_.substr(kSoftware));
  for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
    for (const REGSAM view : {KEY_WOW64_32KEY, KEY_WOW64_64KEY}) {
      HKEY software = nullptr;
      if (RegOpenKeyExW(root, L"Software", 0, KEY_ALL_ACCESS | view, &software) != ERROR_SUCCESS) {
        continue;
      }
      RegDeleteTreeW(software, name.c_str());
      RegDeleteKeyExW(software, name.c_str(), view, 0);
      RegCloseKey(software);
    }
  }
}

}  // namespace tavr::contract
