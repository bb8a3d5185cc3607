// A panel that holds other controls: it draws its ground and passes on what the
// controls on it report.
#pragma once

#include "ui/win32/drawn_control.h"

namespace tavr::win32 {

class BoundFrame : public DrawnControl {
 public:
  BoundFrame(FormWindow& form, Frame& frame)
      : DrawnControl(form, frame, WS_EX_CONTROLPARENT), frame_(frame) {}

 protected:
  void draw(HDC dc, const RECT& area, const DrawnState& state) override;
  bool takesMouse() const override { return false; }

 private:
  Frame& frame_;
};

}  // namespace tavr::win32
