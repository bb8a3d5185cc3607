#include "platform/win32/win32_ini.h"

#include <windows.h>

#include <algorithm>
#include <optional>
#include <vector>

#include "basic/text.h"
#include "basic/utf.h"
#include "platform/win32/ini_text.h"
#include "platform/win32/wide.h"
#include "platform/win32/win32_error.h"
#include "platform/win32/win32_open_file.h"
#include "platform/win32/win32_path.h"

namespace tavr::win32 {

namespace {

// Of a section and a key, as the services are given them.
struct Names {
  std::wstring section;
  std::wstring key;
  bool operator==(const Names&) const = default;
};

// How names may stand in a file: in UTF-8, and in the system's page.
std::vector<Names> spellings(std::string_view section, std::string_view key) {
  std::vector<Names> all{{toIniText(section, GetACP()), toIniText(key, GetACP())}};
  if (const Names plain{wide(section), wide(key)}; plain != all.front()) all.push_back(plain);
  return all;
}

// Up to three bytes a unit, where the service counts bytes.
std::size_t roomFor(std::uint32_t capacity) { return std::size_t{capacity} * 3; }

// Nothing: no such file, section or key. Whole, up to what the service has room for:
// a text that is cut within a character of several bytes could not be read as UTF-8.
std::optional<std::wstring> find(const Names& names, std::size_t room, const NativePath& file) {
  constexpr std::wstring_view kMissing = L"\x1 missing \x1";
  constexpr std::size_t kLongest = 0x10000;
  for (std::size_t size = room + kMissing.size() + 1;; size *= 2) {
    std::wstring text(size, L'\0');
    text.resize(GetPrivateProfileStringW(names.section.c_str(), names.key.c_str(), kMissing.data(),
                                         text.data(), static_cast<DWORD>(size), file.c_str()));
    if (text == kMissing) return std::nullopt;
    if (text.size() + 1 < size || size >= kLongest) return text;
  }
}

// "key=value" lines, each with its NUL.
std::string linesFrom(const std::wstring& lines) {
  std::string out;
  for (std::size_t at = 0; at < lines.size();) {
    const std::size_t end = std::min(lines.find(L'\0', at), lines.size());
    out += fromIniText(std::wstring_view(lines).substr(at, end - at), GetACP()) + '\0';
    at = end + 1;
  }
  return out;
}

// A file that begins with the mark of UTF-16 is written in it, whatever the page.
bool holdsUtf16(const NativePath& file) {
  const OpenedFile opened = openFile(file, OpenMode::kInput);
  std::string head;
  return opened.file && opened.file->read(0, 2, head) == kSuccess && head == "\xFF\xFE";
}

}  // namespace

std::string Win32IniFiles::getString(std::string_view section, std::string_view key,
                                     std::string_view fallback, std::uint32_t capacity,
                                     std::string_view file) {
  if (capacity == 0) return {};
  const NativePath path(file);
  for (const Names& names : spellings(section, key)) {
    if (path.refused() != kSuccess) break;
    if (const auto text = find(names, roomFor(capacity), path)) {
      return std::string(leftUtf16(fromIniText(*text, GetACP()), capacity - 1));
    }
  }
  // The service takes the blanks off the end of a default, too.
  return std::string(leftUtf16(RTrim(fallback), capacity - 1));
}

std::int32_t Win32IniFiles::getInt(std::string_view section, std::string_view key,
                                   std::int32_t fallback, std::string_view file) {
  const NativePath path(file);
  for (const Names& names : spellings(section, key)) {
    if (path.refused() != kSuccess || !find(names, 1, path)) continue;
    return static_cast<std::int32_t>(
        GetPrivateProfileIntW(names.section.c_str(), names.key.c_str(), fallback, path.c_str()));
  }
  return fallback;
}

std::string Win32IniFiles::getSection(std::string_view section, std::uint32_t capacity,
                                      std::string_view file) {
  const NativePath path(file);
  if (capacity < 2 || path.refused() != kSuccess) return {};
  for (const Names& names : spellings(section, "")) {
    std::wstring lines(roomFor(capacity), L'\0');
    lines.resize(GetPrivateProfileSectionW(names.section.c_str(), lines.data(),
                                           static_cast<DWORD>(lines.size()), path.c_str()));
    if (lines.empty()) continue;
    std::string text = linesFrom(lines);
    if (reaches(text, capacity)) text = std::string(leftUtf16(text, capacity - 2)) + '\0';
    return text + '\0';
  }
  return {};
}

Status Win32IniFiles::writeString(std::string_view section, std::string_view key,
                                  std::string_view value, std::string_view file) {
  const NativePath path(file);
  if (path.refused() != kSuccess) return path.refused();
  const std::vector<Names> all = spellings(section, key);
  const bool old_names = all.size() > 1 && !find(all.front(), 1, path) && find(all.back(), 1, path);
  const unsigned page = holdsUtf16(path) ? unsigned{CP_UTF8} : GetACP();
  const Names& names = old_names || page == CP_UTF8 ? all.back() : all.front();
  return WritePrivateProfileStringW(names.section.c_str(), names.key.c_str(),
                                    toIniText(value, page).c_str(), path.c_str())
             ? kSuccess
             : lastFileStatus();
}

}  // namespace tavr::win32
