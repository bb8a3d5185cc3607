#include "services/event_log.h"

#include <algorithm>

#include "basic/number.h"

namespace tavr {

namespace {

constexpr double kGreatestId = 4294967295.0;

}  // namespace

bool EventLog::WriteEvent(std::string_view description, std::string_view application,
                          std::string_view event_id, std::int16_t log_type) {
  if (!description.empty()) Description = description;
  if (!application.empty()) Application = application;
  if (!event_id.empty()) EventID = event_id;
  if (log_type != 0) LogType = log_type;
  const bool known_type = LogType == 1 || LogType == 2 || LogType == 4;
  const double id = Val(EventID);
  if (!known_type || id < 0 || Application.empty() || Description.empty()) return false;
  return service_.report(Server, Application, static_cast<std::uint16_t>(LogType),
                         static_cast<std::uint32_t>(std::min(id, kGreatestId)),
                         Description) == kSuccess;
}

void fReportError(Machine& machine, const CallStack& stack, const RuntimeError& error,
                  std::string_view module, std::string_view method, int line) {
  machine.dialogs.beep();
  std::string text = "RunTime Error: " + numberText(error.number) + " - " + error.description;
  text += "\r\n\tModule: " + std::string(module);
  text += "\r\n\tMethod: " + std::string(method);
  text += "\r\n\tLine Number: " + numberText(line);
  text += "\r\n\tDescription: :" + error.description;
  text += "\r\nCall Stack:\r\n" + stack.text();
  EventLog(machine.event_log).WriteEvent(text, kApplicationTitle, "5000", 1);
}

}  // namespace tavr
