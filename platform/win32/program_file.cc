#include "platform/win32/program_file.h"

#include <windows.h>

namespace tavr::win32 {

std::wstring programFile() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) return withoutLiftedLimit({path.data(), length});
    path.resize(path.size() * 2);
  }
}

std::wstring withoutLiftedLimit(std::wstring_view path) {
  constexpr std::wstring_view kHead = L"\\\\?\\";
  constexpr std::wstring_view kShareHead = L"\\\\?\\UNC\\";
  if (path.starts_with(kShareHead)) {
    return std::wstring(L"\\\\").append(path.substr(kShareHead.size()));
  }
  return std::wstring(path.starts_with(kHead) ? path.substr(kHead.size()) : path);
}

}  // namespace tavr::win32
