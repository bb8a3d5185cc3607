// The progress bar in its five looks.
#include <algorithm>
#include <cmath>

#include "ui/win32/canvas.h"
#include "ui/win32/caption.h"
#include "ui/win32/drawing.h"

namespace tavr::win32 {

namespace {

struct Bar {
  Canvas& canvas;
  RECT groove{};
  RECT done{};  ///< the part of the groove that is reached
  double part = 0;
  const DrawnState& state;
  const Palette& palette;
};

constexpr double kRound = 100;

// Between Min and Max; a value above is the whole bar.
double partOf(const ProgressBar& bar) {
  if (bar.max() <= bar.min()) return 0;
  const double span = static_cast<double>(bar.max()) - bar.min();
  return std::clamp((static_cast<double>(bar.value()) - bar.min()) / span, 0.0, 1.0);
}

COLORREF doneColor(const Bar& bar) {
  if (bar.state.enabled) return bar.palette.accent;
  return bar.palette.high_contrast ? disabledText(bar.palette, bar.palette.panel)
                                   : mix(bar.palette.faint_text, bar.palette.panel, 0.5);
}

void drawGroove(const Bar& bar, double radius) {
  const bool plain = bar.palette.high_contrast;
  bar.canvas.fillRound(
      bar.groove, radius,
      plain ? bar.palette.panel : mix(bar.palette.raised, bar.palette.border, 0.5));
  if (plain) bar.canvas.strokeRound(bar.groove, radius, 1, bar.palette.text);
}

void drawSmooth(const Bar& bar) {
  drawGroove(bar, kRound);
  if (IsRectEmpty(&bar.done)) return;
  RECT done = bar.done;
  const LONG height = done.bottom - done.top;
  // Too short for round ends of its own, it fills a part of the groove's end.
  if (done.right - done.left < height) done = bar.groove;
  Canvas part(bar.canvas.dc(), bar.done, bar.canvas.scale());
  part.fillRound(done, kRound, doneColor(bar));
}

void drawBlocks(const Bar& bar) {
  drawGroove(bar, 3);
  const int gap = bar.canvas.px(2);
  const RECT inner = inset(bar.groove, gap);
  const int width = bar.canvas.px(7);
  const int room = static_cast<int>(inner.right - inner.left);
  const int all = std::max(1, (room + gap) / (width + gap));
  const int shown = static_cast<int>(std::ceil(all * bar.part));
  // What is left over is shared out, so that the last block ends with the bar.
  const auto begin = [&](int i) { return static_cast<int>(inner.left) + i * (room + gap) / all; };
  for (int i = 0; i < shown; ++i) {
    const RECT block{begin(i), inner.top, begin(i + 1) - gap, inner.bottom};
    bar.canvas.fillRound(mirrored(block, inner, bar.state.right_to_left), 1, doneColor(bar));
  }
}

void drawGloss(const Bar& bar) {
  drawGroove(bar, 3);
  bar.canvas.strokeRound(bar.groove, 3, 1, bar.palette.border);
  if (IsRectEmpty(&bar.done)) return;
  const COLORREF color = doneColor(bar);
  if (bar.palette.high_contrast) {  // the system's colours as they are
    bar.canvas.fillRound(bar.done, 3, color);
    return bar.canvas.strokeRound(bar.done, 3, 1, bar.palette.text);
  }
  bar.canvas.fillDown(bar.done, 3, mix(color, kWhite, 0.4), mix(color, kInk, 0.15));
  bar.canvas.strokeRound(bar.done, 3, 1, mix(color, kInk, 0.25));
}

void drawLine(const Bar& bar) {
  RECT line = bar.groove;
  const int thickness = std::min(bar.canvas.px(3), static_cast<int>(line.bottom - line.top));
  line.top += (line.bottom - line.top - thickness) / 2;
  line.bottom = line.top + thickness;
  const bool plain = bar.palette.high_contrast;
  bar.canvas.fill(line, plain ? bar.palette.panel : mix(bar.palette.border, bar.palette.text, 0.1));
  if (plain) bar.canvas.strokeRound(line, 0, 1, bar.palette.text);
  RECT done = line;
  done.left = bar.done.left;
  done.right = bar.done.right;
  bar.canvas.fill(done, doneColor(bar));
}

void drawStripes(const Bar& bar) {
  drawGroove(bar, 3);
  if (IsRectEmpty(&bar.done)) return;
  const COLORREF color = doneColor(bar);
  Canvas part(bar.canvas.dc(), bar.done, bar.canvas.scale());
  part.fillRound(bar.done, 3, color);
  if (bar.palette.high_contrast) return;
  const double step = part.px(14);
  const double height = bar.done.bottom - bar.done.top;
  const double top = bar.done.top;
  for (double x = bar.done.left - height; x < bar.done.right; x += step) {
    Outline stripe;
    stripe.moveTo({x + height, top});
    stripe.lineTo({x + height + step / 2, top});
    stripe.lineTo({x + step / 2, top + height});
    stripe.lineTo({x, top + height});
    stripe.close();
    part.fill(stripe, kWhite, 0.28);
  }
}

}  // namespace

void drawProgressBar(HDC dc, const RECT& area, const ProgressBar& bar, const DrawnState& state,
                     const Palette& palette) {
  if (IsRectEmpty(&area)) return;
  Canvas canvas(dc, area, state.scale);
  Bar drawn{canvas, area, area, partOf(bar), state, palette};
  drawn.done.right =
      area.left + static_cast<int>(std::lround((area.right - area.left) * drawn.part));
  drawn.done = mirrored(drawn.done, area, state.right_to_left);
  // Style 0 is smooth and knows three looks, any other style two.
  switch (bar.progressLook()) {
    case 1:
      return bar.style() == 0 ? drawGloss(drawn) : drawStripes(drawn);
    case 2:
      return bar.style() == 0 ? drawLine(drawn) : drawStripes(drawn);
    default:
      return bar.style() == 0 ? drawSmooth(drawn) : drawBlocks(drawn);
  }
}

}  // namespace tavr::win32
