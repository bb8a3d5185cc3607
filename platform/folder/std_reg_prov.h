// WMI's registry provider of the machine folder. The provider is a process of
// its own on Windows: what it opens and reads there counts for no fault of the
// program's own registry calls, so give it a registry with faults of its own.
#pragma once

#include <functional>
#include <string>

#include "platform/folder/faults.h"
#include "platform/registry.h"

namespace tavr::folder {

class FolderStdRegProv final : public StdRegProv {
 public:
  using Expand = std::function<std::string(std::string_view)>;

  /// `registry` and `faults` outlive this object. `expand` replaces the
  /// references to environment variables in a text.
  FolderStdRegProv(Registry& registry, Faults& faults, Expand expand);

  Status getExpandedStringValue(std::uint32_t root, std::string_view key, std::string_view name,
                                std::string& out) override;
  Status getMultiStringValue(std::uint32_t root, std::string_view key, std::string_view name,
                             std::vector<std::string>& out) override;
  Status setMultiStringValue(std::uint32_t root, std::string_view key, std::string_view name,
                             const std::vector<std::string>& strings) override;
  Status createKey(std::uint32_t root, std::string_view key) override;

 private:
  Status read(std::uint32_t root, std::string_view key, std::string_view name, RegistryData& out);

  Registry& registry_;
  Expand expand_;
  Faults::Point& get_text_;
  Faults::Point& get_strings_;
  Faults::Point& set_strings_;
  Faults::Point& create_key_;
};

}  // namespace tavr::folder
