// UTF-8 text measured and walked as Windows counts it: in UTF-16 units.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tavr {

/// Decodes the character at `pos` and moves `pos` behind it. A byte that is no
/// valid UTF-8 counts as one character of its own value (as in Latin-1).
char32_t nextCharacter(std::string_view text, std::size_t& pos);

void appendUtf8(std::string& out, char32_t character);

/// Number of UTF-16 units of the text.
std::size_t utf16Length(std::string_view text);

/// True when the text has `limit` UTF-16 units or more; quick for short text.
inline bool reaches(std::string_view text, std::size_t limit) {
  return text.size() >= limit && utf16Length(text) >= limit;
}

/// The first `units` UTF-16 units; a pair of surrogates is never split.
std::string_view leftUtf16(std::string_view text, std::size_t units);

std::u16string toUtf16(std::string_view text);
std::string fromUtf16(std::u16string_view text);

}  // namespace tavr
