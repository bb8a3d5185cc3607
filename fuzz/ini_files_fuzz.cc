// The machine's INI files: section, key, value and the file's text, parted by
// NULs. What is written reads back, other keys stay, no buffer overflows.
#include <string>
#include <string_view>

#include "basic/text.h"
#include "basic/utf.h"
#include "fuzz/checks.h"
#include "fuzz/memory_files.h"
#include "platform/folder/ini_files.h"

namespace {

using tavr::folder::FolderIniFiles;
using tavr::fuzz::require;

constexpr std::string_view kPath = "C:\\a.ini";
constexpr std::uint32_t kRoom = 1U << 20;

bool hasAny(std::string_view text, std::string_view characters) {
  return text.find_first_of(characters) != std::string_view::npos;
}

bool isBlank(char c) { return c == ' ' || c == '\t'; }

// Can it be a name in an INI file at all?
bool isName(std::string_view name) {
  return !name.empty() && !isBlank(name.front()) && !isBlank(name.back()) &&
         !hasAny(name, "[]=;\r\n");
}

std::string asRead(std::string_view value) {
  while (!value.empty() && isBlank(value.front())) value.remove_prefix(1);
  while (!value.empty() && isBlank(value.back())) value.remove_suffix(1);
  if (value.size() < 2 || value.front() != value.back()) return std::string(value);
  if (value.front() != '"' && value.front() != '\'') return std::string(value);
  return std::string(value.substr(1, value.size() - 2));
}

void checkBuffers(FolderIniFiles& ini, std::string_view section, std::string_view key) {
  for (const std::uint32_t capacity : {0U, 1U, 2U, 3U, 8U, 64U}) {
    const std::string text = ini.getString(section, key, "default", capacity, kPath);
    require(text.empty() || !tavr::reaches(text, capacity), "a text leaves room for its NUL");
    const std::string lines = ini.getSection(section, capacity, kPath);
    require(lines.empty() || tavr::utf16Length(lines) <= capacity, "a section fits its buffer");
    require(lines.empty() || lines.back() == '\0', "a section ends in a NUL");
  }
  ini.getInt(section, key, 0, kPath);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view input = tavr::fuzz::asText(data, size);
  const std::string_view section = tavr::fuzz::takePart(input);
  const std::string_view key = tavr::fuzz::takePart(input);
  const std::string_view value = tavr::fuzz::takePart(input);
  tavr::fuzz::MemoryFiles files(input);
  FolderIniFiles ini(files);
  checkBuffers(ini, section, key);

  const std::string other = ini.getString("other", "key", "-", kRoom, kPath);
  require(ini.writeString(section, key, value, kPath) == tavr::kSuccess, "a value can be written");
  checkBuffers(ini, section, key);
  if (!isName(section) || !isName(key) || hasAny(value, "\r\n")) return 0;
  require(ini.getString(section, key, "-", kRoom, kPath) == asRead(value), "a value reads back");
  if (tavr::sameText(section, "other") && tavr::sameText(key, "key")) return 0;
  require(ini.getString("other", "key", "-", kRoom, kPath) == other, "other keys stay");
  return 0;
}
