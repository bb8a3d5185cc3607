#include "platform/win32/held_windows.h"

#include <windows.h>

namespace tavr::win32 {

namespace {

thread_local int open_dialogs = 0;

// But for the tray's own, whose menu is served while a dialog is open.
BOOL CALLBACK collectEnabled(HWND window, LPARAM data) {
  const bool is_tool = (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) != 0;
  if (!is_tool && IsWindowEnabled(window))
    reinterpret_cast<std::vector<void*>*>(data)->push_back(window);
  return TRUE;
}

}  // namespace

HeldWindows::HeldWindows(void* owner) {
  ++open_dialogs;
  EnumThreadWindows(GetCurrentThreadId(), &collectEnabled, reinterpret_cast<LPARAM>(&held_));
  std::erase(held_, owner);
  for (void* const window : held_) EnableWindow(static_cast<HWND>(window), FALSE);
}

HeldWindows::~HeldWindows() {
  for (void* const window : held_) EnableWindow(static_cast<HWND>(window), TRUE);
  --open_dialogs;
}

bool HeldWindows::any() { return open_dialogs > 0; }

}  // namespace tavr::win32
