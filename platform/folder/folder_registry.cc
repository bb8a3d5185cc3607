#include "platform/folder/folder_registry.h"

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "basic/text.h"
#include "basic/utf.h"
#include "platform/folder/registry_path.h"
#include "platform/folder/stored_value.h"

namespace tavr::folder {

namespace {

constexpr std::uint32_t kQueryRight = 0x1;
constexpr std::uint32_t kSetRight = 0x2;
constexpr std::uint32_t kEnumerateRight = 0x8;

struct Found {
  RegistryNodePtr parent;  // null for a root
  RegistryNodePtr key;     // null when missing
};

Found walk(RegistryNodePtr root, const RegistryPath& path) {
  Found found{nullptr, std::move(root)};
  for (const std::string_view name : path.names) {
    if (found.key == nullptr) break;
    found.parent = std::move(found.key);
    found.key = found.parent->subkey(name);
  }
  return found;
}

Status deleteAt(RegistryTree& tree, const RegistryPath& path) {
  if (path.status != kSuccess) return path.status;
  const Found found = walk(tree.root(path.root), path);
  if (found.key == nullptr) return kFileNotFound;
  if (found.parent == nullptr || !found.key->subkeys().empty()) return kAccessDenied;
  tree.removeSubkey(*found.parent, *found.key);
  return kSuccess;
}

// Names go to the file as UTF-8, so bytes that are none become characters.
std::string asName(std::string_view text) { return fromUtf16(toUtf16(untilNul(text))); }

}  // namespace

class FolderRegistry::Key final : public RegistryKey {
 public:
  Key(FolderRegistry& registry, Root root, std::string_view path, std::uint32_t access,
      RegistryNodePtr node)
      : tree_(registry.tree_),
        points_(registry.points_),
        root_(root),
        path_(path),
        access_(access),
        node_(std::move(node)) {}

  Status enumKey(std::uint32_t index, std::string& name) override {
    if (const Status status = ready(points_.enum_key, kEnumerateRight)) return status;
    if (index >= node_->subkeys().size()) return kNoMoreItems;
    name = node_->subkeys()[index]->name();
    return kSuccess;
  }

  Status enumValue(std::uint32_t index, std::string& name, std::uint32_t& type,
                   std::uint32_t& size) override {
    if (const Status status = ready(points_.enum_value, kQueryRight)) return status;
    if (index >= node_->values().size()) return kNoMoreItems;
    const RegistryValue& value = *node_->values()[index];
    name = value.name;
    type = value.type;
    size = sizeOfStored(value);
    return kSuccess;
  }

  Status queryValue(std::string_view name, std::uint32_t capacity, RegistryData& out) override {
    out = {};
    if (const Status status = ready(points_.query_value, kQueryRight)) return status;
    const RegistryValue* value = node_->value(untilNul(name));
    if (value == nullptr) return kFileNotFound;
    out.type = value->type;
    out.size = sizeOfStored(*value);
    if (out.size > capacity) return kMoreData;
    out.data = readStored(*value);
    return kSuccess;
  }

  Status setValue(std::string_view name, std::uint32_t type, std::string_view data) override {
    if (const Status status = ready(points_.set_value, kSetRight)) return status;
    tree_.setValue(*node_, asName(name), type, toStored(type, data));
    return kSuccess;
  }

  Status deleteValue(std::string_view name) override {
    if (const Status status = ready(points_.delete_value, kSetRight)) return status;
    return tree_.removeValue(*node_, untilNul(name)) ? kSuccess : kFileNotFound;
  }

  // The right to delete is the subkey's own: the handle's mask has no say.
  Status deleteKey(std::string_view subkey) override {
    if (const Status status = ready(points_.delete_key, 0)) return status;
    const std::string path = (path_.empty() ? "" : path_ + "\\") + std::string(untilNul(subkey));
    return deleteAt(tree_, resolvePath(root_, path, access_));
  }

  Status security(SecurityDescriptor& /*out*/) override { return kNotSupported; }
  Status setSecurity(const SecurityDescriptor& /*descriptor*/) override { return kNotSupported; }

 private:
  Status ready(Faults::Point& point, std::uint32_t right) const {
    if (const Status fault = point.hit()) return fault;
    if (node_->deleted()) return kKeyDeleted;
    return (access_ & right) == right ? kSuccess : kAccessDenied;
  }

  RegistryTree& tree_;
  const Points& points_;
  Root root_;
  std::string path_;  // as opened: a view redirects it anew with a subkey behind it
  std::uint32_t access_;
  RegistryNodePtr node_;
};

FolderRegistry::FolderRegistry(RegistryTree& tree, Faults& faults)
    : tree_(tree), points_{faults.point("RegOpenKeyEx"),    faults.point("RegCreateKeyEx"),
                           faults.point("RegEnumKey"),      faults.point("RegEnumValue"),
                           faults.point("RegQueryValueEx"), faults.point("RegSetValueEx"),
                           faults.point("RegDeleteKey"),    faults.point("RegDeleteValue")} {}

OpenedKey FolderRegistry::open(Root root, std::string_view path, std::uint32_t access) {
  if (const Status fault = points_.open_key.hit()) return {fault, nullptr};
  path = untilNul(path);
  const RegistryPath resolved = resolvePath(root, path, access);
  if (resolved.status != kSuccess) return {resolved.status, nullptr};
  Found found = walk(tree_.root(resolved.root), resolved);
  if (found.key == nullptr) return {kFileNotFound, nullptr};
  return {kSuccess, std::make_unique<Key>(*this, root, path, access, std::move(found.key))};
}

OpenedKey FolderRegistry::create(Root root, std::string_view path, std::string_view,
                                 std::uint32_t access) {
  if (const Status fault = points_.create_key.hit()) return {fault, nullptr};
  path = untilNul(path);
  const RegistryPath resolved = resolvePath(root, path, access);
  if (resolved.status != kSuccess) return {resolved.status, nullptr};
  // A section's line in registry.reg cannot hold a line end.
  if (path.find_first_of("\r\n") != std::string_view::npos) return {kInvalidParameter, nullptr};

  RegistryNodePtr node = tree_.root(resolved.root);
  for (const std::string_view name : resolved.names) {
    RegistryNodePtr subkey = node->subkey(name);
    node = subkey != nullptr ? std::move(subkey) : tree_.makeSubkey(*node, asName(name));
  }
  return {kSuccess, std::make_unique<Key>(*this, root, path, access, std::move(node))};
}

Status FolderRegistry::deleteKey(Root root, std::string_view path) {
  if (const Status fault = points_.delete_key.hit()) return fault;
  return deleteAt(tree_, resolvePath(root, untilNul(path), k64BitView));
}

}  // namespace tavr::folder
