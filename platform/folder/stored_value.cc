#include "platform/folder/stored_value.h"

#include <cstddef>

#include "basic/utf.h"
#include "platform/folder/registry_encoding.h"
#include "platform/registry.h"

namespace tavr::folder {

namespace {

bool isText(std::uint32_t type) { return type == kRegSz || type == kRegExpandSz; }

// Units of the text before its closing NULs; a last odd byte is none.
std::size_t unitsOf(std::string_view bytes) {
  std::size_t units = bytes.size() / 2;
  while (units > 0 && bytes[units * 2 - 2] == '\0' && bytes[units * 2 - 1] == '\0') --units;
  return units;
}

std::string decode(std::string_view bytes) {
  std::u16string units;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    units += static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) |
                                   static_cast<unsigned char>(bytes[i + 1]) << 8);
  }
  return fromUtf16(units);
}

// Each string with its NUL and the closing NUL, where the stored value may lack
// the last ones. An empty string among the others is a string.
std::string closedStrings(std::string text) {
  if (text.empty()) return text;
  const bool closed = text == std::string(1, '\0') || text.ends_with(std::string_view("\0\0", 2));
  if (closed) return text;
  if (text.back() != '\0') text += '\0';
  text += '\0';
  return text;
}

}  // namespace

std::uint32_t sizeOfStored(const RegistryValue& value) {
  if (!isText(value.type)) return static_cast<std::uint32_t>(value.data.size());
  return value.data.size() < 2 ? 0 : static_cast<std::uint32_t>(unitsOf(value.data) + 1);
}

std::string readStored(const RegistryValue& value) {
  const std::string_view bytes = value.data;
  if (value.type == kRegMultiSz) return closedStrings(decode(bytes));
  if (!isText(value.type)) return value.data;
  if (bytes.size() < 2) return {};
  return decode(bytes.substr(0, unitsOf(bytes) * 2)) + '\0';
}

std::string toStored(std::uint32_t type, std::string_view data) {
  if (!isText(type) && type != kRegMultiSz) return std::string(data);
  std::string stored = utf16Bytes(data);
  if (isText(type) && !data.empty() && data.back() != '\0') stored.append(2, '\0');
  return stored;
}

}  // namespace tavr::folder
