// The registry of the machine folder in memory: keys, values and their order.
// It knows nothing of views, access rights or files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tavr::folder {

/// Limits of Windows: UTF-16 units of one key name, keys below one another.
inline constexpr std::size_t kMaxKeyName = 255;
inline constexpr std::size_t kMaxKeyDepth = 512;

/// A value as the registry stores it. Text is UTF-16LE, with its closing NUL or
/// without, as whoever wrote it gave it.
struct RegistryValue {
  std::string name;  ///< "" for the default value
  std::uint32_t type = 0;
  std::string data;
  /// What stands behind the "=" in the file the value was read from, "" once it
  /// was set since. Kept so that an untouched value is saved as it was found.
  std::string_view written;
};

/// One key. Changed through RegistryTree alone. Open handles share it: a key
/// that was deleted stays, marked, until the last of them closes.
class RegistryNode {
 public:
  explicit RegistryNode(std::string name) : name_(std::move(name)) {}
  RegistryNode(const RegistryNode&) = delete;
  RegistryNode& operator=(const RegistryNode&) = delete;

  const std::string& name() const { return name_; }
  bool deleted() const { return deleted_; }
  /// The file has a section for the key, not only for a key below it.
  bool listed() const { return listed_; }

  /// In the order of the upper-cased names.
  const std::vector<std::shared_ptr<RegistryNode>>& subkeys() const { return subkeys_; }
  /// Found without case; null when missing.
  std::shared_ptr<RegistryNode> subkey(std::string_view name) const;

  /// In the order in which they came.
  const std::vector<std::unique_ptr<RegistryValue>>& values() const { return values_; }
  /// Found without case; null when missing.
  const RegistryValue* value(std::string_view name) const { return find(name); }

 private:
  friend class RegistryTree;

  std::size_t place(std::string_view name) const;
  RegistryValue* find(std::string_view name) const;
  RegistryValue& append(std::string_view name);
  void erase(RegistryValue& value);

  std::string name_;
  bool listed_ = false;
  bool deleted_ = false;
  std::vector<std::shared_ptr<RegistryNode>> subkeys_;
  std::vector<std::unique_ptr<RegistryValue>> values_;
  // By upper-cased name; filled once a key has more values than a walk is good for.
  std::unordered_map<std::string, RegistryValue*> index_;
};

using RegistryNodePtr = std::shared_ptr<RegistryNode>;

class RegistryTree {
 public:
  /// Five empty roots.
  RegistryTree();

  const std::vector<RegistryNodePtr>& roots() const { return roots_; }
  /// By its long name ("HKEY_LOCAL_MACHINE"), without case; null for another name.
  RegistryNodePtr root(std::string_view name) const;

  /// The subkey of that name, made when it is missing.
  RegistryNodePtr makeSubkey(RegistryNode& parent, std::string_view name);
  /// Marks a key that the file has a section for.
  void list(RegistryNode& key);
  /// Takes the key, which has no subkeys, out of its parent and marks it deleted.
  void removeSubkey(RegistryNode& parent, RegistryNode& key);
  /// Creates or replaces; a replaced value keeps its place and name.
  void setValue(RegistryNode& key, std::string_view name, std::uint32_t type, std::string data,
                std::string_view written = {});
  /// False: no such value.
  bool removeValue(RegistryNode& key, std::string_view name);

  /// Something differs from what setUnchanged() saw last.
  bool changed() const { return changed_; }
  void setUnchanged() { changed_ = false; }

 private:
  std::vector<RegistryNodePtr> roots_;
  bool changed_ = false;
};

}  // namespace tavr::folder
