// The least that a Windows program can do with a tree of files: list it with
// FindFirstFileW, or read and write each file's access list and delete it. What
// the program takes is judged beside this.
#include <windows.h>

#include <cstdio>
#include <cwchar>
#include <string>
#include <vector>

namespace {

void erase(const std::wstring& path) {
  static std::vector<unsigned char> descriptor(4096);
  DWORD size = 0;
  GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  if (size > descriptor.size()) descriptor.resize(size);
  if (GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, descriptor.data(),
                       static_cast<DWORD>(descriptor.size()), &size) != FALSE) {
    SetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, descriptor.data());
  }
  DeleteFileW(path.c_str());
}

void walk(const std::wstring& folder, bool deleting, std::vector<std::wstring>& list) {
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW((folder + L"*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    const std::wstring path = folder + found.cFileName;
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
      const bool itself = std::wcscmp(found.cFileName, L".") == 0;
      if (itself || std::wcscmp(found.cFileName, L"..") == 0) continue;
      walk(path + L"\\", deleting, list);
      continue;
    }
    if (deleting) {
      erase(path);
    } else {
      list.push_back(path);
    }
  } while (FindNextFileW(search, &found) != FALSE);
  FindClose(search);
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  const std::wstring mode = argc == 3 ? argv[1] : L"";
  if (mode != L"list" && mode != L"erase") {
    std::fputs("usage: walk list|erase FOLDER\n", stderr);
    return 2;
  }
  std::vector<std::wstring> list;
  walk(std::wstring(argv[2]) + L"\\", mode == L"erase", list);
  return 0;
}
