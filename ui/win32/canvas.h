// Smooth shapes on a device context, kept within the rectangle of the control
// that is drawn. Radii and widths of lines are lengths at 96 dpi.
#pragma once

#include <windows.h>

#include <functional>

#include "ui/win32/color.h"
#include "ui/win32/outline.h"

namespace tavr::win32 {

class Canvas {
 public:
  /// Draws nothing outside `area`.
  Canvas(HDC dc, const RECT& area, double scale) : dc_(dc), area_(area), scale_(scale) {}

  HDC dc() const { return dc_; }
  const RECT& area() const { return area_; }
  double scale() const { return scale_; }
  /// A length at 96 dpi in pixels here, at least one.
  int px(double length) const;

  void fill(const RECT& box, COLORREF color);
  void fillRound(const RECT& box, double radius, COLORREF color, double opacity = 1.0);
  void fillDown(const RECT& box, double radius, COLORREF upper, COLORREF lower);
  /// A line inside the box's edge.
  void strokeRound(const RECT& box, double radius, double width, COLORREF color,
                   double opacity = 1.0);
  /// A line inside the edge: the upper and left sides, then the others.
  void bevel(const RECT& box, int width, COLORREF upper, COLORREF lower);

  // Outlines are in pixels, and so is the width of their line.
  void fill(const Outline& outline, COLORREF color, double opacity = 1.0);
  void stroke(const Outline& outline, double width, COLORREF color, double opacity = 1.0);

 private:
  using CoverageAt = std::function<double(Spot)>;
  using ColorAt = std::function<COLORREF(Spot)>;
  void blend(const RECT& box, const CoverageAt& coverage, const ColorAt& color);

  HDC dc_;
  RECT area_;
  double scale_;
};

/// Keeps all drawing within an area as long as it lives.
class ClippedTo {
 public:
  ClippedTo(HDC dc, const RECT& area) : dc_(dc), saved_(SaveDC(dc)) {
    IntersectClipRect(dc, area.left, area.top, area.right, area.bottom);
  }
  ~ClippedTo() { RestoreDC(dc_, saved_); }
  ClippedTo(const ClippedTo&) = delete;
  ClippedTo& operator=(const ClippedTo&) = delete;

 private:
  HDC dc_;
  int saved_;
};

RECT inset(const RECT& box, int by);
/// The box on the other side of `area`, when it reads from right to left.
RECT mirrored(const RECT& box, const RECT& area, bool right_to_left);

}  // namespace tavr::win32
