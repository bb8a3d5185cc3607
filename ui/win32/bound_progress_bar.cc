#include "ui/win32/bound_progress_bar.h"

#include <commctrl.h>

#include "ui/win32/form_window.h"

namespace tavr::win32 {

BoundProgressBar::BoundProgressBar(FormWindow& form, ProgressBar& bar)
    : DrawnControl(form, bar), bar_(bar) {
  bar_.onRedraw = [this] { invalidate(); };
}

BoundProgressBar::~BoundProgressBar() { bar_.onRedraw = nullptr; }

std::string BoundProgressBar::drawnOf() const {
  return std::to_string(bar_.value()) + " " + std::to_string(bar_.max());
}

LRESULT BoundProgressBar::asked(UINT message) const {
  return message == PBM_GETPOS ? static_cast<LRESULT>(bar_.value()) : 0;
}

void BoundProgressBar::draw(HDC dc, const RECT& area, const DrawnState& state) {
  drawProgressBar(dc, area, bar_, state, form_.palette());
}

}  // namespace tavr::win32
