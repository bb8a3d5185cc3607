#include "platform/win32/win32_name_pattern.h"

#include <windows.h>

#include <array>
#include <cstdint>
#include <utility>

namespace tavr::win32 {

namespace {

// The wildcards of the file system. "*" takes any run of characters; the three
// others are what Windows makes of patterns written for names with one extension.
constexpr wchar_t kAnyRun = L'*';
constexpr wchar_t kDosStar = L'<';  // a run up to the last dot of the name
constexpr wchar_t kDosMark = L'>';  // one character, none before a dot or at the end
constexpr wchar_t kDosDot = L'"';   // a dot, or nothing at the end

// A pattern is part of a path.
constexpr std::size_t kMaxExpression = 260;

wchar_t upperAscii(wchar_t unit) {
  return unit >= L'a' && unit <= L'z' ? static_cast<wchar_t>(unit - 0x20) : unit;
}

// Beyond ASCII the system's own table decides.
bool sameUnit(wchar_t a, wchar_t b) {
  if (upperAscii(a) == upperAscii(b)) return true;
  return (a >= 0x80 || b >= 0x80) && CompareStringOrdinal(&a, 1, &b, 1, TRUE) == CSTR_EQUAL;
}

std::wstring translate(std::wstring_view text) {
  std::wstring expression(text);
  for (std::size_t i = 0; i < expression.size(); ++i) {
    wchar_t& unit = expression[i];
    const bool behind = i > 0;
    if (unit == L'.' && behind && expression[i - 1] == kAnyRun) expression[i - 1] = kDosStar;
    if (unit != L'?' && unit != kAnyRun) continue;
    if (behind && expression[i - 1] == L'.') expression[i - 1] = kDosDot;
    if (unit == L'?') unit = kDosMark;
  }
  return expression;
}

// Places in the expression that the name so far can have led to, ascending.
class Places {
 public:
  void add(std::size_t place) {
    if (count_ == 0 || items_[count_ - 1] != place) {
      items_[count_++] = static_cast<std::uint16_t>(place);
    }
  }
  void clear() { count_ = 0; }
  bool empty() const { return count_ == 0; }
  const std::uint16_t* begin() const { return items_.data(); }
  const std::uint16_t* end() const { return items_.data() + count_; }

 private:
  std::array<std::uint16_t, kMaxExpression + 2> items_;
  std::size_t count_ = 0;
};

// Takes one unit from a place on; answers where it stopped, so that a later place
// below that need not be walked again.
std::size_t take(std::wstring_view expression, std::size_t at, wchar_t unit, bool last_dot,
                 Places& next) {
  for (; at < expression.size(); ++at) {
    switch (expression[at]) {
      case kAnyRun:
        next.add(at);
        continue;
      case kDosStar:
        if (!last_dot) next.add(at);
        continue;
      case kDosMark:
        if (unit == L'.') continue;
        next.add(at + 1);
        return at;
      case kDosDot:
        if (unit == L'.') next.add(at + 1);
        return at;
      default:
        if (sameUnit(unit, expression[at])) next.add(at + 1);
        return at;
    }
  }
  return at;
}

bool canEnd(std::wstring_view expression, std::size_t at) {
  return expression.find_first_not_of(L"*<>\"", at) == std::wstring_view::npos;
}

}  // namespace

NamePattern::NamePattern(std::wstring_view text)
    : every_(text == L"*.*" || text == L"*"),
      has_wildcard_(text.find_first_of(L"*?") != std::wstring_view::npos),
      expression_(translate(text)) {}

bool NamePattern::isPlain(std::wstring_view text) {
  if (text.empty() || text.size() > kMaxExpression) return false;
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
  return name.size() == expression_.size() &&
         CompareStringOrdinal(name.data(), static_cast<int>(name.size()), expression_.data(),
                              static_cast<int>(expression_.size()), TRUE) == CSTR_EQUAL;
}

bool NamePattern::matchesExpression(std::wstring_view name) const {
  const std::size_t last_dot = name.rfind(L'.');
  Places lists[2];
  Places* now = &lists[0];
  Places* next = &lists[1];
  now->add(0);
  for (std::size_t i = 0; i < name.size(); ++i) {
    next->clear();
    std::size_t walked = 0;  // one behind the last place already walked
    for (const std::size_t at : *now) {
      if (at >= walked) walked = take(expression_, at, name[i], i == last_dot, *next) + 1;
    }
    std::swap(now, next);
    if (now->empty()) return false;
  }
  for (const std::size_t at : *now) {
    if (canEnd(expression_, at)) return true;
  }
  return false;
}

}  // namespace tavr::win32
