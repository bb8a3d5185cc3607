// The soft shadow behind a form: a layered window of its own that follows the
// form and lets the mouse through. The form carries it as the window property
// "TrickShadow".
#pragma once

#include <windows.h>

namespace tavr::win32 {

/// Puts a shadow of size 40 and colour 0xFF0000 behind the form. True when the
/// form has a shadow now, also when it had one before, which is then left as it
/// is.
bool attachShadow(HWND form);

/// How far the shadow reaches beyond the form, in pixels, 1 to 100. False: no
/// shadow, or a size outside, which changes nothing.
bool setShadowSize(HWND form, int size);
bool setShadowColor(HWND form, COLORREF color);

/// True if a shadow existed.
bool detachShadow(HWND form);

}  // namespace tavr::win32
