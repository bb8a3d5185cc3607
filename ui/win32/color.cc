#include "ui/win32/color.h"

#include <algorithm>
#include <cmath>

namespace tavr::win32 {

namespace {

double luminance(COLORREF color) {
  const auto linear = [](BYTE channel) {
    const double value = channel / 255.0;
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(GetRValue(color)) + 0.7152 * linear(GetGValue(color)) +
         0.0722 * linear(GetBValue(color));
}

}  // namespace

double contrast(COLORREF a, COLORREF b) {
  const double lighter = std::max(luminance(a), luminance(b));
  const double darker = std::min(luminance(a), luminance(b));
  return (lighter + 0.05) / (darker + 0.05);
}

COLORREF readableOn(COLORREF ground) {
  return contrast(kWhite, ground) >= contrast(kInk, ground) ? kWhite : kInk;
}

COLORREF mix(COLORREF from, COLORREF to, double part) {
  const auto channel = [part](BYTE a, BYTE b) {
    return static_cast<BYTE>(std::lround(a + (b - a) * std::clamp(part, 0.0, 1.0)));
  };
  return RGB(channel(GetRValue(from), GetRValue(to)), channel(GetGValue(from), GetGValue(to)),
             channel(GetBValue(from), GetBValue(to)));
}

std::uint32_t premultiplied(COLORREF color, double opacity) {
  const auto channel = [opacity](int value) {
    return static_cast<std::uint32_t>(std::lround(value * opacity));
  };
  return channel(255) << 24 | channel(GetRValue(color)) << 16 | channel(GetGValue(color)) << 8 |
         channel(GetBValue(color));
}

COLORREF greyOf(COLORREF color) {
  const auto grey = static_cast<BYTE>(
      std::lround(0.299 * GetRValue(color) + 0.587 * GetGValue(color) + 0.114 * GetBValue(color)));
  return RGB(grey, grey, grey);
}

COLORREF fromControlColor(std::int32_t color) {
  constexpr std::int32_t kSystemIndex = 0xFF;
  if (color < 0) return GetSysColor(color & kSystemIndex);
  return static_cast<COLORREF>(color) & 0xFFFFFF;
}

}  // namespace tavr::win32
