// The letter that leads to each control with ALT. Languages give their own
// captions, so the letters are found, not designed.
#pragma once

#include <string>
#include <vector>

#include "forms/controls.h"
#include "forms/form.h"

namespace tavr::win32 {

struct AccessKey {
  Control* target = nullptr;       ///< what the letter works on
  const Control* shown = nullptr;  ///< whose caption carries it
  char32_t letter = 0;             ///< upper case
  int position = -1;               ///< in the caption, in UTF-16 units; -1: not in it
};

/// One for each control in sight that has or is given a caption, in the order of
/// the Tab key: the first letter of the caption that no earlier control took. A
/// script that no keyboard types directly, and a caption without a free letter,
/// gets a free Latin one.
std::vector<AccessKey> accessKeys(const Form& form);

/// What Enter presses from a control that makes nothing of it; null for none.
Button* defaultButton(const Form& form);

/// The caption as it is shown while ALT is held: one without the letter gets it
/// in brackets behind.
std::string captionWithKey(const AccessKey& key);

}  // namespace tavr::win32
