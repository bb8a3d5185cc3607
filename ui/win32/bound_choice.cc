#include "ui/win32/bound_choice.h"

#include "ui/win32/form_window.h"

namespace tavr::win32 {

std::string BoundChoice::drawnOf() const {
  return form_.captionOf(control_) + "\n" + control_.shown();
}

void BoundChoice::draw(HDC dc, const RECT& area, const DrawnState& state) {
  DrawnState shown = state;
  shown.access_key = form_.accessKeyPosition(control_);
  const std::string caption = form_.captionOf(control_);
  shown.caption = caption;
  drawChoice(dc, area, shown);
}

bool BoundChoice::onKey(WPARAM key, bool down) {
  const bool back = key == VK_UP || key == VK_LEFT;
  if (back || key == VK_DOWN || key == VK_RIGHT) {
    if (down) onArrow(back);
    return true;
  }
  if (key != VK_SPACE) return false;
  if (held_ && !down) postPress();
  held_ = down;
  invalidate();
  return true;
}

void BoundChoice::onAccessKey() {
  SetFocus(window_);
  postPress();
}

}  // namespace tavr::win32
