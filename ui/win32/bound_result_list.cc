#include "ui/win32/bound_result_list.h"

#include "ui/win32/form_window.h"

namespace tavr::win32 {

BoundResultList::BoundResultList(FormWindow& form, ResultList& list)
    : ReportList(form, list), list_(list) {}

void BoundResultList::describe(std::size_t row, std::size_t /*column*/, Cell& cell) const {
  cell.text = list_.text(row + 1);
  if (list_.ghosted(row + 1)) cell.color = form_.palette().faint_text;
}

void BoundResultList::syncOwn() {
  if (list_.clearings() != clearings_) {
    clearings_ = list_.clearings();
    ensured_ = 0;
    forgetRows();
  }
  ReportList::syncOwn();
  if (list_.ensuredRow() == ensured_) return;
  ensured_ = list_.ensuredRow();
  if (ensured_ > 0) ListView_EnsureVisible(window_, static_cast<int>(ensured_) - 1, FALSE);
}

}  // namespace tavr::win32
