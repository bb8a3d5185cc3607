// What the system tells a form's window, and where it goes from there.
#include "ui/win32/form_window.h"

namespace tavr::win32 {

bool FormWindow::route(UINT message, WPARAM wparam, LPARAM lparam, LRESULT& answer) {
  HWND from = reinterpret_cast<HWND>(lparam);
  auto* const notice = reinterpret_cast<NMHDR*>(lparam);  // with WM_NOTIFY
  if (message == WM_NOTIFY) {
    if (ToolTips::answer(*notice)) return true;
    from = notice->hwndFrom;
  }
  const bool known = message == WM_COMMAND || message == WM_NOTIFY || message == WM_VSCROLL ||
                     message == WM_CTLCOLOREDIT || message == WM_CTLCOLORLISTBOX ||
                     message == WM_CTLCOLORSTATIC || message == WM_CTLCOLORSCROLLBAR;
  BoundControl* const bound = known && from != nullptr ? BoundControl::of(from) : nullptr;
  if (!bound) return false;
  switch (message) {
    case WM_COMMAND:
      bound->onCommand(HIWORD(wparam));
      return true;
    case WM_NOTIFY:
      answer = bound->onNotify(*notice);
      return true;
    case WM_VSCROLL:
      bound->onScroll(LOWORD(wparam), HIWORD(wparam));
      return true;
    case WM_CTLCOLORSCROLLBAR:
      return false;
    default:
      answer = reinterpret_cast<LRESULT>(bound->onColor(reinterpret_cast<HDC>(wparam)));
      return true;
  }
}

LRESULT FormWindow::onSystemCommand(WPARAM wparam, LPARAM lparam) {
  const WPARAM command = wparam & 0xFFF0;
  if (command == SC_MINIMIZE) {
    if (events_.minimise) actions_.post(this, events_.minimise);
    return 0;
  }
  // ALT alone shows the access keys and opens no menu; ALT and the space bar do.
  if (command == SC_KEYMENU && lparam != L' ') return 0;
  return DefWindowProcW(window_, WM_SYSCOMMAND, wparam, lparam);
}

LRESULT FormWindow::handle(UINT message, WPARAM wparam, LPARAM lparam) {
  LRESULT answer = 0;
  if (events_.other && events_.other(message, wparam, lparam, answer)) return answer;
  switch (message) {
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT: {
      PAINTSTRUCT painting;
      paint(BeginPaint(window_, &painting));
      EndPaint(window_, &painting);
      return 0;
    }
    case WM_MOVE:
      takePosition();
      break;
    case WM_SIZE:
      // The system makes an icon of it without asking, too.
      if (wparam == SIZE_MINIMIZED && events_.minimise) actions_.post(this, events_.minimise);
      break;
    case WM_DPICHANGED:
      takeDpi(HIWORD(wparam));
      layOut(reinterpret_cast<const RECT*>(lparam));
      return 0;
    case WM_ACTIVATE:
      if (LOWORD(wparam) == WA_INACTIVE) {
        last_focus_ = focused();
        showCues(false);
      } else {
        if (events_.activate) actions_.post(this, events_.activate);
        focusFirst();
      }
      return 0;
    case WM_ENABLE:
      // The system lets go of what the form itself holds; a press of a control
      // would end as a click below the dialog that disables the form.
      if (wparam == FALSE && IsChild(window_, GetCapture())) ReleaseCapture();
      break;
    case WM_CLOSE:
      if (events_.close) actions_.post(this, events_.close);
      return 0;
    case WM_SYSCOMMAND:
      return onSystemCommand(wparam, lparam);
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
    case WM_SETTINGCHANGE:
      takeLook(strip_, right_to_left_);
      // Only whole windows are told; lists and boxes keep colours of their own.
      for (const auto& [control, bound] : bound_) {
        SendMessageW(bound->window(), message, wparam, lparam);
      }
      break;
    default:
      if (route(message, wparam, lparam, answer)) return answer;
  }
  return DefWindowProcW(window_, message, wparam, lparam);
}

}  // namespace tavr::win32
