#include "platform/win32/win32_url_cache.h"

#include <windows.h>
// Behind windows.h.
#include <wininet.h>

#include <cstddef>
#include <vector>

#include "platform/win32/wide.h"

namespace tavr::win32 {

namespace {

// An entry of WinINet with the texts it points to, behind it in one block.
class EntryBuffer {
 public:
  EntryBuffer() : words_(kFirstWords) {}

  INTERNET_CACHE_ENTRY_INFOW* info() {
    auto* const info = reinterpret_cast<INTERNET_CACHE_ENTRY_INFOW*>(words_.data());
    info->dwStructSize = sizeof(*info);
    return info;
  }
  DWORD size() const { return static_cast<DWORD>(words_.size() * sizeof(std::max_align_t)); }
  void grow(DWORD needed) { words_.resize(needed / sizeof(std::max_align_t) + 1); }

 private:
  static constexpr std::size_t kFirstWords = 128;  // enough for most entries
  std::vector<std::max_align_t> words_;
};

// Calls `ask(info, size)` again with what it wants as long as it wants more.
template <typename Ask>
bool fill(EntryBuffer& buffer, const Ask& ask) {
  for (;;) {
    DWORD size = buffer.size();
    if (ask(buffer.info(), &size)) return true;
    if (GetLastError() != ERROR_INSUFFICIENT_BUFFER || size <= buffer.size()) return false;
    buffer.grow(size);
  }
}

// No file is a null pointer in one version of WinINet and "" in another.
std::optional<std::string> textOf(const wchar_t* text) {
  if (text == nullptr || *text == L'\0') return std::nullopt;
  return narrow(text);
}

void describe(EntryBuffer& buffer, CacheEntry& entry) {
  const INTERNET_CACHE_ENTRY_INFOW& info = *buffer.info();
  entry.url = textOf(info.lpszSourceUrlName);
  entry.local_file = textOf(info.lpszLocalFileName);
  entry.type = info.CacheEntryType;
}

class Walk final : public CacheWalk {
 public:
  Walk(HANDLE handle, EntryBuffer buffer) : handle_(handle), buffer_(std::move(buffer)) {}
  ~Walk() override { FindCloseUrlCache(handle_); }
  Walk(const Walk&) = delete;
  Walk& operator=(const Walk&) = delete;

  bool next(CacheEntry& entry) override {
    const bool found = fill(buffer_, [this](INTERNET_CACHE_ENTRY_INFOW* info, DWORD* size) {
      return FindNextUrlCacheEntryW(handle_, info, size) != FALSE;
    });
    if (found) describe(buffer_, entry);
    return found;
  }

 private:
  HANDLE handle_;
  EntryBuffer buffer_;
};

}  // namespace

std::unique_ptr<CacheWalk> Win32UrlCache::findFirst(CacheEntry& entry) {
  EntryBuffer buffer;
  HANDLE handle = nullptr;
  const bool found = fill(buffer, [&handle](INTERNET_CACHE_ENTRY_INFOW* info, DWORD* size) {
    handle = FindFirstUrlCacheEntryW(nullptr, info, size);
    return handle != nullptr;
  });
  if (!found) return nullptr;
  describe(buffer, entry);
  return std::make_unique<Walk>(handle, std::move(buffer));
}

Status Win32UrlCache::remove(std::string_view url) {
  if (DeleteUrlCacheEntryW(wide(url).c_str())) return kSuccess;
  const DWORD error = GetLastError();
  return error == ERROR_SUCCESS ? kFileNotFound : error;
}

}  // namespace tavr::win32
