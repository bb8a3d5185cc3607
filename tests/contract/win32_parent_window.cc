#include "tests/contract/win32_parent_window.h"

#include <windows.h>

#include <future>
#include <stdexcept>

#include "platform/win32/plain_window.h"
#include "platform/win32/wide.h"

namespace tavr::contract {

namespace {

constexpr UINT kTotalsMessage = 1025;
constexpr const wchar_t* kClass = L"Tavr Contract Parent Window";

LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == kTotalsMessage) {
    auto* texts =
        reinterpret_cast<std::vector<std::string>*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    texts->emplace_back(reinterpret_cast<const char*>(wparam));
    return 0;
  }
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, wparam, lparam);
}

}  // namespace

ParentWindow::ParentWindow(std::string_view title) {
  std::promise<HWND> made;
  std::future<HWND> window = made.get_future();
  thread_ = std::thread([this, &made, text = win32::wide(title)] {
    const HWND own = win32::makePlainWindow(kClass, &onMessage, &texts_, text.c_str());
    made.set_value(own);
    MSG message = {};
    while (own != nullptr && GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  });
  window_ = window.get();
  if (window_ == nullptr) {
    thread_.join();
    throw std::runtime_error("no window can be made");
  }
}

ParentWindow::~ParentWindow() {
  PostMessageW(static_cast<HWND>(window_), WM_CLOSE, 0, 0);
  thread_.join();
}

bool ParentWindow::possible() {
  const HWND window = win32::makePlainWindow(kClass, &onMessage, nullptr);
  if (window == nullptr) return false;
  SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(DefWindowProcW));
  DestroyWindow(window);  // without the message that would end this thread's pump
  return true;
}

}  // namespace tavr::contract
