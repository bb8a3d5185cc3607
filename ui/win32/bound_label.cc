#include "ui/win32/bound_label.h"

#include "ui/win32/control_places.h"
#include "ui/win32/form_window.h"

namespace tavr::win32 {

BoundLabel::BoundLabel(FormWindow& form, Label& label) : DrawnControl(form, label), label_(label) {}

bool BoundLabel::isLink() const {
  return look_.label == LabelLook::kLink || look_.label == LabelLook::kMenuRow;
}

std::string BoundLabel::drawnOf() const {
  return form_.captionOf(label_) + (label_.highlighted ? "\n1" : "\n0");
}

// A label whose form makes something of a click; every other lets the mouse
// through.
bool BoundLabel::takesMouse() const { return label_.onClick || label_.onMouseMove; }

bool BoundLabel::showsHand() const { return isLink(); }

void BoundLabel::draw(HDC dc, const RECT& area, const DrawnState& state) {
  DrawnState shown = state;
  shown.access_key = form_.accessKeyPosition(label_);
  const std::string caption = form_.captionOf(label_);
  shown.caption = caption;
  shown.hovered = state.hovered && isLink();
  Palette palette = form_.palette();
  if (look_.label == LabelLook::kFaint) palette.text = palette.faint_text;
  if (look_.label == LabelLook::kLink) {
    palette.text = palette.high_contrast ? GetSysColor(COLOR_HOTLIGHT) : palette.accent;
  }
  if (look_.label == LabelLook::kTitle) palette.text = palette.strip_text;
  if (look_.label == LabelLook::kMenuRow && (label_.highlighted || shown.focused)) {
    form_.fill(dc, area, palette.hover);
  }
  drawLabel(dc, area, label_, look_.label == LabelLook::kHeading, look_.label == LabelLook::kFigure,
            shown, palette);
  if (shown.focused) {
    RECT frame = area;
    DrawFocusRect(dc, &frame);
  }
}

void BoundLabel::onMove(bool /*any_button_down*/) {
  if (label_.onMouseMove) postMove(label_.onMouseMove);
}

bool BoundLabel::onKey(WPARAM key, bool down) {
  if (!isLink()) return false;
  if (key == VK_RETURN || key == VK_SPACE) {
    if (down) postPress();
    return true;
  }
  if (!down || (key != VK_UP && key != VK_DOWN)) return false;
  form_.moveFocus(key == VK_UP, isGrouped(label_));
  return true;
}

void BoundLabel::onAccessKey() {
  SetFocus(window_);
  postPress();
}

}  // namespace tavr::win32
