// machine.ini: what a machine folder is told about its user, its folders, its
// clock, the answers to message boxes, the parent program and the faults.
// Parsing only; the parts of the machine take what concerns them. Not the INI
// files of the machine's programs (ini_files.h).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/clock.h"
#include "platform/win_error.h"

namespace tavr::folder {

struct Answers {
  bool yes_by_default = false;
  /// A text and whether a box that holds it is answered "yes", in file order.
  std::vector<std::pair<std::string, bool>> texts;
};

struct FaultLine {
  std::string operation;
  std::uint32_t nth = 0;  // 0: every call
  Status error = kSuccess;
};

struct MachineIni {
  /// Names and texts, the four that every machine has included.
  std::vector<std::pair<std::string, std::string>> environment;
  std::string program_path;  ///< without a trailing "\"
  std::string cookies;
  std::optional<LocalTime> clock_start;  ///< set: the clock is virtual
  std::optional<Answers> answers;        ///< set when the file has the section
  std::string parent_window;             ///< empty: none
  std::vector<FaultLine> faults;
};

/// Reads the text of machine.ini ("" gives every default). Raises MalformedFile
/// "machine.ini:LINE: what".
MachineIni parseMachineIni(std::string_view text);

}  // namespace tavr::folder
