#include "platform/win32/win32_events.h"

#include <windows.h>

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/win32/win32_clock.h"

namespace tavr::win32 {

namespace {

// Since Windows 10 1803; older systems refuse it and sleep in their own steps.
constexpr DWORD kHighResolution = 0x2;

// A timer of the system hands its procedure no pointer.
thread_local Win32Events::ModalLoop* innermost_loop = nullptr;

void CALLBACK onSystemTimer(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
  Win32Events::ModalLoop::onTimer(timer);
}

BOOL CALLBACK closeBox(HWND window, LPARAM /*unused*/) {
  wchar_t name[16] = L"";
  GetClassNameW(window, name, 16);
  const bool box = IsWindowVisible(window) && std::wstring_view(name) == L"#32770";
  if (box) EndDialog(window, IDCANCEL);
  return box ? FALSE : TRUE;
}

// A menu, such as the icon's, has the mouse and the keys: a box that a timer opens
// could not be used.
bool menuIsOpen() {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  return GetGUIThreadInfo(GetCurrentThreadId(), &info) &&
         (info.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE)) != 0;
}

}  // namespace

struct Win32Events::WaitableTimer {
  WaitableTimer()
      : handle(CreateWaitableTimerExW(nullptr, nullptr, kHighResolution, TIMER_ALL_ACCESS)) {}
  ~WaitableTimer() {
    if (handle != nullptr) CloseHandle(handle);
  }
  WaitableTimer(const WaitableTimer&) = delete;
  WaitableTimer& operator=(const WaitableTimer&) = delete;

  HANDLE handle;
};

Win32Events::Win32Events() = default;
Win32Events::~Win32Events() = default;

void Win32Events::doEvents() {
  const std::uint64_t now = tickCount();
  if (now != last_pump_) pump();
  if (now >= timers_.nextDue()) timers_.fire(now);
}

void Win32Events::wait(std::uint32_t milliseconds) {
  const std::uint64_t end = tickCount() + milliseconds;
  for (;;) {
    const bool goes_on = pump();
    if (tickCount() >= timers_.nextDue()) timers_.fire(tickCount());
    const std::uint64_t now = tickCount();
    if (now >= end) return;
    const std::uint64_t until = std::min(end, timers_.nextDue());
    if (until > now) sleep(until - now, goes_on);
  }
}

bool Win32Events::pump() {
  last_pump_ = tickCount();
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return false;
    }
    // The pump serves the timers itself, where exceptions pass.
    const bool for_modal_loop = message.message == WM_TIMER && message.hwnd == nullptr &&
                                innermost_loop != nullptr &&
                                message.wParam == innermost_loop->timer_;
    if (for_modal_loop || (filter_ && filter_(message))) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
    if (after_) after_();
  }
  if (after_) after_();
  return true;
}

void Win32Events::sleep(std::uint64_t milliseconds, bool wake_for_messages) {
  if (!waitable_) waitable_ = std::make_unique<WaitableTimer>();
  LARGE_INTEGER due{};
  due.QuadPart = -static_cast<LONGLONG>(milliseconds) * 10000;  // in 100 ns, from now
  HANDLE handle = waitable_->handle;
  const bool set =
      handle != nullptr && SetWaitableTimer(handle, &due, 0, nullptr, nullptr, FALSE) != FALSE;
  const auto limit = set ? INFINITE : static_cast<DWORD>(milliseconds);
  MsgWaitForMultipleObjectsEx(set ? 1 : 0, &handle, limit, wake_for_messages ? QS_ALLINPUT : 0,
                              wake_for_messages ? MWMO_INPUTAVAILABLE : 0);
}

TimerId Win32Events::startTimer(std::uint32_t interval_ms, std::function<void()> on_tick) {
  return timers_.start(tickCount(), interval_ms, std::move(on_tick));
}

void Win32Events::stopTimer(TimerId id) { timers_.stop(id); }

Win32Events::ModalLoop::ModalLoop(Win32Events& events)
    : events_(events),
      outer_(innermost_loop),
      timer_(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &onSystemTimer)) {
  innermost_loop = this;
}

Win32Events::ModalLoop::~ModalLoop() {
  innermost_loop = outer_;
  KillTimer(nullptr, timer_);
}

void Win32Events::ModalLoop::onTimer(std::uintptr_t timer) {
  if (innermost_loop != nullptr && innermost_loop->timer_ == timer) innermost_loop->serve();
}

void Win32Events::ModalLoop::serve() {
  if (thrown_ || menuIsOpen()) return;
  try {
    const std::uint64_t now = tickCount();
    if (now >= events_.timers_.nextDue()) events_.timers_.fire(now);
    // What came in meanwhile: a hot key, a click on the icon, the closing.
    if (events_.after_) events_.after_();
  } catch (...) {
    // It cannot pass through the system's loop; the loop ends first.
    thrown_ = std::current_exception();
    EnumThreadWindows(GetCurrentThreadId(), &closeBox, 0);
  }
}

void Win32Events::ModalLoop::rethrow() {
  if (thrown_) std::rethrow_exception(std::exchange(thrown_, nullptr));
}

}  // namespace tavr::win32
