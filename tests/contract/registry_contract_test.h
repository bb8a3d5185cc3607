// The fixture of the registry suites: the scratch key and short forms of asking
// about it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/contract/contract_test.h"

namespace tavr::contract {

inline constexpr std::uint32_t kQuery = 0x1;
inline constexpr std::uint32_t kSet = 0x2;
inline constexpr std::uint32_t kEnumerate = 0x8;
inline constexpr std::uint32_t kRead = 0x20019;
inline constexpr std::uint32_t kAll = 0x2001F;
inline constexpr std::uint32_t k64 = 0x100;
inline constexpr std::uint32_t k32 = 0x200;

class RegistryContractTest : public ContractTest {
 protected:
  /// The scratch key's path with `tail` behind it ("\\a\\b").
  std::string key(std::string_view tail = {}) { return on().scratchKey().append(tail); }

  /// Below HKEY_CURRENT_USER.
  OpenedKey open(std::uint32_t access, std::string_view tail = {}) {
    return machine().registry.open(Root::kCurrentUser, key(tail), access);
  }
  OpenedKey create(std::string_view tail = {}) {
    return machine().registry.create(Root::kCurrentUser, key(tail), "", kAll);
  }

  std::vector<std::string> subkeys(std::string_view tail = {}) {
    std::vector<std::string> names;
    const OpenedKey opened = open(kRead, tail);
    std::string name;
    while (opened.key && opened.key->enumKey(static_cast<std::uint32_t>(names.size()), name) == 0) {
      names.push_back(name);
    }
    return names;
  }
  std::vector<std::string> values(std::string_view tail = {}) {
    std::vector<std::string> names;
    const OpenedKey opened = open(kRead, tail);
    std::string name;
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    while (opened.key && opened.key->enumValue(static_cast<std::uint32_t>(names.size()), name, type,
                                               size) == kSuccess) {
      names.push_back(name);
    }
    return names;
  }

  /// The stored bytes of a text of ASCII.
  static std::string utf16(std::string_view text) {
    std::string bytes;
    for (const char c : text) bytes.append({c, '\0'});
    return bytes;
  }
};

}  // namespace tavr::contract
