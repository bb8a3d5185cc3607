// The machine's registry over the tree that registry.reg holds: views, access
// masks, sizes and error numbers as on a 64-bit Windows.
#pragma once

#include "platform/folder/faults.h"
#include "platform/folder/registry_tree.h"
#include "platform/registry.h"

namespace tavr::folder {

/// Views: 0x100 names the 64-bit view, 0x200 the 32-bit one, both together give
/// 87, neither means the 32-bit one. In that view HKEY_LOCAL_MACHINE\SOFTWARE\x
/// is HKEY_LOCAL_MACHINE\SOFTWARE\WOW6432Node\x, also when the path says so
/// itself. Empty parts of a path count for nothing. 87: a key name of more than
/// 255 units.
class FolderRegistry final : public Registry {
 public:
  /// `tree` and `faults` outlive this object, and this object its open keys.
  FolderRegistry(RegistryTree& tree, Faults& faults);

  OpenedKey open(Root root, std::string_view path, std::uint32_t access) override;
  /// The class text goes nowhere: registry.reg does not hold one.
  OpenedKey create(Root root, std::string_view path, std::string_view key_class,
                   std::uint32_t access) override;
  /// In the 64-bit view: no mask names one, and the walk that ends in this call
  /// has seen the key's subkeys there.
  Status deleteKey(Root root, std::string_view path) override;

 private:
  struct Points {
    Faults::Point& open_key;
    Faults::Point& create_key;
    Faults::Point& enum_key;
    Faults::Point& enum_value;
    Faults::Point& query_value;
    Faults::Point& set_value;
    Faults::Point& delete_key;
    Faults::Point& delete_value;
  };
  class Key;

  RegistryTree& tree_;
  Points points_;
};

}  // namespace tavr::folder
