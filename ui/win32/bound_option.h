// One of a group of options.
#pragma once

#include "ui/win32/bound_choice.h"

namespace tavr::win32 {

class BoundOption : public BoundChoice {
 public:
  BoundOption(FormWindow& form, OptionButton& box) : BoundChoice(form, box), box_(box) {}

 protected:
  void drawChoice(HDC dc, const RECT& area, const DrawnState& state) override;
  void onArrow(bool back) override;
  LRESULT asked(UINT message) const override {
    return message == BM_GETCHECK ? box_.value() ? BST_CHECKED : BST_UNCHECKED : 0;
  }

 private:
  OptionButton& box_;
};

}  // namespace tavr::win32
