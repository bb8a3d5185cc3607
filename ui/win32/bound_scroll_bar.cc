#include "ui/win32/bound_scroll_bar.h"

#include <commctrl.h>

#include "ui/win32/form_window.h"

namespace tavr::win32 {

BoundScrollBar::BoundScrollBar(FormWindow& form, ScrollBar& bar)
    : BoundControl(form, bar), bar_(bar) {
  create(WC_SCROLLBARW, SBS_VERT);
}

void BoundScrollBar::syncOwn() {
  if (bar_.value() == shown_value_ && bar_.max == shown_max_) return;
  shown_value_ = bar_.value();
  shown_max_ = bar_.max;
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_RANGE | SIF_POS;
  info.nMin = bar_.min;
  info.nMax = bar_.max;
  info.nPos = shown_value_;
  SetScrollInfo(window_, SB_CTL, &info, TRUE);
}

// Its upper end is its smallest value, as of any upright bar.
void BoundScrollBar::onScroll(int code) {
  int step = 0;
  if (code == SB_LINEUP || code == SB_PAGEUP) step = -1;
  if (code == SB_LINEDOWN || code == SB_PAGEDOWN) step = 1;
  if (step == 0) return;
  post([&bar = bar_, step] { bar.setValue(bar.value() + step); });
}

}  // namespace tavr::win32
