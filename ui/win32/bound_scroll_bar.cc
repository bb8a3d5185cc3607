#include "ui/win32/bound_scroll_bar.h"

#include <commctrl.h>

#include "ui/win32/form_window.h"

namespace tavr::win32 {

BoundScrollBar::BoundScrollBar(FormWindow& form, ScrollBar& bar)
    : BoundControl(form, bar), bar_(bar) {
  // Its thumb, by which others show that they have the keyboard, finds no room
  // here: the line around it does.
  create(WC_SCROLLBARW, SBS_VERT | WS_BORDER);
}

void BoundScrollBar::syncOwn() {
  const bool same_range = bar_.min == shown_min_ && bar_.max == shown_max_;
  if (bar_.value() == shown_value_ && same_range) return;
  shown_value_ = bar_.value();
  shown_min_ = bar_.min;
  shown_max_ = bar_.max;
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_RANGE | SIF_POS;
  info.nMin = bar_.min;
  info.nMax = bar_.max;
  info.nPos = shown_value_;
  SetScrollInfo(window_, SB_CTL, &info, TRUE);
}

// Its upper end is its smallest value, as of any upright bar. `position` is that
// of the thumb when a drag has ended.
void BoundScrollBar::onScroll(int code, int position) {
  switch (code) {
    case SB_LINEUP:
    case SB_PAGEUP:
      return post([&bar = bar_] { bar.setValue(bar.value() - 1); });
    case SB_LINEDOWN:
    case SB_PAGEDOWN:
      return post([&bar = bar_] { bar.setValue(bar.value() + 1); });
    case SB_TOP:
      return post([&bar = bar_] { bar.setValue(bar.min); });
    case SB_BOTTOM:
      return post([&bar = bar_] { bar.setValue(bar.max); });
    case SB_THUMBPOSITION:
      return post([&bar = bar_, position] { bar.setValue(position); });
    default:
      return;
  }
}

}  // namespace tavr::win32
