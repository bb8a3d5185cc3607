#include "basic/like.h"

#include "basic/resume_next.h"
#include "basic/utf.h"

namespace tavr {

namespace {

[[noreturn]] void badPattern() { throw RuntimeError{kErrBadPattern, "Invalid pattern string"}; }

// A set's text between its brackets; `pos` stands behind "[" and moves behind "]".
std::string_view readSet(std::string_view pattern, std::size_t& pos) {
  const std::size_t end = pattern.find(']', pos);
  if (end == std::string_view::npos) badPattern();
  const std::string_view set = pattern.substr(pos, end - pos);
  pos = end + 1;
  return set;
}

bool inSet(std::string_view set, char32_t c) {
  const bool negated = set.starts_with('!') && set.size() > 1;
  if (negated) set.remove_prefix(1);
  bool found = false;
  for (std::size_t pos = 0; pos < set.size();) {
    const char32_t low = nextCharacter(set, pos);
    char32_t high = low;
    if (pos + 1 < set.size() && set[pos] == '-') {
      ++pos;
      high = nextCharacter(set, pos);
      if (high < low) badPattern();
    }
    found = found || (c >= low && c <= high);
  }
  return found != negated;
}

// Every "[" is closed: a bad pattern raises even where the text would not reach it.
void checkSets(std::string_view pattern) {
  for (std::size_t pos = 0; pos < pattern.size();) {
    if (pattern[pos++] == '[') readSet(pattern, pos);
  }
}

// One pattern element other than "*" against the text at `at`; moves both.
bool stepOne(std::string_view text, std::size_t& at, std::string_view pattern, std::size_t& pos) {
  const char32_t p = nextCharacter(pattern, pos);
  if (p == '[') {
    const std::string_view set = readSet(pattern, pos);
    if (set.empty()) return true;
    return at < text.size() && inSet(set, nextCharacter(text, at));
  }
  if (at >= text.size()) return false;
  const char32_t c = nextCharacter(text, at);
  if (p == '?') return true;
  if (p == '#') return c >= '0' && c <= '9';
  return c == p;
}

}  // namespace

bool Like(std::string_view text, std::string_view pattern) {
  checkSets(pattern);
  std::size_t at = 0;
  std::size_t pos = 0;
  std::size_t star = std::string_view::npos;  // behind the last "*"
  std::size_t retry = 0;                      // where that "*" gave up the text
  while (at < text.size() || pos < pattern.size()) {
    if (pos < pattern.size() && pattern[pos] == '*') {
      star = ++pos;
      retry = at;
      continue;
    }
    std::size_t next_at = at;
    std::size_t next_pos = pos;
    if (pos < pattern.size() && stepOne(text, next_at, pattern, next_pos)) {
      at = next_at;
      pos = next_pos;
      continue;
    }
    if (star == std::string_view::npos || retry >= text.size()) return false;
    nextCharacter(text, retry);
    at = retry;
    pos = star;
  }
  return true;
}

}  // namespace tavr
