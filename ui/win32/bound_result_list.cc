#include "ui/win32/bound_result_list.h"

#include "ui/win32/form_window.h"

namespace tavr::win32 {

BoundResultList::BoundResultList(FormWindow& form, ResultList& list)
    : ReportList(form, list), list_(list) {}

void BoundResultList::describe(std::size_t row, std::size_t /*column*/, Cell& cell) const {
  cell.text = list_.text(row + 1);
  if (list_.ghosted(row + 1)) cell.color = form_.palette().faint_text;
}

// Of more rows than are in sight each step, a row or a scroll bar that comes or
// moves, would be drawn and covered by the next.
void BoundResultList::syncOwn() {
  const bool anew = list_.clearings() != clearings_;
  const auto seen = anew ? 0 : static_cast<std::size_t>(ListView_GetItemCount(window_));
  const auto page = static_cast<std::size_t>(ListView_GetCountPerPage(window_));
  if (list_.count() <= seen + page || !IsWindowVisible(window_)) return syncRows();
  // The window's own answer: the list's would put off its scrolling, too.
  DefWindowProcW(window_, WM_SETREDRAW, FALSE, 0);
  syncRows();
  DefWindowProcW(window_, WM_SETREDRAW, TRUE, 0);
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

void BoundResultList::syncRows() {
  if (list_.clearings() != clearings_) {
    clearings_ = list_.clearings();
    forgetRows();
  }
  ReportList::syncOwn();
  if (list_.ensurings() == ensurings_) return;
  ensurings_ = list_.ensurings();
  const auto row = static_cast<int>(list_.ensuredRow());  // 0: cleared since
  if (row > 0) ListView_EnsureVisible(window_, row - 1, FALSE);
}

}  // namespace tavr::win32
