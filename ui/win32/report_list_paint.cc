// What a list with a header looks like.
#include <algorithm>

#include "platform/win32/wide.h"
#include "ui/win32/artwork.h"
#include "ui/win32/caption.h"
#include "ui/win32/form_window.h"
#include "ui/win32/report_list.h"

namespace tavr::win32 {

namespace {

RECT centred(const RECT& area, int left, int size) {
  const int top = (area.top + area.bottom - size) / 2;
  return {left, top, left + size, top + size};
}

// A mirrored list turns letters back by itself; a picture in it would be seen
// from behind. Draws at the same place with the plain layout.
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

void ReportList::drawRow(HDC dc, std::size_t row) {
  const Palette& palette = form_.palette();
  const int item = static_cast<int>(row);
  RECT area;
  ListView_GetItemRect(window_, item, &area, LVIR_BOUNDS);
  const bool selected = ListView_GetItemState(window_, item, LVIS_SELECTED) != 0;
  form_.fill(dc, area, selected ? palette.selection : palette.panel);
  // With few colours there is one that is read on what is selected.
  const bool turned = selected && palette.high_contrast;
  int left = area.left;
  for (std::size_t i = 0; i < shown_columns_.size(); ++i) {
    RECT part = area;
    part.left = left;
    part.right = left + ListView_GetColumnWidth(window_, static_cast<int>(i));
    left = part.right;
    Cell cell;
    cell.color = control_.enabled ? palette.text : disabledText(palette, palette.panel);
    describe(row, i, cell);
    if (turned) cell.color = cell.icon_color = palette.accent_text;
    drawCell(dc, part, cell);
  }
  const bool focused = selected && GetFocus() == window_ && form_.showsFocus();
  if (focused) DrawFocusRect(dc, &area);
}

void ReportList::drawBox(HDC dc, RECT& area, bool checked) {
  CheckBox box;
  DrawnState state;
  state.scale = form_.scale();
  const RECT sign = centred(area, area.left, form_.px(kSign));
  drawUnmirrored(dc, sign, [&](const RECT& place) {
    drawCheckBox(dc, place, box, checked ? 1 : 0, state, form_.palette());
  });
  area.left = sign.right + form_.px(kPadding / 2);
}

void ReportList::drawCell(HDC dc, RECT area, const Cell& cell) {
  area.left += form_.px(kPadding);
  area.right -= form_.px(kPadding);
  if (cell.has_box) drawBox(dc, area, cell.checked);
  if (!cell.icon.empty()) {
    const RECT sign = centred(area, area.left, form_.px(kSign));
    drawUnmirrored(dc, sign, [&](const RECT& place) {
      drawIcon(dc, place, cell.icon, cell.icon_color, form_.scale());
    });
    area.left = sign.right + form_.px(kPadding / 2);
  }
  const std::wstring text = wide(cell.text);
  const HGDIOBJ before = SelectObject(dc, form_.fonts().get(control_.font, cell.bold));
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, cell.color);
  const UINT side = cell.at_far_edge ? DT_RIGHT : DT_LEFT;
  const UINT too_long = shown_columns_.size() > 1 ? DT_END_ELLIPSIS : 0;
  DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &area,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | side | too_long);
  if (shown_columns_.size() == 1) {
    SIZE size{};
    GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
    longest_ = std::max(longest_, static_cast<int>(size.cx) + form_.px(4 * kPadding));
  }
  SelectObject(dc, before);
}

void ReportList::paintHeader(HWND window, HDC dc) const {
  const Palette& palette = form_.palette();
  RECT area;
  GetClientRect(window, &area);
  form_.fill(dc, area, palette.raised);
  const HGDIOBJ before = SelectObject(dc, form_.fonts().get(control_.font, true));
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, palette.faint_text);
  for (std::size_t i = 0; i < shown_columns_.size(); ++i) {
    RECT part;
    Header_GetItemRect(window, static_cast<int>(i), &part);
    InflateRect(&part, -form_.px(kPadding), 0);
    const std::wstring text = wide(shown_columns_[i]);
    const UINT side = i > 0 && i + 1 == shown_columns_.size() ? DT_RIGHT : DT_LEFT;
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &part,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS | side);
  }
  SelectObject(dc, before);
  form_.fill(dc, {area.left, area.bottom - 1, area.right, area.bottom}, palette.border);
}

}  // namespace tavr::win32
