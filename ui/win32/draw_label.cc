// Labels, panels and the title strip.
#include <algorithm>

#include "platform/win32/wide.h"
#include "ui/win32/artwork.h"
#include "ui/win32/canvas.h"
#include "ui/win32/caption.h"
#include "ui/win32/drawing.h"

namespace tavr::win32 {

namespace {

constexpr double kStripPadding = 14;
constexpr double kStripSign = 20;
constexpr double kStripGap = 8;
constexpr double kTitleSize = 11.0 / 9;
constexpr double kFrameRadius = 6;
constexpr double kFrameCaption = 12;

double largerBy(bool heading, bool large_figure) {
  if (large_figure) return kFigureSize;
  return heading ? kHeadingSize : 1;
}

}  // namespace

void drawLabel(HDC dc, const RECT& area, const Control& label, bool heading, bool large_figure,
               const DrawnState& state, const Palette& palette) {
  if (IsRectEmpty(&area)) return;
  CaptionLook look;
  look.color = state.enabled ? palette.text : disabledText(palette, palette.window);
  look.bold = heading || large_figure;
  look.larger = largerBy(heading, large_figure);
  const std::string_view caption = shownCaption(label, state);
  const SIZE line = textSize(dc, caption, label.font, state.scale, look.bold, look.larger);
  const bool fits = line.cx <= area.right - area.left;
  const bool room = area.bottom - area.top >= 2 * line.cy;
  look.breaks_lines = caption.find('\n') != std::string_view::npos || (room && !fits);
  drawCaption(dc, area, label, look, state);
  if (!state.focused) return;
  Canvas canvas(dc, area, state.scale);
  canvas.strokeRound(area, 3, 1, palette.high_contrast ? palette.text : palette.accent);
}

int labelHeight(HDC dc, const Control& label, int width, bool heading, bool large_figure,
                double scale) {
  const SelectedFont font(dc, label.font, scale, heading || large_figure,
                          largerBy(heading, large_figure));
  const std::wstring text = wide(label.caption);
  RECT box{0, 0, width, 0};
  DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &box,
            DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
  return box.bottom;
}

void drawFrame(HDC dc, const RECT& area, const Control& frame, const DrawnState& state,
               const Palette& palette) {
  const std::string_view caption = shownCaption(frame, state);
  if (IsRectEmpty(&area) || caption.empty()) return;
  const ClippedTo within(dc, area);
  Canvas canvas(dc, area, state.scale);
  const SIZE text = textSize(dc, caption, frame.font, state.scale, true);
  RECT line = area;
  line.top += text.cy / 2;
  canvas.strokeRound(line, kFrameRadius, 1, palette.border);
  RECT place{area.left + canvas.px(kFrameCaption), area.top,
             area.left + canvas.px(kFrameCaption) + text.cx + 2 * canvas.px(4), area.top + text.cy};
  place.right = std::min(place.right, area.right);
  place = mirrored(place, area, state.right_to_left);
  canvas.fill(place, palette.window);
  const COLORREF color = state.enabled ? palette.text : disabledText(palette, palette.window);
  drawCaption(dc, place, frame, {color, Side::kMiddle, true}, state);
}

void drawTitleStrip(HDC dc, const RECT& area, std::string_view title, const DrawnState& state,
                    const Palette& palette, const ControlFont& font) {
  if (IsRectEmpty(&area)) return;
  const ClippedTo within(dc, area);
  Canvas canvas(dc, area, state.scale);
  canvas.fill(area, palette.strip);
  const int size = canvas.px(kStripSign);
  RECT sign{area.left + canvas.px(kStripPadding), area.top + (area.bottom - area.top - size) / 2, 0,
            0};
  sign.right = sign.left + size;
  sign.bottom = sign.top + size;
  RECT text{sign.right + canvas.px(kStripGap), area.top, area.right - canvas.px(kStripPadding),
            area.bottom};
  sign = mirrored(sign, area, state.right_to_left);
  text = mirrored(text, area, state.right_to_left);
  drawIcon(dc, sign, "program", palette.strip_text, state.scale);
  Control caption;
  caption.caption = title;
  caption.font.name = font.name;
  caption.font.size = font.size;
  caption.font.charset = font.charset;
  drawCaption(dc, text, caption, {palette.strip_text, Side::kStart, true, kTitleSize}, state);
}

}  // namespace tavr::win32
