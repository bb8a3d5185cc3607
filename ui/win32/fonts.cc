#include "ui/win32/fonts.h"

#include <cmath>

#include "basic/number.h"
#include "ui/win32/drawing.h"

namespace tavr::win32 {

namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;
constexpr double kUsualSize = 9;

}  // namespace

Fonts::~Fonts() {
  for (const auto& [key, font] : made_) DeleteObject(font);
}

HFONT Fonts::get(const ControlFont& font, bool bold) {
  const bool heavy = font.bold || bold;
  const Key key{font.name, font.size, font.charset, heavy, font.italic, font.underline};
  HFONT& made = made_[key];
  if (made == nullptr) {
    const double points = Val(font.size) > 0 ? Val(font.size) : kUsualSize;
    const int height = -static_cast<int>(std::lround(points * kPixelsPerPoint * scale_));
    made = CreateFontW(height, 0, 0, 0, heavy ? FW_SEMIBOLD : FW_NORMAL, font.italic ? TRUE : FALSE,
                       font.underline ? TRUE : FALSE, FALSE, static_cast<DWORD>(font.charset),
                       OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY, DEFAULT_PITCH,
                       installedFamily(font.name, font.charset).c_str());
  }
  return made;
}

}  // namespace tavr::win32
