#include "ui/win32/draw_list.h"

#include <cmath>

#include "forms/controls.h"
#include "platform/win32/wide.h"
#include "ui/win32/artwork.h"

namespace tavr::win32 {

namespace {

RECT centred(const RECT& area, int left, int size) {
  const int top = (area.top + area.bottom - size) / 2;
  return {left, top, left + size, top + size};
}

// Draws at the same place with the plain layout.
template <class Draw>
void drawUnmirrored(HDC dc, const RECT& area, Draw draw) {
  const DWORD layout = GetLayout(dc);
  if ((layout & LAYOUT_RTL) == 0) return draw(area);
  RECT place = area;
  LPtoDP(dc, reinterpret_cast<POINT*>(&place), 2);
  SetLayout(dc, 0);
  DPtoLP(dc, reinterpret_cast<POINT*>(&place), 2);
  if (place.left > place.right) {
    const LONG width = area.right - area.left;
    place.left = place.right + 1;
    place.right = place.left + width;
  }
  draw(place);
  SetLayout(dc, layout);
}

}  // namespace

int drawListCell(HDC dc, const RECT& area, const DrawnCell& cell, HFONT font, bool cut,
                 double scale, const Palette& palette) {
  const auto px = [scale](int length) { return static_cast<int>(std::lround(length * scale)); };
  RECT rest = area;
  rest.left += px(kListPadding);
  rest.right -= px(kListPadding);
  const auto takeSign = [&](const auto& draw) {
    const RECT sign = centred(rest, rest.left, px(kListSign));
    drawUnmirrored(dc, sign, draw);
    rest.left = sign.right + px(kListPadding / 2);
  };
  if (cell.has_box) {
    takeSign([&](const RECT& place) {
      const CheckBox box;
      DrawnState state;
      state.scale = scale;
      drawCheckBox(dc, place, box, cell.checked ? 1 : 0, state, palette);
    });
  }
  if (!cell.icon.empty()) {
    takeSign([&](const RECT& place) { drawIcon(dc, place, cell.icon, cell.icon_color, scale); });
  }
  const std::wstring text = wide(cell.text);
  const int length = static_cast<int>(text.size());
  const HGDIOBJ before = SelectObject(dc, font);
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, cell.color);
  const UINT side = cell.at_far_edge ? DT_RIGHT : DT_LEFT;
  DrawTextW(dc, text.c_str(), length, &rest,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | side | (cut ? DT_END_ELLIPSIS : 0));
  SIZE size{};
  GetTextExtentPoint32W(dc, text.c_str(), length, &size);
  SelectObject(dc, before);
  return size.cx + (rest.left - area.left - px(kListPadding));
}

}  // namespace tavr::win32
