#include "ui/win32/report_list.h"

#include <algorithm>

#include "platform/win32/wide.h"
#include "ui/win32/common_controls.h"
#include "ui/win32/form_window.h"
#include "ui/win32/subclass.h"

namespace tavr::win32 {

namespace {

constexpr int kRowHeight = 26;
constexpr int kHeaderHeight = 28;
constexpr UINT kUnticked = 1;  // the numbers of a list's own check boxes
constexpr UINT kTicked = 2;
constexpr UINT_PTR kHeaderSubclass = 1;
constexpr DWORD kExtendedStyle = LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP;

// Without case. A character is at most three bytes to each of its units.
bool beginsWith(std::string_view text, const std::wstring& typed) {
  const std::wstring start = wide(text.substr(0, typed.size() * 3)).substr(0, typed.size());
  return CompareStringOrdinal(start.data(), static_cast<int>(start.size()), typed.data(),
                              static_cast<int>(typed.size()), TRUE) == CSTR_EQUAL;
}

}  // namespace

ReportList::ReportList(FormWindow& form, Control& control) : BoundControl(form, control) {
  const DWORD direction = form.rightToLeft() ? WS_EX_LAYOUTRTL : 0;
  create(
      WC_LISTVIEWW,
      LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER | WS_BORDER,
      direction);
  // The buffer of a mirrored list comes to the screen mirrored, letters and all.
  const DWORD buffered = form.rightToLeft() ? 0 : LVS_EX_DOUBLEBUFFER;
  ListView_SetExtendedListViewStyle(window_, kExtendedStyle | buffered);
  setSubclass(headerWindow(), &headerProcedure, kHeaderSubclass, reinterpret_cast<DWORD_PTR>(this));
}

ReportList::~ReportList() {
  removeSubclass(headerWindow(), &headerProcedure, kHeaderSubclass);
  ListView_SetImageList(window_, nullptr, LVSIL_SMALL);
  destroyImageList(row_height_);
}

HWND ReportList::headerWindow() const { return ListView_GetHeader(window_); }

// The list takes the height of its rows from its images.
void ReportList::fontChanged() {
  BoundControl::fontChanged();
  const HIMAGELIST before = row_height_;
  row_height_ = createImageList(1, form_.px(kRowHeight));
  ListView_SetImageList(window_, row_height_, LVSIL_SMALL);
  destroyImageList(before);
  longest_ = 0;
}

void ReportList::place(const RECT& box) {
  BoundControl::place(box);
  spreadColumns();
}

void ReportList::makeColumns() {
  const auto have = static_cast<std::size_t>(Header_GetItemCount(headerWindow()));
  for (std::size_t i = 0; i < shown_columns_.size(); ++i) {
    std::wstring text = wide(shown_columns_[i]);
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT;
    column.pszText = text.data();
    if (i < have) {
      SendMessageW(window_, LVM_SETCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
    } else {
      SendMessageW(window_, LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
    }
  }
  InvalidateRect(headerWindow(), nullptr, FALSE);
}

void ReportList::spreadColumns() {
  RECT area;
  GetClientRect(window_, &area);
  const int count = static_cast<int>(shown_columns_.size());
  int rest = area.right;
  for (int i = 0; i < count; ++i) {
    const int wanted = area.right * share(static_cast<std::size_t>(i)) / 100;
    int width = i + 1 == count ? rest : wanted;
    rest -= width;
    if (count == 1) width = std::max(width, longest_);
    if (ListView_GetColumnWidth(window_, i) != width) ListView_SetColumnWidth(window_, i, width);
  }
}

void ReportList::setHeaderStyle() {
  const LONG before = GetWindowLongW(headerWindow(), GWL_STYLE);
  const LONG after =
      header().clickable() ? before | HDS_BUTTONS : before & ~static_cast<LONG>(HDS_BUTTONS);
  if (after != before) SetWindowLongW(headerWindow(), GWL_STYLE, after);
}

void ReportList::syncOwn() {
  if (shown_columns_ != columns()) {
    shown_columns_ = columns();
    makeColumns();
  }
  setHeaderStyle();
  const std::size_t rows = rowCount();
  if (rows != shown_rows_) {
    // Rows behind the last are new: nothing that is shown changes by them.
    const DWORD keep = rows > shown_rows_ ? LVSICF_NOINVALIDATEALL | LVSICF_NOSCROLL : 0;
    if (rows < shown_rows_) longest_ = 0;
    const std::size_t first_new = std::min(rows, shown_rows_);
    shown_rows_ = rows;
    ListView_SetItemCountEx(window_, static_cast<int>(rows), keep);
    if (keep != 0) redraw(first_new, rows - 1);
  }
  spreadColumns();
}

void ReportList::forgetRows() {
  if (shown_rows_ == 0) return;
  shown_rows_ = 0;
  longest_ = 0;
  ListView_SetItemCountEx(window_, 0, 0);
}

// Of those in sight alone: asked for more, a list may go through them all.
void ReportList::redraw(std::size_t first, std::size_t last) {
  const int top = ListView_GetTopIndex(window_);
  const int bottom = top + ListView_GetCountPerPage(window_);
  const int from = std::max(top, static_cast<int>(first));
  const int to = std::min(bottom, static_cast<int>(last));
  if (from <= to) ListView_RedrawItems(window_, from, to);
}

LRESULT ReportList::onNotify(NMHDR& notice) {
  switch (notice.code) {
    case NM_CUSTOMDRAW:
      return onCustomDraw(notice);
    case LVN_GETDISPINFOW:
      answerText(notice);
      return 0;
    case LVN_ODFINDITEMW:
      return findRow(notice);
    case NM_CLICK:
    case NM_DBLCLK:
      clicked(notice);
      return 0;
    case LVN_ITEMCHANGED: {
      const auto& change = reinterpret_cast<const NMLISTVIEW&>(notice);
      // By the keyboard or by a press, which is no click once the mouse is dragged on.
      const bool by_person = GetFocus() == window_ && change.iItem >= 0;
      if (by_person && (change.uNewState & LVIS_SELECTED) != 0) {
        onClick(static_cast<std::size_t>(change.iItem), false);
      }
      return 0;
    }
    case LVN_KEYDOWN: {
      const int row = ListView_GetNextItem(window_, -1, LVNI_FOCUSED);
      const auto& key = reinterpret_cast<const NMLVKEYDOWN&>(notice);
      if (key.wVKey == VK_SPACE && row >= 0) onSpace(static_cast<std::size_t>(row));
      return 0;
    }
    default:
      return 0;
  }
}

void ReportList::clicked(const NMHDR& notice) {
  const auto& click = reinterpret_cast<const NMITEMACTIVATE&>(notice);
  LVHITTESTINFO hit{};
  hit.pt = click.ptAction;
  const int row = ListView_SubItemHitTest(window_, &hit);
  if (row < 0 || static_cast<std::size_t>(row) >= rowCount()) return;
  Cell cell;
  describe(static_cast<std::size_t>(row), 0, cell);
  RECT bounds;
  ListView_GetItemRect(window_, row, &bounds, LVIR_BOUNDS);
  const bool on_box =
      cell.has_box &&
      click.ptAction.x < bounds.left + form_.px(kListPadding + kListSign + kListPadding / 2);
  onClick(static_cast<std::size_t>(row), on_box);
}

// What a screen reader and the label's tip ask for.
void ReportList::answerText(NMHDR& notice) const {
  LVITEMW& item = reinterpret_cast<NMLVDISPINFOW&>(notice).item;
  const auto row = static_cast<std::size_t>(item.iItem);
  if (row >= rowCount()) return;
  Cell cell;
  describe(row, static_cast<std::size_t>(item.iSubItem), cell);
  if ((item.mask & LVIF_STATE) != 0 && cell.has_box) {
    item.state = INDEXTOSTATEIMAGEMASK(cell.checked ? kTicked : kUnticked);
  }
  if ((item.mask & LVIF_TEXT) == 0 || item.cchTextMax <= 0) return;
  const std::wstring text = wide(cell.text);
  lstrcpynW(item.pszText, text.c_str(), item.cchTextMax);
}

// What a person types goes on to the next row that begins so, from the last one
// to the first.
LRESULT ReportList::findRow(const NMHDR& notice) const {
  constexpr LRESULT kNone = -1;
  const auto& search = reinterpret_cast<const NMLVFINDITEMW&>(notice);
  if ((search.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) == 0) return kNone;
  const std::size_t rows = std::min(rowCount(), shown_rows_);
  const std::wstring typed = search.lvfi.psz == nullptr ? L"" : search.lvfi.psz;
  const auto start = static_cast<std::size_t>(std::max(search.iStart, 0));
  for (std::size_t i = 0; i < rows; ++i) {
    const std::size_t row = (start + i) % rows;
    Cell cell;
    describe(row, 0, cell);
    if (beginsWith(cell.text, typed)) return static_cast<LRESULT>(row);
  }
  return kNone;
}

LRESULT ReportList::onCustomDraw(NMHDR& notice) {
  auto& drawing = reinterpret_cast<NMLVCUSTOMDRAW&>(notice);
  if (drawing.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (drawing.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
  const auto row = static_cast<std::size_t>(drawing.nmcd.dwItemSpec);
  if (row < rowCount()) drawRow(drawing.nmcd.hdc, row);
  return CDRF_SKIPDEFAULT;
}

LRESULT CALLBACK ReportList::headerProcedure(HWND window, UINT message, WPARAM wparam,
                                             LPARAM lparam, UINT_PTR /*id*/, DWORD_PTR data) {
  const auto& list = *reinterpret_cast<const ReportList*>(data);
  switch (message) {
    case HDM_LAYOUT: {
      const LRESULT answer = nextProcedure(window, message, wparam, lparam);
      const auto& layout = *reinterpret_cast<HDLAYOUT*>(lparam);
      const int height = list.form_.px(kHeaderHeight);
      layout.prc->top += height - layout.pwpos->cy;
      layout.pwpos->cy = height;
      return answer;
    }
    case WM_PAINT: {
      PAINTSTRUCT painting;
      list.paintHeader(window, BeginPaint(window, &painting));
      EndPaint(window, &painting);
      return 0;
    }
    case WM_ERASEBKGND:
      return 1;
    default:
      return nextProcedure(window, message, wparam, lparam);
  }
}

}  // namespace tavr::win32
