// A list with a header, as the native virtual list view: it holds no rows, it
// asks for those in sight and draws them itself, so a million rows cost nothing.
#pragma once

#include <windows.h>
// Behind windows.h.
#include <commctrl.h>

#include <string>
#include <string_view>
#include <vector>

#include "forms/list_header.h"
#include "ui/win32/bound_control.h"

namespace tavr::win32 {

class ReportList : public BoundControl {
 public:
  ~ReportList() override;

  LRESULT onNotify(NMHDR& header) override;

 protected:
  struct Cell {
    std::string_view text;
    std::string_view icon;  ///< of drawIcon; before the text
    COLORREF icon_color = 0;
    COLORREF color = 0;
    bool bold = false;
    bool at_far_edge = false;  ///< a number: it ends at the column's end
    bool has_box = false;      ///< with a check box before everything
    bool checked = false;
  };

  ReportList(FormWindow& form, Control& control);

  virtual std::size_t rowCount() const = 0;
  /// Of a row from 0 and a column from 0, its colour set to that of a usual text.
  virtual void describe(std::size_t row, std::size_t column, Cell& cell) const = 0;
  virtual const std::vector<std::string>& columns() const = 0;
  virtual const ListHeader& header() const = 0;
  /// Share of the width, in percent.
  virtual int share(std::size_t /*column*/) const { return 100; }

  virtual void onClick(std::size_t /*row*/, bool /*on_box*/) {}
  virtual void onSpace(std::size_t /*row*/) {}

  void syncOwn() override;
  void place(const RECT& box) override;
  void fontChanged() override;
  /// None of the rows that are shown is there any more.
  void forgetRows();
  /// Rows from 0 have changed.
  void redraw(std::size_t first, std::size_t last);

 private:
  static constexpr int kPadding = 12;  // px before and behind a text
  static constexpr int kSign = 16;     // px of an icon or a check box

  static LRESULT CALLBACK headerProcedure(HWND, UINT, WPARAM, LPARAM, UINT_PTR, DWORD_PTR);
  HWND headerWindow() const;
  void makeColumns();
  void spreadColumns();
  void setHeaderStyle();
  void paintHeader(HWND window, HDC dc) const;
  LRESULT onCustomDraw(NMHDR& header);
  void drawRow(HDC dc, std::size_t row);
  void drawCell(HDC dc, RECT area, const Cell& cell);
  void drawBox(HDC dc, RECT& area, bool checked);
  void answerText(NMHDR& header) const;
  LRESULT findRow(const NMHDR& header) const;
  void clicked(const NMHDR& header);

  HIMAGELIST row_height_ = nullptr;
  std::vector<std::string> shown_columns_;
  std::size_t shown_rows_ = 0;
  int longest_ = 0;  ///< pixels of the longest text drawn in a list of one column
};

}  // namespace tavr::win32
