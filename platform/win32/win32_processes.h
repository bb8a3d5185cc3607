// The processes of the machine that the program runs on.
#pragma once

#include "platform/processes.h"

namespace tavr::win32 {

class Win32Processes : public Processes {
 public:
  Status snapshot(std::vector<ProcessEntry>& entries) override;
  Status open(std::uint32_t id, std::uint32_t access, std::unique_ptr<Process>& out) override;
};

}  // namespace tavr::win32
