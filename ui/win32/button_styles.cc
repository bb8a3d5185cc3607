#include "ui/win32/button_styles.h"

#include <algorithm>
#include <iterator>

namespace tavr::win32 {

namespace {

constexpr double kPill = 100;
constexpr double kCardLip = 3;

// Off white, or the light sides of an edge would not be seen.
COLORREF bevelGround(const StyleInk& ink) {
  return ink.flat ? ink.ground : mix(ink.ground, ink.edge, 0.25);
}

void thickBevel(Canvas& canvas, const StyleInk& ink) {
  const RECT& area = canvas.area();
  canvas.fill(area, bevelGround(ink));
  canvas.bevel(area, 1, ink.edge, ink.edge);
  if (ink.flat) return canvas.bevel(inset(area, 1 + canvas.px(2)), 1, ink.edge, ink.edge);
  const RECT inner = inset(area, 1);
  const COLORREF upper = ink.pressed ? ink.dark : ink.light;
  const COLORREF lower = ink.pressed ? ink.light : ink.dark;
  canvas.bevel(inner, canvas.px(2), upper, lower);
}

void thinBevel(Canvas& canvas, const StyleInk& ink) {
  const RECT& area = canvas.area();
  canvas.fill(area, bevelGround(ink));
  canvas.bevel(area, canvas.px(1), ink.pressed ? ink.dark : ink.light,
               ink.pressed ? ink.light : ink.dark);
}

void gradient(Canvas& canvas, const StyleInk& ink) {
  if (ink.flat) {
    canvas.fillRound(canvas.area(), 4, ink.ground);
    return canvas.strokeRound(canvas.area(), 4, 1, ink.edge);
  }
  const COLORREF lower = mix(ink.ground, ink.dark, 0.45);
  canvas.fillDown(canvas.area(), 4, ink.pressed ? lower : ink.light,
                  ink.pressed ? ink.ground : lower);
  canvas.strokeRound(canvas.area(), 4, 1, ink.edge);
}

void gloss(Canvas& canvas, const StyleInk& ink) {
  const RECT& area = canvas.area();
  if (ink.flat) {
    canvas.fillRound(area, 7, ink.ground);
    return canvas.strokeRound(area, 7, 2, ink.edge);
  }
  const COLORREF ground = mix(ink.ground, ink.accent, ink.pressed ? 0.3 : 0.16);
  canvas.fillRound(area, 7, ground);
  RECT upper = inset(area, canvas.px(2));
  upper.bottom = (area.top + area.bottom) / 2;
  canvas.fillRound(upper, 5, kWhite, ink.pressed ? 0.2 : 0.6);
  canvas.strokeRound(area, 7, 1, mix(ink.edge, ink.accent, 0.5));
}

void outline(Canvas& canvas, const StyleInk& ink) {
  if (ink.hovered || ink.pressed) canvas.fillRound(canvas.area(), 6, ink.ground);
  canvas.strokeRound(canvas.area(), 6, ink.pressed ? 2 : 1, ink.edge);
  canvas.strokeRound(canvas.area(), 6, ink.pressed ? 2 : 1, ink.accent, ink.flat ? 1 : 0.85);
}

void pill(Canvas& canvas, const StyleInk& ink) {
  canvas.fillRound(canvas.area(), kPill, ink.ground);
  canvas.strokeRound(canvas.area(), kPill, 1, ink.edge, ink.flat ? 1 : 0.6);
}

void bare(Canvas& canvas, const StyleInk& ink) {
  if (!ink.hovered && !ink.pressed) return;
  canvas.fillRound(canvas.area(), 4, ink.ground);
  if (ink.pressed) canvas.strokeRound(canvas.area(), 4, 1, ink.edge);
}

void ruled(Canvas& canvas, const StyleInk& ink) {
  const RECT& area = canvas.area();
  if (ink.hovered || ink.pressed) canvas.fill(area, ink.ground);
  RECT rule = area;
  rule.top = rule.bottom - canvas.px(ink.pressed ? 3 : 2);
  const bool strong = ink.hovered || ink.pressed || ink.flat;
  canvas.fill(rule, strong ? ink.accent : mix(ink.edge, ink.accent, 0.5));
}

void doubleFrame(Canvas& canvas, const StyleInk& ink) {
  const RECT& area = canvas.area();
  canvas.fill(area, ink.ground);
  canvas.bevel(area, canvas.px(1), ink.edge, ink.edge);
  const RECT inner = inset(area, canvas.px(ink.pressed ? 2 : 3));
  canvas.bevel(inner, canvas.px(ink.pressed ? 2 : 1), ink.accent, ink.accent);
}

void card(Canvas& canvas, const StyleInk& ink) {
  RECT body = canvas.area();
  const int lip = canvas.px(kCardLip);
  RECT under = body;
  under.top += lip;
  if (!ink.pressed) canvas.fillRound(under, 6, ink.dark);
  body.bottom -= lip;
  if (ink.pressed) OffsetRect(&body, 0, lip);
  canvas.fillRound(body, 6, ink.ground);
  canvas.strokeRound(body, 6, 1, ink.edge);
}

void sideBar(Canvas& canvas, const StyleInk& ink) {
  const RECT& area = canvas.area();
  canvas.fill(area, ink.pressed || ink.flat ? ink.ground : mix(ink.ground, ink.accent, 0.08));
  RECT bar = area;
  bar.right = bar.left + canvas.px(ink.pressed ? 6 : 4);
  canvas.fill(bar, ink.accent);
}

struct Style {
  int button_type;
  void (*draw)(Canvas&, const StyleInk&);
  StyleTraits traits;
};

constexpr Style kStyles[] = {
    {1, thickBevel, {0, true, false, 10}}, {2, thinBevel, {0, true, false, 10}},
    {3, gradient, {4, true, false, 10}},   {4, gloss, {7, false, false, 10}},
    {5, outline, {6, false, false, 10}},   {6, pill, {kPill, false, true, 14}},
    {7, bare, {4, false, false, 10}},      {8, bare, {4, false, false, 10}},
    {9, ruled, {0, false, false, 10}},     {11, doubleFrame, {0, false, false, 12}},
    {12, bare, {4, false, false, 10}},     {13, card, {6, false, false, 10, kCardLip}},
    {14, sideBar, {0, false, false, 14}},
};

const Style* styleOf(int button_type) {
  const auto* const found =
      std::ranges::find_if(kStyles, [=](const Style& s) { return s.button_type == button_type; });
  return found == std::end(kStyles) ? nullptr : found;
}

}  // namespace

bool hasStyle(int button_type) { return styleOf(button_type) != nullptr; }

StyleTraits traitsOf(int button_type) {
  const Style* const style = styleOf(button_type);
  return style ? style->traits : StyleTraits{};
}

void drawStyle(Canvas& canvas, int button_type, const StyleInk& ink) {
  if (const Style* const style = styleOf(button_type)) style->draw(canvas, ink);
}

}  // namespace tavr::win32
