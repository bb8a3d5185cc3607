#include "ui/win32/bound_list_view.h"

#include <iterator>

#include "ui/win32/color.h"
#include "ui/win32/form_window.h"

namespace tavr::win32 {

namespace {

constexpr std::string_view kInternetExplorer = "Internet Explorer Browser";
constexpr COLORREF kDoneColor = RGB(0x2E, 0x7D, 0x32);
constexpr int kShares[] = {58, 22, 20};

// Internet Explorer shares its letter with what belongs to no browser.
std::string_view iconOf(const ListRow& row) {
  const bool browser = row.text == kInternetExplorer && row.small_icon == "a";
  return browser ? "ie" : std::string_view(row.small_icon);
}

bool sameCell(const ListCell& a, const ListCell& b) {
  return a.text == b.text && a.report_icon == b.report_icon && a.bold == b.bold &&
         a.fore_color == b.fore_color;
}

bool sameRow(const ListRow& a, const ListRow& b) {
  return a.text == b.text && a.small_icon == b.small_icon && a.checked == b.checked &&
         sameCell(a.cells[0], b.cells[0]) && sameCell(a.cells[1], b.cells[1]);
}

}  // namespace

// The boxes are drawn with the rows; as the list's own they are read out.
BoundListView::BoundListView(FormWindow& form, ListView& list)
    : ReportList(form, list), list_(list) {
  if (!hasBoxes()) return;
  ListView_SetExtendedListViewStyleEx(window_, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
  ListView_SetCallbackMask(window_, LVIS_STATEIMAGEMASK);
}

std::size_t BoundListView::rowCount() const { return shown_.size(); }

int BoundListView::share(std::size_t column) const {
  return hasBoxes() || column >= std::size(kShares) ? 100 : kShares[column];
}

// Only the list in which a person chooses has them.
bool BoundListView::hasBoxes() const { return static_cast<bool>(list_.onItemCheck); }

COLORREF BoundListView::doneColor() const {
  const Palette& palette = form_.palette();
  return palette.high_contrast ? palette.text : kDoneColor;
}

void BoundListView::describe(std::size_t row, std::size_t column, Cell& cell) const {
  const ListRow& shown = shown_[row];
  if (column == 0) {
    cell.text = shown.text;
    cell.has_box = hasBoxes();
    cell.checked = shown.checked;
    cell.icon = iconOf(shown);
    cell.icon_color = shown.small_icon == "o" ? doneColor() : form_.palette().accent;
    return;
  }
  const ListCell& part = shown.cells[column - 1];
  cell.text = part.text;
  cell.bold = part.bold;
  if (part.fore_color != 0) {
    const Palette& palette = form_.palette();
    cell.color = palette.high_contrast ? palette.danger : fromControlColor(part.fore_color);
  }
  cell.at_far_edge = column == 2;
  if (part.report_icon.empty()) return;
  cell.icon = "done";
  cell.icon_color = doneColor();
}

void BoundListView::syncOwn() {
  if (list_.clearings() != clearings_) {
    clearings_ = list_.clearings();
    shown_.clear();
    forgetRows();
  }
  const auto rows = static_cast<std::size_t>(list_.count());
  const std::size_t before = shown_.size();
  shown_.resize(rows);
  for (std::size_t i = 0; i < rows; ++i) {
    const ListRow& row = list_.item(static_cast<double>(i + 1));
    if (i < before && sameRow(row, shown_[i])) continue;
    const bool ticked = i < before && row.checked != shown_[i].checked;
    shown_[i] = row;
    redraw(i, i);
    if (!ticked) continue;
    NotifyWinEvent(EVENT_OBJECT_STATECHANGE, window_, OBJID_CLIENT, static_cast<LONG>(i + 1));
  }
  ReportList::syncOwn();
}

void BoundListView::toggle(std::size_t row) {
  post([&list = list_, number = static_cast<int>(row) + 1] {
    if (number > list.count()) return;
    ListRow& item = list.item(number);
    item.checked = !item.checked;
    if (list.onItemCheck) list.onItemCheck(number);
  });
}

void BoundListView::onClick(std::size_t row, bool on_box) {
  if (on_box) toggle(row);
  post([&list = list_, number = static_cast<int>(row) + 1] {
    if (number > list.count()) return;
    list.selected = number;
    if (list.onItemClick) list.onItemClick(number);
  });
}

void BoundListView::onSpace(std::size_t row) {
  if (hasBoxes()) toggle(row);
}

}  // namespace tavr::win32
