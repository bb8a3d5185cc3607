#include "services/access.h"

namespace tavr {

namespace {

// Six key rights, READ_CONTROL, WRITE_DAC and the 64-bit view.
constexpr std::uint32_t kKeyAccessToGrant = 0x6013F;

}  // namespace

bool GrantKeyAccess(Machine& machine, Root root, std::string_view key, std::string_view /*user*/) {
  return machine.registry.open(root, key, kKeyAccessToGrant).status == kSuccess;
}

void GrantFileAccess(Machine& /*machine*/, std::string_view /*user*/, std::string_view /*path*/,
                     std::uint32_t /*mask*/) {}

}  // namespace tavr
