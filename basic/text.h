// The text operations that the program's procedures are written in.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tavr {

/// Upper and lower case, one character for one over the whole Basic
/// Multilingual Plane, so a text keeps its length in UTF-16 units.
char32_t upperCase(char32_t character);
char32_t lowerCase(char32_t character);
std::string UCase(std::string_view text);
std::string LCase(std::string_view text);

/// Without the blanks (only U+0020) at both ends.
std::string_view Trim(std::string_view text);
std::string_view LTrim(std::string_view text);
std::string_view RTrim(std::string_view text);

/// Equal without case.
bool sameText(std::string_view a, std::string_view b);

/// Order of two names without case: upper-cased, by UTF-16 unit. Below, equal
/// to or above 0.
int compareUpper(std::string_view a, std::string_view b);

/// 1-based position of `what` in `text`, 0 when absent; 1 for an empty `what`
/// in a text that is not empty, 0 in an empty text.
std::size_t InStr(std::string_view text, std::string_view what);

/// The parts between separators; an empty text has no element at all.
std::vector<std::string> Split(std::string_view text, char separator);

/// Up to the first NUL.
std::string_view untilNul(std::string_view text);

/// True when the text ends in one "\".
inline bool endsInBackslash(std::string_view text) { return text.ends_with('\\'); }

/// The text without its last "\", if it ends in one.
inline std::string_view withoutBackslash(std::string_view text) {
  return endsInBackslash(text) ? text.substr(0, text.size() - 1) : text;
}

}  // namespace tavr
