#include "platform/win32/system_library.h"

#include <windows.h>

namespace tavr::win32 {

SystemLibrary::SystemLibrary(const wchar_t* name)
    : module_(LoadLibraryExW(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)) {}

void* SystemLibrary::address(const char* function) const {
  if (!module_) return nullptr;
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(module_.get()), function));
}

void SystemLibrary::Free::operator()(void* module) const {
  FreeLibrary(static_cast<HMODULE>(module));
}

}  // namespace tavr::win32
