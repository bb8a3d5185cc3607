// The menu of the tray icon, as a menu of Windows.
#pragma once

#include <windows.h>

#include "forms/form1.h"

namespace tavr::win32 {

/// Opens the menu where the pointer is and returns when it has closed: with the
/// entry that a person chose, which is not pressed yet, or null. `owner` must be a
/// window of this thread.
Button* openPopupMenu(Form1& form, HWND owner, bool right_to_left);

}  // namespace tavr::win32
