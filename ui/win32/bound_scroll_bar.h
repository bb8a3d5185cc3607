// A scroll bar beside a number.
#pragma once

#include "forms/controls.h"
#include "ui/win32/bound_control.h"

namespace tavr::win32 {

class BoundScrollBar : public BoundControl {
 public:
  BoundScrollBar(FormWindow& form, ScrollBar& bar);

  void onScroll(int code, int position) override;

 protected:
  void syncOwn() override;

 private:
  ScrollBar& bar_;
  int shown_value_ = -1;
  int shown_min_ = -1;
  int shown_max_ = -1;
};

}  // namespace tavr::win32
