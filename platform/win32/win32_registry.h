// The registry of the machine that the program runs on.
#pragma once

#include <memory>

#include "platform/registry.h"

namespace tavr::win32 {

class Win32Registry : public Registry {
 public:
  Win32Registry();
  ~Win32Registry() override;
  Win32Registry(const Win32Registry&) = delete;
  Win32Registry& operator=(const Win32Registry&) = delete;

  OpenedKey open(Root root, std::string_view path, std::uint32_t access) override;
  OpenedKey create(Root root, std::string_view path, std::string_view key_class,
                   std::uint32_t access) override;
  Status deleteKey(Root root, std::string_view path) override;

 private:
  struct Software;
  std::unique_ptr<Software> software_;  ///< opened at its first use
};

}  // namespace tavr::win32
