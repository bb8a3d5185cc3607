// The registry lines of plug-ins: a root by its long name, a path and a kind.
#pragma once

#include <string>
#include <string_view>

#include "engine/program.h"

namespace tavr {

/// A line "<root>\<path>,<kind>", taken apart. An unknown root leaves root and
/// path empty.
struct PlugInRegistryLine {
  std::string root;  ///< the short name, "HKCU"
  std::string path;
  char kind = 0;
};
PlugInRegistryLine parsePlugInRegistryLine(std::string_view line);

/// Reports and counts what the line names; with `remove` it is deleted too. A
/// kind other than 1 to 4 is skipped silently.
void plugInRegistryLine(Program& program, std::string_view line, bool remove);

}  // namespace tavr
