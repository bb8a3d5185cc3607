// Access rights granted before a key or a file is touched. Ownership is never
// taken: only the access list changes, and where that cannot be done the
// following access meets the rights as they are. Nothing is shown.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/machine.h"

namespace tavr {

/// One requested entry of an access list.
struct AccountAccess {
  std::string AccountName;  ///< empty when the SID is given
  std::uint32_t AccessMask = 0;
  std::uint8_t AceFlags = 0;
  std::uint8_t AceType = 0;  ///< 0 allow, 1 deny
  std::string Sid;           ///< its bytes; looked up when empty
};

/// Lets everyone and the user work with the key. The key is opened in the
/// 64-bit view with the right to change its list (0x6013F), so a key that only
/// the 32-bit view holds is not found; that counts as failed and no more.
/// False: failed. A machine whose keys have no access list is left as it is.
bool GrantKeyAccess(Machine& machine, Root root, std::string_view key, std::string_view user);

/// The old descriptor's list with the request in it: denials first, then what
/// is the object's own but for the accounts of the request, then what the
/// request allows, and behind it what was inherited. Nothing: an account is not
/// known, or the list would not hold its entries.
std::optional<SecurityDescriptor> MergeAccessEntries(Accounts& accounts,
                                                     const SecurityDescriptor* old,
                                                     std::vector<AccountAccess> request);

/// Adds the user with the rights of `mask` to the file's list, in one entry, or
/// two for a folder. A file without a list, or with an empty one, is left as it
/// is.
void GrantFileAccess(Machine& machine, std::string_view user, std::string_view path,
                     std::uint32_t mask);

}  // namespace tavr
