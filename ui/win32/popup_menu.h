// The menu of the tray icon, as a menu of Windows.
#pragma once

#include <windows.h>

#include "forms/form1.h"

namespace tavr::win32 {

/// Opens the menu where the pointer is and presses the entry that a person
/// chooses. Returns when it has closed. `owner` must be a window of this thread.
void openPopupMenu(Form1& form, HWND owner, bool right_to_left);

}  // namespace tavr::win32
