#include "platform/win32/win32_registry_key.h"

#include <windows.h>

#include <algorithm>
#include <array>

#include "platform/win32/registry_data.h"
#include "platform/win32/security_descriptor.h"
#include "platform/win32/wide.h"

namespace tavr::win32 {

namespace {

constexpr DWORD kKeyNameRoom = 256;      // 255 units and the NUL
constexpr DWORD kValueNameRoom = 16384;  // 16383 and the NUL
constexpr std::size_t kUsualData = 1024;

HKEY asKey(void* handle) { return static_cast<HKEY>(handle); }
Status asStatus(LSTATUS status) { return static_cast<Status>(status); }

void take(RegistryData& out, DWORD type, const BYTE* data, DWORD size, std::uint32_t capacity) {
  out.type = type;
  out.size = sizeOfStored(type, data, size);
  if (out.size <= capacity) out.data = readStored(type, data, size);
}

}  // namespace

bool hasLongName(std::wstring_view path) {
  constexpr std::size_t kLongestName = kKeyNameRoom - 1;
  if (path.size() <= kLongestName) return false;
  for (std::size_t at = 0; at < path.size();) {
    const std::size_t end = std::min(path.find(L'\\', at), path.size());
    if (end - at > kLongestName) return true;
    at = end + 1;
  }
  return false;
}

Win32RegistryKey::~Win32RegistryKey() { RegCloseKey(asKey(key_)); }

Status Win32RegistryKey::enumKey(std::uint32_t index, std::string& name) {
  std::array<wchar_t, kKeyNameRoom> room;
  DWORD length = kKeyNameRoom;
  const LSTATUS status =
      RegEnumKeyExW(asKey(key_), index, room.data(), &length, nullptr, nullptr, nullptr, nullptr);
  if (status == ERROR_SUCCESS) name = narrow({room.data(), length});
  return asStatus(status);
}

// The data is read, too: the size of a text depends on its closing NULs.
Status Win32RegistryKey::enumValue(std::uint32_t index, std::string& name, std::uint32_t& type,
                                   std::uint32_t& size) {
  if (value_name_.empty()) {
    value_name_.resize(kValueNameRoom);
    value_data_.resize(kUsualData);
  }
  for (;;) {
    DWORD length = kValueNameRoom;
    DWORD found_type = REG_NONE;
    auto bytes = static_cast<DWORD>(value_data_.size());
    const LSTATUS status = RegEnumValueW(asKey(key_), index, value_name_.data(), &length, nullptr,
                                         &found_type, value_data_.data(), &bytes);
    if (status == ERROR_SUCCESS) {
      name = narrow({value_name_.data(), length});
      type = found_type;
      size = sizeOfStored(found_type, value_data_.data(), bytes);
      return kSuccess;
    }
    if (status != ERROR_MORE_DATA || bytes <= value_data_.size()) return asStatus(status);
    value_data_.resize(bytes);
  }
}

Status Win32RegistryKey::queryValue(std::string_view name, std::uint32_t capacity,
                                    RegistryData& out) {
  out = {};
  const std::wstring value = wide(name);
  DWORD type = REG_NONE;
  std::array<BYTE, kUsualData> usual;
  auto size = static_cast<DWORD>(usual.size());
  LSTATUS status =
      RegQueryValueExW(asKey(key_), value.c_str(), nullptr, &type, usual.data(), &size);
  if (status == ERROR_SUCCESS) {
    take(out, type, usual.data(), size, capacity);
  } else if (status == ERROR_MORE_DATA) {
    std::vector<BYTE> room;
    while (status == ERROR_MORE_DATA) {  // it may have grown in between
      room.resize(size);
      status = RegQueryValueExW(asKey(key_), value.c_str(), nullptr, &type, room.data(), &size);
    }
    if (status == ERROR_SUCCESS) take(out, type, room.data(), size, capacity);
  }
  if (status != ERROR_SUCCESS) return asStatus(status);
  return out.size > capacity ? kMoreData : kSuccess;
}

Status Win32RegistryKey::setValue(std::string_view name, std::uint32_t type,
                                  std::string_view data) {
  std::string stored = toStored(type, data);
  const auto size = static_cast<DWORD>(stored.size());
  // Windows stores a NUL that it finds behind a text; this one gets none.
  stored.append(sizeof(wchar_t), '\xFF');
  return asStatus(RegSetValueExW(asKey(key_), wide(name).c_str(), 0, type,
                                 reinterpret_cast<const BYTE*>(stored.data()), size));
}

Status Win32RegistryKey::deleteValue(std::string_view name) {
  return asStatus(RegDeleteValueW(asKey(key_), wide(name).c_str()));
}

Status Win32RegistryKey::deleteKey(std::string_view subkey) {
  const std::wstring name = wide(subkey);
  if (hasLongName(name)) return kInvalidParameter;
  return asStatus(RegDeleteKeyExW(asKey(key_), name.c_str(), view_, 0));
}

Status Win32RegistryKey::security(SecurityDescriptor& out) {
  return readDescriptor(
      [this](void* buffer, unsigned long size, unsigned long& needed) {
        needed = size;
        return asStatus(RegGetKeySecurity(asKey(key_), DACL_SECURITY_INFORMATION, buffer, &needed));
      },
      out);
}

Status Win32RegistryKey::setSecurity(const SecurityDescriptor& descriptor) {
  const NativeDescriptor native(descriptor);
  if (native.status() != kSuccess) return native.status();
  return asStatus(RegSetKeySecurity(asKey(key_), DACL_SECURITY_INFORMATION, native.get()));
}

}  // namespace tavr::win32
