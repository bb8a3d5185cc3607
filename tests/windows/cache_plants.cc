#include "tests/windows/cache_plants.h"

#include <windows.h>
// Behind windows.h.
#include <wininet.h>

#include "platform/win32/wide.h"
#include "platform/win32/win32_url_cache.h"
#include "tests/contract/win32_planting.h"

namespace tavr::windows_test {

using contract::require;
using win32::narrow;
using win32::wide;

namespace {

// The folder of the cookies' container keeps files right in it; the others in
// folders with names of the cache's choice.
std::string placeFor(const std::string& url, const std::string& file) {
  std::string place = contract::cacheFilePath(url, file);
  // The cache has made the file already.
  DeleteFileW(wide(place).c_str());
  if (url.starts_with("Cookie:")) {
    place = place.substr(0, place.rfind('\\')) + file.substr(file.rfind('\\'));
  }
  return place;
}

void makeEmpty(const std::string& file) {
  const HANDLE made = CreateFileW(wide(file).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  require(made != INVALID_HANDLE_VALUE, file);
  CloseHandle(made);
}

}  // namespace

std::string plantCacheEntry(std::uint32_t type, const std::string& url, const std::string& file) {
  if (file.empty()) {
    contract::commitCacheEntry(type, url, "");
    return "";
  }
  const std::string place = placeFor(url, file);
  const DWORD marks = GetFileAttributesW(wide(file).c_str());
  if (marks != INVALID_FILE_ATTRIBUTES) {
    SetFileAttributesW(wide(file).c_str(), FILE_ATTRIBUTE_NORMAL);
    require(MoveFileExW(wide(file).c_str(), wide(place).c_str(), MOVEFILE_REPLACE_EXISTING), place);
    SetFileAttributesW(wide(place).c_str(), marks);
  }
  if (marks == INVALID_FILE_ATTRIBUTES) makeEmpty(place);
  contract::commitCacheEntry(type, url, place);
  // An entry is committed with its file and may lose it later.
  if (marks == INVALID_FILE_ATTRIBUTES) require(DeleteFileW(wide(place).c_str()), place);
  return place == file ? "" : place + "\t" + file + "\n";
}

std::string listCacheEntries() {
  win32::Win32UrlCache cache;
  std::string lines;
  CacheEntry entry;
  const auto walk = cache.findFirst(entry);
  if (!walk) return lines;
  do {
    lines += std::to_string(entry.type) + "\t" + entry.url.value_or("") + "\t" +
             entry.local_file.value_or("") + "\n";
  } while (walk->next(entry));
  return lines;
}

}  // namespace tavr::windows_test
