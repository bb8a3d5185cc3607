#include "platform/folder/registry_tree.h"

#include <algorithm>
#include <utility>

#include "basic/text.h"

namespace tavr::folder {

namespace {

constexpr std::size_t kIndexedFrom = 24;

constexpr const char* kRootNames[] = {"HKEY_CLASSES_ROOT", "HKEY_CURRENT_USER",
                                      "HKEY_LOCAL_MACHINE", "HKEY_USERS", "HKEY_CURRENT_CONFIG"};

}  // namespace

// Position of the first subkey that is not ordered before `name`.
std::size_t RegistryNode::place(std::string_view name) const {
  // A file lists keys in their order: mostly the new one goes behind the last.
  if (subkeys_.empty() || compareUpper(subkeys_.back()->name_, name) < 0) return subkeys_.size();
  const auto at = std::lower_bound(subkeys_.begin(), subkeys_.end(), name,
                                   [](const RegistryNodePtr& key, std::string_view n) {
                                     return compareUpper(key->name_, n) < 0;
                                   });
  return static_cast<std::size_t>(at - subkeys_.begin());
}

RegistryNodePtr RegistryNode::subkey(std::string_view name) const {
  const std::size_t at = place(name);
  if (at == subkeys_.size() || !sameText(subkeys_[at]->name_, name)) return nullptr;
  return subkeys_[at];
}

RegistryValue* RegistryNode::find(std::string_view name) const {
  if (!index_.empty()) {
    const auto found = index_.find(UCase(name));
    return found == index_.end() ? nullptr : found->second;
  }
  for (const auto& value : values_) {
    if (sameText(value->name, name)) return value.get();
  }
  return nullptr;
}

RegistryValue& RegistryNode::append(std::string_view name) {
  values_.push_back(std::make_unique<RegistryValue>());
  RegistryValue& value = *values_.back();
  value.name = name;
  if (!index_.empty()) {
    index_.emplace(UCase(name), &value);
  } else if (values_.size() == kIndexedFrom) {
    for (const auto& each : values_) index_.emplace(UCase(each->name), each.get());
  }
  return value;
}

void RegistryNode::erase(RegistryValue& value) {
  if (!index_.empty()) index_.erase(UCase(value.name));
  const auto at = std::find_if(values_.begin(), values_.end(),
                               [&](const auto& each) { return each.get() == &value; });
  values_.erase(at);
}

RegistryTree::RegistryTree() {
  for (const char* name : kRootNames) roots_.push_back(std::make_shared<RegistryNode>(name));
}

RegistryNodePtr RegistryTree::root(std::string_view name) const {
  for (const RegistryNodePtr& each : roots_) {
    if (sameText(each->name(), name)) return each;
  }
  return nullptr;
}

RegistryNodePtr RegistryTree::makeSubkey(RegistryNode& parent, std::string_view name) {
  const std::size_t at = parent.place(name);
  if (at < parent.subkeys_.size() && sameText(parent.subkeys_[at]->name_, name)) {
    return parent.subkeys_[at];
  }
  auto made = std::make_shared<RegistryNode>(std::string(name));
  parent.subkeys_.insert(parent.subkeys_.begin() + static_cast<std::ptrdiff_t>(at), made);
  changed_ = true;
  return made;
}

void RegistryTree::list(RegistryNode& key) {
  if (std::exchange(key.listed_, true)) return;
  changed_ = true;
}

void RegistryTree::removeSubkey(RegistryNode& parent, RegistryNode& key) {
  const std::size_t at = parent.place(key.name_);
  key.deleted_ = true;  // before the erasure, which may end the key
  parent.subkeys_.erase(parent.subkeys_.begin() + static_cast<std::ptrdiff_t>(at));
  changed_ = true;
}

void RegistryTree::setValue(RegistryNode& key, std::string_view name, std::uint32_t type,
                            std::string data, std::string_view written) {
  RegistryValue* value = key.find(name);
  if (value != nullptr && value->type == type && value->data == data) return;
  if (value == nullptr) value = &key.append(name);
  value->type = type;
  value->data = std::move(data);
  value->written = written;
  changed_ = true;
}

bool RegistryTree::removeValue(RegistryNode& key, std::string_view name) {
  RegistryValue* value = key.find(name);
  if (value == nullptr) return false;
  key.erase(*value);
  changed_ = true;
  return true;
}

}  // namespace tavr::folder
