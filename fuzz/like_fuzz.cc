// The program's pattern operator: pattern and text, parted by a NUL, matched by
// the program and by a slow matcher that tries every way.
#include <optional>
#include <string_view>
#include <vector>

#include "basic/like.h"
#include "basic/resume_next.h"
#include "basic/utf.h"
#include "fuzz/checks.h"

namespace {

using tavr::nextCharacter;
using Characters = std::vector<char32_t>;

constexpr std::size_t kLongest = 60;

struct Element {
  enum class Kind { kCharacter, kRun, kOne, kDigit, kSet } kind = Kind::kCharacter;
  Characters set;  // of a set: its text; of a character: it
};

Characters charactersOf(std::string_view text) {
  Characters all;
  for (std::size_t pos = 0; pos < text.size();) all.push_back(nextCharacter(text, pos));
  return all;
}

// Nothing for a set that is never closed.
std::optional<std::vector<Element>> elementsOf(std::string_view pattern) {
  using Kind = Element::Kind;
  std::vector<Element> elements;
  const Characters all = charactersOf(pattern);
  for (std::size_t i = 0; i < all.size(); ++i) {
    Element element;
    if (all[i] == '[') {
      element.kind = Kind::kSet;
      for (++i; i < all.size() && all[i] != ']'; ++i) element.set.push_back(all[i]);
      if (i == all.size()) return std::nullopt;
    } else {
      element.kind = all[i] == '*'   ? Kind::kRun
                     : all[i] == '?' ? Kind::kOne
                     : all[i] == '#' ? Kind::kDigit
                                     : Kind::kCharacter;
      element.set = {all[i]};
    }
    elements.push_back(element);
  }
  return elements;
}

// Nothing for a range that runs backwards, which the program may or may not
// come to look at.
std::optional<bool> inSet(const Characters& set, char32_t c) {
  const bool negated = set.size() > 1 && set[0] == '!';
  bool found = false;
  for (std::size_t i = negated ? 1 : 0; i < set.size();) {
    const bool range = i + 2 < set.size() && set[i + 1] == '-';
    const char32_t high = range ? set[i + 2] : set[i];
    if (high < set[i]) return std::nullopt;
    found = found || (c >= set[i] && c <= high);
    i += range ? 3 : 1;
  }
  return found != negated;
}

bool takes(const Element& element, char32_t c) {
  switch (element.kind) {
    case Element::Kind::kOne:
      return true;
    case Element::Kind::kDigit:
      return c >= '0' && c <= '9';
    case Element::Kind::kSet:
      return *inSet(element.set, c);
    default:
      return element.set[0] == c;
  }
}

// Every place in the text that the elements so far can have led to.
bool slowLike(const Characters& text, const std::vector<Element>& elements) {
  std::vector<bool> now(text.size() + 1, false);
  now[0] = true;
  for (const Element& element : elements) {
    if (element.kind == Element::Kind::kSet && element.set.empty()) continue;
    std::vector<bool> next(text.size() + 1, false);
    bool run = false;
    for (std::size_t at = 0; at <= text.size(); ++at) {
      run = run || now[at];
      if (element.kind == Element::Kind::kRun) {
        next[at] = run;
      } else if (now[at] && at < text.size() && takes(element, text[at])) {
        next[at + 1] = true;
      }
    }
    now = next;
  }
  return now[text.size()];
}

// Nothing: the pattern is none.
std::optional<bool> programLike(std::string_view text, std::string_view pattern) {
  try {
    return tavr::Like(text, pattern);
  } catch (const tavr::RuntimeError& error) {
    tavr::fuzz::require(error.number == tavr::kErrBadPattern, "a bad pattern raises 93");
    return std::nullopt;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view text = tavr::fuzz::asText(data, size);
  const std::string_view pattern = tavr::fuzz::takePart(text);
  if (pattern.size() > kLongest || text.size() > kLongest) return 0;
  const std::optional<bool> fast = programLike(text, pattern);
  const auto elements = elementsOf(pattern);
  if (!elements) {
    tavr::fuzz::require(!fast, "a set that is never closed is refused");
    return 0;
  }
  for (const Element& element : *elements) {
    if (element.kind == Element::Kind::kSet && !inSet(element.set, 0)) return 0;
  }
  tavr::fuzz::require(fast == slowLike(charactersOf(text), *elements), "both matchers agree");
  return 0;
}
