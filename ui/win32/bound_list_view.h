// The task table, and the list of plug-ins with its check boxes.
#pragma once

#include "forms/list_view.h"
#include "ui/win32/report_list.h"

namespace tavr::win32 {

class BoundListView : public ReportList {
 public:
  BoundListView(FormWindow& form, ListView& list);

 protected:
  std::size_t rowCount() const override;
  void describe(std::size_t row, std::size_t column, Cell& cell) const override;
  const std::vector<std::string>& columns() const override { return list_.columns; }
  const ListHeader& header() const override { return list_.header; }
  int share(std::size_t column) const override;
  void onClick(std::size_t row, bool on_box) override;
  void onSpace(std::size_t row) override;
  void syncOwn() override;

 private:
  bool hasBoxes() const;
  void toggle(std::size_t row);
  COLORREF doneColor() const;

  ListView& list_;
  std::vector<ListRow> shown_;
  std::size_t clearings_ = 0;
};

}  // namespace tavr::win32
