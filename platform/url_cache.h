// The WinINet URL cache: a walk over its entries, and deletion by URL. A
// machine without WinINet gives an empty walk.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/win_error.h"

namespace tavr {

/// The fields of INTERNET_CACHE_ENTRY_INFO that the program reads; a pointer
/// that is null there is absent here.
struct CacheEntry {
  std::optional<std::string> url;
  std::optional<std::string> local_file;
  std::uint32_t type = 0;
};

/// A running enumeration; destroying it is FindCloseUrlCache.
class CacheWalk {
 public:
  virtual ~CacheWalk() = default;
  /// FindNextUrlCacheEntry. False: no entry left, or the walk cannot go on.
  virtual bool next(CacheEntry& entry) = 0;
};

class UrlCache {
 public:
  virtual ~UrlCache() = default;
  /// FindFirstUrlCacheEntry without a pattern. Null: the cache is empty.
  virtual std::unique_ptr<CacheWalk> findFirst(CacheEntry& entry) = 0;
  /// DeleteUrlCacheEntry: the entry and, when it can be deleted, its file. A walk
  /// that is under way goes on.
  /// 2: no such entry.
  virtual Status remove(std::string_view url) = 0;
};

}  // namespace tavr
