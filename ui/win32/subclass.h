// Procedures put before that of a window, the last one first. They do what
// SetWindowSubclass does and are found without a window property: under Wine each
// look at one is a round trip to another process, for every message, which made a
// list of a million rows slow. Of one thread, that of the windows.
#pragma once

#include <windows.h>
// Behind windows.h.
#include <commctrl.h>

namespace tavr::win32 {

/// Puts `procedure` before those that the window has; one with the same number is
/// given the new data instead. It goes with the window at the latest.
void setSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id, DWORD_PTR data);

/// Also while it runs; nothing where it is not there.
void removeSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id);

/// What the procedures behind the one that runs answer; for a procedure to call.
LRESULT nextProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

}  // namespace tavr::win32
