// The functions of oleacc.dll, a part of Windows. It is loaded when somebody
// first asks for an accessible object, and only ever from the system's folder:
// most starts do without it.
#pragma once

#include "platform/win32/system_library.h"

namespace tavr::win32 {

/// Null where the system has no such function.
template <class Function>
Function accessibleFunction(const char* name) {
  // Never let go: what it made may live as long as the process.
  static const SystemLibrary& kept = *new SystemLibrary(L"oleacc.dll");
  return kept.find<Function>(name);
}

}  // namespace tavr::win32
