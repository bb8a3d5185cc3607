// The name and the role of a native window, where Windows would find none or a
// wrong one: it takes a box's name from a label of its own class, and ours are
// drawn. The rest of what a screen reader asks of such a window is Windows' own.
#pragma once

#include <windows.h>

#include <string>

namespace tavr::win32 {

class AccessibleAnnotation {
 public:
  AccessibleAnnotation() = default;
  ~AccessibleAnnotation() { clear(); }
  AccessibleAnnotation(const AccessibleAnnotation&) = delete;
  AccessibleAnnotation& operator=(const AccessibleAnnotation&) = delete;

  /// Does nothing when the name is what it was. `role` is a ROLE_SYSTEM_..., 0
  /// for the window's own. False where this system cannot do it.
  bool show(HWND window, const std::string& name, long role = 0);
  /// Takes it back: to be called before the window is destroyed.
  void clear();

 private:
  HWND window_ = nullptr;
  std::string name_;
};

}  // namespace tavr::win32
