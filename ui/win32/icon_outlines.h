// The outlines of the program's icons. icon_outlines.cc is made from the
// drawings by scripts/icon-outlines.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace tavr::win32 {

// Beside a colour as 0xRRGGBB.
inline constexpr std::uint32_t kNoPaint = 0xFFFFFFFF;
inline constexpr std::uint32_t kCurrentPaint = 0xFFFFFFFE;  ///< what the caller draws in

struct IconShape {
  /// Moves, lines, curves and ends with absolute places: "M1 2L3 4C5 6 7 8 9 10Z".
  std::string_view path;
  std::uint32_t fill = kNoPaint;
  std::uint32_t stroke = kNoPaint;
  double width = 1;  ///< of the stroke
  double opacity = 1;
};

struct IconOutline {
  std::string_view name;
  int size = 24;  ///< of the square that it is drawn in
  std::span<const IconShape> shapes;
};

/// In the order of their names.
std::span<const IconOutline> iconOutlines();

}  // namespace tavr::win32
