// The browser note: that a browser is running, by its name. Its controls alone;
// what they do is put in by config/small_forms_code.h.
#pragma once

#include <span>

#include "forms/controls.h"
#include "forms/form.h"

namespace tavr {

/// A place for every control of Form4.
std::span<const ControlDesign> form4Design();

struct Form4 : Form {
  Form4();

  Label Label1;     ///< the note, with "bnam$" for the browser
  TextBox Text1;    ///< hidden: the browser's name is put in here
  CheckBox Check1;  ///< "Don't show this window again."
  Button command2;  ///< ends the note
};

}  // namespace tavr
