// The machine that the program runs on.
#pragma once

#include <memory>

#include "platform/machine.h"

namespace tavr::win32 {

class Win32Desktop;
class Win32Events;

class Win32Machine {
 public:
  Win32Machine();
  ~Win32Machine();
  Win32Machine(const Win32Machine&) = delete;
  Win32Machine& operator=(const Win32Machine&) = delete;

  Machine& machine() { return *machine_; }

  // For the windows of the program, which are a part of these two.
  Win32Events& events();
  Win32Desktop& desktop();

 private:
  struct Services;
  std::unique_ptr<Services> services_;
  std::unique_ptr<Machine> machine_;
};

}  // namespace tavr::win32
