// The access list between its two forms: the descriptor of platform/security.h
// and the SECURITY_DESCRIPTOR of the calls of Windows.
#pragma once

#include <functional>
#include <memory>

#include "platform/security.h"

namespace tavr::win32 {

/// A call that puts a self-relative descriptor into a buffer of so many bytes,
/// or answers 122 and tells how many it needs.
using GetDescriptor =
    std::function<Status(void* buffer, unsigned long size, unsigned long& needed)>;

/// What the call gives. `out` is empty when it fails.
Status readDescriptor(const GetDescriptor& get, SecurityDescriptor& out);

/// A descriptor for the calls that set one.
class NativeDescriptor {
 public:
  explicit NativeDescriptor(const SecurityDescriptor& descriptor);
  ~NativeDescriptor();
  NativeDescriptor(const NativeDescriptor&) = delete;
  NativeDescriptor& operator=(const NativeDescriptor&) = delete;

  /// 0, or why the list cannot be one.
  Status status() const { return status_; }
  void* get() const;  ///< PSECURITY_DESCRIPTOR

 private:
  struct Native;
  std::unique_ptr<Native> native_;
  Status status_ = kSuccess;
};

}  // namespace tavr::win32
