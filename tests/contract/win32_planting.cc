#include "tests/contract/win32_planting.h"

#include <windows.h>
// After windows.h, which they need.
#include <shellapi.h>
#include <wininet.h>

#include <memory>
#include <stdexcept>
#include <vector>

#include "platform/win32/wide.h"
#include "tests/contract/win32_differences.h"
#include "tests/contract/win32_scratch.h"

namespace tavr::contract {

namespace {

using win32::narrow;
using win32::wide;

struct CloseAny {
  void operator()(void* handle) const { CloseHandle(handle); }
};

std::wstring ownFolder() {
  std::wstring path(MAX_PATH, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
  return path.substr(0, path.rfind(L'\\') + 1);
}

// The walk's entry information is as long as it needs to be.
class CacheInfo {
 public:
  INTERNET_CACHE_ENTRY_INFOW* get() {
    return reinterpret_cast<INTERNET_CACHE_ENTRY_INFOW*>(room_.data());
  }
  DWORD* size() { return &size_; }
  void grow() { room_.resize(size_ / sizeof(room_[0]) + 1); }
  void reset() { size_ = static_cast<DWORD>(room_.size() * sizeof(room_[0])); }

 private:
  std::vector<std::uint64_t> room_ = std::vector<std::uint64_t>(1024);
  DWORD size_ = 0;
};

}  // namespace

void require(bool done, std::string_view what) {
  if (done) return;
  throw std::runtime_error("planting " + std::string(what) + " failed with " +
                           std::to_string(GetLastError()));
}

void plantRegistryValue(std::uint32_t root, bool in_64_bit_view, std::string_view path,
                        std::string_view name, std::uint32_t type, std::string_view bytes) {
  const auto root_key = reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(root)));
  const REGSAM view = in_64_bit_view ? KEY_WOW64_64KEY : KEY_WOW64_32KEY;
  HKEY key = nullptr;
  require(RegCreateKeyExW(root_key, wide(path).c_str(), 0, nullptr, 0, KEY_SET_VALUE | view,
                          nullptr, &key, nullptr) == ERROR_SUCCESS,
          path);
  // A NUL behind the bytes of a text would be stored with them.
  std::vector<BYTE> stored(bytes.begin(), bytes.end());
  stored.insert(stored.end(), 2, 0xFF);
  const LSTATUS status = RegSetValueExW(key, wide(name).c_str(), 0, type, stored.data(),
                                        static_cast<DWORD>(bytes.size()));
  RegCloseKey(key);
  require(status == ERROR_SUCCESS, name);
}

RunningProcess startSleeper(const std::string& image_path) {
  constexpr DWORD kTimeToStart = 20'000;  // ms
  const std::wstring image = wide(image_path);
  CopyFileW((ownFolder() + L"sleeper.exe").c_str(), image.c_str(), TRUE);  // or it is there
  const std::string event_name = "TavrSleeper." + std::to_string(GetCurrentProcessId());
  const std::unique_ptr<void, CloseAny> running(
      CreateEventA(nullptr, FALSE, FALSE, event_name.c_str()));
  std::wstring command = L"\"" + image + L"\" " + wide(event_name);
  STARTUPINFOW startup = {};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION process = {};
  require(CreateProcessW(image.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                         nullptr, &startup, &process),
          image_path);
  CloseHandle(process.hThread);
  const DWORD waited = WaitForSingleObject(running.get(), kTimeToStart);
  require(waited == WAIT_OBJECT_0, image_path);
  return {process.dwProcessId, process.hProcess};
}

std::string cacheFilePath(std::string_view url, std::string_view name) {
  wchar_t path[MAX_PATH] = {};
  const std::wstring extension = wide(name.substr(name.rfind('.') + 1));
  require(CreateUrlCacheEntryW(wide(url).c_str(), 0, extension.c_str(), path, 0), url);
  return narrow(path);
}

void commitCacheEntry(std::uint32_t type, std::string_view url, std::string_view local_file) {
  const std::wstring file = wide(local_file);
  const FILETIME never = {};
  require(CommitUrlCacheEntryW(wide(url).c_str(), file.empty() ? nullptr : file.c_str(), never,
                               never, type, nullptr, 0, nullptr, nullptr),
          url);
}

void emptyUrlCache() {
  CacheInfo info;
  std::vector<std::wstring> urls;
  info.reset();
  HANDLE walk = FindFirstUrlCacheEntryW(nullptr, info.get(), info.size());
  if (walk == nullptr && GetLastError() == ERROR_INSUFFICIENT_BUFFER) {
    info.grow();
    walk = FindFirstUrlCacheEntryW(nullptr, info.get(), info.size());
  }
  if (walk == nullptr) return;
  for (bool found = true; found;) {
    urls.emplace_back(info.get()->lpszSourceUrlName);
    info.reset();
    found = FindNextUrlCacheEntryW(walk, info.get(), info.size()) != 0;
    if (found || GetLastError() != ERROR_INSUFFICIENT_BUFFER) continue;
    info.grow();
    found = FindNextUrlCacheEntryW(walk, info.get(), info.size()) != 0;
  }
  FindCloseUrlCache(walk);
  for (const std::wstring& url : urls) DeleteUrlCacheEntryW(url.c_str());
}

void recycle(std::string_view path) {
  std::wstring names = wide(path) + L'\0';  // a list of one, closed by another NUL
  SHFILEOPSTRUCTW operation = {};
  operation.wFunc = FO_DELETE;
  operation.pFrom = names.c_str();
  operation.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
  require(SHFileOperationW(&operation) == 0, path);
}

void emptyRecycleBin() {
  SHQUERYRBINFO info = {};
  info.cbSize = sizeof(info);
  if (SHQueryRecycleBinW(nullptr, &info) != S_OK || info.i64NumItems == 0) return;
  SHEmptyRecycleBinW(nullptr, nullptr, SHERB_NOCONFIRMATION | SHERB_NOPROGRESSUI | SHERB_NOSOUND);
  // Wine leaves read-only items; its bin is in the home of the prefix, which it
  // names by a path of the kernel: \??\ and not the calls' own \\?\.
  wchar_t home[MAX_PATH] = {};
  if (onWine() && GetEnvironmentVariableW(L"WINEHOMEDIR", home, MAX_PATH) != 0) {
    home[1] = L'\\';
    for (const wchar_t* part : {L"files", L"info"}) {
      const std::wstring folder = std::wstring(home) + L"\\.local\\share\\Trash\\" + part;
      removeTree(folder);
      CreateDirectoryW(folder.c_str(), nullptr);  // Wine has made it and does not do so again
    }
  }
}

}  // namespace tavr::contract
