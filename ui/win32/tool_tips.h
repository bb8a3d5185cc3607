// The tips of a form's controls: a control's own text, and the name of one that
// shows only a sign.
#pragma once

#include <windows.h>

#include "forms/control.h"

namespace tavr::win32 {

class ToolTips {
 public:
  ToolTips(HWND form, bool right_to_left);
  ~ToolTips();
  ToolTips(const ToolTips&) = delete;
  ToolTips& operator=(const ToolTips&) = delete;

  /// The window of a control, which goes before the tips do.
  void add(HWND window);
  /// The caller keeps the font.
  void setFont(HFONT font);
  /// Answers what a tip asks for; false when the notice is none of a tip.
  static bool answer(NMHDR& notice);

 private:
  HWND form_;
  HWND tips_;
};

}  // namespace tavr::win32
