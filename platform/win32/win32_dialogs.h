// The message boxes of Windows.
#pragma once

#include "platform/dialogs.h"
#include "platform/win32/win32_events.h"

namespace tavr::win32 {

class Win32Dialogs : public Dialogs {
 public:
  /// With `events` its timers go on while a box is open.
  explicit Win32Dialogs(Win32Events* events = nullptr) : events_(events) {}

  int messageBox(std::string_view text, std::uint32_t flags, std::string_view title) override;
  void beep() override;

 private:
  Win32Events* events_;
};

}  // namespace tavr::win32
