// The resolution of the monitor that a window stands on.
#pragma once

#include <windows.h>

namespace tavr::win32 {

int dpiOf(HWND window);

}  // namespace tavr::win32
