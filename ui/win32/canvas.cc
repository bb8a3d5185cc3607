#include "ui/win32/canvas.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace tavr::win32 {

namespace {

Spot leastOf(const RECT& box) {
  return {static_cast<double>(box.left), static_cast<double>(box.top)};
}

Spot mostOf(const RECT& box) {
  return {static_cast<double>(box.right), static_cast<double>(box.bottom)};
}

RECT around(const Outline& outline, double by) {
  const auto down = [](double value) { return static_cast<LONG>(std::floor(value)); };
  const auto up = [](double value) { return static_cast<LONG>(std::ceil(value)); };
  return {down(outline.least().x - by), down(outline.least().y - by), up(outline.most().x + by),
          up(outline.most().y + by)};
}

// A box with round corners: the squares around the corners, which need a look at
// every pixel, and the straight parts between them.
struct Parts {
  RECT corners[4];
  RECT across;  ///< all of the rows between the corners
  RECT upper;   ///< between the upper corners
  RECT lower;
};

Parts partsOf(const RECT& box, int wanted) {
  const LONG width = std::min<LONG>(wanted, (box.right - box.left + 1) / 2);
  const LONG height = std::min<LONG>(wanted, (box.bottom - box.top + 1) / 2);
  const LONG left = box.left + width;
  const LONG right = std::max(left, box.right - width);
  const LONG top = box.top + height;
  const LONG bottom = std::max(top, box.bottom - height);
  return {{{box.left, box.top, left, top},
           {right, box.top, box.right, top},
           {box.left, bottom, left, box.bottom},
           {right, bottom, box.right, box.bottom}},
          {box.left, top, box.right, bottom},
          {left, box.top, right, top},
          {left, bottom, right, box.bottom}};
}

// A picture with opacity that is laid over the device context.
class Layer {
 public:
  Layer(HDC dc, const RECT& box) : dc_(dc), box_(box), memory_(CreateCompatibleDC(dc)) {
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof(format.bmiHeader);
    format.bmiHeader.biWidth = width();
    format.bmiHeader.biHeight = -height();
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    void* pixels = nullptr;
    bitmap_ = CreateDIBSection(memory_, &format, DIB_RGB_COLORS, &pixels, nullptr, 0);
    pixels_ = static_cast<std::uint32_t*>(pixels);
    before_ = SelectObject(memory_, bitmap_);
  }
  ~Layer() {
    SelectObject(memory_, before_);
    DeleteObject(bitmap_);
    DeleteDC(memory_);
  }
  Layer(const Layer&) = delete;
  Layer& operator=(const Layer&) = delete;

