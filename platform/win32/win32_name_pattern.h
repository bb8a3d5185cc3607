// The name patterns of FindFirstFile, matched in the program: one pass over a
// folder serves two searches, and the short forms of names ("LONGFI~1.HTM"),
// which Windows matches too, find nothing.
#pragma once

#include <string_view>

#include "basic/name_expression.h"

namespace tavr::win32 {

class NamePattern {
 public:
  /// `text` is a plain pattern.
  explicit NamePattern(std::wstring_view text);

  /// A pattern that needs nothing of what the path functions do to an unusual
  /// last part: no separator, no sign that no name has, no dot or blank at the
  /// end.
  static bool isPlain(std::wstring_view text);

  bool matches(std::wstring_view name) const;

 private:
  bool matchesExpression(std::wstring_view name) const;

  bool every_ = false;
  bool has_wildcard_ = false;
  NameExpression<wchar_t> expression_;
};

}  // namespace tavr::win32
