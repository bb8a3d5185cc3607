#include "services/access.h"

#include <algorithm>

#include "services/access_list.h"

namespace tavr {

namespace {

// Six key rights, READ_CONTROL, WRITE_DAC and the 64-bit view.
constexpr std::uint32_t kKeyAccessToGrant = 0x6013F;
constexpr std::uint32_t kGenericAll = 0x10000000;
// GENERIC_READ, GENERIC_WRITE, GENERIC_EXECUTE and DELETE.
constexpr std::uint32_t kUserRights = 0xE0010000;

// Everyone and the user may use the key itself. The user is denied the subkeys:
// kept, other programs find the lists so.
std::vector<AccountAccess> keyRequest(std::string_view user) {
  const std::string name(user);
  return {{"", kGenericAll, kContainerInherit, kAceAllowed, everyoneSid()},
          {name, kUserRights, 0, kAceAllowed, ""},
          {name, kGenericAll, kContainerInherit | kInheritOnly, kAceDenied, ""}};
}

bool IsListedSid(const std::vector<AccountAccess>& request, std::string_view sid) {
  return std::any_of(request.begin(), request.end(),
                     [sid](const AccountAccess& access) { return access.Sid == sid; });
}

bool addRequested(AccessList& list, const std::vector<AccountAccess>& request, std::uint8_t type) {
  return std::all_of(request.begin(), request.end(), [&](const AccountAccess& access) {
    return access.AceType != type ||
           list.add(AccessEntry(type, access.AceFlags, access.AccessMask, access.Sid));
  });
}

// The control bits that say how the list came about go along.
std::uint16_t controlFrom(const SecurityDescriptor& old) {
  if ((old.control & kDaclAutoInherited) != 0) return kDaclAutoInheritRequired | kDaclAutoInherited;
  return old.control & kDaclProtected;
}

// The entries of `old` but for those of `sid`.
bool addOthers(AccessList& list, const AccessList& old, std::string_view sid) {
  const auto& entries = old.entries();
  return std::all_of(entries.begin(), entries.end(), [&](const AccessEntry& entry) {
    return entry.sid() == sid || list.add(entry);
  });
}

}  // namespace

std::optional<SecurityDescriptor> MergeAccessEntries(Accounts& accounts,
                                                     const SecurityDescriptor* old,
                                                     std::vector<AccountAccess> request) {
  constexpr std::size_t kEntryWithoutSid = 8;
  const bool has_list = old != nullptr && old->dacl.has_value();
  const AccessList old_list = has_list ? AccessList(*old->dacl) : AccessList(std::size_t{0});
  std::size_t size = old_list.bytesInUse();
  for (AccountAccess& access : request) {
    if (access.Sid.empty() && accounts.sidOf(access.AccountName, access.Sid) != kSuccess) return {};
    size += access.Sid.size() + kEntryWithoutSid;
  }

  AccessList list(size);
  if (!addRequested(list, request, kAceDenied)) return {};
  auto entry = old_list.entries().begin();
  const auto end = old_list.entries().end();
  for (; entry != end && (entry->flags() & kInherited) == 0; ++entry) {
    if (!IsListedSid(request, entry->sid()) && !list.add(*entry)) return {};
  }
  if (!addRequested(list, request, kAceAllowed)) return {};
  for (; entry != end; ++entry) {
    if (!list.add(*entry)) return {};
  }

  SecurityDescriptor merged;
  if (old != nullptr) merged.control = controlFrom(*old);
  merged.dacl = list.bytes();
  return merged;
}

bool GrantKeyAccess(Machine& machine, Root root, std::string_view key, std::string_view user) {
  const OpenedKey opened = machine.registry.open(root, key, kKeyAccessToGrant);
  if (opened.status != kSuccess) return false;
  SecurityDescriptor old;
  const Status status = opened.key->security(old);
  if (status == kNotSupported) return true;
  if (status != kSuccess) return false;
  const auto merged = MergeAccessEntries(machine.accounts, &old, keyRequest(user));
  return merged && opened.key->setSecurity(*merged) == kSuccess;
}

void GrantFileAccess(Machine& machine, std::string_view user, std::string_view path,
                     std::uint32_t mask) {
  std::string sid;
  if (machine.accounts.sidOf(user, sid) != kSuccess) return;
  SecurityDescriptor old;
  if (machine.files.security(path, old) != kSuccess || !old.dacl) return;
  const AccessList old_list(*old.dacl);
  if (old_list.entries().empty()) return;

  // Room for two entries, each with four bytes to spare, less four.
  AccessList list(old_list.bytesInUse() + 2 * (sid.size() + 12) - 4);
  if (!addOthers(list, old_list, sid)) return;
  std::uint32_t attributes = 0;
  const bool folder =
      machine.files.attributes(path, attributes) == kSuccess && (attributes & kAttrDirectory) != 0;
  if (!list.add(AccessEntry(kAceAllowed, folder ? kObjectInherit | kInheritOnly : 0, mask, sid))) {
    return;
  }
  if (folder && !list.add(AccessEntry(kAceAllowed, kContainerInherit, mask, sid))) return;
  SecurityDescriptor changed;
  changed.dacl = list.bytes();
  machine.files.setSecurity(path, changed);
}

}  // namespace tavr
