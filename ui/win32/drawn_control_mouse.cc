// What the mouse does to a control that the program draws itself.
#include <windowsx.h>

#include <utility>

#include "ui/win32/drawn_control.h"
#include "ui/win32/form_window.h"

namespace tavr::win32 {

namespace {

constexpr WPARAM kAnyButton = MK_LBUTTON | MK_RBUTTON | MK_MBUTTON;

}  // namespace

bool DrawnControl::contains(LPARAM point) const {
  RECT area;
  GetClientRect(window_, &area);
  return PtInRect(&area, {GET_X_LPARAM(point), GET_Y_LPARAM(point)}) != FALSE;
}

void DrawnControl::mouseMoved(WPARAM keys, LPARAM point) {
  const bool inside = contains(point);
  if (inside && !hovered_) {
    TRACKMOUSEEVENT leave{sizeof(leave), TME_LEAVE, window_, 0};
    TrackMouseEvent(&leave);
  }
  // With a button held down the moves beside it come here, too.
  if (inside != hovered_) invalidate();
  hovered_ = inside;
  if (left_down_ && (keys & MK_LBUTTON) != 0 && held_ != inside) {
    held_ = inside;
    invalidate();
  }
  onMove((keys & kAnyButton) != 0);
}

// With another button held down on it, one that goes down beside it comes here, too.
void DrawnControl::mouseDown(MouseButton button, LPARAM point) {
  if (!contains(point)) return;
  if (button == MouseButton::kLeft) {
    form_.hideFocus();
    if (control_.design.tab >= 0) SetFocus(window_);
    held_ = left_down_ = true;
  }
  captures_ = false;
  SetCapture(window_);
  captures_ = true;
  if (button != MouseButton::kRight) invalidate();
  onDown(button);
}

// The mouse is kept until the last button is up: the others come up here, too.
void DrawnControl::mouseUp(MouseButton button, WPARAM keys, LPARAM point) {
  const bool inside = left_down_ && contains(point);
  if (button == MouseButton::kLeft) held_ = left_down_ = false;
  if ((keys & kAnyButton) == 0) {
    captures_ = false;
    ReleaseCapture();
  }
  if (button != MouseButton::kRight) invalidate();
  onUp(button, inside);
}

void DrawnControl::onUp(MouseButton button, bool inside) {
  if (button == MouseButton::kLeft && inside) postPress();
}

void DrawnControl::postPress() {
  post([&control = control_] { control.press(); });
}

void DrawnControl::postMove(std::function<void()> action) {
  if (move_waits_) return;
  move_waits_ = true;
  post([this, action = std::move(action)] {
    move_waits_ = false;
    action();
  });
}

void DrawnControl::letGo() {
  captures_ = held_ = left_down_ = false;
  invalidate();
  onCancel();
}

bool DrawnControl::handleMouse(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_MOUSEMOVE:
      mouseMoved(wparam, lparam);
      return true;
    case WM_MOUSELEAVE:
      hovered_ = false;
      invalidate();
      onLeave();
      return true;
    case WM_LBUTTONDOWN:
      mouseDown(MouseButton::kLeft, lparam);
      return true;
    case WM_LBUTTONUP:
      mouseUp(MouseButton::kLeft, wparam, lparam);
      return true;
    case WM_RBUTTONDOWN:
      mouseDown(MouseButton::kRight, lparam);
      return true;
    case WM_RBUTTONUP:
      mouseUp(MouseButton::kRight, wparam, lparam);
      return true;
    case WM_MBUTTONDOWN:
      mouseDown(MouseButton::kMiddle, lparam);
      return true;
    case WM_MBUTTONUP:
      mouseUp(MouseButton::kMiddle, wparam, lparam);
      return true;
    default:
      return false;
  }
}

}  // namespace tavr::win32
