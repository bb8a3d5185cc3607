// What the buttons have in common: the face that a role or a style gives them,
// and the picture and the caption on it.
#pragma once

#include <optional>
#include <string_view>

#include "ui/win32/canvas.h"
#include "ui/win32/caption.h"
#include "ui/win32/drawing.h"

namespace tavr::win32 {

/// The plain face of a role in a state.
struct ButtonFace {
  std::optional<COLORREF> ground;  ///< none: what lies behind shows
  std::optional<COLORREF> edge;
  double edge_width = 1;
  double radius = 4;
  bool bar = false;  ///< a bar in the accent colour along the start side
  COLORREF text = 0;
  bool bold = false;
  Side side = Side::kMiddle;
  double padding = 12;
  bool icon_alone = false;
};

ButtonFace faceOf(ButtonRole role, const DrawnState& state, const Palette& palette);
void drawFace(Canvas& canvas, const ButtonFace& face, const DrawnState& state,
              const Palette& palette);
/// The line that shows the focus, inside the edge.
void drawFocus(Canvas& canvas, const RECT& box, double radius, COLORREF color,
               const Palette& palette);

/// Where the picture stands beside the caption.
enum class PicturePlace : int { kStart, kEnd, kAbove, kBelow };

struct ButtonContent {
  std::string_view picture;  ///< a name of artwork.h, or a file
  PicturePlace place = PicturePlace::kStart;
  std::optional<COLORREF> mask;  ///< what of a file's picture is not drawn
  bool grey = false;
  bool picture_alone = false;
  int effect = 0;  ///< of the caption: 1 raised, 2 sunken, 3 with a shadow, else none
  CaptionLook caption;
  double padding = 12;
  int pushed = 0;  ///< pixels that a press moves it by
};

inline constexpr double kPictureSize = 18;
inline constexpr double kPictureGap = 9;

void drawContent(Canvas& canvas, const Control& button, const ButtonContent& content,
                 const DrawnState& state);

}  // namespace tavr::win32
