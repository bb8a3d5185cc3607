// The URL cache of WinINet.
#pragma once

#include "platform/url_cache.h"

namespace tavr::win32 {

class Win32UrlCache : public UrlCache {
 public:
  std::unique_ptr<CacheWalk> findFirst(CacheEntry& entry) override;
  Status remove(std::string_view url) override;
};

}  // namespace tavr::win32
