// The text of a sample machine's registry.reg, in the form of the registry
// editor's export.
#pragma once

#include <string>

namespace tavr::sample {

/// The registry of the whole believable machine: traces of Windows and of the
/// browsers, the program's settings with everything selected, its statistics.
std::string machineRegistry();

/// The registry of the machine for measuring: Chrome's one profile, and the
/// track of sessions selected.
std::string chromeCacheRegistry();

}  // namespace tavr::sample