  std::uint32_t* pixels() const { return pixels_; }
  void show() const {
    const BLENDFUNCTION over{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    GdiAlphaBlend(dc_, box_.left, box_.top, width(), height(), memory_, 0, 0, width(), height(),
                  over);
  }

 private:
  int width() const { return box_.right - box_.left; }
  int height() const { return box_.bottom - box_.top; }

  HDC dc_;
  RECT box_;
  HDC memory_;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ before_ = nullptr;
  std::uint32_t* pixels_ = nullptr;
};

}  // namespace

int Canvas::px(double length) const {
  return std::max(1, static_cast<int>(std::lround(length * scale_)));
}

void Canvas::blend(const RECT& box, const CoverageAt& coverage, const ColorAt& color) {
  RECT part;
  if (!IntersectRect(&part, &box, &area_)) return;
  const Layer layer(dc_, part);
  std::uint32_t* pixel = layer.pixels();
  if (pixel == nullptr) return;
  for (LONG y = part.top; y < part.bottom; ++y) {
    for (LONG x = part.left; x < part.right; ++x) {
      const Spot middle{x + 0.5, y + 0.5};
      const double share = coverage(middle);
      *pixel++ = share > 0 ? premultiplied(color(middle), share) : 0;
    }
  }
  layer.show();
}

void Canvas::fill(const RECT& box, COLORREF color) {
  RECT part;
  if (!IntersectRect(&part, &box, &area_)) return;
  SetDCBrushColor(dc_, color);
  FillRect(dc_, &part, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void Canvas::fillRound(const RECT& box, double radius, COLORREF color, double opacity) {
  const auto coverage = [&](Spot at) {
    return opacity * roundBoxAt(at, leastOf(box), mostOf(box), radius * scale_);
  };
  const auto paint = [color](Spot) { return color; };
  if (opacity < 1) return blend(box, coverage, paint);
  const Parts parts = partsOf(box, static_cast<int>(std::ceil(radius * scale_)));
  for (const RECT& corner : parts.corners) blend(corner, coverage, paint);
  fill(parts.across, color);
  fill(parts.upper, color);
  fill(parts.lower, color);
}

void Canvas::fillDown(const RECT& box, double radius, COLORREF upper, COLORREF lower) {
  const double height = std::max<LONG>(box.bottom - box.top, 1);
  blend(
      box, [&](Spot at) { return roundBoxAt(at, leastOf(box), mostOf(box), radius * scale_); },
      [&](Spot at) { return mix(upper, lower, (at.y - box.top) / height); });
}

void Canvas::strokeRound(const RECT& box, double radius, double width, COLORREF color,
                         double opacity) {
  // Whole pixels, so that straight sides are sharp.
  const int line = std::max(1, static_cast<int>(std::lround(width * scale_)));
  const Spot least = leastOf(box);
  const Spot most = mostOf(box);
  const double outer = radius * scale_;
  const auto coverage = [=](Spot at) {
    const double inner = roundBoxAt(at, {least.x + line, least.y + line},
                                    {most.x - line, most.y - line}, outer - line);
    return opacity * std::max(0.0, roundBoxAt(at, least, most, outer) - inner);
  };
  const Parts parts = partsOf(box, std::max(static_cast<int>(std::ceil(outer)), line));
  RECT upper = parts.upper;
  RECT lower = parts.lower;
  RECT left = parts.across;
  RECT right = parts.across;
  upper.bottom = std::min<LONG>(upper.bottom, upper.top + line);
  lower.top = std::max<LONG>(lower.top, lower.bottom - line);
  left.right = std::min<LONG>(left.right, left.left + line);
  right.left = std::max<LONG>(left.right, right.right - line);
  for (const RECT& part : {upper, lower, left, right}) {
    blend(part, coverage, [color](Spot) { return color; });
  }
  for (const RECT& corner : parts.corners) {
    blend(corner, coverage, [color](Spot) { return color; });
  }
}

void Canvas::bevel(const RECT& box, int width, COLORREF upper, COLORREF lower) {
  for (int i = 0; i < width; ++i) {
    const RECT edge = inset(box, i);
    fill({edge.left, edge.top, edge.right - 1, edge.top + 1}, upper);
    fill({edge.left, edge.top, edge.left + 1, edge.bottom - 1}, upper);
    fill({edge.left, edge.bottom - 1, edge.right, edge.bottom}, lower);
    fill({edge.right - 1, edge.top, edge.right, edge.bottom}, lower);
  }
}

void Canvas::fill(const Outline& outline, COLORREF color, double opacity) {
  if (outline.empty()) return;
  blend(
      around(outline, 1), [&](Spot at) { return opacity * outline.filledAt(at); },
      [color](Spot) { return color; });
}

void Canvas::stroke(const Outline& outline, double width, COLORREF color, double opacity) {
  if (outline.empty()) return;
  blend(
      around(outline, width + 1), [&](Spot at) { return opacity * outline.strokedAt(at, width); },
      [color](Spot) { return color; });
}

RECT inset(const RECT& box, int by) {
  return {box.left + by, box.top + by, box.right - by, box.bottom - by};
}

RECT mirrored(const RECT& box, const RECT& area, bool right_to_left) {
  if (!right_to_left) return box;
  return {area.left + area.right - box.right, box.top, area.left + area.right - box.left,
          box.bottom};
}

}  // namespace tavr::win32
