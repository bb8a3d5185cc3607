#include "platform/win32/plain_window.h"

namespace tavr::win32 {

HWND makePlainWindow(const wchar_t* window_class, WNDPROC procedure, void* object,
                     const wchar_t* title) {
  WNDCLASSEXW registered{};
  registered.cbSize = sizeof(registered);
  registered.lpfnWndProc = procedure;
  registered.hInstance = GetModuleHandleW(nullptr);
  registered.lpszClassName = window_class;
  RegisterClassExW(&registered);  // a second time it is there already
  const HWND made = CreateWindowExW(WS_EX_TOOLWINDOW, window_class, title, WS_POPUP, 0, 0, 1, 1,
                                    nullptr, nullptr, registered.hInstance, nullptr);
  if (made != nullptr) {
    SetWindowLongPtrW(made, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(object));
  }
  return made;
}

}  // namespace tavr::win32
