#include "platform/win32/win32_dialogs.h"

#include <windows.h>

#include <optional>
#include <string>

#include "platform/win32/held_windows.h"
#include "platform/win32/wide.h"

namespace tavr::win32 {

namespace {

constexpr std::string_view kApplicationTitle = "Spoorwipe";

// The icon's own window is active when its menu has been open. A box that it owned
// would disable it, and the menu could not be used while the box is open.
HWND ownerOfBox() {
  const HWND active = GetActiveWindow();
  const bool is_tool = (GetWindowLongPtrW(active, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) != 0;
  return is_tool ? nullptr : active;
}

}  // namespace

int Win32Dialogs::messageBox(std::string_view text, std::uint32_t flags, std::string_view title) {
  const std::wstring wide_text = wide(text);
  const std::wstring wide_title = wide(title.empty() ? kApplicationTitle : title);
  std::optional<Win32Events::ModalLoop> loop;
  if (events_ != nullptr) loop.emplace(*events_);
  const HWND owner = ownerOfBox();
  // Nothing else keeps it above a form that the icon brings back meanwhile.
  const UINT above = owner == nullptr ? MB_TOPMOST : 0;
  const auto shown = [&] {
    const HeldWindows held(owner);
    return MessageBoxW(owner, wide_text.c_str(), wide_title.c_str(), flags | above);
  };
  const int answer = shown();
  if (loop) loop->rethrow();
  if (answer > 0) return answer;
  // Where no box can be shown nobody agrees to anything.
  return (flags & MB_TYPEMASK) <= MB_OKCANCEL ? IDOK : kAnswerNo;
}

void Win32Dialogs::beep() { MessageBeep(MB_OK); }

}  // namespace tavr::win32
