// Colours: mixing them, and what can be read on what.
#pragma once

#include <windows.h>

#include <cstdint>

namespace tavr::win32 {

inline constexpr COLORREF kWhite = RGB(255, 255, 255);
inline constexpr COLORREF kInk = RGB(30, 36, 48);

/// `part` of the way from one colour to the other.
COLORREF mix(COLORREF from, COLORREF to, double part);
/// A pixel of a picture with opacity, as GdiAlphaBlend takes it.
std::uint32_t premultiplied(COLORREF color, double opacity);
/// The grey of the same lightness.
COLORREF greyOf(COLORREF color);
/// 1 for the same lightness, 21 for black and white.
double contrast(COLORREF a, COLORREF b);
/// White or ink, whichever stands out more.
COLORREF readableOn(COLORREF ground);
/// A control's colour number: a colour, or with the upper bit one of the
/// system's.
COLORREF fromControlColor(std::int32_t color);

}  // namespace tavr::win32
