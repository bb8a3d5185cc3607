// The URL cache of WinINet.
#pragma once

#include "platform/url_cache.h"

namespace tavr::win32 {

class WinInet;

class Win32UrlCache : public UrlCache {
 public:
  std::unique_ptr<CacheWalk> findFirst(CacheEntry& entry) override;
  Status remove(std::string_view url) override;

 private:
  const WinInet& calls();

  // Loaded at the first call. A walk that is under way holds it, too.
  std::shared_ptr<const WinInet> calls_;
};

}  // namespace tavr::win32
