#include "platform/win32/win_inet.h"

namespace tavr::win32 {

namespace {

template <typename Call>
bool find(const SystemLibrary& library, const char* name, Call& call) {
  call = reinterpret_cast<Call>(library.find(name));
  return call != nullptr;
}

}  // namespace

WinInet::WinInet() : library_(L"wininet.dll") {
  complete_ = library_ && find(library_, "FindFirstUrlCacheEntryW", findFirst) &&
              find(library_, "FindNextUrlCacheEntryW", findNext) &&
              find(library_, "FindCloseUrlCache", close) &&
              find(library_, "DeleteUrlCacheEntryW", remove);
}

}  // namespace tavr::win32
