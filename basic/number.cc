#include "basic/number.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "basic/resume_next.h"
#include "basic/text.h"

namespace tavr {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

int hexDigit(char c) {
  if (isDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// Blanks, tabs and line feeds do not count, wherever they stand.
std::string withoutBlanks(std::string_view text) {
  std::string out;
  for (const char c : text) {
    if (c != ' ' && c != '\t' && c != '\n') out += c;
  }
  return out;
}

double radixNumber(std::string_view digits, int radix) {
  double value = 0;
  for (const char c : digits) {
    const int digit = hexDigit(c);
    if (digit < 0 || digit >= radix) break;
    value = value * radix + digit;
  }
  return value;
}

// Length of the leading decimal number: sign, digits, point, exponent.
std::size_t decimalLength(std::string_view text) {
  std::size_t i = 0;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
  const std::size_t digits_at = i;
  while (i < text.size() && isDigit(text[i])) ++i;
  std::size_t digits = i - digits_at;
  if (i < text.size() && text[i] == '.') {
    const std::size_t point = i++;
    while (i < text.size() && isDigit(text[i])) ++i;
    digits += i - point - 1;
  }
  if (digits == 0) return 0;
  if (i < text.size() && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
    std::size_t j = i + 1;
    if (j < text.size() && (text[j] == '+' || text[j] == '-')) ++j;
    const std::size_t exponent = j;
    while (j < text.size() && isDigit(text[j])) ++j;
    if (j > exponent) i = j;
  }
  return i;
}

// "1.2345e+20" of %e as the program writes it: "1.2345E+20".
std::string withExponent(std::string text) {
  const std::size_t e = text.find('e');
  std::string mantissa = text.substr(0, e);
  if (mantissa.find('.') != std::string::npos) {
    while (mantissa.back() == '0') mantissa.pop_back();
    if (mantissa.back() == '.') mantissa.pop_back();
  }
  text[e] = 'E';
  return mantissa + text.substr(e);
}

std::string plainDigits(double value, int exponent) {
  std::array<char, 64> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%.*f", 14 - exponent, value);
  std::string text = buffer.data();
  if (text.find('.') != std::string::npos) {
    while (text.back() == '0') text.pop_back();
    if (text.back() == '.') text.pop_back();
  }
  return text;
}

// Beyond every double, as a sum of a stored "1e400" is.
std::string infinityText(double value) {
  if (std::isnan(value)) return "-1.#IND";
  return value < 0 ? "-1.#INF" : "1.#INF";
}

// "&H1F" or "&O17" to its end.
bool isRadixNumber(std::string_view text) {
  if (text.size() < 3 || text[0] != '&') return false;
  const bool hex = text[1] == 'h' || text[1] == 'H';
  const bool octal = text[1] == 'o' || text[1] == 'O';
  const std::string_view digits = hex ? "0123456789abcdefABCDEF" : "01234567";
  return (hex || octal) && text.find_first_not_of(digits, 2) == text.npos;
}

double wholeNumber(std::string_view raw, double least, double greatest) {
  const std::string text(Trim(raw));
  if (!isRadixNumber(text) && (text.empty() || decimalLength(text) != text.size())) {
    throw RuntimeError{kErrTypeMismatch, "Type mismatch"};
  }
  const double value = std::nearbyint(Val(text));  // halves to even
  if (value < least || value > greatest) throw RuntimeError{kErrOverflow, "Overflow"};
  return value;
}

}  // namespace

double Val(std::string_view raw) {
  const std::string text = withoutBlanks(raw);
  if (text.size() >= 2 && text[0] == '&') {
    const char radix = text[1];
    if (radix == 'h' || radix == 'H') return radixNumber(std::string_view(text).substr(2), 16);
    if (radix == 'o' || radix == 'O') return radixNumber(std::string_view(text).substr(2), 8);
  }
  const std::size_t length = decimalLength(text);
  if (length == 0) return 0;
  std::string number = text.substr(0, length);
  for (char& c : number) {
    if (c == 'd' || c == 'D') c = 'e';
  }
  return std::strtod(number.c_str(), nullptr);
}

std::string numberText(double value, char decimal) {
  if (!std::isfinite(value)) return infinityText(value);
  if (std::fabs(value) < 1e15 && value == std::floor(value)) {
    std::array<char, 24> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                   static_cast<std::int64_t>(value));
    return {digits.data(), end.ptr};
  }
  // The exponent is that of the rounded number: 999999999999999.9 has 15.
  std::array<char, 40> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%.14e", value);
  const int exponent = std::atoi(std::strchr(buffer.data(), 'e') + 1);
  std::string text =
      exponent >= 15 || exponent < -4 ? withExponent(buffer.data()) : plainDigits(value, exponent);
  const std::size_t point = text.find('.');
  if (point != std::string::npos) text[point] = decimal;
  return text;
}

std::string Str(double value) { return (value < 0 ? "" : " ") + numberText(value); }

std::string formatThousandths(double value, char decimal) {
  const double thousandths = std::round(value * 1000);  // half away from zero
  const double size = std::fabs(thousandths);
  std::array<char, 340> buffer{};  // a double has up to 309 digits
  std::snprintf(buffer.data(), buffer.size(), "%s%.0f%c%03d", thousandths < 0 ? "-" : "",
                std::floor(size / 1000), decimal, static_cast<int>(std::fmod(size, 1000)));
  return buffer.data();
}

int toInteger(std::string_view text) { return static_cast<int>(wholeNumber(text, -32768, 32767)); }

std::int32_t toLong(std::string_view text) {
  return static_cast<std::int32_t>(wholeNumber(text, -2147483648.0, 2147483647.0));
}

std::string Hex(std::uint32_t value) {
  std::array<char, 12> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%X", value);
  return buffer.data();
}

}  // namespace tavr
