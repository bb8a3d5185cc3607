// The list of languages on the main form: one row per language that is
// installed. A click keeps the choice and applies it to the main form; the
// other forms take it when they are next opened.
#pragma once

#include <functional>

#include "config/form_host.h"

namespace tavr {

class LanguagePicker {
 public:
  /// Puts the handlers of the panel, of its first row and of the button that
  /// opens it in; reads nothing.
  explicit LanguagePicker(FormContext& context);
  LanguagePicker(const LanguagePicker&) = delete;
  LanguagePicker& operator=(const LanguagePicker&) = delete;

  /// Fills the rows from lang\data.lang. Without that file the panel stays as
  /// designed.
  void loadavlang();
  /// Moves the marker to the row in force; a row that is not there leaves it.
  void markRowInForce();

  void lbllanguage_Click(int index);
  void lbllanguage_MouseMove(int index) { row(index).highlighted = true; }
  /// Over the panel, beside the rows: all highlights go but the first row's.
  void pictrlang_MouseMove();
  /// Shows the panel or hides it.
  void chameleonButton12_Click();

  /// Told of every row that is added to the designed one, with its index in its
  /// design: the form takes it among its controls.
  std::function<void(Label& row)> onRowLoaded;

 private:
  Label& row(int index);
  void loadRow(int index, std::string_view entry);
  void connectRow(int index);
  void moveMarker(int index);

  FormContext& context_;
  Form1& form_;
};

}  // namespace tavr
