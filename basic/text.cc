#include "basic/text.h"

#include <algorithm>
#include <array>

#include "basic/case_table.h"
#include "basic/utf.h"

namespace tavr {

namespace {

template <char32_t (*Convert)(char32_t)>
std::string convertCase(std::string_view text, char first, char last) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t pos = 0; pos < text.size();) {
    const char byte = text[pos];
    if (static_cast<unsigned char>(byte) < 0x80) {
      out += byte >= first && byte <= last ? static_cast<char>(byte ^ 0x20) : byte;
      ++pos;
      continue;
    }
    const std::size_t start = pos;
    const char32_t c = nextCharacter(text, pos);
    const char32_t converted = Convert(c);
    if (converted == c) {
      out += text.substr(start, pos - start);  // bytes that are no UTF-8 stay
    } else {
      appendUtf8(out, converted);
    }
  }
  return out;
}

char16_t firstUnit(char32_t c) {
  return static_cast<char16_t>(c > 0xFFFF ? 0xD7C0 + (c >> 10) : c);
}

}  // namespace

char32_t upperCase(char32_t c) {
  if (c < 0x80) return c >= 'a' && c <= 'z' ? c - 32 : c;
  return mapCase(kUpperCase, c);
}

char32_t lowerCase(char32_t c) {
  if (c < 0x80) return c >= 'A' && c <= 'Z' ? c + 32 : c;
  return mapCase(kLowerCase, c);
}

std::string UCase(std::string_view text) { return convertCase<upperCase>(text, 'a', 'z'); }

std::string LCase(std::string_view text) { return convertCase<lowerCase>(text, 'A', 'Z'); }

std::string_view LTrim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

std::string_view RTrim(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

std::string_view Trim(std::string_view text) { return LTrim(RTrim(text)); }

bool sameText(std::string_view a, std::string_view b) { return compareUpper(a, b) == 0; }

int compareUpper(std::string_view a, std::string_view b) {
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < a.size() && j < b.size()) {
    if (a[i] == b[j] && static_cast<unsigned char>(a[i]) < 0x80) {  // most: nothing to decode
      ++i;
      ++j;
      continue;
    }
    const char32_t x = upperCase(nextCharacter(a, i));
    const char32_t y = upperCase(nextCharacter(b, j));
    if (x == y) continue;
    const char16_t u = firstUnit(x);
    const char16_t v = firstUnit(y);
    if (u != v) return u < v ? -1 : 1;
    return x < y ? -1 : 1;  // same high surrogate: the low one decides
  }
  if (i < a.size()) return 1;
  return j < b.size() ? -1 : 0;
}

std::size_t InStr(std::string_view text, std::string_view what) {
  if (text.empty()) return 0;
  const std::size_t at = text.find(what);
  return at == std::string_view::npos ? 0 : at + 1;
}

std::vector<std::string> Split(std::string_view text, char separator) {
  std::vector<std::string> parts;
  if (text.empty()) return parts;
  for (;;) {
    const std::size_t at = text.find(separator);
    parts.emplace_back(text.substr(0, at));
    if (at == std::string_view::npos) return parts;
    text.remove_prefix(at + 1);
  }
}

std::string_view untilNul(std::string_view text) { return text.substr(0, text.find('\0')); }

}  // namespace tavr
