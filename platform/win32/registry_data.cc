#include "platform/win32/registry_data.h"

#include <cstring>

#include "platform/win32/wide.h"

namespace tavr::win32 {

namespace {

constexpr std::size_t kUnit = sizeof(wchar_t);

// A last odd byte is no unit.
std::wstring unitsOf(const void* bytes, std::size_t size) {
  std::wstring units(size / kUnit, L'\0');
  std::memcpy(units.data(), bytes, units.size() * kUnit);
  return units;
}

// Units of a text before its closing NULs.
std::size_t lengthOf(const void* bytes, std::size_t size) {
  const auto* at = static_cast<const char*>(bytes);
  std::size_t units = size / kUnit;
  while (units > 0 && at[units * kUnit - 2] == '\0' && at[units * kUnit - 1] == '\0') --units;
  return units;
}

// Each string with its NUL and the closing NUL, where the stored value may lack
// the last ones.
void closeStrings(std::string& text) {
  if (text.empty() || text == std::string(1, '\0')) return;
  if (text.ends_with(std::string_view("\0\0", 2))) return;
  if (text.back() != '\0') text += '\0';
  text += '\0';
}

}  // namespace

bool isText(std::uint32_t type) { return type == kRegSz || type == kRegExpandSz; }

std::uint32_t sizeOfStored(std::uint32_t type, const void* bytes, std::size_t size) {
  if (!isText(type)) return static_cast<std::uint32_t>(size);
  return size < kUnit ? 0 : static_cast<std::uint32_t>(lengthOf(bytes, size) + 1);
}

std::string readStored(std::uint32_t type, const void* bytes, std::size_t size) {
  if (type == kRegMultiSz) {
    std::string strings = narrow(unitsOf(bytes, size));
    closeStrings(strings);
    return strings;
  }
  if (!isText(type)) return {static_cast<const char*>(bytes), size};
  if (size < kUnit) return {};
  return narrow(unitsOf(bytes, lengthOf(bytes, size) * kUnit)) + '\0';
}

std::string toStored(std::uint32_t type, std::string_view data) {
  if (!isText(type) && type != kRegMultiSz) return std::string(data);
  std::wstring units = wide(data);
  if (isText(type) && !data.empty() && data.back() != '\0') units += L'\0';
  return {reinterpret_cast<const char*>(units.data()), units.size() * kUnit};
}

}  // namespace tavr::win32
