// The program's own settings: read and written one value at a time, at the
// moment they are needed, each time after the grant of access on the key.
#include "basic/number.h"
#include "basic/utf.h"
#include "services/access.h"
#include "services/registry_layer.h"

namespace tavr {

namespace {

// READ_CONTROL and the six key rights; no view named.
constexpr std::uint32_t kSettingsAccess = 0x2003F;
constexpr std::uint32_t kBuffer = 1024;

// "&h" and the digits as a number; a text that is none stays a text.
std::string hexAsDecimal(const std::string& digits) {
  const bool all_hex = digits.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos;
  if (digits.empty() || !all_hex) return "&h" + digits;
  return numberText(Val("&h" + digits));
}

// Each byte from the last to the first, without leading zeros: 0x105 reads as
// 0, 1, 5, that is hexadecimal 015.
void appendHexDigits(std::string_view bytes, std::string& out) {
  for (std::size_t i = bytes.size(); i-- > 0;) out += Hex(static_cast<unsigned char>(bytes[i]));
}

}  // namespace

void RegistryLayer::grant(Root root, std::string_view key) const {
  const bool granted = GrantKeyAccess(machine_, root, key, machine_.environment.get("UserName"));
  if (grant_failed_ != nullptr) *grant_failed_ = !granted;
}

bool RegistryLayer::fGetString(Root root, std::string_view key, std::string_view name,
                               std::string& out) const {
  grant(root, key);
  const OpenedKey opened = machine_.registry.open(root, key, kSettingsAccess);
  RegistryData data;
  if (opened.status != kSuccess || opened.key->queryValue(name, kBuffer, data) != kSuccess) {
    out.clear();
    return false;
  }
  std::string kept = data.data;
  if (!kept.empty() && kept.back() == '\0') kept.pop_back();
  if (data.type == kRegSz) {
    out = kept;
  } else if (data.type == kRegDword) {
    appendHexDigits(kept, out);
    out = hexAsDecimal(out);
  }
  return true;
}

std::string RegistryLayer::setting(std::string_view key, std::string_view name) const {
  std::string text;
  fGetString(Root::kLocalMachine, key, name, text);
  return text;
}

bool RegistryLayer::fSaveString(Root root, std::string_view key, std::string_view name,
                                std::string_view text) const {
  grant(root, key);
  const OpenedKey opened = machine_.registry.create(root, key, "1", kSettingsAccess);
  if (opened.status != kSuccess) return false;
  return opened.key->setValue(name, kRegSz, text) == kSuccess;
}

}  // namespace tavr
