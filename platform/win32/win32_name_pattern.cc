#include "platform/win32/win32_name_pattern.h"

#include <windows.h>

namespace tavr::win32 {

namespace {

// A pattern is part of a path.
constexpr std::size_t kMaxPattern = 260;

wchar_t upperAscii(wchar_t unit) {
  return unit >= L'a' && unit <= L'z' ? static_cast<wchar_t>(unit - 0x20) : unit;
}

// Beyond ASCII the system's own table decides.
bool sameUnit(wchar_t a, wchar_t b) {
  if (upperAscii(a) == upperAscii(b)) return true;
  return (a >= 0x80 || b >= 0x80) && CompareStringOrdinal(&a, 1, &b, 1, TRUE) == CSTR_EQUAL;
}

}  // namespace

NamePattern::NamePattern(std::wstring_view text)
    : every_(text == L"*.*" || text == L"*"),
      has_wildcard_(text.find_first_of(L"*?") != std::wstring_view::npos),
      expression_(std::wstring(text)) {}

bool NamePattern::isPlain(std::wstring_view text) {
  if (text.empty() || text.size() > kMaxPattern) return false;
  if (text.back() == L'.' || text.back() == L' ') return false;
  for (const wchar_t unit : text) {
    if (unit < 0x20 || std::wstring_view(L"\\/:|<>\"").find(unit) != std::wstring_view::npos) {
      return false;
    }
  }
  return true;
}

bool NamePattern::matches(std::wstring_view name) const {
  if (every_) return true;
  if (has_wildcard_) return matchesExpression(name);
  const std::wstring& plain = expression_.units();
  return name.size() == plain.size() &&
         CompareStringOrdinal(name.data(), static_cast<int>(name.size()), plain.data(),
                              static_cast<int>(plain.size()), TRUE) == CSTR_EQUAL;
}

bool NamePattern::matchesExpression(std::wstring_view name) const {
  const std::size_t last_dot = name.rfind(L'.');
  NameExpression<wchar_t>::Walk walk(expression_);
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (!walk.take(name[i], i == last_dot, sameUnit)) return false;
  }
  return walk.matches();
}

}  // namespace tavr::win32
