// What the suites of access rights read of the lists that Windows keeps.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>
// After windows.h, which it needs.
#include <aclapi.h>

#include <ostream>
#include <string>
#include <vector>

#include "platform/security.h"
#include "services/access_list.h"

namespace tavr::contract {

// What the generic rights are of a file and of a key.
inline constexpr GENERIC_MAPPING kFileRights = {FILE_GENERIC_READ, FILE_GENERIC_WRITE,
                                                FILE_GENERIC_EXECUTE, FILE_ALL_ACCESS};
inline constexpr GENERIC_MAPPING kKeyRights = {KEY_READ, KEY_WRITE, KEY_EXECUTE, KEY_ALL_ACCESS};

// A mask without generic rights: the system may have mapped them already.
inline std::uint32_t mapped(std::uint32_t mask, GENERIC_MAPPING rights) {
  DWORD bits = mask;
  MapGenericMask(&bits, &rights);
  return bits;
}

// What a list says of one entry.
struct Entry {
  std::uint8_t type = 0;
  std::uint8_t flags = 0;
  std::string sid;
  std::uint32_t mask = 0;
  bool operator==(const Entry&) const = default;
  friend void PrintTo(const Entry& entry, std::ostream* out) {
    *out << "type " << int{entry.type} << " flags " << int{entry.flags} << " sid "
         << ::testing::PrintToString(entry.sid) << " mask " << std::hex << entry.mask << std::dec;
  }
};

inline std::vector<Entry> entriesOf(const SecurityDescriptor& descriptor,
                                    const GENERIC_MAPPING& rights) {
  std::vector<Entry> entries;
  const AccessList list(descriptor.dacl.value_or(""));
  for (const AccessEntry& entry : list.entries()) {
    entries.push_back(
        {entry.type(), entry.flags(), std::string(entry.sid()), mapped(entry.mask(), rights)});
  }
  return entries;
}

// Owner and group of a key or file, as the system's own notation has them.
inline std::string ownerOf(const std::wstring& name, SE_OBJECT_TYPE type) {
  PSID owner = nullptr;
  PSID group = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  EXPECT_EQ(GetNamedSecurityInfoW(name.c_str(), type,
                                  OWNER_SECURITY_INFORMATION | GROUP_SECURITY_INFORMATION, &owner,
                                  &group, nullptr, nullptr, &descriptor),
            DWORD{ERROR_SUCCESS});
  std::string sids;
  for (const PSID sid : {owner, group}) {
    if (sid != nullptr) sids.append(static_cast<const char*>(sid), GetLengthSid(sid));
  }
  LocalFree(descriptor);
  return sids;
}

}  // namespace tavr::contract
