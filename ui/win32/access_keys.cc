#include "ui/win32/access_keys.h"

#include <set>

#include "basic/text.h"
#include "basic/utf.h"
#include "ui/win32/control_places.h"

namespace tavr::win32 {

namespace {

constexpr char32_t kFirstIdeograph = 0x2E80;

struct DefaultButton {
  std::string_view form;
  std::string_view button;
};

// The main form has none: Enter from its tables would erase. Nor have the
// erasing settings, where every box acts at once.
constexpr DefaultButton kDefaults[] = {
    {"Form3", "chameleonButton9"},  // of the panel that is open
    {"Form3", "chameleonButton5"},    {"Form4", "command2"},
    {"Form52", "keepbutton7"},        {"frmmsg", "chameleonButton1"},
    {"frmabout", "chameleonButton1"},
};

// A letter that a keyboard of its script has on a key: Latin, Greek, Cyrillic,
// Hebrew, Arabic, and digits.
bool isTyped(char32_t c) {
  if (c >= kFirstIdeograph) return false;
  if (c >= U'0' && c <= U'9') return true;
  if (upperCase(c) != lowerCase(c)) return true;
  return (c >= 0x5D0 && c <= 0x5EA) || (c >= 0x621 && c <= 0x64A);
}

bool holdsIdeographs(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    if (nextCharacter(text, at) >= kFirstIdeograph) return true;
  }
  return false;
}

void takeFromCaption(AccessKey& key, const std::set<char32_t>& taken) {
  const std::string& caption = key.shown->caption;
  if (holdsIdeographs(caption)) return;
  for (std::size_t at = 0; at < caption.size();) {
    const std::size_t begin = at;
    const char32_t letter = nextCharacter(caption, at);
    if (!isTyped(letter) || taken.contains(upperCase(letter))) continue;
    key.letter = upperCase(letter);
    key.position = static_cast<int>(utf16Length(std::string_view(caption).substr(0, begin)));
    return;
  }
}

void takeAnyLatin(AccessKey& key, const std::set<char32_t>& taken) {
  for (char32_t letter = U'A'; letter <= U'Z'; ++letter) {
    if (taken.contains(letter)) continue;
    key.letter = letter;
    return;
  }
}

// Without one there is nothing to show the letter on: tools, and buttons that
// show a sign.
bool hasLetters(std::string_view caption) {
  for (std::size_t at = 0; at < caption.size();) {
    const char32_t c = nextCharacter(caption, at);
    if (isTyped(c) || c >= kFirstIdeograph) return true;
  }
  return false;
}

}  // namespace

std::vector<AccessKey> accessKeys(const Form& form) {
  std::vector<AccessKey> keys;
  std::set<char32_t> taken;
  for (Control* const control : focusOrder(form)) {
    if (isGrouped(*control)) continue;
    AccessKey key{control, namerOf(form, *control)};
    if (!key.shown || !hasLetters(key.shown->caption)) continue;
    takeFromCaption(key, taken);
    if (key.letter == 0) takeAnyLatin(key, taken);
    if (key.letter == 0) continue;
    taken.insert(key.letter);
    keys.push_back(key);
  }
  return keys;
}

Button* defaultButton(const Form& form) {
  for (const DefaultButton& row : kDefaults) {
    Control* const button = row.form == form.name() ? form.find(row.button) : nullptr;
    if (button && button->enabled && inSight(form, *button)) return dynamic_cast<Button*>(button);
  }
  return nullptr;
}

std::string captionWithKey(const AccessKey& key) {
  if (key.position >= 0) return key.shown->caption;
  std::string text = key.shown->caption + " (";
  appendUtf8(text, key.letter);
  return text + ")";
}

}  // namespace tavr::win32
