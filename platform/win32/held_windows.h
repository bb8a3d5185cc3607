// While a dialog of the system is open, no form that was there before takes a click
// or a key. The system itself only disables the dialog's owner.
#pragma once

#include <vector>

namespace tavr::win32 {

class HeldWindows {
 public:
  /// Disables every window of this thread but `owner` (HWND), which the dialog
  /// disables itself, and tool windows: the tray's menu is served meanwhile.
  explicit HeldWindows(void* owner);
  /// Enables those again that it has disabled.
  ~HeldWindows();
  HeldWindows(const HeldWindows&) = delete;
  HeldWindows& operator=(const HeldWindows&) = delete;

  /// Whether any are held at the moment: they are not to be enabled by others.
  static bool any();

 private:
  std::vector<void*> held_;
};

}  // namespace tavr::win32
