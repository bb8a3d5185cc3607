// The virtual lists as windows: found by a letter, shown anew, and a million rows.
#include <gtest/gtest.h>
#include <windows.h>
// Behind windows.h.
#include <commctrl.h>

#include <algorithm>
#include <chrono>
#include <string>

#include "tests/windows/accessible/shown_program.h"
#include "ui/win32/form_window.h"

namespace tavr::win32::testing {
namespace {

using std::chrono::duration;

class WindowList : public ::testing::Test {
 protected:
  void SetUp() override {
    results().clear();
    shown_.pump();
    window_ = shown_.window("Form1", "View200");
    ASSERT_NE(window_, nullptr);
  }
  ResultList& results() { return shown_.program().form.View200; }
  void add(std::string_view text) { results().add({text}); }
  /// As the list asks for it.
  LRESULT found(const wchar_t* text, int start = 0) const {
    NMLVFINDITEMW asked{};
    asked.hdr.hwndFrom = window_;
    asked.hdr.code = LVN_ODFINDITEMW;
    asked.iStart = start;
    asked.lvfi.flags = LVFI_PARTIAL;
    asked.lvfi.psz = text;
    return SendMessageW(GetParent(window_), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&asked));
  }
  int marked() const { return ListView_GetNextItem(window_, -1, LVNI_FOCUSED); }
  int top() const { return ListView_GetTopIndex(window_); }
  int lastInSight() const { return top() + ListView_GetCountPerPage(window_) - 1; }
  std::vector<COLORREF> picture() const;

