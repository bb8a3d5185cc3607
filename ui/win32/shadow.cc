#include "ui/win32/shadow.h"

#include <commctrl.h>

#include "ui/win32/shadow_picture.h"

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

BITMAPINFO pictureFormat(int width, int height) {
  BITMAPINFO format{};
  format.bmiHeader.biSize = sizeof(format.bmiHeader);
  format.bmiHeader.biWidth = width;
  format.bmiHeader.biHeight = height;
  format.bmiHeader.biPlanes = 1;
  format.bmiHeader.biBitCount = 32;
  format.bmiHeader.biCompression = BI_RGB;
  return format;
}

// Corners as they are, sides stretched; nothing where the form stands.
void layOut(HDC dc, const ShadowLook& look, SIZE whole) {
  const int size = look.size;
  const std::vector<std::uint32_t> tiles = shadowTiles(look);
  // Upper row first; the source's rows are named from the lower edge all the
  // same, so both have to be told the same way: from the top.
  const BITMAPINFO format = pictureFormat(4 * size, -2 * size);
  const int right = whole.cx - size;
  const int bottom = whole.cy - size;
  const auto tile = [&](int column, int row, RECT to) {
    StretchDIBits(dc, to.left, to.top, to.right - to.left, to.bottom - to.top, column * size,
                  row * size, size, size, tiles.data(), &format, DIB_RGB_COLORS, SRCCOPY);
  };
  SetStretchBltMode(dc, COLORONCOLOR);
  tile(0, 0, {0, 0, size, size});
  tile(1, 0, {size, 0, right, size});
  tile(2, 0, {right, 0, whole.cx, size});
  tile(3, 0, {0, size, size, bottom});
  tile(0, 1, {0, bottom, size, whole.cy});
  tile(1, 1, {size, bottom, right, whole.cy});
  tile(2, 1, {right, bottom, whole.cx, whole.cy});
  tile(3, 1, {right, size, whole.cx, bottom});
}

void drawShadow(HWND form, HWND shadow) {
  const ShadowLook look = lookOf(shadow);
  RECT place;
  GetWindowRect(form, &place);
  InflateRect(&place, look.size, look.size);
  SIZE whole{place.right - place.left, place.bottom - place.top};
  const BITMAPINFO format = pictureFormat(whole.cx, whole.cy);
  void* pixels = nullptr;
  const HDC screen = GetDC(nullptr);
  const HDC memory = CreateCompatibleDC(screen);
  const HBITMAP picture = CreateDIBSection(memory, &format, DIB_RGB_COLORS, &pixels, nullptr, 0);
  if (picture != nullptr) {
    const HGDIOBJ before = SelectObject(memory, picture);
    layOut(memory, look, whole);
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
  if (message == WM_NCDESTROY) {
    detachShadow(form);
  } else if (const HWND shadow = shadowOf(form)) {
    if (message == WM_WINDOWPOSCHANGED) {
      follow(form, shadow, *reinterpret_cast<const WINDOWPOS*>(lparam));
    }
    // Windows hides what a minimised window owns, not all that calls it so do.
    if (message == WM_SIZE) ShowWindow(shadow, wparam == SIZE_MINIMIZED ? SW_HIDE : SW_SHOWNA);
  }
  return DefSubclassProc(form, message, wparam, lparam);
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
  SetWindowSubclass(form, &formProcedure, kSubclass, 0);
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
  RemoveWindowSubclass(form, &formProcedure, kSubclass);
  return true;
}

}  // namespace tavr::win32
