// Access rights granted before a key or a file is touched. Ownership is never
// taken: only the access list changes, and where that cannot be done the
// following access meets the rights as they are. Nothing is shown.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/machine.h"

namespace tavr {

/// Lets everyone and the user work with the key. The key is opened in the
/// 64-bit view with the right to change its list (0x6013F), so a key that only
/// the 32-bit view holds is not found; that counts as failed and no more.
/// False: failed. A machine whose keys have no access list is left as it is.
bool GrantKeyAccess(Machine& machine, Root root, std::string_view key, std::string_view user);

/// Adds the user with the rights of `mask` to the file's list. A machine whose
/// files have no access list is left as it is.
void GrantFileAccess(Machine& machine, std::string_view user, std::string_view path,
                     std::uint32_t mask);

}  // namespace tavr
