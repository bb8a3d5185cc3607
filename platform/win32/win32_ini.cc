#include "platform/win32/win32_ini.h"

#include <windows.h>

#include "platform/win32/wide.h"

namespace tavr::win32 {

std::string Win32IniFiles::getString(std::string_view section, std::string_view key,
                                     std::string_view fallback, std::uint32_t capacity,
                                     std::string_view file) {
  if (capacity == 0) return {};
  std::wstring text(capacity, L'\0');
  text.resize(GetPrivateProfileStringW(wide(section).c_str(), wide(key).c_str(),
                                       wide(fallback).c_str(), text.data(), capacity,
                                       wide(file).c_str()));
  return narrow(text);
}

std::int32_t Win32IniFiles::getInt(std::string_view section, std::string_view key,
                                   std::int32_t fallback, std::string_view file) {
  return static_cast<std::int32_t>(GetPrivateProfileIntW(wide(section).c_str(), wide(key).c_str(),
                                                         fallback, wide(file).c_str()));
}

std::string Win32IniFiles::getSection(std::string_view section, std::uint32_t capacity,
                                      std::string_view file) {
  if (capacity < 2) return {};
  std::wstring lines(capacity, L'\0');
  lines.resize(
      GetPrivateProfileSectionW(wide(section).c_str(), lines.data(), capacity, wide(file).c_str()));
  if (lines.empty()) return {};
  if (lines.back() != L'\0') lines += L'\0';  // cut within a line
  return narrow(lines + L'\0');
}

Status Win32IniFiles::writeString(std::string_view section, std::string_view key,
                                  std::string_view value, std::string_view file) {
  return WritePrivateProfileStringW(wide(section).c_str(), wide(key).c_str(), wide(value).c_str(),
                                    wide(file).c_str())
             ? kSuccess
             : GetLastError();
}

}  // namespace tavr::win32
