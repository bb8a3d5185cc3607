#include "platform/folder/std_reg_prov.h"

#include <cstddef>
#include <utility>

#include "basic/text.h"

namespace tavr::folder {

namespace {

// The masks name no view: the provider's architecture is 32 bits.
constexpr std::uint32_t kQuery = 0x1;
constexpr std::uint32_t kSet = 0x2;
constexpr std::uint32_t kCreate = 0x4;

// WBEM_E_TYPE_MISMATCH
constexpr Status kTypeMismatch = 0x80041005;

// Every string ends in a NUL; the empty one at the end closes the list.
std::vector<std::string> splitStrings(std::string_view data) {
  std::vector<std::string> strings;
  while (!data.empty()) {
    const std::string_view text = untilNul(data);
    strings.emplace_back(text);
    data.remove_prefix(text.size() < data.size() ? text.size() + 1 : text.size());
  }
  if (!strings.empty() && strings.back().empty()) strings.pop_back();
  return strings;
}

}  // namespace

FolderStdRegProv::FolderStdRegProv(Registry& registry, Faults& faults, Expand expand)
    : registry_(registry),
      expand_(std::move(expand)),
      get_text_(faults.point("GetExpandedStringValue")),
      get_strings_(faults.point("GetMultiStringValue")),
      set_strings_(faults.point("SetMultiStringValue")),
      create_key_(faults.point("CreateKey")) {}

Status FolderStdRegProv::read(std::uint32_t root, std::string_view key, std::string_view name,
                              RegistryData& out) {
  const OpenedKey opened = registry_.open(static_cast<Root>(root), key, kQuery);
  if (opened.status != kSuccess) return opened.status;
  const Status status = opened.key->queryValue(name, 0, out);
  return status == kMoreData ? opened.key->queryValue(name, out.size, out) : status;
}

Status FolderStdRegProv::getExpandedStringValue(std::uint32_t root, std::string_view key,
                                                std::string_view name, std::string& out) {
  out.clear();
  if (const Status fault = get_text_.hit()) return fault;
  RegistryData data;
  if (const Status status = read(root, key, name, data)) return status;
  if (data.type != kRegSz && data.type != kRegExpandSz) return kTypeMismatch;
  out = expand_(untilNul(data.data));
  return kSuccess;
}

Status FolderStdRegProv::getMultiStringValue(std::uint32_t root, std::string_view key,
                                             std::string_view name, std::vector<std::string>& out) {
  out.clear();
  if (const Status fault = get_strings_.hit()) return fault;
  RegistryData data;
  if (const Status status = read(root, key, name, data)) return status;
  if (data.type != kRegMultiSz) return kTypeMismatch;
  out = splitStrings(data.data);
  return kSuccess;
}

Status FolderStdRegProv::setMultiStringValue(std::uint32_t root, std::string_view key,
                                             std::string_view name,
                                             const std::vector<std::string>& strings) {
  if (const Status fault = set_strings_.hit()) return fault;
  const OpenedKey opened = registry_.open(static_cast<Root>(root), key, kSet);
  if (opened.status != kSuccess) return opened.status;
  std::string data;
  for (const std::string& text : strings) {
    data += untilNul(text);
    data += '\0';
  }
  data += '\0';
  return opened.key->setValue(name, kRegMultiSz, data);
}

Status FolderStdRegProv::createKey(std::uint32_t root, std::string_view key) {
  if (const Status fault = create_key_.hit()) return fault;
  return registry_.create(static_cast<Root>(root), key, "", kCreate).status;
}

}  // namespace tavr::folder
