// What a machine folder writes down of what the program asked Windows to do:
// events.log, shell.log and parent.log. Not the program's own report.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/event_log.h"
#include "platform/folder/faults.h"

namespace tavr::folder {

/// A text file beside machine.ini that only grows; made when first written.
class MachineLog {
 public:
  /// Raises MalformedFile where something else than a file with this one name is
  /// there: what is written could lead out of the machine.
  MachineLog(const std::string& directory, std::string_view name);
  /// Adds the text and a line's end; breaks inside the text become blanks.
  /// False: it could not be written.
  bool addLine(std::string_view text) const;
  /// Adds the bytes as they are.
  bool add(std::string_view bytes) const;

 private:
  std::string path_;
};

/// events.log: a line "ID TYPE SOURCE" an event, then its text, each line
/// behind a tab.
class FolderEventLog : public EventLogService {
 public:
  FolderEventLog(const std::string& directory, Faults& faults);
  Status report(std::string_view server, std::string_view source, std::uint16_t type,
                std::uint32_t event_id, std::string_view text) override;

 private:
  MachineLog log_;
  Faults::Point& report_fault_;
};

}  // namespace tavr::folder
