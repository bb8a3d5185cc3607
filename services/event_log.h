// Events of the application event log, and the reporter through which runtime
// errors of the file search reach it. The user hears a beep and sees nothing.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "basic/resume_next.h"
#include "platform/machine.h"
#include "services/call_stack.h"

namespace tavr {

/// The title under which events and untitled message boxes appear.
inline constexpr std::string_view kApplicationTitle = "Spoorwipe";

/// One event. An argument of WriteEvent that is empty or 0 keeps the property.
class EventLog {
 public:
  explicit EventLog(EventLogService& service) : service_(service) {}

  std::string Server;
  std::int16_t LogType = 0;
  std::string Description;
  std::string EventID;  ///< holds a number; a text that is none counts as 0
  std::string Application;

  /// True when the event was written. A type other than 1, 2 and 4, a negative
  /// id, and an empty application or description write nothing.
  bool WriteEvent(std::string_view description = {}, std::string_view application = {},
                  std::string_view event_id = {}, std::int16_t log_type = 0);

 private:
  EventLogService& service_;
};

/// Writes the error, where it happened and the call stack as event 5000.
void fReportError(Machine& machine, const CallStack& stack, const RuntimeError& error,
                  std::string_view module, std::string_view method, int line);

}  // namespace tavr
