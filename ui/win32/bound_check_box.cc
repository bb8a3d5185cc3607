#include "ui/win32/bound_check_box.h"

#include "ui/win32/form_window.h"

namespace tavr::win32 {

std::string BoundCheckBox::drawnOf() const { return form_.captionOf(box_) + "\n" + box_.shown(); }

void BoundCheckBox::draw(HDC dc, const RECT& area, const DrawnState& state) {
  DrawnState shown = state;
  shown.access_key = form_.accessKeyPosition(box_);
  const std::string caption = form_.captionOf(box_);
  shown.caption = caption;
  drawCheckBox(dc, area, box_, box_.value(), shown, form_.palette());
}

void BoundCheckBox::postPress() {
  post([&box = box_] { box.press(); });
}

void BoundCheckBox::onUp(MouseButton button, bool inside) {
  if (button == MouseButton::kLeft && inside) postPress();
}

bool BoundCheckBox::onKey(WPARAM key, bool down) {
  const bool back = key == VK_UP || key == VK_LEFT;
  if (back || key == VK_DOWN || key == VK_RIGHT) {
    if (down) form_.moveFocus(back);
    return true;
  }
  if (key != VK_SPACE) return false;
  if (held_ && !down) postPress();
  held_ = down;
  invalidate();
  return true;
}

void BoundCheckBox::onAccessKey() {
  SetFocus(window_);
  postPress();
}

}  // namespace tavr::win32
