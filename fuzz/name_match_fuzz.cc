// File name patterns: pattern and name, parted by a NUL, matched by the machine
// and by a slow matcher that follows the rules one by one.
#include <string>
#include <string_view>
#include <vector>

#include "basic/text.h"
#include "basic/utf.h"
#include "fuzz/checks.h"
#include "platform/folder/name_match.h"
#include "platform/folder/windows_path.h"

namespace {

constexpr std::size_t kLongest = 60;  // the slow matcher tries every way

bool isWild(char16_t c) { return c == u'?' || c == u'*'; }

// What Win32 hands to the file system: "<" stands for a "*" with a dot behind
// it, ">" for "?", a quote for a dot with a wildcard behind it.
std::u16string translated(std::string_view written) {
  const std::u16string text =
      tavr::toUtf16(tavr::UCase(tavr::folder::withoutTrailingDots(written)));
  std::u16string out = text;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t next = i + 1 < text.size() ? text[i + 1] : u'\0';
    if (text[i] == u'?') out[i] = u'>';
    if (text[i] == u'*' && next == u'.') out[i] = u'<';
    if (text[i] == u'.' && isWild(next)) out[i] = u'"';
  }
  if (written.ends_with('.') && text.ends_with(u'*')) out.back() = u'<';
  return out;
}

class SlowMatch {
 public:
  SlowMatch(std::u16string pattern, std::u16string name)
      : pattern_(std::move(pattern)),
        name_(std::move(name)),
        last_dot_(name_.rfind(u'.')),
        known_((pattern_.size() + 1) * (name_.size() + 1), Known::kNothing) {}

  bool matches(std::size_t p, std::size_t n) {
    Known& known = known_[p * (name_.size() + 1) + n];
    if (known == Known::kNothing) known = step(p, n) ? Known::kMatch : Known::kNoMatch;
    return known == Known::kMatch;
  }

 private:
  enum class Known { kNothing, kMatch, kNoMatch };

  bool step(std::size_t p, std::size_t n) {
    const bool name_ends = n == name_.size();
    if (p == pattern_.size()) return name_ends;
    switch (pattern_[p]) {
      case u'*':
        return matches(p + 1, n) || (!name_ends && matches(p, n + 1));
      case u'<':
        return matches(p + 1, n) || (!name_ends && n != last_dot_ && matches(p, n + 1));
      case u'>':
        if (name_ends || name_[n] == u'.') return matches(p + 1, n);
        return matches(p + 1, n + 1);
      case u'"':
        if (name_ends) return matches(p + 1, n);
        return name_[n] == u'.' && matches(p + 1, n + 1);
      default:
        return !name_ends && name_[n] == pattern_[p] && matches(p + 1, n + 1);
    }
  }

  std::u16string pattern_;
  std::u16string name_;
  std::size_t last_dot_;
  std::vector<Known> known_;
};

bool slowMatch(std::string_view pattern, std::string_view name) {
  if (tavr::folder::withoutTrailingDots(pattern) == "*.*") return true;
  return SlowMatch(translated(pattern), tavr::toUtf16(tavr::UCase(name))).matches(0, 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view input = tavr::fuzz::asText(data, size);
  const std::string_view pattern = tavr::fuzz::takePart(input);
  if (pattern.size() > kLongest || input.size() > kLongest) return 0;
  const tavr::folder::NamePattern fast(pattern);
  tavr::fuzz::require(fast.matches(input) == slowMatch(pattern, input), "both matchers agree");
  return 0;
}
