#include "ui/win32/drawn_control.h"

#include "platform/win32/wide.h"
#include "ui/win32/form_window.h"

namespace tavr::win32 {

LRESULT CALLBACK drawnControlProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_NCCREATE) {
    const auto* const create = reinterpret_cast<const CREATESTRUCTW*>(lparam);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
    return DefWindowProcW(window, message, wparam, lparam);
  }
  // Before it is bound and after, it is a plain window.
  BoundControl* const bound = BoundControl::of(window);
  if (!bound) return DefWindowProcW(window, message, wparam, lparam);
  return static_cast<DrawnControl*>(bound)->handle(message, wparam, lparam);
}

DrawnControl::DrawnControl(FormWindow& form, Control& control, DWORD extended_style)
    : BoundControl(form, control) {
  registerClass();
  create(kClass, WS_CLIPCHILDREN, extended_style);
}

void DrawnControl::registerClass() {
  WNDCLASSEXW window_class{};
  window_class.cbSize = sizeof(window_class);
  window_class.lpfnWndProc = &drawnControlProcedure;
  window_class.hInstance = GetModuleHandleW(nullptr);
  window_class.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  window_class.lpszClassName = kClass;
  RegisterClassExW(&window_class);  // a second time it is refused, and stays
}

DrawnState DrawnControl::state() const {
  DrawnState state;
  state.hovered = hovered_ && control_.enabled;
  state.pressed = held_;
  state.focused = GetFocus() == window_ && form_.showsFocus();
  state.enabled = control_.enabled;
  state.right_to_left = form_.rightToLeft();
  state.scale = form_.scale();
  return state;
}

AccessibleFacts DrawnControl::accessibleFacts() const {
  AccessibleFacts facts = tavr::win32::accessibleFacts(form_.form(), control_, form_.language());
  if (held_) facts.state |= STATE_SYSTEM_PRESSED;
  if (hovered_ && control_.enabled) facts.state |= STATE_SYSTEM_HOTTRACKED;
  return facts;
}

std::string DrawnControl::accessibleShortcut() const {
  return tavr::win32::accessibleShortcut(form_.form(), control_);
}

void DrawnControl::accessiblePress() {
  // What was pressed before it may have opened a dialog above the form.
  post([this] {
    if (form_.form().enabled) control_.press();
  });
}

void DrawnControl::paint(HDC dc) {
  RECT area;
  GetClientRect(window_, &area);
  const HDC memory = CreateCompatibleDC(dc);
  const HBITMAP bitmap = CreateCompatibleBitmap(dc, area.right, area.bottom);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  const HBRUSH background = CreateSolidBrush(form_.backgroundOf(control_));
  FillRect(memory, &area, background);
  DeleteObject(background);
  draw(memory, area, state());
  BitBlt(dc, 0, 0, area.right, area.bottom, memory, 0, 0, SRCCOPY);
  SelectObject(memory, before);
  DeleteObject(bitmap);
  DeleteDC(memory);
}

void DrawnControl::syncOwn() {
  if (control_.caption != caption_) {
    caption_ = control_.caption;
    SetWindowTextW(window_, wide(caption_).c_str());
  }
  std::string now = drawnOf();
  if (now == drawn_) return;
  drawn_ = std::move(now);
  invalidate();
}

LRESULT DrawnControl::handle(UINT message, WPARAM wparam, LPARAM lparam) {
  if (handleMouse(message, wparam, lparam)) return 0;
  switch (message) {
    case WM_NCHITTEST:
      if (!takesMouse()) return HTTRANSPARENT;
      break;
    case WM_PAINT: {
      PAINTSTRUCT painting;
      paint(BeginPaint(window_, &painting));
      EndPaint(window_, &painting);
      return 0;
    }
    case WM_PRINTCLIENT:
      paint(reinterpret_cast<HDC>(wparam));
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_GETOBJECT: {
      LRESULT answer = 0;
      if (accessible_.answer(window_, wparam, lparam, answer)) return answer;
      break;
    }
    case WM_SETFOCUS:
      invalidate();
      break;
    case WM_KILLFOCUS:
    case WM_ENABLE:
      // While a button of the mouse is down on it, the focus may come and go.
      if (GetCapture() != window_) letGo();
      invalidate();
      break;
    case WM_CAPTURECHANGED:
      if (captures_) letGo();
      break;
    case WM_SETCURSOR:
      if (!showsHand() || LOWORD(lparam) != HTCLIENT) break;
      SetCursor(LoadCursorW(nullptr, IDC_HAND));
      return TRUE;
    case WM_KEYDOWN:
    case WM_KEYUP:
      // A key that is held presses once: a press may start a run.
      if ((wparam == VK_RETURN || wparam == VK_SPACE) && message == WM_KEYDOWN &&
          isRepeated(lparam)) {
        return 0;
      }
      if (onKey(wparam, message == WM_KEYDOWN)) return 0;
      break;
    default: {
      LRESULT answer = asked(message);
      if (answer != 0) return answer;
      if (form_.route(message, wparam, lparam, answer)) return answer;
    }
  }
  return DefWindowProcW(window_, message, wparam, lparam);
}

}  // namespace tavr::win32
