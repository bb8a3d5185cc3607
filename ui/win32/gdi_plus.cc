#include "ui/win32/gdi_plus.h"

namespace tavr::win32 {

void startGdiPlus() {
  static const ULONG_PTR token = [] {
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR started = 0;
    Gdiplus::GdiplusStartup(&started, &input, nullptr);
    return started;
  }();
  static_cast<void>(token);
}

}  // namespace tavr::win32
