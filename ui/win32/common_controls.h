// The functions of comctl32.dll, a part of Windows. It is loaded with the first
// form: an unattended run opens none, and would spend much of its start on it.
#pragma once

#include <windows.h>
// Behind windows.h.
#include <commctrl.h>

namespace tavr::win32 {

/// Makes the window classes of the lists and of the tips known; before the first
/// control is made. Where that fails, neither can be made.
void loadCommonControls();

/// Empty images of this size in pixels, which give a list the height of its rows.
/// Null: there are none, and the list takes the height of its font.
HIMAGELIST createImageList(int width, int height);
/// Null is ignored.
void destroyImageList(HIMAGELIST images);

}  // namespace tavr::win32
