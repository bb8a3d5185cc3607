// What joins the window of a self-drawn control with those who read the screen:
// it answers when they ask for the control, and tells them when it changes. The
// focus and what is shown or hidden Windows tells them itself.
#pragma once

#include <windows.h>

#include "ui/win32/accessible_facts.h"

namespace tavr::win32 {

class AccessibleObject;
class AccessibleSource;

class AccessibleLink {
 public:
  /// Asks nothing of the source yet.
  explicit AccessibleLink(AccessibleSource& source) : source_(source) {}
  ~AccessibleLink();
  AccessibleLink(const AccessibleLink&) = delete;
  AccessibleLink& operator=(const AccessibleLink&) = delete;

  /// Serves WM_GETOBJECT; false when that is for Windows itself.
  bool answer(HWND window, WPARAM wparam, LPARAM lparam, LRESULT& answer);
  /// Tells what has changed since the last time.
  void tell(HWND window);

 private:
  AccessibleSource& source_;
  AccessibleObject* object_ = nullptr;  ///< one reference, from the first question on
  AccessibleFacts told_;
  bool has_told_ = false;
};

}  // namespace tavr::win32
