#include "ui/win32/tray_window.h"

#include "ui/win32/artwork.h"
#include "ui/win32/popup_menu.h"

namespace tavr::win32 {

namespace {

constexpr wchar_t kClass[] = L"TavrTray";

}  // namespace

// No message-only window: those do not hear of a new task bar.
TrayWindow::TrayWindow(Program& program, Win32Desktop& desktop, ActionQueue& actions)
    : program_(program),
      desktop_(desktop),
      actions_(actions),
      task_bar_created_(RegisterWindowMessageW(L"TaskbarCreated")),
      icon_(programIcon(GetSystemMetrics(SM_CXSMICON))) {
  WNDCLASSEXW window_class{};
  window_class.cbSize = sizeof(window_class);
  window_class.lpfnWndProc = &procedure;
  window_class.hInstance = GetModuleHandleW(nullptr);
  window_class.lpszClassName = kClass;
  RegisterClassExW(&window_class);
  window_ = CreateWindowExW(WS_EX_TOOLWINDOW, kClass, L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                            window_class.hInstance, nullptr);
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  desktop_.setTray(window_, icon_);
}

TrayWindow::~TrayWindow() {
  actions_.discard(this);
  desktop_.setTray(nullptr, nullptr);
  DestroyWindow(window_);
  DestroyIcon(icon_);
}

LRESULT CALLBACK TrayWindow::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  auto* const tray = reinterpret_cast<TrayWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!tray) return DefWindowProcW(window, message, wparam, lparam);
  TrayArea& icon = tray->program_.form.TrayArea1;
  if (message == TrayArea::kCallbackMessage) {
    const auto mouse = static_cast<std::uint32_t>(lparam);
    tray->actions_.post(tray, [&icon, mouse] { icon.message(mouse); });
    return 0;
  }
  if (message == tray->task_bar_created_ && icon.visible()) {
    tray->actions_.post(tray, [tray, &icon] { tray->desktop_.addTrayIcon(icon.record().tip); });
    return 0;
  }
  return DefWindowProcW(window, message, wparam, lparam);
}

void TrayWindow::sync(bool right_to_left) {
  if (!program_.form.bccc.visible || menu_open_) return;
  menu_open_ = true;
  actions_.post(this, [this, right_to_left] {
    menu_open_ = false;
    openPopupMenu(program_.form, window_, right_to_left);
  });
}

}  // namespace tavr::win32
