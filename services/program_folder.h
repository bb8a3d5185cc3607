// The folder that the program lies in, with all the files it reads and writes.
#pragma once

#include <string>
#include <string_view>

#include "platform/machine.h"

namespace tavr {

/// The full name of a file of the program's folder ("lang\\data.lang").
inline std::string programFile(const Machine& machine, std::string_view name) {
  return machine.environment.appPath() + "\\" + std::string(name);
}

}  // namespace tavr
