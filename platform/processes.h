// The processes of the machine: Tool Help snapshot, OpenProcess,
// TerminateProcess.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/win_error.h"

namespace tavr {

struct ProcessEntry {
  std::uint32_t id = 0;
  std::string image;  ///< the exe file's name, without its folder
};

/// An open process; destroying it closes the handle, not the process.
class Process {
 public:
  virtual ~Process() = default;
  /// TerminateProcess. 5: may not be ended, or opened without the right 0x1.
  virtual Status terminate(std::uint32_t exit_code) = 0;
};

class Processes {
 public:
  virtual ~Processes() = default;
  /// CreateToolhelp32Snapshot with flag 2 and the walk over it; `entries` is
  /// replaced.
  virtual Status snapshot(std::vector<ProcessEntry>& entries) = 0;
  /// OpenProcess with the given rights. 87: no such process, the idle one (0)
  /// included; 5: refused.
  virtual Status open(std::uint32_t id, std::uint32_t access, std::unique_ptr<Process>& out) = 0;
};

}  // namespace tavr
