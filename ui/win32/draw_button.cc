// Plain buttons, by their role.
#include <algorithm>
#include <cmath>

#include "ui/win32/button_face.h"

namespace tavr::win32 {

namespace {

constexpr double kLeastHeight = 24;
constexpr double kAboveAndBelow = 5;

}  // namespace

void drawButton(HDC dc, const RECT& area, const Control& button, ButtonRole role,
                const DrawnState& state, const Palette& palette) {
  if (IsRectEmpty(&area)) return;
  Canvas canvas(dc, area, state.scale);
  const ButtonFace face = faceOf(role, state, palette);
  drawFace(canvas, face, state, palette);
  ButtonContent content;
  content.picture = state.icon;
  content.picture_alone = face.icon_alone;
  content.grey = !state.enabled && !palette.high_contrast;
  content.caption = {face.text, face.side, face.bold};
  content.padding = face.padding;
  drawContent(canvas, button, content, state);
  if (state.focused) drawFocus(canvas, area, face.radius, face.text, palette);
}

SIZE buttonSize(HDC dc, const Control& button, ButtonRole role, const DrawnState& state) {
  const ButtonFace face = faceOf(role, state, Palette{});
  // A navigation button is bold while its panel is open.
  const bool bold = face.bold || role == ButtonRole::kNavigation;
  const auto px = [&state](double length) {
    return static_cast<int>(std::lround(length * state.scale));
  };
  const std::string_view caption = shownCaption(button, state);
  SIZE size{0, 0};
  if (!face.icon_alone && !caption.empty()) {
    size = textSize(dc, caption, button.font, state.scale, bold);
  }
  if (!state.icon.empty()) {
    size.cx += px(kPictureSize) + (size.cx > 0 ? px(kPictureGap) : 0);
    size.cy = std::max<LONG>(size.cy, px(kPictureSize));
  }
  size.cx += 2 * px(face.padding);
  size.cy = std::max<LONG>(size.cy + 2 * px(kAboveAndBelow), px(kLeastHeight));
  return size;
}

}  // namespace tavr::win32
