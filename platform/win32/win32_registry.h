// The registry of the machine that the program runs on.
#pragma once

#include "platform/registry.h"

namespace tavr::win32 {

class Win32Registry : public Registry {
 public:
  OpenedKey open(Root root, std::string_view path, std::uint32_t access) override;
  OpenedKey create(Root root, std::string_view path, std::string_view key_class,
                   std::uint32_t access) override;
  Status deleteKey(Root root, std::string_view path) override;
};

}  // namespace tavr::win32
