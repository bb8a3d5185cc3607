// The calls of WinINet's URL cache.
#pragma once

#include <windows.h>
// Behind windows.h.
#include <wininet.h>

#include "platform/win32/system_library.h"

namespace tavr::win32 {

/// All of them or none; they can be called for as long as it lives.
class WinInet {
 public:
  WinInet();

  /// False: this machine has no WinINet, and nothing here can be called.
  explicit operator bool() const { return complete_; }

  decltype(&::FindFirstUrlCacheEntryW) findFirst = nullptr;
  decltype(&::FindNextUrlCacheEntryW) findNext = nullptr;
  decltype(&::FindCloseUrlCache) close = nullptr;
  decltype(&::DeleteUrlCacheEntryW) remove = nullptr;

 private:
  SystemLibrary library_;
  bool complete_ = false;
};

}  // namespace tavr::win32
