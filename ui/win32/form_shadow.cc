// The shadow behind a form's window.
#include "ui/win32/form_window.h"
#include "ui/win32/shadow.h"

namespace tavr::win32 {

namespace {

constexpr wchar_t kShadowProperty[] = L"TrickShadow";
constexpr int kShadowSize = 10;
constexpr COLORREF kShadowColor = 0x808080;

// While it lives no window of this thread becomes the active one. A shadow is
// shown as any window is, and would take the keyboard and a pressed mouse button
// away from its form.
class NothingActivates {
 public:
  NothingActivates() : hook_(SetWindowsHookExW(WH_CBT, &refuse, nullptr, GetCurrentThreadId())) {}
  ~NothingActivates() { UnhookWindowsHookEx(hook_); }
  NothingActivates(const NothingActivates&) = delete;
  NothingActivates& operator=(const NothingActivates&) = delete;

 private:
  static LRESULT CALLBACK refuse(int code, WPARAM wparam, LPARAM lparam) {
    return code == HCBT_ACTIVATE ? 1 : CallNextHookEx(nullptr, code, wparam, lparam);
  }

  HHOOK hook_;
};

}  // namespace

void FormWindow::setShadow(bool on) {
  if (on == shadow_) return;
  if (!on) {
    shadow_ = false;
    detachShadow(window_);
    return;
  }
  {
    const NothingActivates meanwhile;
    shadow_ = attachShadow(window_);
  }
  if (!shadow_) return;  // tried again at the next turn
  // Nor does a window manager give it the keyboard later.
  const HWND shadow = static_cast<HWND>(GetPropW(window_, kShadowProperty));
  SetWindowLongPtrW(shadow, GWL_EXSTYLE, GetWindowLongPtrW(shadow, GWL_EXSTYLE) | WS_EX_NOACTIVATE);
  setShadowSize(window_, kShadowSize);
  setShadowColor(window_, kShadowColor);
  // It is made shown; one of a form that is not comes with the form.
  if (!IsWindowVisible(window_) || IsIconic(window_)) ShowWindow(shadow, SW_HIDE);
}

}  // namespace tavr::win32
