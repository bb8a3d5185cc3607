// Whether a browser runs, and ending it. Errors are ignored throughout: a
// process that cannot be opened stays alive.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/machine.h"

namespace tavr {

/// The process id of the first process of that file name, empty when there is
/// none or WMI cannot be asked.
std::optional<std::uint32_t> pid(Machine& machine, std::string_view name);

/// Ends every process whose file name ends in `name`, without case, through the
/// process snapshot: a longer name that merely ends so is ended too. True when
/// one matched. No window is asked to close and nothing is waited for.
bool fCloseByList(Machine& machine, std::string_view name);

/// Ends every process of exactly that name through the WMI query. Always true.
bool fCloseByWmi(Machine& machine, std::string_view name);

}  // namespace tavr
