// Where a key path leads in the registry of a 64-bit Windows, by the view that
// an access mask names.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/registry.h"

namespace tavr::folder {

inline constexpr std::uint32_t k64BitView = 0x100;
inline constexpr std::uint32_t k32BitView = 0x200;

struct RegistryPath {
  /// 6: no root; 161: begins with "\"; 87: a name too long, both views.
  Status status = kSuccess;
  std::string_view root;                ///< its long name
  std::vector<std::string_view> names;  ///< of the keys below it, none of them empty
};

/// Resolves `path`, which the result keeps pointing into.
RegistryPath resolvePath(Root root, std::string_view path, std::uint32_t access);

}  // namespace tavr::folder
