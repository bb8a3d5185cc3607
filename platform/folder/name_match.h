// The file name patterns of FindFirstFile: the translation that Win32 makes of
// "*", "?" and "." and the match that the file system makes of the result.
// Names have no 8.3 forms here.
#pragma once

#include <string_view>

#include "basic/name_expression.h"

namespace tavr::folder {

class NamePattern {
 public:
  /// The last part of a search path as it was written, with its trailing dots
  /// and blanks: a pattern that ends in "*." asks for names without extension.
  explicit NamePattern(std::string_view written);

  /// Without case, by UTF-16 unit. Takes time in proportion to the two lengths'
  /// product at worst.
  bool matches(std::string_view name) const;

  /// "*" and "*.*".
  bool matchesEveryName() const { return every_; }

 private:
  NameExpression<char16_t> expression_;  // upper-cased
  bool every_ = false;
};

/// True when a last part is a pattern and not a plain name.
bool hasWildcard(std::string_view name);

}  // namespace tavr::folder
