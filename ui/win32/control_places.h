// Where a form's controls are for a person: which are in sight, which can be
// reached by the keyboard and in which order, and which label names a box that
// has no caption of its own. Values alone, no windows.
#pragma once

#include <vector>

#include "forms/form.h"

namespace tavr::win32 {

/// The frame or picture that holds a control; null for the form itself.
Control* holderOf(const Form& form, const Control& control);

/// Whether a person can see it: it and all that hold it are visible and lie,
/// if only in part, within what holds them.
bool inSight(const Form& form, const Control& control);

/// The controls in sight that take the keyboard, in the order of the Tab key,
/// disabled ones included. Toolbar buttons follow the designed ones, the rows
/// of an open list the button that opens it.
std::vector<Control*> focusOrder(const Form& form);

/// Toolbar buttons and list rows move the focus among themselves by the arrows,
/// and Tab reaches only one of them.
bool isGrouped(const Control& control);

/// Whether the keyboard reaches it at all, when it is enabled and in sight.
bool takesKeyboard(const Form& form, const Control& control);

/// The next enabled control from `current` (null: from the start), around the
/// end. Null when there is none.
Control* nextFocus(const Form& form, const Control* current, bool back);
/// The same among the members of a group, or among the options of a panel.
Control* nextInGroup(const Form& form, const Control& current, bool back);

/// What names a control to a person: itself when it has a caption, else the
/// label that stands beside it; null for none.
const Control* namerOf(const Form& form, const Control& control);

}  // namespace tavr::win32
