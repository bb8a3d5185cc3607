#include "forms/result_list.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "basic/resume_next.h"

namespace tavr {

void ResultList::clear() {
  if (onClear) onClear();
  rows_.clear();
  texts_.clear();
  count_ = free_ = ensured_row_ = 0;
  ++clearings_;
  next_ = nullptr;
}

char* ResultList::allocate(std::size_t length) {
  if (length > free_) {
    const std::size_t size = std::max(length, kTextBlock);
    texts_.push_back(std::make_unique_for_overwrite<char[]>(size));
    next_ = texts_.back().get();
    free_ = size;
  }
  char* const at = next_;
  next_ += length;
  free_ -= length;
  return at;
}

void ResultList::add(std::initializer_list<std::string_view> pieces) {
  std::size_t length = 0;
  for (const std::string_view piece : pieces) length += piece.size();
  char* const text = allocate(length);
  char* end = text;
  for (const std::string_view piece : pieces) {
    end = std::copy(piece.begin(), piece.end(), end);
  }
  if (count_ % kRowsPerBlock == 0) {
    rows_.push_back(std::make_unique_for_overwrite<Row[]>(kRowsPerBlock));
  }
  rows_.back()[count_ % kRowsPerBlock] = {text, static_cast<std::uint32_t>(length), false};
  ++count_;
}

void ResultList::addGhosted(std::initializer_list<std::string_view> pieces) {
  add(pieces);
  rows_.back()[(count_ - 1) % kRowsPerBlock].ghosted = true;
  ensureLastVisible();
}

void ResultList::ensureLastVisible() {
  row(count_);
  ensured_row_ = count_;
  ++ensurings_;
}

const ResultList::Row& ResultList::row(std::size_t number) const {
  if (number < 1 || number > count_) throw RuntimeError{kErrNoElement, "Index out of bounds"};
  return rows_[(number - 1) / kRowsPerBlock][(number - 1) % kRowsPerBlock];
}

std::string_view ResultList::text(std::size_t number) const {
  const Row& found = row(number);
  return {found.text, found.length};
}

bool ResultList::ghosted(std::size_t number) const { return row(number).ghosted; }

}  // namespace tavr
