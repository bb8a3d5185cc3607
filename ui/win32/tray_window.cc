#include "ui/win32/tray_window.h"

#include "platform/win32/plain_window.h"
#include "platform/win32/wide.h"
#include "services/program_folder.h"
#include "ui/win32/artwork.h"
#include "ui/win32/popup_menu.h"

namespace tavr::win32 {

namespace {

constexpr wchar_t kClass[] = L"TavrTray";

}  // namespace

TrayWindow::TrayWindow(Program& program, Win32Desktop& desktop, ActionQueue& actions)
    : program_(program),
      desktop_(desktop),
      actions_(actions),
      task_bar_created_(RegisterWindowMessageW(L"TaskbarCreated")),
      window_(makePlainWindow(kClass, &procedure, this)) {
  takePicture();
}

TrayWindow::~TrayWindow() {
  actions_.discard(this);
  desktop_.setTray(nullptr, nullptr);
  DestroyWindow(window_);
  if (icon_ != nullptr) DestroyIcon(icon_);
}

// The file beside the program, or else the program's own sign.
void TrayWindow::takePicture() {
  const SIZE size{GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON)};
  TrayArea& icon = program_.form.TrayArea1;
  picture_ = icon.icon();
  const std::wstring file = wide(programFile(program_.machine, picture_));
  const HICON before = icon_;
  icon_ = static_cast<HICON>(
      LoadImageW(nullptr, file.c_str(), IMAGE_ICON, size.cx, size.cy, LR_LOADFROMFILE));
  if (icon_ == nullptr && !picture_.empty()) icon_ = programIcon(size.cx);
  desktop_.setTray(window_, icon_);
  desktop_.changeTrayIcon(icon.record().tip);
  if (before != nullptr) DestroyIcon(before);
  icon.firstShow(size.cx, size.cy);
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
    tray->actions_.post(tray, [tray, &icon] {
      if (icon.visible()) tray->desktop_.addTrayIcon(icon.record().tip);
    });
    return 0;
  }
  return DefWindowProcW(window, message, wparam, lparam);
}

void TrayWindow::sync(bool right_to_left) {
  if (program_.form.TrayArea1.icon() != picture_) takePicture();
  if (!program_.form.bccc.visible || menu_open_) return;
  menu_open_ = true;
  actions_.post(this, [this, right_to_left] {
    // Asked once: this is called again before the menu opens, and at the end of a
    // session while it is open. A run that is chosen in it leaves the menu to the icon.
    Button* const chosen = openPopupMenu(program_.form, window_, right_to_left);
    menu_open_ = false;
    if (chosen) chosen->press();
  });
}

}  // namespace tavr::win32
