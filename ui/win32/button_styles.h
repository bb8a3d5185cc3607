// The looks that a chameleonButton can take by its ButtonType.
#pragma once

#include "ui/win32/canvas.h"

namespace tavr::win32 {

/// The colours and the state that a style draws in.
struct StyleInk {
  COLORREF ground = 0;
  COLORREF text = 0;
  COLORREF edge = 0;
  COLORREF light = 0;
  COLORREF dark = 0;
  COLORREF accent = 0;
  bool hovered = false;
  bool pressed = false;  ///< or held down by its value
  bool flat = false;     ///< high contrast: no colour that is mixed from others
};

/// What of a style matters to the caption and the focus.
struct StyleTraits {
  double radius = 0;
  bool pushes = false;  ///< the content moves with a press
  bool filled = false;  ///< its ground is the accent colour
  double padding = 10;
  double lip = 0;  ///< of the height below the body, above it while pressed
};

/// Whether the type has a style of its own.
bool hasStyle(int button_type);
StyleTraits traitsOf(int button_type);
void drawStyle(Canvas& canvas, int button_type, const StyleInk& ink);

}  // namespace tavr::win32
