// The Cookies folder of the user, as the shell reports it.
#pragma once

#include <optional>
#include <string>

#include "basic/text.h"
#include "platform/machine.h"

namespace tavr {

/// Special folder 33, cut at its first NUL; empty when the shell has none.
inline std::optional<std::string> cookiesFolder(Machine& machine) {
  std::string buffer;
  if (machine.shell.specialFolder(kFolderCookies, buffer) != kSuccess) return std::nullopt;
  return std::string(untilNul(buffer));
}

}  // namespace tavr
