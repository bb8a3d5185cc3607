#include "platform/folder/name_match.h"

#include "basic/text.h"
#include "basic/utf.h"
#include "platform/folder/windows_path.h"

namespace tavr::folder {

bool hasWildcard(std::string_view name) {
  return name.find_first_of("*?<>\"") != std::string_view::npos;
}

NamePattern::NamePattern(std::string_view written) {
  const std::string_view pattern = withoutTrailingDots(written);
  every_ = pattern == "*.*" || (pattern == "*" && !written.ends_with('.'));
  expression_ = NameExpression<char16_t>(toUtf16(UCase(pattern)), written.ends_with('.'));
}

bool NamePattern::matches(std::string_view name) const {
  if (every_) return true;
  const std::size_t last_dot = name.rfind('.');
  NameExpression<char16_t>::Walk walk(expression_);
  for (std::size_t pos = 0; pos < name.size();) {
    const std::size_t start = pos;
    char32_t c = upperCase(nextCharacter(name, pos));
    if (c > 0xFFFF) {
      if (!walk.take(static_cast<char16_t>(0xD7C0 + (c >> 10)), false)) return false;
      c = 0xDC00 | (c & 0x3FF);
    }
    if (!walk.take(static_cast<char16_t>(c), start == last_dot)) return false;
  }
  return walk.matches();
}

}  // namespace tavr::folder
