// Where a form's window and the windows of its controls stand: the design's
// places at the monitor's resolution, in the direction of the language.
#include <algorithm>
#include <utility>

#include "ui/win32/control_places.h"
#include "ui/win32/form_window.h"

namespace tavr::win32 {

namespace {

constexpr COLORREF kMaskColor = 0xFF00FF;
constexpr int kCornerRadius = 8;
constexpr int kUsualDpi = 96;
constexpr int kSentenceGap = 8;  // px at 96 dpi

// A form that is larger than the screen keeps the end of its strip in sight,
// where its buttons are.
POINT intoWorkArea(POINT at, SIZE size, bool right_to_left) {
  const RECT wanted{at.x, at.y, at.x + size.cx, at.y + size.cy};
  MONITORINFO monitor{};
  monitor.cbSize = sizeof(monitor);
  if (!GetMonitorInfoW(MonitorFromRect(&wanted, MONITOR_DEFAULTTONEAREST), &monitor)) return at;
  const RECT& work = monitor.rcWork;
  const bool too_wide = size.cx > work.right - work.left;
  at.x = std::max(std::min(at.x, work.right - size.cx), work.left);
  if (too_wide && !right_to_left) at.x = work.right - size.cx;
  at.y = std::max(std::min(at.y, work.bottom - size.cy), work.top);
  return at;
}

}  // namespace

void FormWindow::takeDpi(int dpi) {
  dpi_ = dpi;
  const std::unique_ptr<Fonts> before = std::exchange(fonts_, std::make_unique<Fonts>(scale()));
  // The windows let go of the fonts before they are destroyed.
  for (const auto& [control, bound] : bound_) bound->sync();
  if (tips_) tips_->setFont(fonts_->get(ControlFont()));
}

// A form keeps its middle whatever the resolution, and with a strip above it: its
// place is reckoned for its own size at 96 dpi.
void FormWindow::layOut(const RECT* suggested) {
  const FormLook& look = lookOf(form_);
  const int width = px(form_.width);
  const int height = px(form_.height + look.strip_above);
  POINT at{form_.left + (form_.width - width) / 2, form_.top + (form_.height - height) / 2};
  if (suggested) {
    at = {suggested->left, suggested->top};
  } else {
    at = intoWorkArea(at, {width, height}, right_to_left_);
  }
  placing_ = true;
  SetWindowPos(window_, nullptr, at.x, at.y, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
  placing_ = false;
  if (suggested) takePosition();
  shapeCorners({width, height});
  InvalidateRect(window_, nullptr, FALSE);
}

void FormWindow::shapeCorners(SIZE size) {
  const HBITMAP before = shape_picture_;
  shape_picture_ = roundedPicture(size, px(kCornerRadius), kMaskColor);
  shape_->setPicture(shape_picture_);
  if (before != nullptr) DeleteObject(before);
}

void FormWindow::takePosition() {
  if (placing_ || IsIconic(window_)) return;
  RECT at;
  GetWindowRect(window_, &at);
  form_.left = placed_left_ = at.left - (form_.width - (at.right - at.left)) / 2;
  form_.top = placed_top_ = at.top - (form_.height - (at.bottom - at.top)) / 2;
}

// The design leaves room for the longest language; what stands behind a shorter
// text moves up to it.
int FormWindow::startOf(const Control& control, const ControlLook& look) const {
  const Control* const before = look.follows.empty() ? nullptr : form_.find(look.follows);
  if (!before) return control.box.left;
  const int start = startOf(*before, lookOf(form_, *before));
  return std::min(control.box.left, start + widthOf(*before) + kSentenceGap);
}

int FormWindow::widthOf(const Control& control) const {
  const bool label = control.design.kind == ControlKind::kLabel;
  if (!label || !isFollowed(form_, control)) return control.box.width;
  const HDC dc = GetDC(window_);
  const int width = MulDiv(captionSize(dc, control, scale()).cx, kUsualDpi, dpi_) + 1;
  ReleaseDC(window_, dc);
  return std::min(width, control.box.width);
}

RECT FormWindow::pixels(const Control& control, const ControlLook& look) const {
  Box box = control.box;
  box.left = startOf(control, look);
  box.width = widthOf(control);
  const Control* const holder = holderOf(form_, control);
  if (!holder) box.top += lookOf(form_).strip_above;
  if (right_to_left_) {
    const int width = holder ? holder->box.width : form_.width;
    box.left = width - box.left - box.width;
  }
  return {px(box.left), px(box.top), px(box.left + box.width), px(box.top + box.height)};
}

}  // namespace tavr::win32
