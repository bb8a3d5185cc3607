// A report list: the task table View100 and the plug-in list View1.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "forms/list_header.h"

namespace tavr {

/// Dark red, as the row of a finished track shows its count.
inline constexpr std::uint32_t kDarkRed = 192;

struct ListCell {
  std::string text;
  std::string report_icon;
  bool bold = false;
  std::uint32_t fore_color = 0;
};

struct ListRow {
  std::string text;
  std::string small_icon;
  bool checked = false;
  std::array<ListCell, 2> cells;  ///< sub-items 1 and 2; both exist from the start

  /// Sub-item 1 or 2.
  ListCell& subItem(int column) { return cells.at(static_cast<std::size_t>(column - 1)); }
};

/// Rows are numbered from 1.
class ListView : public Control {
 public:
  std::vector<std::string> columns;  ///< header texts
  ListHeader header;
  int selected = 0;  ///< the row that was clicked last, 0 for none

  /// The row's check mark was set by a person.
  std::function<void(int row)> onItemCheck;
  /// The row was clicked.
  std::function<void(int row)> onItemClick;

  void clear() {
    rows_.clear();
    ++clearings_;
  }
  /// How often it was cleared: rows that came behind are others, whatever their texts.
  std::size_t clearings() const { return clearings_; }
  ListRow& add(std::string_view text, std::string_view small_icon);
  int count() const { return static_cast<int>(rows_.size()); }
  /// Raises 35600 for a row that does not exist. `row` is rounded, as an index
  /// of any number is.
  ListRow& item(double row);

  /// Its number of rows.
  std::string shown() const override { return std::to_string(count()); }

 private:
  std::deque<ListRow> rows_;
  std::size_t clearings_ = 0;
};

}  // namespace tavr
