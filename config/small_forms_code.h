// What the three small forms do: the message form with the question that waits
// for it, the browser note, and the About box.
#pragma once

#include <string_view>

#include "config/form_host.h"
#include "forms/form4.h"
#include "forms/frmabout.h"
#include "forms/frmmsg.h"

namespace tavr {

/// Puts the load of the message form in: it is centred on the screen.
void connectMessageForm(Machine& machine, frmmsg& form);

/// Asks by the message form and pumps events until its state text is no longer
/// empty: form.state is then "vbYes" or "vbNo". A form that code hides has no answer;
/// a window that a person closes gives "vbNo".
void chkmsg(Machine& machine, frmmsg& form, std::string_view text);

class Form4Code {
 public:
  /// Puts the handlers in; reads nothing.
  Form4Code(FormContext& context, frmmsg& message);
  Form4Code(const Form4Code&) = delete;
  Form4Code& operator=(const Form4Code&) = delete;

  Form4 form;

  void Form_Load();
  void Text1_Change();
  void Check1_Click();

 private:
  FormContext& context_;
  frmmsg& message_;
};

class FrmaboutCode {
 public:
  /// The first year of the year line.
  static constexpr int kFirstYear = 2008;

  /// Puts the handlers in; reads nothing.
  explicit FrmaboutCode(FormContext& context);
  FrmaboutCode(const FrmaboutCode&) = delete;
  FrmaboutCode& operator=(const FrmaboutCode&) = delete;

  frmabout form;

  void Form_Load();
  void Label2_Click(int index);
  /// Leaves the box, the main form in use again.
  void chameleonButton1_Click();

 private:
  FormContext& context_;
};

}  // namespace tavr
