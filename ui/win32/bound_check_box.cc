#include "ui/win32/bound_check_box.h"

#include "ui/win32/form_window.h"

namespace tavr::win32 {

void BoundCheckBox::drawChoice(HDC dc, const RECT& area, const DrawnState& state) {
  drawCheckBox(dc, area, box_, box_.value(), state, form_.palette());
}

void BoundCheckBox::onArrow(bool back) { form_.moveFocus(back); }

}  // namespace tavr::win32
