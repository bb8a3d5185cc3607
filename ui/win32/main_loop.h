// The pump of the windows: it lets forms see their keys, runs what a person did
// when its message has been dispatched, and brings the windows up to the forms,
// in a run too.
#pragma once

#include <cstdint>

#include "engine/program.h"
#include "platform/win32/win32_desktop.h"
#include "platform/win32/win32_events.h"
#include "ui/win32/action_queue.h"
#include "ui/win32/tray_window.h"
#include "ui/win32/window_set.h"

namespace tavr::win32 {

class MainLoop {
 public:
  /// Shows nothing before `run`, but dialogs that open while the form is loaded.
  MainLoop(Program& program, Win32Events& events, Win32Desktop& desktop);
  ~MainLoop();
  MainLoop(const MainLoop&) = delete;
  MainLoop& operator=(const MainLoop&) = delete;

  /// Leaves when the process is asked to quit; the program itself ends by
  /// ProcessEnd.
  void run();

 private:
  bool filter(const MSG& message);
  void afterMessages();
  void sync();

  Program& program_;
  Win32Events& events_;
  Win32Desktop& desktop_;
  ActionQueue actions_;
  WindowSet windows_;
  TrayWindow tray_;
  std::uint64_t last_sync_ = 0;
};

}  // namespace tavr::win32