  ShownProgram shown_;
  HWND window_ = nullptr;
};

std::vector<COLORREF> WindowList::picture() const {
  RECT area;
  GetClientRect(window_, &area);
  std::vector<COLORREF> points;
  const HDC dc = GetDC(window_);
  for (int y = area.bottom / 4; y < area.bottom; y += 3) {
    for (int x = 12; x < 120; x += 2) points.push_back(GetPixel(dc, x, y));
  }
  ReleaseDC(window_, dc);
  return points;
}

TEST_F(WindowList, IsSearchedForTheBeginningOfARow) {
  for (const char* const row : {"alpha", "Bravo", "bystander", "\xC3\x84ther"}) add(row);
  shown_.pump();
  EXPECT_EQ(found(L"b"), 1);
  EXPECT_EQ(found(L"BY"), 2);
  EXPECT_EQ(found(L"b", 2), 2) << "from the row that it starts with";
  EXPECT_EQ(found(L"a", 2), 0) << "from the last row it goes on with the first";
  EXPECT_EQ(found(L"\x00E4t"), 3);
  EXPECT_EQ(found(L"lpha"), -1);
  EXPECT_EQ(found(L"bystanders"), -1);
}

TEST_F(WindowList, ALetterThatNoRowBeginsWithMovesNothing) {
  for (const char* const row : {"alpha", "bravo", "charlie"}) add(row);
  shown_.pump();
  SetFocus(window_);
  ListView_SetItemState(window_, 1, LVIS_FOCUSED | LVIS_SELECTED, LVIS_FOCUSED | LVIS_SELECTED);
  SendMessageW(window_, WM_CHAR, L'x', 1);
  shown_.pump();
  EXPECT_EQ(marked(), 1);
}

TEST_F(WindowList, ALetterGoesToItsRow) {
  for (const char* const row : {"alpha", "bravo", "charlie"}) add(row);
  shown_.pump();
  SetFocus(window_);
  SendMessageW(window_, WM_CHAR, L'c', 1);
  shown_.pump();
  EXPECT_EQ(marked(), 2);
}

TEST_F(WindowList, AnotherRunWithAsManyRowsIsShown) {
  constexpr int kRows = 500;
  const auto fill = [this](std::string_view text) {
    results().clear();
    for (int i = 0; i < kRows; ++i) add(text);
    results().ensureLastVisible();
    shown_.pump();
    UpdateWindow(window_);
  };
  fill("iiii");
  const auto before = picture();
  EXPECT_EQ(lastInSight(), kRows - 1);
  ListView_EnsureVisible(window_, 0, FALSE);
  ASSERT_EQ(top(), 0);
  fill("WWWW");
  EXPECT_EQ(lastInSight(), kRows - 1);
  EXPECT_NE(picture(), before);
}

// As behind tracks of which there are none.
TEST_F(WindowList, SomebodyWhoHasScrolledAwayIsBroughtBackWithoutANewRow) {
  constexpr int kRows = 500;
  for (int i = 0; i < kRows; ++i) add("row");
  results().ensureLastVisible();
  shown_.pump();
  ListView_EnsureVisible(window_, 0, FALSE);
  shown_.pump();
  ASSERT_EQ(top(), 0) << "nobody has asked for the last row since";
  results().ensureLastVisible();
  shown_.pump();
  EXPECT_EQ(lastInSight(), kRows - 1);
}

TEST_F(WindowList, AListThatWasClearedIsNotScrolledForTheRowsBefore) {
  const auto fill = [this] {
    for (int i = 0; i < 500; ++i) add("row");
  };
  fill();
  results().ensureLastVisible();
  shown_.pump();
  results().ensureLastVisible();
  results().clear();
  fill();
  shown_.pump();
  EXPECT_EQ(top(), 0);
}

TEST_F(WindowList, AGreyedRowIsBroughtIntoSight) {
  constexpr int kRows = 500;
  for (int i = 0; i < kRows - 1; ++i) add("row");
  results().addGhosted({"row"});
  shown_.pump();
  EXPECT_EQ(lastInSight(), kRows - 1);
}

// The strip below the last whole row belongs to none.
TEST_F(WindowList, ManyRowsAtOnceLeaveNothingOfTheRowsBefore) {
  const auto show = [this](int rows) {
    for (int i = 0; i < rows; ++i) add("WWWWWWWWWWWWWWWWWWWW");
    results().ensureLastVisible();
    shown_.pump();
    UpdateWindow(window_);
  };
  show(500);
  ListView_EnsureVisible(window_, 0, FALSE);
  UpdateWindow(window_);
  show(50);
  ASSERT_EQ(lastInSight(), 549);
  RECT area;
  RECT last;
  GetClientRect(window_, &area);
  ListView_GetItemRect(window_, 549, &last, LVIR_BOUNDS);
  ASSERT_LT(last.bottom, area.bottom);
  const HDC dc = GetDC(window_);
  int left = 0;
  for (int y = last.bottom; y < area.bottom; ++y) {
    for (int x = 1; x < area.right; x += 3) {
      if (GetPixel(dc, x, y) != FormWindow::of(window_)->palette().panel) ++left;
    }
  }
  ReleaseDC(window_, dc);
  EXPECT_EQ(left, 0) << "points of a row";
}

// The rows of the run before are gone, and with them the mark and the place.
TEST_F(WindowList, ATaskTableThatIsBuiltAnewBeginsAtItsTop) {
  ListView& tasks = shown_.program().form.View100;
  const auto fill = [&] {
    tasks.clear();
    for (int i = 0; i < 60; ++i) tasks.add("Task " + std::to_string(i), "a");
    shown_.pump();
  };
  fill();
  const HWND table = shown_.window("Form1", "View100");
  ListView_SetItemState(table, 59, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
  ListView_EnsureVisible(table, 59, FALSE);
  const int top = ListView_GetTopIndex(table);
  ASSERT_GT(top, 0);
  tasks.item(3).subItem(1).text = "Finished";
  shown_.pump();
  EXPECT_EQ(ListView_GetTopIndex(table), top) << "a status moves nothing";
  fill();
  EXPECT_EQ(ListView_GetTopIndex(table), 0);
  EXPECT_EQ(ListView_GetNextItem(table, -1, LVNI_SELECTED), -1);
  EXPECT_EQ(ListView_GetItemCount(table), 60);
}

TEST_F(WindowList, AHeaderThatCannotBeClickedIsNoButton) {
  ListHeader& header = shown_.program().form.View100.header;
  const HWND window = ListView_GetHeader(shown_.window("Form1", "View100"));
  header.style = ListHeader::kButtons;
  shown_.pump();
  EXPECT_NE(GetWindowLongW(window, GWL_STYLE) & HDS_BUTTONS, 0);
  header.style = 0;
  shown_.pump();
  EXPECT_EQ(GetWindowLongW(window, GWL_STYLE) & HDS_BUTTONS, 0);
}

TEST_F(WindowList, AKeptRowThatComesOrGoesLeavesThePlaceThatIsSeen) {
  shown_.open("Form52");
  auto& list = dynamic_cast<ListBox&>(shown_.control("Form52", "List2"));
  const HWND window = shown_.window("Form52", "List2");
  for (int i = 0; i < 200; ++i) list.add("row " + std::to_string(i));
  shown_.pump();
  SendMessageW(window, LB_SETTOPINDEX, 90, 0);
  SendMessageW(window, LB_SETCARETINDEX, 95, FALSE);
  list.add("one more");
  shown_.pump();
  EXPECT_EQ(SendMessageW(window, LB_GETTOPINDEX, 0, 0), 90);
  EXPECT_EQ(SendMessageW(window, LB_GETCARETINDEX, 0, 0), 95);
  // As the wheel leaves it, out of sight.
  SendMessageW(window, LB_SETCARETINDEX, 0, FALSE);
  SendMessageW(window, LB_SETTOPINDEX, 90, 0);
  list.add("another");
  shown_.pump();
  EXPECT_EQ(SendMessageW(window, LB_GETTOPINDEX, 0, 0), 90);
  EXPECT_EQ(SendMessageW(window, LB_GETCARETINDEX, 0, 0), 0);
  list.rows.erase(list.rows.begin() + 150);
  shown_.pump();
  EXPECT_EQ(SendMessageW(window, LB_GETTOPINDEX, 0, 0), 90);
  EXPECT_EQ(SendMessageW(window, LB_GETCARETINDEX, 0, 0), 0);
  for (ListBox::Row& row : list.rows) row.selected = true;
  shown_.pump();
  EXPECT_EQ(SendMessageW(window, LB_GETTOPINDEX, 0, 0), 90);
  EXPECT_EQ(SendMessageW(window, LB_GETCARETINDEX, 0, 0), 0);
  // Filled anew it begins at its top, even with the same rows.
  SendMessageW(window, LB_SETTOPINDEX, 90, 0);
  const std::vector<ListBox::Row> same = list.rows;
  list.clear();
  for (const ListBox::Row& row : same) list.add(row.text);
  shown_.pump();
  EXPECT_EQ(SendMessageW(window, LB_GETTOPINDEX, 0, 0), 0);
  EXPECT_EQ(SendMessageW(window, LB_GETCARETINDEX, 0, 0), 0);
  SendMessageW(window, LB_SETCARETINDEX, 95, FALSE);
  list.rows.erase(list.rows.begin() + 3, list.rows.end());
  shown_.pump();
  EXPECT_EQ(SendMessageW(window, LB_GETCOUNT, 0, 0), 3);
  EXPECT_EQ(SendMessageW(window, LB_GETCARETINDEX, 0, 0), 2);
}

TEST_F(WindowList, AMillionRowsStayFluent) {
  constexpr std::size_t kRows = 1'000'000;
  constexpr double kFluent = 50;  // ms
  const auto worstOf = [](auto step) {
    double worst = 0;
    for (int i = 0; i < 5; ++i) {
      const auto from = std::chrono::steady_clock::now();
      step(i);
      worst = std::max(
          worst, duration<double, std::milli>(std::chrono::steady_clock::now() - from).count());
    }
    return worst;
  };
  for (std::size_t i = 0; i < kRows; ++i) add("C:\\Users\\somebody\\AppData\\Local\\a.tmp");
  BoundControl& bound = *BoundControl::of(window_);
  const double sync = worstOf([&](int) {
    add("one more");
    results().ensureLastVisible();
    bound.sync();
    UpdateWindow(window_);  // with what it leaves to be drawn
  });
  const double paint = worstOf([&](int i) {
    ListView_EnsureVisible(window_, i % 2 == 0 ? 0 : static_cast<int>(kRows) - 1, FALSE);
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
  });
  const double search = worstOf([&](int) { EXPECT_EQ(found(L"x"), -1); });
  EXPECT_EQ(ListView_GetItemCount(window_), static_cast<int>(kRows) + 5);
  EXPECT_LT(sync, kFluent);
  EXPECT_LT(paint, kFluent);
  RecordProperty("sync_us", static_cast<int>(sync * 1000));
  RecordProperty("paint_us", static_cast<int>(paint * 1000));
  printf("1,000,000 rows: sync %.2f ms, paint %.2f ms, search %.2f ms\n", sync, paint, search);
}

}  // namespace
}  // namespace tavr::win32::testing
