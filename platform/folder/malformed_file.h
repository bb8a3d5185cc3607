// A file of the machine folder that cannot be taken as it stands.
#pragma once

#include <stdexcept>

namespace tavr::folder {

/// The text begins with the file's name and, where a line is at fault, its
/// number: "registry.reg:12: no such root".
struct MalformedFile : std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace tavr::folder
