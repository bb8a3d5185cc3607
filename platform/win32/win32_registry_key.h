// An open registry key.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/registry.h"

namespace tavr::win32 {

/// A name in the path has more units than any key's has.
bool hasLongName(std::wstring_view path);

class Win32RegistryKey final : public RegistryKey {
 public:
  /// Takes the handle (HKEY). `view` is the one it was opened in, 0x100 or 0x200, 0
  /// for a person's key, which has none.
  Win32RegistryKey(void* key, std::uint32_t view) : key_(key), view_(view) {}
  ~Win32RegistryKey() override;
  Win32RegistryKey(const Win32RegistryKey&) = delete;
  Win32RegistryKey& operator=(const Win32RegistryKey&) = delete;

  Status enumKey(std::uint32_t index, std::string& name) override;
  Status enumValue(std::uint32_t index, std::string& name, std::uint32_t& type,
                   std::uint32_t& size) override;
  Status queryValue(std::string_view name, std::uint32_t capacity, RegistryData& out) override;
  Status setValue(std::string_view name, std::uint32_t type, std::string_view data) override;
  Status deleteValue(std::string_view name) override;
  Status deleteKey(std::string_view subkey) override;
  Status security(SecurityDescriptor& out) override;
  Status setSecurity(const SecurityDescriptor& descriptor) override;

 private:
  void* key_;
  std::uint32_t view_;
  // Room for an enumeration of values, made at its first step.
  std::wstring value_name_;
  std::vector<unsigned char> value_data_;
};

}  // namespace tavr::win32
