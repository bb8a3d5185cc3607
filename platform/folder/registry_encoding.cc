#include "platform/folder/registry_encoding.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "basic/utf.h"
#include "platform/folder/machine_text.h"

namespace tavr::folder {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16Mark = "\xFF\xFE";

char32_t unitAt(std::string_view bytes, std::size_t pos) {
  return static_cast<unsigned char>(bytes[pos]) |
         static_cast<char32_t>(static_cast<unsigned char>(bytes[pos + 1])) << 8;
}

void appendUnit(std::string& out, char32_t unit) {
  out += static_cast<char>(unit & 0xFF);
  out += static_cast<char>(unit >> 8 & 0xFF);
}

bool isHigh(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool isLow(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

// The three bytes of half a pair at `pos`.
bool isHalfPair(std::string_view text, std::size_t pos) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  return text.size() - pos >= 3 && byte(pos) == 0xED && byte(pos + 1) >= 0xA0 &&
         byte(pos + 1) <= 0xBF && (byte(pos + 2) & 0xC0) == 0x80;
}

[[noreturn]] void refuseAt(std::string_view file, std::string_view text, std::size_t pos,
                           std::string_view what) {
  const auto lines =
      std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(pos), '\n');
  refuseLine(file, static_cast<std::size_t>(lines) + 1, what);
}

void checkUtf8(std::string_view file, std::string_view text) {
  for (std::size_t pos = 0; pos < text.size();) {
    if (static_cast<unsigned char>(text[pos]) < 0x80) {
      ++pos;
      continue;
    }
    const std::size_t start = pos;
    nextCharacter(text, pos);
    if (pos - start == 1) refuseAt(file, text, start, "bytes that are neither UTF-8 nor UTF-16");
  }
}

}  // namespace

std::string decodeRegistry(std::string_view file, std::string bytes, RegistryEncoding& encoding) {
  encoding = {};
  std::string text;
  if (bytes.starts_with(kUtf16Mark)) {
    encoding.utf16 = true;
    text = fromUtf16Bytes(std::string_view(bytes).substr(kUtf16Mark.size()));
    if (bytes.size() % 2 != 0) refuseAt(file, text, text.size(), "half a character at the end");
  } else {
    encoding.marked = bytes.starts_with(kUtf8Mark);
    text = std::move(bytes);
    if (encoding.marked) text.erase(0, kUtf8Mark.size());
    checkUtf8(file, text);
  }
  const std::size_t nul = text.find('\0');
  if (nul != std::string::npos) refuseAt(file, text, nul, "a NUL character");
  const std::size_t line_end = text.find('\n');
  encoding.crlf = line_end != std::string::npos && line_end > 0 && text[line_end - 1] == '\r';
  return text;
}

std::string encodeRegistry(std::string text, const RegistryEncoding& encoding) {
  if (encoding.utf16) return std::string(kUtf16Mark) + utf16Bytes(text);
  if (encoding.marked) text.insert(0, kUtf8Mark);
  return text;
}

std::string utf16Bytes(std::string_view text) {
  std::string out;
  out.reserve(text.size() * 2);
  for (std::size_t pos = 0; pos < text.size();) {
    if (static_cast<unsigned char>(text[pos]) < 0x80) {
      out += text[pos++];
      out += '\0';
      continue;
    }
    if (isHalfPair(text, pos)) {
      appendUnit(out, 0xD000U | (static_cast<unsigned char>(text[pos + 1]) & 0x3FU) << 6 |
                          (static_cast<unsigned char>(text[pos + 2]) & 0x3FU));
      pos += 3;
      continue;
    }
    const char32_t c = nextCharacter(text, pos);
    if (c > 0xFFFF) {
      appendUnit(out, 0xD7C0 + (c >> 10));
      appendUnit(out, 0xDC00 | (c & 0x3FF));
    } else {
      appendUnit(out, c);
    }
  }
  return out;
}

std::string fromUtf16Bytes(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size() / 2);
  for (std::size_t pos = 0; pos + 1 < bytes.size(); pos += 2) {
    char32_t c = unitAt(bytes, pos);
    if (isHigh(c) && pos + 3 < bytes.size() && isLow(unitAt(bytes, pos + 2))) {
      c = 0x10000 + ((c - 0xD800) << 10) + (unitAt(bytes, pos + 2) - 0xDC00);
      pos += 2;
    }
    appendUtf8(out, c);
  }
  return out;
}

}  // namespace tavr::folder
