#include "tests/machine/registry_image.h"

#include <cstdint>

#include "basic/text.h"
#include "platform/folder/registry_encoding.h"
#include "platform/folder/registry_reader.h"
#include "platform/folder/registry_tree.h"

namespace tavr::testing {

namespace {

constexpr std::uint32_t kText = 1;
constexpr std::uint32_t kExpandText = 2;
constexpr std::string_view kHead = "Windows Registry Editor Version 5.00\n";

std::string keyId(std::string_view path) { return UCase(path); }

std::string valueId(std::string_view path, std::string_view name) {
  return UCase(path) + '\0' + UCase(name);
}

// Text as text, anything else in hexadecimal.
std::string shownData(std::uint32_t type, std::string data) {
  const std::string shown = "type " + std::to_string(type) + " ";
  if ((type == kText || type == kExpandText) && data.size() % 2 == 0) {
    if (data.ends_with(std::string_view("\0\0", 2))) data.resize(data.size() - 2);
    return shown + '"' + folder::fromUtf16Bytes(data) + '"';
  }
  constexpr char kDigits[] = "0123456789abcdef";
  std::string digits;
  for (const char c : data) {
    const auto byte = static_cast<unsigned char>(c);
    digits += {kDigits[byte >> 4], kDigits[byte & 15], ' '};
  }
  return shown + digits;
}

}  // namespace

RegistryImage RegistryImage::of(std::string_view file) {
  RegistryImage image;
  if (file.empty()) return image;
  folder::RegistryEncoding encoding;
  const std::string text = folder::decodeRegistry("registry.reg", std::string(file), encoding);
  folder::RegistryTree tree;
  folder::readRegistry("registry.reg", text, tree);
  const auto add = [&](const auto& self, const folder::RegistryNode& key,
                       const std::string& path) -> void {
    image.items_[keyId(path)] = {path, ""};
    for (const auto& value : key.values()) {
      image.items_[valueId(path, value->name)] = {
          path + (value->name.empty() ? " @" : " \"" + value->name + "\""),
          shownData(value->type, value->data)};
    }
    for (const auto& subkey : key.subkeys()) self(self, *subkey, path + "\\" + subkey->name());
  };
  for (const auto& root : tree.roots()) add(add, *root, root->name());
  return image;
}

bool RegistryImage::removeKey(std::string_view key) {
  const std::string id = keyId(key);
  const auto belongs = [&id](const auto& item) {
    const std::string& other = item.first;
    return other == id ||
           (other.starts_with(id) && (other[id.size()] == '\\' || other[id.size()] == '\0'));
  };
  return std::erase_if(items_, belongs) > 0;
}

std::vector<std::string> RegistryImage::apply(const std::vector<RegistryLine>& lines) {
  std::vector<std::string> complaints;
  for (const RegistryLine& line : lines) {
    if (!line.removes) continue;
    bool gone = false;
    if (line.value.empty()) {
      gone = removeKey(line.key);
    } else {
      std::string text = std::string(kHead) + "[" + line.key + "]\n" + line.value + "=\"\"\n";
      for (const auto& [id, item] : of(text).items_) {
        if (!item.value.empty()) gone = items_.erase(id) > 0;
      }
    }
    if (!gone) complaints.push_back("reg- " + line.key + " " + line.value + " was not there");
  }
  for (const RegistryLine& line : lines) {
    if (line.removes) continue;
    const std::string text = std::string(kHead) + "[" + line.key + "]\n" + line.value + "\n";
    bool changes = false;
    for (const auto& [id, item] : of(text).items_) {
      const auto found = items_.find(id);
      if (found != items_.end() && found->second == item) continue;
      changes = true;
      items_[id] = {found == items_.end() ? item.name : found->second.name, item.value};
    }
    if (!changes) complaints.push_back("reg+ " + line.key + " " + line.value + " changes nothing");
  }
  return complaints;
}

void RegistryImage::changeAs(const RegistryImage& from, const RegistryImage& to) {
  for (const auto& [id, item] : from.items_) {
    if (!to.items_.contains(id)) items_.erase(id);
  }
  for (const auto& [id, item] : to.items_) {
    const auto found = from.items_.find(id);
    if (found == from.items_.end() || found->second != item) items_[id] = item;
  }
}

std::vector<std::string> RegistryImage::differences(const RegistryImage& actual) const {
  const auto shown = [](char sign, const Item& item) {
    return std::string(1, sign) + " " + item.name + (item.value.empty() ? "" : " = " + item.value);
  };
  std::vector<std::string> lines;
  for (const auto& [id, item] : items_) {
    const auto found = actual.items_.find(id);
    if (found != actual.items_.end() && found->second == item) continue;
    lines.push_back(shown('-', item));
    if (found != actual.items_.end()) lines.push_back(shown('+', found->second));
  }
  for (const auto& [id, item] : actual.items_) {
    if (!items_.contains(id)) lines.push_back(shown('+', item));
  }
  return lines;
}

std::vector<std::string> RegistryImage::missingIn(const RegistryImage& later) const {
  std::vector<std::string> names;
  for (const auto& [id, item] : items_) {
    if (!later.items_.contains(id)) names.push_back(item.name);
  }
  return names;
}

}  // namespace tavr::testing
