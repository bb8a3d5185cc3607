// The program's own message form, as its procedures set it: heading and text.
#pragma once

#include <string>
#include <string_view>

#include "forms/controls.h"
#include "forms/form.h"

namespace tavr {

struct frmmsg : Form {
  frmmsg() : Form("frmmsg", "", 420, 180) {}

  TextBox Text1;

  /// The message dialog: shown without waiting for an answer. The subject is
  /// passed by every caller and shown nowhere.
  void showMessage(std::string_view heading, std::string_view text, std::string_view /*subject*/) {
    caption = heading;
    Text1.setText(text);
    visible = true;
  }
};

}  // namespace tavr
