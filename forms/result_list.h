// The results list View200: one row per track found, up to millions of them.
// Rows live in large blocks, so a row costs its text and a few bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "forms/list_header.h"

namespace tavr {

class ResultList : public Control {
 public:
  std::vector<std::string> columns;  ///< header texts
  ListHeader header;

  void clear();
  std::size_t count() const { return count_; }

  /// A new last row with the text of the pieces, joined.
  void add(std::initializer_list<std::string_view> pieces);
  /// The same, greyed, and scrolled into view.
  void addGhosted(std::initializer_list<std::string_view> pieces);

  /// Scrolls the last row into view. Raises 35600 on an empty list.
  void ensureLastVisible();

  /// Rows are numbered from 1. Raises 35600 for a row that does not exist.
  std::string_view text(std::size_t row) const;
  bool ghosted(std::size_t row) const;

  /// Its number of rows.
  std::string shown() const override { return std::to_string(count_); }

  /// How often it has been cleared: rows of an earlier time are not those of now.
  std::size_t clearings() const { return clearings_; }

  /// The row last scrolled into view, 0 for none.
  std::size_t ensuredRow() const { return ensured_row_; }
  /// How often a row was: the same one again brings it back to somebody who has
  /// scrolled away.
  std::size_t ensurings() const { return ensurings_; }

  /// Called with the rows still in place, before they are cleared.
  std::function<void()> onClear;

 private:
  struct Row {
    const char* text = nullptr;
    std::uint32_t length = 0;
    bool ghosted = false;
  };
  static constexpr std::size_t kRowsPerBlock = 4096;
  static constexpr std::size_t kTextBlock = std::size_t{1} << 18;

  const Row& row(std::size_t number) const;
  char* allocate(std::size_t length);

  std::vector<std::unique_ptr<Row[]>> rows_;
  std::vector<std::unique_ptr<char[]>> texts_;
  std::size_t count_ = 0;
  std::size_t free_ = 0;  // bytes left in the last text block
  char* next_ = nullptr;
  std::size_t ensured_row_ = 0;
  std::size_t ensurings_ = 0;
  std::size_t clearings_ = 0;
};

}  // namespace tavr
