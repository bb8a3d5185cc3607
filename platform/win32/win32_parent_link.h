// Named mappings and windows of this machine.
#pragma once

#include "platform/parent_link.h"

namespace tavr::win32 {

class Win32ParentLink : public ParentLink {
 public:
  std::unique_ptr<FileMapping> createMapping(std::string_view name, std::uint32_t size) override;
  WindowHandle findWindow(std::string_view title) override;
  void sendMessage(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                   std::intptr_t lparam) override;
};

}  // namespace tavr::win32
