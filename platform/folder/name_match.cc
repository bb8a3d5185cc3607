#include "platform/folder/name_match.h"

#include <array>

#include "basic/text.h"
#include "basic/utf.h"
#include "platform/folder/windows_path.h"

namespace tavr::folder {

namespace {

// The wildcards of the file system. "*" takes any run of characters; the three
// others are what Win32 makes of patterns written for names with one extension.
constexpr char16_t kAnyRun = u'*';
constexpr char16_t kDosStar = u'<';  // a run up to the last dot of the name
constexpr char16_t kDosMark = u'>';  // one character, none before a dot or at the end
constexpr char16_t kDosDot = u'"';   // a dot, or nothing at the end

// No name is longer, so a longer expression of single characters matches none.
constexpr std::size_t kMaxExpression = 512;

std::u16string translate(std::u16string pattern, bool ended_in_dot) {
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    char16_t& c = pattern[i];
    const bool after = i > 0;
    if (c == u'.' && after && pattern[i - 1] == kAnyRun) pattern[i - 1] = kDosStar;
    if (c != u'?' && c != kAnyRun) continue;
    if (after && pattern[i - 1] == u'.') pattern[i - 1] = kDosDot;
    if (c == u'?') c = kDosMark;
  }
  if (ended_in_dot && pattern.ends_with(kAnyRun)) pattern.back() = kDosStar;
  return pattern;
}

// Positions in the expression that the characters so far can have led to, in
// ascending order.
class Positions {
 public:
  void add(std::size_t position) {
    if (count_ == 0 || items_[count_ - 1] != position) {
      items_[count_++] = static_cast<std::uint16_t>(position);
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

// Takes one character from position `at` on; answers the position where it
// stopped, so that a later position below it need not be walked again.
std::size_t take(std::u16string_view expression, std::size_t at, char16_t c, bool last_dot,
                 Positions& next) {
  for (; at < expression.size(); ++at) {
    switch (expression[at]) {
      case kAnyRun:
        next.add(at);
        continue;
      case kDosStar:
        if (!last_dot) next.add(at);
        continue;
      case kDosMark:
        if (c == u'.') continue;
        next.add(at + 1);
        return at;
      case kDosDot:
        if (c == u'.') next.add(at + 1);
        return at;
      default:
        if (c == expression[at]) next.add(at + 1);
        return at;
    }
  }
  return at;
}

bool canEnd(std::u16string_view expression, std::size_t at) {
  return expression.find_first_not_of(u"*<>\"", at) == std::u16string_view::npos;
}

void step(std::u16string_view expression, const Positions& now, char16_t c, bool last_dot,
          Positions& next) {
  next.clear();
  std::size_t walked = 0;  // one behind the last position already walked
  for (const std::size_t at : now) {
    if (at >= walked) walked = take(expression, at, c, last_dot, next) + 1;
  }
}

}  // namespace

bool hasWildcard(std::string_view name) {
  return name.find_first_of("*?<>\"") != std::string_view::npos;
}

NamePattern::NamePattern(std::string_view written) {
  const std::string_view pattern = withoutTrailingDots(written);
  every_ = pattern == "*.*" || (pattern == "*" && !written.ends_with('.'));
  expression_ = translate(toUtf16(UCase(pattern)), written.ends_with('.'));
}

bool NamePattern::matches(std::string_view name) const {
  if (every_) return true;
  if (expression_.size() > kMaxExpression) return false;
  const std::size_t last_dot = name.rfind('.');
  Positions lists[2];
  Positions* now = &lists[0];
  Positions* next = &lists[1];
  now->add(0);
  for (std::size_t pos = 0; pos < name.size();) {
    const std::size_t start = pos;
    const char32_t c = upperCase(nextCharacter(name, pos));
    if (c > 0xFFFF) {
      step(expression_, *now, static_cast<char16_t>(0xD7C0 + (c >> 10)), false, *next);
      std::swap(now, next);
      step(expression_, *now, static_cast<char16_t>(0xDC00 | (c & 0x3FF)), false, *next);
    } else {
      step(expression_, *now, static_cast<char16_t>(c), start == last_dot, *next);
    }
    std::swap(now, next);
    if (now->empty()) return false;
  }
  for (const std::size_t at : *now) {
    if (canEnd(expression_, at)) return true;
  }
  return false;
}

}  // namespace tavr::folder
