// Texts on a drawing: the font of a control at a scale, what a text takes, and
// the text itself.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "forms/control.h"
#include "ui/win32/drawing.h"

namespace tavr::win32 {

/// Stands selected in the device context as long as it lives.
class SelectedFont {
 public:
  SelectedFont(HDC dc, const ControlFont& font, double scale, bool bold = false,
               double larger = 1.0);
  ~SelectedFont();
  SelectedFont(const SelectedFont&) = delete;
  SelectedFont& operator=(const SelectedFont&) = delete;

 private:
  HDC dc_;
  HFONT font_;
  HGDIOBJ before_;
};

inline constexpr double kHeadingSize = 4.0 / 3;
inline constexpr double kFigureSize = 14.0 / 9;

enum class Side : std::uint8_t { kStart, kMiddle, kEnd };

/// How a control's caption stands in its box.
struct CaptionLook {
  COLORREF color = 0;
  Side side = Side::kStart;
  bool bold = false;
  double larger = 1.0;
  bool breaks_lines = false;
};

/// The control's caption, or what the state shows in its place.
std::string_view shownCaption(const Control& control, const DrawnState& state);

/// Draws within the box only; what does not fit ends in dots.
void drawCaption(HDC dc, const RECT& box, const Control& control, const CaptionLook& look,
                 const DrawnState& state);
SIZE textSize(HDC dc, std::string_view text, const ControlFont& font, double scale, bool bold,
              double larger = 1.0);

/// The colour of what cannot be used.
COLORREF disabledText(const Palette& palette, COLORREF ground);

}  // namespace tavr::win32
