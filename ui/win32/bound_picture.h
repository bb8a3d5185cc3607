// A picture: a sign that may be clicked, the panel of the languages, or the
// animation that moves while a run is under way.
#pragma once

#include "ui/win32/animation.h"
#include "ui/win32/drawn_control.h"

namespace tavr::win32 {

class BoundPicture : public DrawnControl {
 public:
  BoundPicture(FormWindow& form, Picture& picture);
  ~BoundPicture() override;

 protected:
  void draw(HDC dc, const RECT& area, const DrawnState& state) override;
  std::string drawnOf() const override { return picture_.file; }
  bool takesMouse() const override { return picture_.onClick || picture_.onMouseMove; }
  bool showsHand() const override { return static_cast<bool>(picture_.onClick); }
  void onMove(bool any_button_down) override;
  bool onKey(WPARAM key, bool down) override;
  void syncOwn() override;

 private:
  bool isPanel() const;
  bool isAnimation() const;

  Picture& picture_;
  Animation animation_;
  std::string loaded_;
};

}  // namespace tavr::win32
