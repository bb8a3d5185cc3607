#include "platform/win32/win32_files.h"

#include <windows.h>

#include "platform/win32/security_descriptor.h"
#include "platform/win32/win32_error.h"
#include "platform/win32/win32_open_file.h"
#include "platform/win32/win32_path.h"

namespace tavr::win32 {

namespace {

constexpr DWORD kSettable = kAttrReadOnly | kAttrHidden | kAttrSystem | kAttrArchive;

}  // namespace

Status Win32Files::attributes(std::string_view path, std::uint32_t& out) {
  out = 0;
  const NativePath native(path);
  if (native.refused() != kSuccess) return native.refused();
  const DWORD bits = GetFileAttributesW(native.c_str());
  if (bits == INVALID_FILE_ATTRIBUTES) return lastFileStatus();
  out = bits;
  return kSuccess;
}

Status Win32Files::setAttributes(std::string_view path, std::uint32_t attributes) {
  const NativePath native(path);
  if (native.refused() != kSuccess) return native.refused();
  const DWORD given = attributes & kSettable;
  // 0 would change nothing at all; "normal" clears.
  const DWORD bits = given == 0 ? DWORD{FILE_ATTRIBUTE_NORMAL} : given;
  return SetFileAttributesW(native.c_str(), bits) ? kSuccess : lastFileStatus();
}

Status Win32Files::remove(std::string_view path) {
  const NativePath native(path);
  if (native.refused() != kSuccess) return native.refused();
  return DeleteFileW(native.c_str()) ? kSuccess : lastStatusOfFile(native);
}

OpenedFile Win32Files::open(std::string_view path, OpenMode mode) {
  const NativePath native(path);
  if (native.refused() != kSuccess) return {native.refused(), nullptr};
  return openFile(native, mode);
}

Status Win32Files::copy(std::string_view from, std::string_view to) {
  const NativePath source(from);
  if (source.refused() != kSuccess) return source.refused();
  const NativePath target(to);
  if (target.refused() != kSuccess) return target.refused();
  return CopyFileW(source.c_str(), target.c_str(), FALSE) ? kSuccess : lastFileStatus();
}

bool Win32Files::canOpen(std::string_view path) {
  return open(path, OpenMode::kInput).status == kSuccess;
}

Status Win32Files::setCurrentDirectory(std::string_view path) {
  const NativePath native(path);
  if (native.refused() != kSuccess) return native.refused();
  return SetCurrentDirectoryW(native.c_str()) ? kSuccess : lastFileStatus();
}

Status Win32Files::security(std::string_view path, SecurityDescriptor& out) {
  out = {};
  const NativePath native(path);
  if (native.refused() != kSuccess) return native.refused();
  return readDescriptor(
      [&native](void* buffer, unsigned long size, unsigned long& needed) {
        return GetFileSecurityW(native.c_str(), DACL_SECURITY_INFORMATION, buffer, size, &needed)
                   ? kSuccess
                   : lastFileStatus();
      },
      out);
}

Status Win32Files::setSecurity(std::string_view path, const SecurityDescriptor& descriptor) {
  const NativePath native(path);
  if (native.refused() != kSuccess) return native.refused();
  const NativeDescriptor list(descriptor);
  if (list.status() != kSuccess) return list.status();
  return SetFileSecurityW(native.c_str(), DACL_SECURITY_INFORMATION, list.get()) ? kSuccess
                                                                                 : lastFileStatus();
}

}  // namespace tavr::win32
