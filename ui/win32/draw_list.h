// The cells of a list's rows. They go to the device context of the list itself,
// which Windows mirrors for a language that reads from right to left: texts it
// turns back by itself, signs are drawn so that they are not seen from behind.
#pragma once

#include <windows.h>

#include <string_view>

#include "ui/win32/drawing.h"

namespace tavr::win32 {

inline constexpr int kListPadding = 12;  // px at 96 dpi before and behind a text
inline constexpr int kListSign = 16;     // px at 96 dpi of an icon or a check box

struct DrawnCell {
  std::string_view text = {};
  std::string_view icon = {};  ///< of drawIcon; before the text
  COLORREF icon_color = 0;
  COLORREF color = 0;
  bool bold = false;
  bool at_far_edge = false;  ///< a number: it ends at the column's end
  bool has_box = false;      ///< with a check box before everything
  bool checked = false;
};

/// Its ground is there already. `cut`: a text that is too long ends in dots.
/// Answers the width of the signs and the whole text in pixels.
int drawListCell(HDC dc, const RECT& area, const DrawnCell& cell, HFONT font, bool cut,
                 double scale, const Palette& palette);

}  // namespace tavr::win32
