// What the shadow of a form looks like, as pixels.
#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

namespace tavr::win32 {

/// The four values that a shadow's window carries, in their order there.
struct ShadowLook {
  int size = 40;  ///< how far it reaches beyond the form, in pixels
  COLORREF color = 0xFF0000;
  int half_way = 25;  ///< % of the way out at which half of its strength is gone
  int strength = 50;  ///< % of opacity at the form's edge
};

/// The opacity, 0 to 1, at a part of the way from the form's edge outwards.
double shadowStrength(const ShadowLook& look, double way);

/// The source of 4 x size by 2 x size pixels, upper row first, in premultiplied
/// 32-bit colours: eight square tiles, which are the corners and the sides around
/// a form, in two rows: upper left, upper, upper right, left; lower left, lower,
/// lower right, right.
std::vector<std::uint32_t> shadowTiles(const ShadowLook& look);

/// Lays the tiles out over a picture of 32 bits a pixel: the corners as they are,
/// the sides stretched. Where the form stands nothing is drawn.
void layShadowOut(HDC dc, const ShadowLook& look, SIZE whole);

/// 32 bits a pixel; a height below zero: the upper row comes first.
BITMAPINFO shadowFormat(int width, int height);

}  // namespace tavr::win32
