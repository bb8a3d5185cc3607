#include "ui/win32/screen_scale.h"

namespace tavr::win32 {

namespace {

template <class Function>
Function inUser32(const char* name) {
  const HMODULE user32 = GetModuleHandleW(L"user32.dll");
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(user32, name)));
}

int dpiOfScreen() {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return dpi;
}

}  // namespace

// The call came with Windows 10; an older one has one resolution for all.
int dpiOf(HWND window) {
  using Get = UINT(WINAPI*)(HWND);
  const auto get = inUser32<Get>("GetDpiForWindow");
  const UINT dpi = get == nullptr ? 0 : get(window);
  return dpi == 0 ? dpiOfScreen() : static_cast<int>(dpi);
}

}  // namespace tavr::win32
