// The results: one row a track found, up to millions of them.
#pragma once

#include "forms/result_list.h"
#include "ui/win32/report_list.h"

namespace tavr::win32 {

class BoundResultList : public ReportList {
 public:
  BoundResultList(FormWindow& form, ResultList& list);

 protected:
  std::size_t rowCount() const override { return list_.count(); }
  void describe(std::size_t row, std::size_t column, Cell& cell) const override;
  const std::vector<std::string>& columns() const override { return list_.columns; }
  const ListHeader& header() const override { return list_.header; }
  void syncOwn() override;

 private:
  void syncRows();

  ResultList& list_;
  std::size_t ensurings_ = 0;
  std::size_t clearings_ = 0;
};

}  // namespace tavr::win32
