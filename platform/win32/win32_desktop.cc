#include "platform/win32/win32_desktop.h"

#include <windows.h>
// Behind windows.h.
#include <commdlg.h>
#include <shellapi.h>

#include <algorithm>
#include <iterator>
#include <optional>

#include "basic/utf.h"
#include "platform/win32/held_windows.h"
#include "platform/win32/system_library.h"
#include "platform/win32/wide.h"

namespace tavr::win32 {

namespace {

constexpr UINT kTrayMessage = 512;
// One text of 64 characters with its NUL, as the icons of old have it.
constexpr std::size_t kTipLength = 63;
constexpr std::size_t kChosenLength = 1024;
constexpr UINT kRetryInterval = 1000;  // ms

void CALLBACK onSystemTimer(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
  Win32Desktop::onTimer(timer);
}

// "text|pattern|text|pattern" as the dialog takes it: each with its NUL, and one
// more at the end.
std::wstring dialogFilter(std::string_view filter) {
  std::wstring text = wide(filter);
  std::replace(text.begin(), text.end(), L'|', L'\0');
  text.append(2, L'\0');
  return text;
}

// False: closed without an answer, or there is no such dialog. Its library brings
// the printers' and the lists' in: few starts of the program need it.
bool askForFile(OPENFILENAMEW& dialog) {
  SystemLibrary library(L"comdlg32.dll");
  const auto ask = library.find<decltype(&GetOpenFileNameW)>("GetOpenFileNameW");
  if (ask == nullptr) return false;
  library.keep();  // what the shell shows in the dialog may run on behind it
  return ask(&dialog) != FALSE;
}

}  // namespace

Win32Desktop::~Win32Desktop() { Win32Desktop::removeTrayIcon(); }

void Win32Desktop::setTray(void* window, void* icon) {
  if (window != tray_window_) removeTrayIcon();
  tray_window_ = window;
  icon_ = icon;
  if (window == nullptr) return;
  // Messages from programs with lower rights are held back, and the task bar is one
  // where this program was started with the highest.
  ChangeWindowMessageFilterEx(static_cast<HWND>(window), RegisterWindowMessageW(L"TaskbarCreated"),
                              MSGFLT_ALLOW, nullptr);
}

ScreenSize Win32Desktop::screen() {
  return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

bool Win32Desktop::registerHotKey(int id, std::uint32_t modifiers, std::uint32_t virtual_key) {
  return window_ != nullptr &&
         RegisterHotKey(static_cast<HWND>(window_), id, modifiers, virtual_key) != FALSE;
}

void Win32Desktop::unregisterHotKey(int id) {
  if (window_ != nullptr) UnregisterHotKey(static_cast<HWND>(window_), id);
}

bool Win32Desktop::notify(unsigned long operation, unsigned flags) const {
  NOTIFYICONDATAW data{};
  data.cbSize = sizeof(data);
  data.hWnd = static_cast<HWND>(tray_window_);
  data.uID = icon_id_;
  data.uFlags = flags;
  data.uCallbackMessage = kTrayMessage;
  data.hIcon = static_cast<HICON>(icon_);
  const std::wstring tip = wide(leftUtf16(tool_tip_, kTipLength));
  std::copy(tip.begin(), tip.end(), std::begin(data.szTip));
  return Shell_NotifyIconW(operation, &data) != FALSE;
}

void Win32Desktop::show() {
  UINT flags = NIF_MESSAGE;
  if (icon_ != nullptr) flags |= NIF_ICON;
  if (!tool_tip_.empty()) flags |= NIF_TIP;
  // One that the task bar has already cannot be added: it took it and its answer was
  // late, or it is still the old one. That is as good.
  shown_ = notify(NIM_ADD, flags) || notify(NIM_MODIFY, flags);
  // A timer of a window's own may have any number, and finds its way back by it.
  const auto timer = reinterpret_cast<UINT_PTR>(this);
  if (shown_) {
    KillTimer(static_cast<HWND>(tray_window_), timer);
  } else {
    SetTimer(static_cast<HWND>(tray_window_), timer, kRetryInterval, &onSystemTimer);
  }
}

void Win32Desktop::onTimer(std::uintptr_t timer) {
  auto* const desktop = reinterpret_cast<Win32Desktop*>(timer);
  if (desktop->wanted_) desktop->show();
}

void Win32Desktop::identifyTrayIcon(std::uint32_t id) {
  if (!wanted_) icon_id_ = id;  // one that stands there keeps its own
}

void Win32Desktop::addTrayIcon(std::string_view tool_tip) {
  if (tray_window_ == nullptr) return;
  tool_tip_ = tool_tip;
  wanted_ = true;
  show();
}

void Win32Desktop::changeTrayIcon(std::string_view tool_tip) {
  if (!wanted_) return;
  const UINT changed = tool_tip == tool_tip_ ? NIF_ICON : NIF_TIP;
  tool_tip_ = tool_tip;
  if (shown_) notify(NIM_MODIFY, changed);
}

void Win32Desktop::removeTrayIcon() {
  if (!wanted_) return;
  KillTimer(static_cast<HWND>(tray_window_), reinterpret_cast<UINT_PTR>(this));
  // A task bar that was late with its answer may have it all the same.
  notify(NIM_DELETE, 0);
  wanted_ = shown_ = false;
}

std::optional<std::string> Win32Desktop::chooseFile(std::string_view filter,
                                                    std::string_view file_name) {
  if (window_ == nullptr) return std::nullopt;
  const std::wstring filters = dialogFilter(filter);
  std::wstring chosen = wide(file_name);
  chosen.resize(kChosenLength);
  OPENFILENAMEW dialog{};
  dialog.lStructSize = sizeof(dialog);
  // The form that asks may lie above all others.
  const HWND active = GetActiveWindow();
  dialog.hwndOwner = active != nullptr ? active : static_cast<HWND>(window_);
  dialog.lpstrFilter = filters.c_str();
  dialog.lpstrFile = chosen.data();
  dialog.nMaxFile = kChosenLength;
  dialog.Flags = OFN_EXPLORER | OFN_HIDEREADONLY;
  std::optional<Win32Events::ModalLoop> loop;
  if (events_ != nullptr) loop.emplace(*events_);
  const auto shown = [&] {
    const HeldWindows held(dialog.hwndOwner);
    return askForFile(dialog);
  };
  const bool answered = shown();
  if (loop) loop->rethrow();
  if (!answered) return std::nullopt;
  return narrow(chosen.c_str());
}

}  // namespace tavr::win32
