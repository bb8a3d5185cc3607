// What a form's window draws itself: its ground, its areas and its strip.
#include "ui/win32/control_places.h"
#include "ui/win32/form_window.h"

namespace tavr::win32 {

namespace {

constexpr int kHairline = 1;

}  // namespace

const Control* FormWindow::titleLabel() const {
  const FormLook& look = lookOf(form_);
  return look.title_label.empty() ? nullptr : form_.find(look.title_label);
}

COLORREF FormWindow::backgroundOf(const Control& control) const {
  Box box = control.box;
  for (const Control* holder = holderOf(form_, control); holder;
       holder = holderOf(form_, *holder)) {
    if (holder->design.name == "pictrlang") return palette_.panel;
    box.left += holder->box.left;
    box.top += holder->box.top;
  }
  switch (areaAt(form_, box.left, box.top)) {
    case Area::kStrip:
      return palette_.strip;
    case Area::kSide:
      return palette_.panel;
    case Area::kCentre:
      break;
  }
  return palette_.window;
}

void FormWindow::fill(HDC dc, const RECT& area, COLORREF color) const {
  SetDCBrushColor(dc, color);
  FillRect(dc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

// In the units of the form, mirrored with it.
void FormWindow::fillArea(HDC dc, int left, int top, int right, int bottom, COLORREF color) const {
  if (right_to_left_) {
    const int mirrored = form_.width - right;
    right = form_.width - left;
    left = mirrored;
  }
  fill(dc, {px(left), px(top), px(right), px(bottom)}, color);
}

void FormWindow::drawSeparator(HDC dc, const RECT& area) const {
  const int middle = (area.left + area.right) / 2;
  fill(dc, {middle, area.top, middle + kHairline, area.bottom}, palette_.border);
}

void FormWindow::drawToolbarEdge(HDC dc, const RECT& area) const {
  fill(dc, {area.left, area.bottom - kHairline, area.right, area.bottom}, palette_.border);
}

void FormWindow::drawPanel(HDC dc, const RECT& area) const {
  fill(dc, area, palette_.panel);
  SetDCBrushColor(dc, palette_.border);
  FrameRect(dc, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void FormWindow::paint(HDC dc) const {
  const FormLook& look = lookOf(form_);
  const int width = form_.width;
  const int height = form_.height + look.strip_above;
  const int strip = look.strip_height;
  const int body = strip + look.head_height;
  const int foot = look.foot_top > 0 ? look.foot_top : height;
  fillArea(dc, 0, body, width, foot, palette_.window);
  if (look.head_height > 0) fillArea(dc, 0, strip, width, body, palette_.panel);
  if (look.side_width > 0) {
    fillArea(dc, 0, body, look.side_width, foot, palette_.panel);
    fillArea(dc, look.side_width - kHairline, body, look.side_width, foot, palette_.border);
  }
  if (look.foot_top > 0) {
    fillArea(dc, 0, foot, width, height, palette_.panel);
    fillArea(dc, 0, foot, width, foot + kHairline, palette_.border);
  }
  DrawnState state;
  state.right_to_left = right_to_left_;
  state.scale = scale();
  drawTitleStrip(dc, {0, 0, px(width), px(strip)}, shown_title_, state, palette_, title_font_);
  SetDCBrushColor(dc, palette_.border);
  const RECT edge{0, px(strip), px(width), px(height)};
  FrameRect(dc, &edge, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

}  // namespace tavr::win32
