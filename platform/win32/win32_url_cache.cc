#include "platform/win32/win32_url_cache.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "platform/win32/wide.h"
#include "platform/win32/win32_error.h"
#include "platform/win32/win_inet.h"

namespace tavr::win32 {

namespace {

// An entry of WinINet with the texts it points to, behind it in one block.
class EntryBuffer {
 public:
  EntryBuffer() : words_(kFirstWords) {}

  INTERNET_CACHE_ENTRY_INFOW* info() {
    auto* const info = reinterpret_cast<INTERNET_CACHE_ENTRY_INFOW*>(words_.data());
    info->dwStructSize = size();
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
  explicit Walk(std::shared_ptr<const WinInet> calls) : calls_(std::move(calls)) {}
  ~Walk() override {
    if (handle_ != nullptr) calls_->close(handle_);
  }
  Walk(const Walk&) = delete;
  Walk& operator=(const Walk&) = delete;

  bool first(CacheEntry& entry) {
    return take(entry, [this](INTERNET_CACHE_ENTRY_INFOW* info, DWORD* size) {
      handle_ = calls_->findFirst(nullptr, info, size);
      return handle_ != nullptr;
    });
  }
  bool next(CacheEntry& entry) override {
    return take(entry, [this](INTERNET_CACHE_ENTRY_INFOW* info, DWORD* size) {
      return calls_->findNext(handle_, info, size) != FALSE;
    });
  }

 private:
  template <typename Ask>
  bool take(CacheEntry& entry, const Ask& ask) {
    if (!fill(buffer_, ask)) return false;
    describe(buffer_, entry);
    return true;
  }

  const std::shared_ptr<const WinInet> calls_;
  HANDLE handle_ = nullptr;
  EntryBuffer buffer_;
};

}  // namespace

const WinInet& Win32UrlCache::calls() {
  if (!calls_) calls_ = std::make_shared<WinInet>();
  return *calls_;
}

std::unique_ptr<CacheWalk> Win32UrlCache::findFirst(CacheEntry& entry) {
  if (!calls()) return nullptr;
  auto walk = std::make_unique<Walk>(calls_);
  return walk->first(entry) ? std::move(walk) : nullptr;
}

Status Win32UrlCache::remove(std::string_view url) {
  if (!calls()) return kFileNotFound;
  return calls_->remove(wide(url).c_str()) ? kSuccess : lastStatus(kFileNotFound);
}

}  // namespace tavr::win32
