#include "tests/windows/drawing/test_window.h"

namespace tavr::win32 {

namespace {

constexpr wchar_t kClass[] = L"TavrTestWindow";

}  // namespace

TestWindow::TestWindow(SIZE size, bool caption) {
  WNDCLASSW window_class{};
  window_class.lpfnWndProc = &procedure;
  window_class.hInstance = GetModuleHandleW(nullptr);
  window_class.lpszClassName = kClass;
  RegisterClassW(&window_class);
  const DWORD style = caption ? WS_OVERLAPPEDWINDOW : WS_POPUP;
  handle_ = CreateWindowExW(0, kClass, L"Tavr test", style, 200, 150, size.cx, size.cy, nullptr,
                            nullptr, window_class.hInstance, nullptr);
  SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

TestWindow::~TestWindow() { destroy(); }

void TestWindow::destroy() {
  if (handle_ != nullptr) DestroyWindow(handle_);
  handle_ = nullptr;
  pump(0);
}

RECT TestWindow::rect() const {
  RECT place{};
  GetWindowRect(handle_, &place);
  return place;
}

void TestWindow::show() {
  ShowWindow(handle_, SW_SHOW);
  pump();
}

void TestWindow::moveTo(int left, int top, int width, int height) {
  SetWindowPos(handle_, nullptr, left, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
  pump();
}

LRESULT CALLBACK TestWindow::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  const auto* const self =
      reinterpret_cast<const TestWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self != nullptr && self->onMessage) {
    if (const auto answer = self->onMessage(message, wparam, lparam)) return *answer;
  }
  return DefWindowProcW(window, message, wparam, lparam);
}

void pump(DWORD milliseconds) {
  const ULONGLONG end = GetTickCount64() + milliseconds;
  MSG message;
  do {
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    if (milliseconds > 0) MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
  } while (GetTickCount64() < end);
}

}  // namespace tavr::win32
