#include "tests/windows/drawing/sample_picture.h"

#include "tests/windows/drawing/picture.h"

namespace tavr::win32 {

void saveSign(const std::wstring& file, COLORREF color) {
  Picture32 picture(kSignSize, kSignSize, kSignMask);
  constexpr int kMiddle = kSignSize / 2;
  constexpr int kRadius = 6;
  for (int y = -kRadius; y < kRadius; ++y) {
    for (int x = -kRadius; x < kRadius; ++x) {
      // Of the middles of the pixels, doubled to stay whole.
      if ((2 * x + 1) * (2 * x + 1) + (2 * y + 1) * (2 * y + 1) > 4 * kRadius * kRadius) continue;
      SetPixel(picture.dc(), kMiddle + x, kMiddle + y, color);
    }
  }
  picture.saveAs(file);
}

}  // namespace tavr::win32
