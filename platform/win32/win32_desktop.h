// The desktop of this machine. Hot keys, the icon in the notification area and
// the dialog that asks for a file belong to windows; before there are any, no hot
// key is taken, no icon shown and no file chosen.
#pragma once

#include <string>

#include "platform/desktop.h"
#include "platform/win32/win32_events.h"

namespace tavr::win32 {

class Win32Desktop : public Desktop {
 public:
  /// With `events` its timers go on while a file is chosen.
  explicit Win32Desktop(Win32Events* events = nullptr) : events_(events) {}
  ~Win32Desktop() override;
  Win32Desktop(const Win32Desktop&) = delete;
  Win32Desktop& operator=(const Win32Desktop&) = delete;

  /// The main window (HWND): it gets the hot keys, and owns the file dialog
  /// while no window of the program is active.
  void setWindow(void* window) { window_ = window; }
  /// The window (HWND) that gets the mouse messages of the icon, as message 512
  /// with the mouse's own in lParam, and the picture (HICON). An icon that is
  /// shown takes the picture with its next change. The window hears of a new task
  /// bar ("TaskbarCreated") in a program with higher rights than the task bar's, too.
  void setTray(void* window, void* icon);

  ScreenSize screen() override;
  bool registerHotKey(int id, std::uint32_t modifiers, std::uint32_t virtual_key) override;
  void unregisterHotKey(int id) override;
  void identifyTrayIcon(std::uint32_t id) override;
  /// While the task bar does not take the icon, as it does not at first when a
  /// user has just logged on, it is asked again once a second.
  void addTrayIcon(std::string_view tool_tip) override;
  void changeTrayIcon(std::string_view tool_tip) override;
  void removeTrayIcon() override;
  std::optional<std::string> chooseFile(std::string_view filter,
                                        std::string_view file_name) override;

  /// Called by the timer of the system that asks the task bar again.
  static void onTimer(std::uintptr_t timer);

 private:
  void show();
  bool notify(unsigned long operation, unsigned flags) const;

  Win32Events* events_;
  void* window_ = nullptr;
  void* tray_window_ = nullptr;
  void* icon_ = nullptr;
  std::uint32_t icon_id_ = 1;
  std::string tool_tip_;
  bool wanted_ = false;  // the icon shall stand in the notification area
  bool shown_ = false;   // and the task bar has taken it
};

}  // namespace tavr::win32
