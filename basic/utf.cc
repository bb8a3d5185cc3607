#include "basic/utf.h"

namespace tavr {

namespace {

// Length of the sequence that the lead byte announces, 0 for none.
std::size_t sequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

bool valid(char32_t c, std::size_t length) {
  if (length == 3 && c < 0x800) return false;
  if (length == 4 && (c < 0x10000 || c > 0x10FFFF)) return false;
  return c < 0xD800 || c > 0xDFFF;
}

}  // namespace

char32_t nextCharacter(std::string_view text, std::size_t& pos) {
  const auto lead = static_cast<unsigned char>(text[pos]);
  const std::size_t length = sequenceLength(lead);
  if (length <= 1 || pos + length > text.size()) {
    ++pos;
    return lead;
  }
  char32_t c = lead & (0x7F >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(text[pos + i]);
    if ((byte & 0xC0) != 0x80) {
      ++pos;
      return lead;
    }
    c = (c << 6) | (byte & 0x3F);
  }
  if (!valid(c, length)) {
    ++pos;
    return lead;
  }
  pos += length;
  return c;
}

void appendUtf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

std::size_t utf16Length(std::string_view text) {
  std::size_t units = 0;
  for (std::size_t pos = 0; pos < text.size();) {
    units += nextCharacter(text, pos) > 0xFFFF ? 2 : 1;
  }
  return units;
}

std::string_view leftUtf16(std::string_view text, std::size_t units) {
  std::size_t taken = 0;
  for (std::size_t pos = 0; pos < text.size();) {
    const std::size_t start = pos;
    taken += nextCharacter(text, pos) > 0xFFFF ? 2 : 1;
    if (taken > units) return text.substr(0, start);
  }
  return text;
}

std::u16string toUtf16(std::string_view text) {
  std::u16string out;
  out.reserve(text.size());
  for (std::size_t pos = 0; pos < text.size();) {
    const char32_t c = nextCharacter(text, pos);
    if (c > 0xFFFF) {
      out += static_cast<char16_t>(0xD7C0 + (c >> 10));
      out += static_cast<char16_t>(0xDC00 | (c & 0x3FF));
    } else {
      out += static_cast<char16_t>(c);
    }
  }
  return out;
}

std::string fromUtf16(std::u16string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    const bool high = c >= 0xD800 && c <= 0xDBFF;
    if (high && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF) {
      c = 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00U);
    } else if (c >= 0xD800 && c <= 0xDFFF) {
      c = 0xFFFD;  // half a pair has no UTF-8 form
    }
    appendUtf8(out, c);
  }
  return out;
}

}  // namespace tavr
