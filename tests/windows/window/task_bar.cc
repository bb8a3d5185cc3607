#include "tests/windows/window/task_bar.h"

#include <shellapi.h>

#include "platform/win32/plain_window.h"
#include "platform/win32/wide.h"

namespace tavr::testing {

namespace {

constexpr wchar_t kClass[] = L"Shell_TrayWnd";  // what the shell's calls look for
constexpr DWORD kLook = 20;

// As Wine's shell hands it to the task bar.
struct NotifyData {
  LONG window;
  UINT id;
  UINT flags;
  UINT message;
  wchar_t tip[128];
  DWORD state[2];
  wchar_t info[256];
  UINT timeout;
  wchar_t info_title[64];
  DWORD info_flags;
  GUID item;
  UINT width_height_planes_depth[4];
};

}  // namespace

TaskBar::TaskBar() {
  thread_ = std::thread([this] { serve(); });
  made_.get_future().wait();
}

TaskBar::~TaskBar() {
  PostMessageW(window_, WM_CLOSE, 0, 0);
  thread_.join();
}

void TaskBar::serve() {
  window_ = win32::makePlainWindow(kClass, &procedure, this);
  // The first of its class is found: ahead of one that the system runs.
  SetWindowPos(window_, HWND_TOPMOST, 0, 0, 1, 1, SWP_NOACTIVATE);
  made_.set_value();
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
}

LRESULT CALLBACK TaskBar::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  auto* const bar = reinterpret_cast<TaskBar*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (message == WM_DESTROY) PostQuitMessage(0);
  if (bar == nullptr || message != WM_COPYDATA) {
    return DefWindowProcW(window, message, wparam, lparam);
  }
  bar->take(*reinterpret_cast<const COPYDATASTRUCT*>(lparam));
  return TRUE;
}

void TaskBar::take(const COPYDATASTRUCT& data) {
  if (data.cbData < sizeof(NotifyData)) return;
  const std::scoped_lock lock(guard_);
  const auto& asked = *static_cast<const NotifyData*>(data.lpData);
  if (data.dwData == NIM_DELETE) return icon_.reset();
  if (!icon_) icon_.emplace();
  icon_->window = reinterpret_cast<HWND>(static_cast<LONG_PTR>(asked.window));
  icon_->id = asked.id;
  if ((asked.flags & NIF_MESSAGE) != 0) icon_->message = asked.message;
  if ((asked.flags & NIF_TIP) != 0) icon_->tip = win32::narrow(asked.tip);
  if ((asked.flags & NIF_ICON) == 0) return;
  const auto* const bytes = static_cast<const char*>(data.lpData);
  icon_->picture.assign(bytes + sizeof(NotifyData), bytes + data.cbData);
}

std::optional<TaskBar::Icon> TaskBar::icon() const {
  const std::scoped_lock lock(guard_);
  return icon_;
}

bool TaskBar::showsIcon(std::uint32_t milliseconds) const {
  const ULONGLONG end = GetTickCount64() + milliseconds;
  while (!icon() && GetTickCount64() < end) Sleep(kLook);
  return icon().has_value();
}

bool TaskBar::losesIcon(std::uint32_t milliseconds) const {
  const ULONGLONG end = GetTickCount64() + milliseconds;
  while (icon() && GetTickCount64() < end) Sleep(kLook);
  return !icon();
}

void TaskBar::forget() {
  const std::scoped_lock lock(guard_);
  icon_.reset();
}

void TaskBar::startAnew() {
  forget();
  PostMessageW(HWND_BROADCAST, RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
}

void TaskBar::mouse(UINT message) const {
  const auto at = icon();
  if (at) PostMessageW(at->window, at->message, at->id, static_cast<LPARAM>(message));
}

}  // namespace tavr::testing
