// What a control is to those who read the screen to a person: its role, its
// state and what it does, in the terms of Microsoft Active Accessibility, from
// which UI Automation is served as well. Values alone, no windows.
#pragma once

#include <string>
#include <string_view>

#include "forms/form.h"

namespace tavr::win32 {

struct AccessibleFacts {
  std::string name;
  std::string value;        ///< of a progress bar, "42%"
  std::string_view action;  ///< "Press", "Check"; "" where there is nothing to do
  long role = 0;            ///< ROLE_SYSTEM_...
  long state = 0;           ///< STATE_SYSTEM_..., without what its window alone knows: the focus
};

/// `language` is the one in force, "de".
AccessibleFacts accessibleFacts(const Form& form, const Control& control,
                                std::string_view language);

/// "Alt+E"; "" for a control without an access key.
std::string accessibleShortcut(const Form& form, const Control& control);

}  // namespace tavr::win32
