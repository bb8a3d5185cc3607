#include "ui/win32/shadow.h"

#include "ui/win32/shadow_picture.h"
#include "ui/win32/subclass.h"

namespace tavr::win32 {

namespace {

constexpr char kProperty[] = "TrickShadow";
constexpr wchar_t kClass[] = L"TrickShadow";
constexpr DWORD kExtendedStyle = 0x800A0;  // layered, transparent, tool window
constexpr DWORD kStyle = 0x80000000;       // popup
constexpr UINT_PTR kSubclass = 1;
constexpr int kLargest = 100;
// Places in the window's extra memory of 16 bytes.
constexpr int kSizePlace = 0;
constexpr int kColorPlace = 4;
constexpr int kHalfWayPlace = 8;
constexpr int kStrengthPlace = 12;

HWND shadowOf(HWND form) { return static_cast<HWND>(GetPropA(form, kProperty)); }

bool registerClass() {
  WNDCLASSEXW known{};
  known.cbSize = sizeof(known);
  const HINSTANCE program = GetModuleHandleW(nullptr);
  if (GetClassInfoExW(program, kClass, &known)) return true;
  WNDCLASSEXW window_class{};
  window_class.cbSize = sizeof(window_class);
  window_class.lpfnWndProc = &DefWindowProcW;
  window_class.cbWndExtra = 16;
  window_class.hInstance = program;
  window_class.lpszClassName = kClass;
  return RegisterClassExW(&window_class) != 0;
}

ShadowLook lookOf(HWND shadow) {
  return {static_cast<int>(GetWindowLongW(shadow, kSizePlace)),
          static_cast<COLORREF>(GetWindowLongW(shadow, kColorPlace)),
          static_cast<int>(GetWindowLongW(shadow, kHalfWayPlace)),
          static_cast<int>(GetWindowLongW(shadow, kStrengthPlace))};
}

void keepLook(HWND shadow, const ShadowLook& look) {
  SetWindowLongW(shadow, kSizePlace, look.size);
  SetWindowLongW(shadow, kColorPlace, static_cast<LONG>(look.color));
  SetWindowLongW(shadow, kHalfWayPlace, look.half_way);
  SetWindowLongW(shadow, kStrengthPlace, look.strength);
}

void drawShadow(HWND form, HWND shadow) {
  const ShadowLook look = lookOf(shadow);
  RECT place;
  GetWindowRect(form, &place);
  InflateRect(&place, look.size, look.size);
  SIZE whole{place.right - place.left, place.bottom - place.top};
  const BITMAPINFO format = shadowFormat(whole.cx, whole.cy);
  void* pixels = nullptr;
  const HDC screen = GetDC(nullptr);
  const HDC memory = CreateCompatibleDC(screen);
  const HBITMAP picture = CreateDIBSection(memory, &format, DIB_RGB_COLORS, &pixels, nullptr, 0);
  if (picture != nullptr) {
    const HGDIOBJ before = SelectObject(memory, picture);
    layShadowOut(memory, look, whole);
    POINT corner{place.left, place.top};
    POINT origin{0, 0};
    BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    UpdateLayeredWindow(shadow, screen, &corner, &whole, memory, &origin, 0, &blend, ULW_ALPHA);
    SelectObject(memory, before);
    DeleteObject(picture);
  }
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
}

bool hasSizeOf(HWND shadow, HWND form) {
  RECT inner;
  RECT outer;
  GetWindowRect(form, &inner);
  GetWindowRect(shadow, &outer);
  const int size = 2 * lookOf(shadow).size;
  return outer.right - outer.left == inner.right - inner.left + size &&
         outer.bottom - outer.top == inner.bottom - inner.top + size;
}

void follow(HWND form, HWND shadow, const WINDOWPOS& moved) {
  if ((moved.flags & SWP_SHOWWINDOW) != 0) ShowWindow(shadow, SW_SHOWNA);
  if ((moved.flags & SWP_HIDEWINDOW) != 0) ShowWindow(shadow, SW_HIDE);
  if (IsIconic(form)) return;
  if (!hasSizeOf(shadow, form)) return drawShadow(form, shadow);
  RECT place;
  GetWindowRect(form, &place);
  const int size = lookOf(shadow).size;
  SetWindowPos(shadow, nullptr, place.left - size, place.top - size, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

LRESULT CALLBACK formProcedure(HWND form, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR,
                               DWORD_PTR) {
  if (message == WM_NCDESTROY) detachShadow(form);
  if (message == WM_WINDOWPOSCHANGED) {
    if (const HWND shadow = shadowOf(form)) {
      follow(form, shadow, *reinterpret_cast<const WINDOWPOS*>(lparam));
    }
  }
  // Windows hides what a minimised window owns, not all that calls it so do. A
  // form that is not shown may be laid out, too.
  if (message == WM_SIZE) {
    const bool shown = wparam != SIZE_MINIMIZED && IsWindowVisible(form);
    if (const HWND shadow = shadowOf(form)) ShowWindow(shadow, shown ? SW_SHOWNA : SW_HIDE);
  }
  return nextProcedure(form, message, wparam, lparam);
}

}  // namespace

bool attachShadow(HWND form) {
  if (shadowOf(form) != nullptr) return true;
  if (!registerClass()) return false;
  const HWND shadow = CreateWindowExW(kExtendedStyle, kClass, L"", kStyle, 0, 0, 0, 0, form,
                                      nullptr, GetModuleHandleW(nullptr), nullptr);
  if (shadow == nullptr) return false;
  SetPropA(form, kProperty, shadow);
  keepLook(shadow, ShadowLook{});
  drawShadow(form, shadow);
  setSubclass(form, &formProcedure, kSubclass, 0);
  ShowWindow(shadow, SW_SHOW);
  return true;
}

bool setShadowSize(HWND form, int size) {
  const HWND shadow = shadowOf(form);
  if (shadow == nullptr || size < 1 || size > kLargest) return false;
  SetWindowLongW(shadow, kSizePlace, size);
  drawShadow(form, shadow);
  return true;
}

bool setShadowColor(HWND form, COLORREF color) {
  const HWND shadow = shadowOf(form);
  if (shadow == nullptr) return false;
  SetWindowLongW(shadow, kColorPlace, static_cast<LONG>(color));
  drawShadow(form, shadow);
  return true;
}

bool detachShadow(HWND form) {
  const HWND shadow = shadowOf(form);
  if (shadow == nullptr) return false;
  DestroyWindow(shadow);
  RemovePropA(form, kProperty);
  removeSubclass(form, &formProcedure, kSubclass);
  return true;
}

}  // namespace tavr::win32
