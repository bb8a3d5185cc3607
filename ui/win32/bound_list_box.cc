#include "ui/win32/bound_list_box.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "platform/win32/wide.h"
#include "ui/win32/form_window.h"

namespace tavr::win32 {

BoundListBox::BoundListBox(FormWindow& form, ListBox& list)
    : BoundControl(form, list), list_(list) {
  const DWORD direction = form.rightToLeft() ? WS_EX_LAYOUTRTL : 0;
  create(WC_LISTBOXW, LBS_EXTENDEDSEL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_BORDER,
         direction);
}

void BoundListBox::showRows() {
  SendMessageW(window_, LB_RESETCONTENT, 0, 0);
  for (const ListBox::Row& row : list_.rows) {
    SendMessageW(window_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(row.text).c_str()));
  }
}

void BoundListBox::showSelection() {
  for (std::size_t i = 0; i < list_.rows.size(); ++i) {
    const bool selected = SendMessageW(window_, LB_GETSEL, i, 0) > 0;
    if (selected == list_.rows[i].selected) continue;
    SendMessageW(window_, LB_SETSEL, list_.rows[i].selected ? TRUE : FALSE, static_cast<LPARAM>(i));
  }
}

void BoundListBox::syncOwn() {
  const bool same_texts =
      std::ranges::equal(shown_, list_.rows, {}, &ListBox::Row::text, &ListBox::Row::text);
  const bool same =
      same_texts &&
      std::ranges::equal(shown_, list_.rows, {}, &ListBox::Row::selected, &ListBox::Row::selected);
  const bool anew = list_.clearings() != std::exchange(clearings_, list_.clearings());
  if (same && !anew) return;
  const LRESULT top = anew ? 0 : SendMessageW(window_, LB_GETTOPINDEX, 0, 0);
  const LRESULT caret = anew ? 0 : SendMessageW(window_, LB_GETCARETINDEX, 0, 0);
  SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
  if (!same_texts) showRows();
  shown_ = list_.rows;
  showSelection();
  // The place that a person scrolled to and the row that the arrows start from stay.
  // The place last: rows that are selected and the caret come in sight.
  const auto last = static_cast<LRESULT>(list_.rows.size()) - 1;
  if (last >= 0) SendMessageW(window_, LB_SETCARETINDEX, std::clamp<LRESULT>(caret, 0, last), 0);
  SendMessageW(window_, LB_SETTOPINDEX, std::max<LRESULT>(std::min(top, last), 0), 0);
  SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(window_, nullptr, TRUE);
}

void BoundListBox::takeSelection() {
  for (std::size_t i = 0; i < list_.rows.size(); ++i) {
    list_.rows[i].selected = SendMessageW(window_, LB_GETSEL, i, 0) > 0;
  }
  shown_ = list_.rows;
}

void BoundListBox::onCommand(int code) {
  if (code == LBN_SELCHANGE || code == LBN_SELCANCEL) post([this] { takeSelection(); });
  if (code != LBN_DBLCLK) return;
  post([this] {
    takeSelection();
    if (list_.onDoubleClick) list_.onDoubleClick();
  });
}

}  // namespace tavr::win32
