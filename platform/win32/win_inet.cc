#include "platform/win32/win_inet.h"

namespace tavr::win32 {

namespace {

template <class Call>
bool find(const SystemLibrary& library, const char* name, Call& call) {
  call = library.find<Call>(name);
  return call != nullptr;
}

}  // namespace

WinInet::WinInet() : library_(L"wininet.dll") {
  complete_ = find(library_, "FindFirstUrlCacheEntryW", findFirst) &&
              find(library_, "FindNextUrlCacheEntryW", findNext) &&
              find(library_, "FindCloseUrlCache", close) &&
              find(library_, "DeleteUrlCacheEntryW", remove);
}

}  // namespace tavr::win32
