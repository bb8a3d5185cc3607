// What Windows tells a screen reader of a window.
#pragma once

#include <windows.h>
// Behind windows.h.
#include <oleacc.h>

#include <string>

#include "platform/win32/com.h"

namespace tavr::win32::testing {

/// The object of a window, as any program gets it; empty when there is none.
ComPointer<IAccessible> accessibleOf(HWND window);

/// The window that an object stands for; null for none.
HWND windowOf(IAccessible& object);

VARIANT self();

struct Asked {
  std::string name;
  std::string value;
  std::string shortcut;
  std::string action;
  long role = 0;
  long state = 0;

  bool has(long bits) const { return (state & bits) == bits; }
};
/// Everything "" and 0 when the window has no object.
Asked ask(HWND window);

}  // namespace tavr::win32::testing
