#include "ui/win32/bound_option.h"

#include "ui/win32/control_places.h"
#include "ui/win32/form_window.h"

namespace tavr::win32 {

void BoundOption::drawChoice(HDC dc, const RECT& area, const DrawnState& state) {
  drawOption(dc, area, box_, box_.value(), state, form_.palette());
}

// The arrows turn the next one on, as in any group of options.
void BoundOption::onArrow(bool back) {
  Control* const next = nextInGroup(form_.form(), box_, back);
  if (!next) return;
  form_.moveFocus(back, true);
  post([next] { next->press(); });
}

}  // namespace tavr::win32
