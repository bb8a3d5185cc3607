// The progress bar, in one of its five looks.
#pragma once

#include "ui/win32/drawn_control.h"

namespace tavr::win32 {

class BoundProgressBar : public DrawnControl {
 public:
  BoundProgressBar(FormWindow& form, ProgressBar& bar);
  ~BoundProgressBar() override;

 protected:
  void draw(HDC dc, const RECT& area, const DrawnState& state) override;
  std::string drawnOf() const override;
  bool takesMouse() const override { return false; }
  LRESULT asked(UINT message) const override;

 private:
  ProgressBar& bar_;
};

}  // namespace tavr::win32
