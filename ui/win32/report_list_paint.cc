// What a list with a header looks like.
#include <algorithm>

#include "platform/win32/wide.h"
#include "ui/win32/caption.h"
#include "ui/win32/form_window.h"
#include "ui/win32/report_list.h"

namespace tavr::win32 {

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

void ReportList::drawCell(HDC dc, const RECT& area, const Cell& cell) {
  const bool alone = shown_columns_.size() == 1;
  const int width = drawListCell(dc, area, cell, form_.fonts().get(control_.font, cell.bold),
                                 !alone, form_.scale(), form_.palette());
  if (alone) longest_ = std::max(longest_, width + form_.px(4 * kListPadding));
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
    InflateRect(&part, -form_.px(kListPadding), 0);
    const std::wstring text = wide(shown_columns_[i]);
    const UINT side = i > 0 && i + 1 == shown_columns_.size() ? DT_RIGHT : DT_LEFT;
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &part,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS | side);
  }
  SelectObject(dc, before);
  form_.fill(dc, {area.left, area.bottom - 1, area.right, area.bottom}, palette.border);
}

}  // namespace tavr::win32
