// A window that nobody sees and that hears messages: others find it by its class
// or its title, and what is told to everybody reaches it, unlike a window for
// messages alone.
#pragma once

#include <windows.h>

namespace tavr::win32 {

/// The window belongs to the thread that calls, and the procedure finds `object`
/// as its GWLP_USERDATA, but not before the window has been made. Null when none
/// can be made. The caller destroys it.
HWND makePlainWindow(const wchar_t* window_class, WNDPROC procedure, void* object,
                     const wchar_t* title = L"");

}  // namespace tavr::win32
