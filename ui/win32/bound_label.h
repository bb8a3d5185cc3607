// A label: a text, a heading, a figure, a link or a row of the language list.
#pragma once

#include "ui/win32/drawn_control.h"

namespace tavr::win32 {

class BoundLabel : public DrawnControl {
 public:
  BoundLabel(FormWindow& form, Label& label);

  void onAccessKey() override;

 protected:
  void draw(HDC dc, const RECT& area, const DrawnState& state) override;
  std::string drawnOf() const override;
  bool takesMouse() const override;
  bool showsHand() const override;
  void onMove(bool any_button_down) override;
  bool onKey(WPARAM key, bool down) override;

 private:
  bool isLink() const;

  Label& label_;
};

}  // namespace tavr::win32
