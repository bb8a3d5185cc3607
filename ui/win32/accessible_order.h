// The order in which a form is read out: that of its windows, one above the
// other, among those that have one holder.
#pragma once

#include <vector>

#include "forms/form.h"
#include "ui/win32/bound_control.h"

namespace tavr::win32 {

/// Whether a person comes to `a` before `b`, two controls of one holder: what
/// lies above the rest, then the strip, the column of commands, the centre and
/// the foot, each from the top and along its rows.
bool isReadBefore(const Form& form, const Control& a, const Control& b);

/// Puts the windows of a form's controls into that order.
void orderForReading(const Form& form, std::vector<BoundControl*> controls);

}  // namespace tavr::win32
