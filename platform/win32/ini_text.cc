#include "platform/win32/ini_text.h"

#include <windows.h>

#include <algorithm>
#include <optional>

#include "basic/utf.h"
#include "platform/win32/wide.h"

namespace tavr::win32 {

namespace {

bool isAscii(std::wstring_view text) {
  return std::all_of(text.begin(), text.end(), [](wchar_t unit) { return unit < 0x80; });
}

// A byte that is no UTF-8 counts as a character of its own, and as one of a single
// byte it would be ASCII.
bool isUtf8(std::string_view text) {
  for (std::size_t pos = 0; pos < text.size();) {
    const std::size_t start = pos;
    if (nextCharacter(text, pos) >= 0x80 && pos - start == 1) return false;
  }
  return true;
}

// Nothing: the page lacks a character, or has only one that resembles it.
std::optional<std::string> bytesOf(std::wstring_view text, unsigned page) {
  const auto length = static_cast<int>(text.size());
  BOOL lost = FALSE;
  std::string bytes(text.size() * 4, '\0');
  const int size =
      WideCharToMultiByte(page, WC_NO_BEST_FIT_CHARS, text.data(), length, bytes.data(),
                          static_cast<int>(bytes.size()), nullptr, &lost);
  if (size <= 0 || lost) return std::nullopt;
  bytes.resize(static_cast<std::size_t>(size));
  return bytes;
}

std::wstring readIn(std::string_view bytes, unsigned page) {
  std::wstring text(bytes.size(), L'\0');
  const int length = MultiByteToWideChar(page, 0, bytes.data(), static_cast<int>(bytes.size()),
                                         text.data(), static_cast<int>(text.size()));
  text.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
  return text;
}

}  // namespace

std::string fromIniText(std::wstring_view text, unsigned page) {
  if (page == CP_UTF8 || isAscii(text)) return narrow(text);
  const std::optional<std::string> bytes = bytesOf(text, page);
  return bytes && isUtf8(*bytes) ? *bytes : narrow(text);
}

std::wstring toIniText(std::string_view text, unsigned page) {
  std::wstring plain = wide(text);
  if (page == CP_UTF8 || isAscii(plain)) return plain;
  std::wstring read = readIn(text, page);
  return bytesOf(read, page) == text ? read : plain;
}

}  // namespace tavr::win32
