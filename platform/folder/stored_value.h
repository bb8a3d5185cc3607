// A value's data between the registry's own bytes and what crosses the seam.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/folder/registry_tree.h"

namespace tavr::folder {

/// As RegistryData::size: text in UTF-16 units with one closing NUL, whether
/// the stored text has none, one or several; everything else in bytes. A text
/// of no bytes, which is how an empty text is stored, has size 0.
std::uint32_t sizeOfStored(const RegistryValue& value);

/// As RegistryData::data; "" for a value of no bytes.
std::string readStored(const RegistryValue& value);

/// The bytes to store for what a caller sets. A text that is not empty gets its
/// closing NUL, as Windows adds it.
std::string toStored(std::uint32_t type, std::string_view data);

}  // namespace tavr::folder
