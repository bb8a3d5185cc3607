// A list with a header, as the native virtual list view: it holds no rows, it
// asks for those in sight and draws them itself, so a million rows cost nothing.
#pragma once

#include <windows.h>
// Behind windows.h.
#include <commctrl.h>

#include <string>
#include <vector>

#include "forms/list_header.h"
#include "ui/win32/bound_control.h"
#include "ui/win32/draw_list.h"

namespace tavr::win32 {

class ReportList : public BoundControl {
 public:
  ~ReportList() override;

  LRESULT onNotify(NMHDR& header) override;

 protected:
  using Cell = DrawnCell;

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
  static LRESULT CALLBACK headerProcedure(HWND, UINT, WPARAM, LPARAM, UINT_PTR, DWORD_PTR);
  HWND headerWindow() const;
  void makeColumns();
  void spreadColumns();
  void setHeaderStyle();
  void paintHeader(HWND window, HDC dc) const;
  LRESULT onCustomDraw(NMHDR& header);
  void drawRow(HDC dc, std::size_t row);
  void drawCell(HDC dc, const RECT& area, const Cell& cell);
  void answerText(NMHDR& header) const;
  LRESULT findRow(const NMHDR& header) const;
  void clicked(const NMHDR& header);

  HIMAGELIST row_height_ = nullptr;
  std::vector<std::string> shown_columns_;
  std::size_t shown_rows_ = 0;
  int longest_ = 0;  ///< pixels of the longest text drawn in a list of one column
};

}  // namespace tavr::win32
