// A check box.
#pragma once

#include "ui/win32/drawn_control.h"

namespace tavr::win32 {

class BoundCheckBox : public DrawnControl {
 public:
  BoundCheckBox(FormWindow& form, CheckBox& box) : DrawnControl(form, box), box_(box) {}

  void onAccessKey() override;

 protected:
  void draw(HDC dc, const RECT& area, const DrawnState& state) override;
  std::string drawnOf() const override;
  void onUp(MouseButton button, bool inside) override;
  bool onKey(WPARAM key, bool down) override;
  LRESULT asked(UINT message) const override { return message == BM_GETCHECK ? box_.value() : 0; }

 private:
  void postPress();

  CheckBox& box_;
};

}  // namespace tavr::win32
