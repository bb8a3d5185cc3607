// A check box or an option: a sign that a person turns on, and its caption.
#pragma once

#include "ui/win32/drawn_control.h"

namespace tavr::win32 {

class BoundChoice : public DrawnControl {
 public:
  void onAccessKey() override;

 protected:
  BoundChoice(FormWindow& form, Control& control) : DrawnControl(form, control) {}

  /// `state` holds the caption as it is shown.
  virtual void drawChoice(HDC dc, const RECT& area, const DrawnState& state) = 0;
  /// What an arrow key does; `back`: the one that points left or up.
  virtual void onArrow(bool back) = 0;

  void draw(HDC dc, const RECT& area, const DrawnState& state) override;
  std::string drawnOf() const override;
  bool onKey(WPARAM key, bool down) override;
};

}  // namespace tavr::win32
