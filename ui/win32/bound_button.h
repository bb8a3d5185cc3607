// A button: plain, of the toolbar, or a chameleonButton with its own states.
#pragma once

#include "ui/win32/drawn_control.h"

namespace tavr::win32 {

class BoundButton : public DrawnControl {
 public:
  BoundButton(FormWindow& form, Button& button);
  ~BoundButton() override;

  void onAccessKey() override;

 protected:
  void draw(HDC dc, const RECT& area, const DrawnState& state) override;
  std::string drawnOf() const override;
  bool showsHand() const override;
  void onMove(bool any_button_down) override;
  void onLeave() override;
  void onDown(MouseButton button) override;
  void onUp(MouseButton button, bool inside) override;
  void onCancel() override;
  bool onKey(WPARAM key, bool down) override;

 private:
  bool isSeparator() const;
  /// Whether the panel that it opens stands open.
  bool isOpen() const;
  bool onPlainKey(WPARAM key, bool down);
  bool onChameleonKey(WPARAM key, bool down);

  Button& button_;
  ChameleonButton* chameleon_;  ///< the same, null for a plain button
  bool plain_move_ = false;     ///< a move without a button waits to be passed on
};

}  // namespace tavr::win32
