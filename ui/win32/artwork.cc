#include "ui/win32/artwork.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

#include "ui/win32/canvas.h"
#include "ui/win32/icon_outlines.h"

namespace tavr::win32 {

namespace {

// The letters that the task table and the plug-in list give their rows.
struct RowIcon {
  std::string_view letters;
  std::string_view name;
};

constexpr RowIcon kRowIcons[] = {
    {"a", "internet"}, {"b", "windows"}, {"c", "plug-in"},   {"o", "done"},     {"ffo", "firefox"},
    {"chr", "chrome"}, {"opr", "opera"}, {"edg", "edge"},    {"ydx", "yandex"}, {"viv", "vivaldi"},
    {"brv", "brave"},  {"tor", "torch"}, {"max", "maxthon"},
};

const IconOutline* outlineOf(std::string_view name) {
  const auto* const row =
      std::ranges::find_if(kRowIcons, [=](const RowIcon& r) { return r.letters == name; });
  if (row != std::end(kRowIcons)) name = row->name;
  const auto icons = iconOutlines();
  const auto found =
      std::ranges::find_if(icons, [=](const IconOutline& icon) { return icon.name == name; });
  return found == icons.end() ? nullptr : &*found;
}

// Reads an outline into its place; it is made by a script, so nothing in it is
// unexpected.
class OutlineReader {
 public:
  OutlineReader(std::string_view text, Spot origin, double enlarged)
      : at_(text.data()), end_(at_ + text.size()), origin_(origin), enlarged_(enlarged) {}

  Outline read() {
    Outline outline;
    while (at_ != end_) step(outline, *at_++);
    return outline;
  }

 private:
  void step(Outline& outline, char command) {
    switch (command) {
      case 'M':
        return outline.moveTo(spot());
      case 'L':
        return outline.lineTo(spot());
      case 'C': {
        const Spot first = spot();
        const Spot second = spot();
        return outline.curveTo(first, second, spot());
      }
      default:
        return outline.close();
    }
  }

  Spot spot() {
    const double x = number();
    return {origin_.x + enlarged_ * x, origin_.y + enlarged_ * number()};
  }

  double number() {
    while (at_ != end_ && *at_ == ' ') ++at_;
    double value = 0;
    at_ = std::from_chars(at_, end_, value).ptr;
    return value;
  }

  const char* at_;
  const char* end_;
  Spot origin_;
  double enlarged_;
};

struct IconPaint {
  COLORREF color = 0;
  bool grey = false;
};

COLORREF colorOf(std::uint32_t paint, const IconPaint& how) {
  if (paint == kCurrentPaint) return how.color;
  const COLORREF own = RGB(paint >> 16 & 0xFF, paint >> 8 & 0xFF, paint & 0xFF);
  return how.grey ? mix(greyOf(own), kWhite, 0.35) : own;
}

void drawOutline(HDC dc, const RECT& area, std::string_view name, const IconPaint& how,
                 double scale) {
  const IconOutline* const icon = outlineOf(name);
  if (icon == nullptr || IsRectEmpty(&area)) return;
  const LONG most = std::lround(icon->size * scale);
  const LONG size = std::min({area.right - area.left, area.bottom - area.top, most});
  // A whole pixel, or straight lines would be blurred.
  const LONG left = area.left + (area.right - area.left - size) / 2;
  const LONG top = area.top + (area.bottom - area.top - size) / 2;
  const Spot origin{static_cast<double>(left), static_cast<double>(top)};
  const double enlarged = static_cast<double>(size) / icon->size;
  Canvas canvas(dc, area, scale);
  for (const IconShape& shape : icon->shapes) {
    const Outline outline = OutlineReader(shape.path, origin, enlarged).read();
    if (shape.fill != kNoPaint) canvas.fill(outline, colorOf(shape.fill, how), shape.opacity);
    if (shape.stroke == kNoPaint) continue;
    canvas.stroke(outline, shape.width * enlarged, colorOf(shape.stroke, how), shape.opacity);
  }
}

}  // namespace

void drawIcon(HDC dc, const RECT& area, std::string_view name, COLORREF color, double scale) {
  drawOutline(dc, area, name, {color, false}, scale);
}

void drawGreyIcon(HDC dc, const RECT& area, std::string_view name, COLORREF color, double scale) {
  drawOutline(dc, area, name, {greyOf(color), true}, scale);
}

bool hasIcon(std::string_view name) { return outlineOf(name) != nullptr; }

HICON programIcon(int size) {
  constexpr WORD kResource = 1;
  return static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(kResource),
                                       IMAGE_ICON, size, size, LR_DEFAULTCOLOR));
}

}  // namespace tavr::win32
