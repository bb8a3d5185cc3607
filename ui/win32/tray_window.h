// The window that hears of the icon in the notification area: the mouse on it,
// its menu, and that the task bar has started anew.
#pragma once

#include <windows.h>

#include <string>

#include "engine/program.h"
#include "platform/win32/win32_desktop.h"
#include "ui/win32/action_queue.h"

namespace tavr::win32 {

class TrayWindow {
 public:
  TrayWindow(Program& program, Win32Desktop& desktop, ActionQueue& actions);
  ~TrayWindow();
  TrayWindow(const TrayWindow&) = delete;
  TrayWindow& operator=(const TrayWindow&) = delete;

  HWND window() const { return window_; }

  /// Opens the menu when the program has asked for it, and takes another picture
  /// that the icon was given.
  void sync(bool right_to_left);

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  void takePicture();

  Program& program_;
  Win32Desktop& desktop_;
  ActionQueue& actions_;
  UINT task_bar_created_;
  HWND window_;
  HICON icon_ = nullptr;
  std::string picture_;  ///< the name of what `icon_` shows
  bool menu_open_ = false;
};

}  // namespace tavr::win32
