#include "forms/list_view.h"

#include <cmath>

#include "basic/resume_next.h"

namespace tavr {

ListRow& ListView::add(std::string_view text, std::string_view small_icon) {
  ListRow& row = rows_.emplace_back();
  row.text = text;
  row.small_icon = small_icon;
  return row;
}

ListRow& ListView::item(double row) {
  const double index = std::nearbyint(row);
  if (index < 1 || index > count()) throw RuntimeError{kErrNoElement, "Index out of bounds"};
  return rows_[static_cast<std::size_t>(index) - 1];
}

}  // namespace tavr
