// Check boxes and options: a sign, and the caption beside it.
#include <algorithm>
#include <cmath>

#include "ui/win32/canvas.h"
#include "ui/win32/caption.h"
#include "ui/win32/drawing.h"

namespace tavr::win32 {

namespace {

constexpr double kSign = 17;
constexpr double kGap = 9;
constexpr double kCorner = 4;

struct SignColors {
  COLORREF ground = 0;
  COLORREF edge = 0;
  COLORREF mark = 0;
};

SignColors signColors(bool on, const DrawnState& state, const Palette& palette) {
  SignColors colors;
  colors.edge = palette.high_contrast ? palette.text : mix(palette.border, palette.text, 0.45);
  colors.ground = palette.panel;
  colors.mark = palette.accent_text;
  if (!state.enabled) {
    colors.edge = disabledText(palette, palette.panel);
    colors.ground = on ? colors.edge : palette.raised;
    colors.mark = palette.panel;
    return colors;
  }
  if (state.hovered) colors.edge = palette.accent;
  if (on) colors.ground = colors.edge = palette.accent;
  if (palette.high_contrast) {
    if (on) colors.edge = palette.text;
    if (state.pressed) {
      colors.ground = palette.text;
      colors.mark = palette.window;
    }
    return colors;
  }
  if (state.pressed) {
    colors.ground = mix(colors.ground, on ? kInk : palette.accent, on ? 0.25 : 0.2);
  } else if (state.hovered) {
    colors.ground = mix(colors.ground, on ? kWhite : palette.accent, on ? 0.14 : 0.07);
  }
  return colors;
}

// In the middle of the height, at the start side; never larger than the area.
RECT signBox(const Canvas& canvas, const DrawnState& state, bool alone) {
  const RECT& area = canvas.area();
  const int size = std::min({canvas.px(kSign), static_cast<int>(area.right - area.left),
                             static_cast<int>(area.bottom - area.top)});
  // One without a caption stands in the middle of its box.
  const int left =
      alone ? static_cast<int>(area.left + (area.right - area.left - size) / 2) : area.left;
  const int top = area.top + (area.bottom - area.top - size) / 2;
  return mirrored({left, top, left + size, top + size}, area, state.right_to_left);
}

Spot at(const RECT& box, double x, double y) {
  return {box.left + x * (box.right - box.left), box.top + y * (box.bottom - box.top)};
}

void drawMark(Canvas& canvas, const RECT& box, int value, COLORREF color) {
  Outline mark;
  if (value == 1) {
    mark.moveTo(at(box, 0.25, 0.52));
    mark.lineTo(at(box, 0.43, 0.70));
    mark.lineTo(at(box, 0.76, 0.32));
  } else if (value != 0) {
    mark.moveTo(at(box, 0.28, 0.5));
    mark.lineTo(at(box, 0.72, 0.5));
  }
  canvas.stroke(mark, 1.8 * canvas.scale(), color);
}

void drawCheckSign(Canvas& canvas, const RECT& box, int value, const SignColors& colors) {
  canvas.fillRound(box, kCorner, colors.ground);
  canvas.strokeRound(box, kCorner, 1, colors.edge);
  drawMark(canvas, box, value, colors.mark);
}

void drawOptionSign(Canvas& canvas, const RECT& box, bool value, const SignColors& colors) {
  canvas.fillRound(box, kSign, colors.ground);
  canvas.strokeRound(box, kSign, 1, colors.edge);
  const int size = static_cast<int>(box.right - box.left);
  // The same parity as the ring, or the dot would stand beside the middle.
  const int dot = size * 2 / 5 + (size * 2 / 5 + size) % 2;
  if (value) canvas.fillRound(inset(box, (size - dot) / 2), kSign, colors.mark);
}

RECT captionBox(const Canvas& canvas, const RECT& sign, const DrawnState& state) {
  const RECT& area = canvas.area();
  const int start = state.right_to_left ? area.right - sign.left : sign.right - area.left;
  RECT box = area;
  box.left += start + canvas.px(kGap);
  return mirrored(box, area, state.right_to_left);
}

// Around the caption; around the sign where there is none.
void drawSignFocus(Canvas& canvas, const RECT& caption, const Control& control,
                   const DrawnState& state, const Palette& palette) {
  RECT box = canvas.area();
  const std::string_view text = shownCaption(control, state);
  if (!text.empty()) {
    const SIZE size = textSize(canvas.dc(), text, control.font, state.scale, false);
    RECT wanted = state.right_to_left ? mirrored(caption, box, true) : caption;
    const int margin = canvas.px(kGap / 2);
    wanted.left -= margin;
    wanted.right = std::min(wanted.right, wanted.left + size.cx + 2 * margin);
    box = mirrored(wanted, box, state.right_to_left);
  }
  canvas.strokeRound(box, kCorner, 1.5, palette.high_contrast ? palette.text : palette.accent, 0.9);
}

void drawSignCaption(Canvas& canvas, const RECT& sign, const Control& control,
                     const DrawnState& state, const Palette& palette) {
  const ClippedTo within(canvas.dc(), canvas.area());
  const RECT box = captionBox(canvas, sign, state);
  const COLORREF color = state.enabled ? palette.text : disabledText(palette, palette.window);
  drawCaption(canvas.dc(), box, control, {color, Side::kStart}, state);
  if (state.focused) drawSignFocus(canvas, box, control, state, palette);
}

}  // namespace

void drawCheckBox(HDC dc, const RECT& area, const Control& box, int value, const DrawnState& state,
                  const Palette& palette) {
  if (IsRectEmpty(&area)) return;
  Canvas canvas(dc, area, state.scale);
  const RECT sign = signBox(canvas, state, shownCaption(box, state).empty());
  drawCheckSign(canvas, sign, value, signColors(value != 0, state, palette));
  drawSignCaption(canvas, sign, box, state, palette);
}

void drawOption(HDC dc, const RECT& area, const Control& option, bool value,
                const DrawnState& state, const Palette& palette) {
  if (IsRectEmpty(&area)) return;
  Canvas canvas(dc, area, state.scale);
  const RECT sign = signBox(canvas, state, shownCaption(option, state).empty());
  drawOptionSign(canvas, sign, value, signColors(value, state, palette));
  drawSignCaption(canvas, sign, option, state, palette);
}

SIZE boxSize(HDC dc, const Control& box, const DrawnState& state) {
  const auto px = [&state](double length) {
    return static_cast<int>(std::lround(length * state.scale));
  };
  const std::string_view caption = shownCaption(box, state);
  if (caption.empty()) return {px(kSign), px(kSign)};
  const SIZE text = textSize(dc, caption, box.font, state.scale, false);
  return {px(kSign) + px(kGap) + text.cx, std::max<LONG>(px(kSign), text.cy)};
}

}  // namespace tavr::win32
