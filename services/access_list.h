// Access lists taken apart and put together: the ACL and ACE structures of
// Windows in their own byte layout, the same on every machine.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tavr {

inline constexpr std::uint8_t kAceAllowed = 0;
inline constexpr std::uint8_t kAceDenied = 1;

inline constexpr std::uint8_t kObjectInherit = 1;
inline constexpr std::uint8_t kContainerInherit = 2;
inline constexpr std::uint8_t kInheritOnly = 8;
inline constexpr std::uint8_t kInherited = 16;

/// S-1-1-0, everyone.
std::string everyoneSid();

/// An entry of a list, header included: what AddAce takes.
class AccessEntry {
 public:
  AccessEntry(std::uint8_t type, std::uint8_t flags, std::uint32_t mask, std::string_view sid);
  /// An entry as a list holds it, at least a header and a mask long.
  explicit AccessEntry(std::string_view bytes) : bytes_(bytes) {}

  std::uint8_t type() const;
  std::uint8_t flags() const;
  std::uint32_t mask() const;
  /// The account, of the entry types that have it behind the mask: as long as it
  /// says itself, whatever follows.
  std::string_view sid() const;
  std::string_view bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

/// A list under construction, or one that was read.
class AccessList {
 public:
  static constexpr std::size_t kHeaderSize = 8;
  /// The header counts its bytes in 16 bits.
  static constexpr std::size_t kLongest = 0xFFFF;

  /// InitializeAcl with revision 2: an empty list with room for `size` bytes; for
  /// more than the longest it fails, and nothing can be added.
  explicit AccessList(std::size_t size) : size_(size) {}
  /// A list as an object gave it. One that ends within an entry loses that entry
  /// and all behind it.
  explicit AccessList(std::string_view bytes);

  const std::vector<AccessEntry>& entries() const { return entries_; }
  /// GetAclInformation's bytes in use: header and entries.
  std::size_t bytesInUse() const;

  /// AddAce at the end. False: there is no room.
  bool add(AccessEntry entry);

  /// The list's bytes, the room that is left filled with zeros.
  std::string bytes() const;

 private:
  std::size_t size_;
  std::uint8_t revision_ = 2;
  std::vector<AccessEntry> entries_;
};

}  // namespace tavr
