// A value's bytes as the registry stores them, and as platform/registry.h
// hands them out and takes them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/registry.h"

namespace tavr::win32 {

bool isText(std::uint32_t type);

/// RegistryData::size of these bytes.
std::uint32_t sizeOfStored(std::uint32_t type, const void* bytes, std::size_t size);
/// RegistryData::data of them.
std::string readStored(std::uint32_t type, const void* bytes, std::size_t size);
/// The bytes to store for what setValue was given.
std::string toStored(std::uint32_t type, std::string_view data);

}  // namespace tavr::win32
