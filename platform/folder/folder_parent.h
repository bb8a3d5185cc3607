// The link to a parent program on a machine folder: mappings live in memory, the
// parent is a window title, and what it would read goes to parent.log.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "platform/folder/faults.h"
#include "platform/folder/machine_logs.h"
#include "platform/parent_link.h"

namespace tavr::folder {

class FolderParent : public ParentLink {
 public:
  /// `window` is the title of the parent's window, "" for none.
  FolderParent(const std::string& directory, std::string window, Faults& faults);
  ~FolderParent() override;

  std::unique_ptr<FileMapping> createMapping(std::string_view name, std::uint32_t size) override;
  WindowHandle findWindow(std::string_view title) override;
  /// Writes the text that stands at the address in wparam, up to its NUL, or
  /// "message MESSAGE WPARAM LPARAM" where wparam is no address of a view.
  void sendMessage(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                   std::intptr_t lparam) override;

 private:
  struct Section;
  class Mapping;
  class View;

  std::string window_;
  MachineLog log_;
  // Mappings by name and views by address, while somebody holds them.
  std::map<std::string, std::weak_ptr<Section>, std::less<>> sections_;
  std::multimap<std::uintptr_t, std::span<char>> views_;
  Faults::Point& mapping_fault_;
  Faults::Point& view_fault_;
  Faults::Point& window_fault_;
};

}  // namespace tavr::folder
