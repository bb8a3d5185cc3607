// Reads the registry editor's export text into a registry. The text describes a
// registry, it is no script: lines that delete keys or values are refused.
#pragma once

#include <string_view>

#include "platform/folder/registry_tree.h"

namespace tavr::folder {

/// Reads `text` into the empty `tree`, whose values keep pointing into it.
/// Raises MalformedFile "file:line: what", the line being the one on which the
/// faulty key, value or byte begins.
void readRegistry(std::string_view file, std::string_view text, RegistryTree& tree);

}  // namespace tavr::folder
