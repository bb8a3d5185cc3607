// The functions of oleacc.dll, a part of Windows. It is loaded when somebody
// first asks for an accessible object, and only ever from the system's folder:
// most starts do without it.
#pragma once

#include "platform/win32/system_library.h"

namespace tavr::win32 {

// Never let go: what it made may live as long as the process. Loaded once for all
// the types of function.
inline const SystemLibrary& accessibleLibrary() {
  static const SystemLibrary& kept = *new SystemLibrary(L"oleacc.dll");
  return kept;
}

/// Null where the system has no such function.
template <class Function>
Function accessibleFunction(const char* name) {
  return accessibleLibrary().find<Function>(name);
}

}  // namespace tavr::win32
