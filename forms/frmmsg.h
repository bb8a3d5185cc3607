// The program's own message form, with Yes and No: a note when it is shown by
// showMessage, a question when somebody waits for the state text.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "forms/chameleon_button.h"
#include "forms/controls.h"
#include "forms/form.h"

namespace tavr {

/// A place for every control of frmmsg.
std::span<const ControlDesign> frmmsgDesign();

struct frmmsg : Form {
  explicit frmmsg(Events& events);

  TextBox Text1;
  ChameleonButton chameleonButton1;  ///< answers "vbYes"
  Button command2;                   ///< answers "vbNo"

  /// "vbYes" or "vbNo" once a button was pressed; emptied by who asks.
  std::string state;

  /// What its load does beyond its own values; none until the code is put in.
  std::function<void()> onLoad;
  void load() {
    if (!visible) caption.clear();  // a closed one keeps nothing of the last message
    topmost = true;
    if (onLoad) onLoad();
  }

  /// The message dialog: shown without waiting for an answer. The subject is
  /// passed by every caller and shown nowhere.
  void showMessage(std::string_view heading, std::string_view text, std::string_view /*subject*/) {
    load();
    caption = heading;
    Text1.setText(text);
    visible = true;
    ++shown_again;
  }
};

}  // namespace tavr
