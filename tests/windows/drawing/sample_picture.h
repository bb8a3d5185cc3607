// A picture file as a button shows it: a disc in the middle of the mask's colour.
#pragma once

#include <windows.h>

#include <string>

namespace tavr::win32 {

inline constexpr int kSignSize = 18;  ///< what a button gives a picture at 96 dpi
inline constexpr COLORREF kSignMask = RGB(0xC0, 0xC0, 0xC0);
inline constexpr COLORREF kSignRed = RGB(208, 32, 48);
inline constexpr COLORREF kSignBlue = RGB(32, 64, 208);

/// A disc of 12 pixels in this colour, with sharp edges.
void saveSign(const std::wstring& file, COLORREF color);

}  // namespace tavr::win32
