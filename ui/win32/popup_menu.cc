#include "ui/win32/popup_menu.h"

#include "platform/win32/wide.h"

namespace tavr::win32 {

namespace {

constexpr std::string_view kSeparator = "-";

// The entries stand in the array from the last to the first.
HMENU makeMenu(const Form1& form) {
  const HMENU menu = CreatePopupMenu();
  for (std::size_t i = form.menu.size(); i-- > 0;) {
    const Button& entry = form.menu[i];
    if (!entry.visible) continue;
    if (entry.caption == kSeparator) {
      AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
      continue;
    }
    const UINT state = entry.enabled ? MF_ENABLED : MF_GRAYED;
    AppendMenuW(menu, MF_STRING | state, i + 1, wide(entry.caption).c_str());
  }
  return menu;
}

}  // namespace

Button* openPopupMenu(Form1& form, HWND owner, bool right_to_left) {
  const HMENU menu = makeMenu(form);
  POINT at{};
  GetCursorPos(&at);
  // Without these two the menu of an icon stays when a person clicks elsewhere.
  SetForegroundWindow(owner);
  const UINT side = right_to_left ? TPM_LAYOUTRTL | TPM_RIGHTALIGN : TPM_LEFTALIGN;
  const int chosen = TrackPopupMenu(menu, TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON | side,
                                    at.x, at.y, 0, owner, nullptr);
  PostMessageW(owner, WM_NULL, 0, 0);
  DestroyMenu(menu);
  form.bccc.visible = false;
  return chosen > 0 ? &form.menu[static_cast<std::size_t>(chosen) - 1] : nullptr;
}

}  // namespace tavr::win32
