// A check box.
#pragma once

#include "ui/win32/bound_choice.h"

namespace tavr::win32 {

class BoundCheckBox : public BoundChoice {
 public:
  BoundCheckBox(FormWindow& form, CheckBox& box) : BoundChoice(form, box), box_(box) {}

 protected:
  void drawChoice(HDC dc, const RECT& area, const DrawnState& state) override;
  void onArrow(bool back) override;
  LRESULT asked(UINT message) const override { return message == BM_GETCHECK ? box_.value() : 0; }

 private:
  CheckBox& box_;
};

}  // namespace tavr::win32
