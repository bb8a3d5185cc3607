#include "platform/win32/wide.h"

#include "basic/utf.h"

namespace tavr::win32 {

namespace {

constexpr char32_t kFirstHigh = 0xD800;
constexpr char32_t kFirstLow = 0xDC00;
constexpr char32_t kLastLow = 0xDFFF;

unsigned byteAt(std::string_view text, std::size_t pos) {
  return static_cast<unsigned char>(text[pos]);
}

bool isHigh(char32_t unit) { return unit >= kFirstHigh && unit < kFirstLow; }
bool isLow(char32_t unit) { return unit >= kFirstLow && unit <= kLastLow; }

}  // namespace

char32_t nextWide(std::string_view text, std::size_t& pos) {
  const bool half_a_pair = byteAt(text, pos) == 0xED && pos + 2 < text.size() &&
                           (byteAt(text, pos + 1) & 0xE0) == 0xA0 &&
                           (byteAt(text, pos + 2) & 0xC0) == 0x80;
  if (!half_a_pair) return nextCharacter(text, pos);
  const char32_t unit =
      0xD000 | (byteAt(text, pos + 1) & 0x3F) << 6 | (byteAt(text, pos + 2) & 0x3F);
  pos += 3;
  return unit;
}

std::wstring wide(std::string_view text) {
  std::wstring units;
  units.reserve(text.size());
  for (std::size_t pos = 0; pos < text.size();) {
    char32_t c = nextWide(text, pos);
    if (c > 0xFFFF) {
      units += static_cast<wchar_t>(0xD7C0 + (c >> 10));
      c = kFirstLow | (c & 0x3FF);
    }
    units += static_cast<wchar_t>(c);
  }
  return units;
}

std::string narrow(std::wstring_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    if (isHigh(c) && i + 1 < text.size() && isLow(text[i + 1])) {
      c = 0x10000 + ((c - kFirstHigh) << 10) + (text[++i] - kFirstLow);
    }
    appendUtf8(out, c);
  }
  return out;
}

}  // namespace tavr::win32
