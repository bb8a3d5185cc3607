#include "platform/win32/security_descriptor.h"

#include <windows.h>

#include <cstring>
#include <string>
#include <vector>

#include "platform/win32/win32_error.h"

namespace tavr::win32 {

namespace {

// What SetSecurityDescriptorControl takes of a list's control bits.
constexpr SECURITY_DESCRIPTOR_CONTROL kControl =
    kDaclAutoInheritRequired | kDaclAutoInherited | kDaclProtected;

Status takeApart(void* native, SecurityDescriptor& out) {
  SECURITY_DESCRIPTOR_CONTROL control = 0;
  DWORD revision = 0;
  BOOL present = FALSE;
  BOOL defaulted = FALSE;
  PACL list = nullptr;
  if (!GetSecurityDescriptorControl(native, &control, &revision) ||
      !GetSecurityDescriptorDacl(native, &present, &list, &defaulted)) {
    return lastStatus();
  }
  out.control = control;
  if (present && list != nullptr) {
    out.dacl.emplace(reinterpret_cast<const char*>(list), list->AclSize);
  }
  return kSuccess;
}

}  // namespace

Status readDescriptor(const GetDescriptor& get, SecurityDescriptor& out) {
  out = {};
  constexpr std::size_t kUsual = 1024;  // bytes, most lists need less
  std::vector<std::uint64_t> buffer(kUsual / sizeof(std::uint64_t));
  for (;;) {
    const auto size = static_cast<DWORD>(buffer.size() * sizeof(buffer[0]));
    DWORD needed = 0;
    const Status status = get(buffer.data(), size, needed);
    if (status == kSuccess) return takeApart(buffer.data(), out);
    if (status != ERROR_INSUFFICIENT_BUFFER || needed <= size) return status;
    buffer.resize(needed / sizeof(buffer[0]) + 1);
  }
}

struct NativeDescriptor::Native {
  SECURITY_DESCRIPTOR descriptor = {};
  std::vector<DWORD> list;  // the list at an address that suits its fields
};

NativeDescriptor::NativeDescriptor(const SecurityDescriptor& descriptor)
    : native_(std::make_unique<Native>()) {
  PACL list = nullptr;
  if (descriptor.dacl) {
    const std::string& bytes = *descriptor.dacl;
    native_->list.resize(bytes.size() / sizeof(DWORD) + sizeof(ACL));
    std::memcpy(native_->list.data(), bytes.data(), bytes.size());
    list = reinterpret_cast<PACL>(native_->list.data());
    if (bytes.size() < sizeof(ACL) || list->AclSize > bytes.size() || !IsValidAcl(list)) {
      status_ = ERROR_INVALID_ACL;
      return;
    }
  }
  SECURITY_DESCRIPTOR* const native = &native_->descriptor;
  if (!InitializeSecurityDescriptor(native, SECURITY_DESCRIPTOR_REVISION) ||
      !SetSecurityDescriptorDacl(native, TRUE, list, FALSE) ||
      !SetSecurityDescriptorControl(native, kControl, descriptor.control & kControl)) {
    status_ = lastStatus();
  }
}

NativeDescriptor::~NativeDescriptor() = default;

void* NativeDescriptor::get() const { return &native_->descriptor; }

}  // namespace tavr::win32
