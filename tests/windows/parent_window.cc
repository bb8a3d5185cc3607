#include "tests/windows/parent_window.h"

#include <windows.h>

#include <future>
#include <stdexcept>
#include <utility>

#include "platform/win32/plain_window.h"

namespace tavr::windows_test {

namespace {

using OnTotals = std::function<void(const std::string&)>;

constexpr UINT kTotalsMessage = WM_USER + 1;
constexpr SIZE_T kMappingSize = 256;
constexpr const wchar_t* kMappingName = L"MyFileMappingObject";
constexpr const wchar_t* kClass = L"Tavr Test Parent";

// The message carries an address of the sender's, of no use here: a parent opens
// the mapping by its name while the sender waits for the answer.
std::string readTotals() {
  const HANDLE mapping = OpenFileMappingW(FILE_MAP_READ, FALSE, kMappingName);
  if (mapping == nullptr) return "no mapping";
  std::string text = "no view";
  if (const void* view = MapViewOfFile(mapping, FILE_MAP_READ, 0, 0, kMappingSize)) {
    text.assign(static_cast<const char*>(view), kMappingSize);
    text.resize(text.find('\0') == std::string::npos ? text.size() : text.find('\0'));
    UnmapViewOfFile(view);
  }
  CloseHandle(mapping);
  return text;
}

LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == kTotalsMessage) {
    const bool has_address = wparam != 0 && lparam == 0;
    (*reinterpret_cast<OnTotals*>(GetWindowLongPtrW(window, GWLP_USERDATA)))(
        has_address ? readTotals() : "no address");
    return 0;
  }
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, wparam, lparam);
}

}  // namespace

TotalsWindow::TotalsWindow(const std::wstring& title, OnTotals on_totals)
    : on_totals_(std::move(on_totals)) {
  std::promise<HWND> made;
  std::future<HWND> window = made.get_future();
  thread_ = std::thread([this, &made, title] {
    const HWND own = win32::makePlainWindow(kClass, &onMessage, &on_totals_, title.c_str());
    made.set_value(own);
    MSG message = {};
    while (own != nullptr && GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  });
  window_ = window.get();
  if (window_ != nullptr) return;
  thread_.join();
  throw std::runtime_error("no window can be made; is there a display?");
}

TotalsWindow::~TotalsWindow() {
  PostMessageW(static_cast<HWND>(window_), WM_CLOSE, 0, 0);
  thread_.join();
}

}  // namespace tavr::windows_test
