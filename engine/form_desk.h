// The forms beside the main one: made when a command opens them, gone when
// they are closed. It answers what their code asks of the program.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "config/form_host.h"

namespace tavr {

struct Program;
class Form2Code;
class Form3Code;
class Form4Code;
class Form52Code;
class FrmaboutCode;
class LanguagePicker;

class FormDesk : public FormHost {
 public:
  /// Puts the handlers of the language list in; opens nothing.
  explicit FormDesk(Program& program);
  ~FormDesk() override;
  FormDesk(const FormDesk&) = delete;
  FormDesk& operator=(const FormDesk&) = delete;

  /// Each disables the main form, loads its form and shows it; one that is open
  /// already is only shown. The main form is enabled again by the unloading.
  void openSettings();
  void openOptions();
  void openAbout();
  /// The note that a browser is running. No command opens it.
  void openBrowserNote(std::string_view browser);

  /// Fills the language list, applies the language in force to the main form
  /// and marks its row.
  void loadLanguages();
  /// The tick of Timer1.
  void scheduleTick();

  Form1& form1() override;
  std::string_view dialogMode() const override;
  void unload(std::string_view form) override;
  void openKeepList(std::string_view heading, std::string_view mode) override;
  void showMessage(std::string_view heading, std::string_view text,
                   std::string_view subject) override;
  void detachShadow(std::string_view form) override;
  [[noreturn]] void endProcess() override;

  /// A form that is loaded, by its name without case; null for one that is not.
  Form* loaded(std::string_view form) const;
  /// Frees the forms that were unloaded. For the main loop, between two events:
  /// never inside a handler.
  void freeUnloaded();

  FormContext& context() { return context_; }

 private:
  template <class Code>
  Code& open(std::unique_ptr<Code>& code);
  template <class Code>
  void leave(std::unique_ptr<Code>& code);

  Program& program_;
  FormContext context_;
  std::unique_ptr<LanguagePicker> languages_;
  std::unique_ptr<Form2Code> settings_;
  std::unique_ptr<Form3Code> options_;
  std::unique_ptr<Form52Code> keep_list_;
  std::unique_ptr<FrmaboutCode> about_;
  std::unique_ptr<Form4Code> note_;
  std::vector<std::shared_ptr<void>> unloaded_;
};

}  // namespace tavr
