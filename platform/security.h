// Access lists: what the security calls of Windows give and take of a key's or a
// file's descriptor, and the accounts that lists name. The lists themselves are
// taken apart and merged above the seam.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/win_error.h"

namespace tavr {

/// Control bits of a descriptor that the merge of lists reads or sets.
inline constexpr std::uint16_t kDaclAutoInheritRequired = 0x100;
inline constexpr std::uint16_t kDaclAutoInherited = 0x400;
inline constexpr std::uint16_t kDaclProtected = 0x1000;

/// A security descriptor as far as its discretionary access list goes.
struct SecurityDescriptor {
  std::uint16_t control = 0;
  /// The list's own bytes (struct ACL and its entries, little-endian). Nothing:
  /// the object has no list, or an empty pointer for one, and everybody may do
  /// everything.
  std::optional<std::string> dacl;
};

class Accounts {
 public:
  virtual ~Accounts() = default;
  /// LookupAccountName on this machine: the bytes of the account's SID.
  /// 1332: no such account, or a machine that keeps none.
  virtual Status sidOf(std::string_view account, std::string& sid) = 0;
};

}  // namespace tavr
