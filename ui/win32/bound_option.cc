#include "ui/win32/bound_option.h"

#include "ui/win32/control_places.h"
#include "ui/win32/form_window.h"

namespace tavr::win32 {

std::string BoundOption::drawnOf() const { return form_.captionOf(box_) + "\n" + box_.shown(); }

void BoundOption::draw(HDC dc, const RECT& area, const DrawnState& state) {
  DrawnState shown = state;
  shown.access_key = form_.accessKeyPosition(box_);
  const std::string caption = form_.captionOf(box_);
  shown.caption = caption;
  drawOption(dc, area, box_, box_.value(), shown, form_.palette());
}

void BoundOption::postPress() {
  post([&box = box_] { box.press(); });
}

void BoundOption::onUp(MouseButton button, bool inside) {
  if (button == MouseButton::kLeft && inside) postPress();
}

// The arrows turn the next one on, as in any group of options.
void BoundOption::moveOn(bool back) {
  Control* const next = nextInGroup(form_.form(), box_, back);
  if (!next) return;
  form_.moveFocus(back, true);
  post([next] { next->press(); });
}

bool BoundOption::onKey(WPARAM key, bool down) {
  const bool back = key == VK_UP || key == VK_LEFT;
  if (back || key == VK_DOWN || key == VK_RIGHT) {
    if (down) moveOn(back);
    return true;
  }
  if (key != VK_SPACE) return false;
  if (held_ && !down) postPress();
  held_ = down;
  invalidate();
  return true;
}

void BoundOption::onAccessKey() {
  SetFocus(window_);
  postPress();
}

}  // namespace tavr::win32
