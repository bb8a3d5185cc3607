// The functions of oleacc.dll, a part of Windows. It is loaded when somebody
// first asks for an accessible object, and only ever from the system's folder:
// most starts do without it.
#pragma once

#include <windows.h>
// Behind windows.h.
#include <oleacc.h>

namespace tavr::win32 {

/// Null where the system has no such function.
template <class Function>
Function accessibleFunction(const char* name) {
  // Never let go: what it made may live as long as the process.
  static const HMODULE library =
      LoadLibraryExW(L"oleacc.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (library == nullptr) return nullptr;
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

}  // namespace tavr::win32
