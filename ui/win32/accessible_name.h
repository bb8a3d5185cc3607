// What a control is called to a person who cannot see it. Values alone, no
// windows.
#pragma once

#include <string>
#include <string_view>

#include "forms/form.h"

namespace tavr::win32 {

/// The control's caption; for one without, what stands beside it for a person
/// who sees it: the labels of its row, the heading of its panel, the head of its
/// column, or the word of its sign in the language ("de"). "" for a separator
/// alone.
std::string accessibleName(const Form& form, const Control& control, std::string_view language);

/// Whether it shows a sign and no caption, so that its name is worth a tip.
bool showsSignAlone(const Form& form, const Control& control);

/// What the form is called: its title, or the caption of its window.
std::string accessibleFormName(const Form& form);

}  // namespace tavr::win32
