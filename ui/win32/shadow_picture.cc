#include "ui/win32/shadow_picture.h"

#include <algorithm>
#include <cmath>

#include "ui/win32/color.h"

namespace tavr::win32 {

double shadowStrength(const ShadowLook& look, double way) {
  if (way >= 1) return 0;
  const double half_way = std::clamp(look.half_way / 100.0, 0.01, 0.99);
  const double steepness = std::log(0.5) / std::log(1 - half_way);
  return look.strength / 100.0 * std::pow(1 - std::max(way, 0.0), steepness);
}

std::vector<std::uint32_t> shadowTiles(const ShadowLook& look) {
  // How far a pixel lies from the form to either side, by its tile's column.
  constexpr int kAcross[2][4] = {{-1, 0, 1, -1}, {-1, 0, 1, 1}};
  constexpr int kDown[2][4] = {{-1, -1, -1, 0}, {1, 1, 1, 0}};
  const int size = look.size;
  const auto distance = [size](int side, int within) {
    if (side == 0) return 0.0;
    return (side < 0 ? size - 1 - within : within) + 0.5;
  };
  std::vector<std::uint32_t> pixels(static_cast<std::size_t>(8 * size * size));
  auto pixel = pixels.begin();
  for (int y = 0; y < 2 * size; ++y) {
    for (int x = 0; x < 4 * size; ++x) {
      const double across = distance(kAcross[y / size][x / size], x % size);
      const double down = distance(kDown[y / size][x / size], y % size);
      *pixel++ = premultiplied(look.color, shadowStrength(look, std::hypot(across, down) / size));
    }
  }
  return pixels;
}

BITMAPINFO shadowFormat(int width, int height) {
  BITMAPINFO format{};
  format.bmiHeader.biSize = sizeof(format.bmiHeader);
  format.bmiHeader.biWidth = width;
  format.bmiHeader.biHeight = height;
  format.bmiHeader.biPlanes = 1;
  format.bmiHeader.biBitCount = 32;
  format.bmiHeader.biCompression = BI_RGB;
  return format;
}

void layShadowOut(HDC dc, const ShadowLook& look, SIZE whole) {
  const int size = look.size;
  const std::vector<std::uint32_t> tiles = shadowTiles(look);
  // One row of tiles at a time: whether a source that begins with its upper row
  // counts a place in it from above or from below, systems do not agree.
  const BITMAPINFO format = shadowFormat(4 * size, -size);
  const int right = whole.cx - size;
  const int bottom = whole.cy - size;
  const auto tile = [&](int column, int row, RECT to) {
    StretchDIBits(dc, to.left, to.top, to.right - to.left, to.bottom - to.top, column * size, 0,
                  size, size, tiles.data() + row * (tiles.size() / 2), &format, DIB_RGB_COLORS,
                  SRCCOPY);
  };
  SetStretchBltMode(dc, COLORONCOLOR);
  tile(0, 0, {0, 0, size, size});
  tile(1, 0, {size, 0, right, size});
  tile(2, 0, {right, 0, whole.cx, size});
  tile(3, 0, {0, size, size, bottom});
  tile(0, 1, {0, bottom, size, whole.cy});
  tile(1, 1, {size, bottom, right, whole.cy});
  tile(2, 1, {right, bottom, whole.cx, whole.cy});
  tile(3, 1, {right, size, whole.cx, bottom});
}

}  // namespace tavr::win32
