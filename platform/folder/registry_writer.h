// Writes a registry as the registry editor's export text.
#pragma once

#include <string>

#include "platform/folder/registry_tree.h"

namespace tavr::folder {

/// The text as the registry editor lays it out: a section a key, its subkeys
/// behind it, a blank line behind each section, hexadecimal lines broken at 80
/// columns. A value that nobody set since it was read is written as it stood.
std::string writeRegistry(const RegistryTree& tree, bool crlf);

}  // namespace tavr::folder
