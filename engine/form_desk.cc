#include "engine/form_desk.h"

#include <utility>

#include "basic/resume_next.h"
#include "basic/text.h"
#include "config/form2_code.h"
#include "config/form3_code.h"
#include "config/form52_code.h"
#include "config/language.h"
#include "config/language_picker.h"
#include "config/scheduler.h"
#include "config/small_forms_code.h"
#include "engine/program.h"

namespace tavr {

namespace {

// Its own code gives the form no place.
void placeOver(Form& form, const Form& opener) {
  form.left = opener.left + (opener.width - form.width) / 2;
  form.top = opener.top + (opener.height - form.height) / 2;
}

}  // namespace

FormDesk::FormDesk(Program& program)
    : program_(program),
      context_{program.machine, program.registry, program.numbers,
               program.tracks,  program.language, *this},
      languages_(std::make_unique<LanguagePicker>(context_)) {
  languages_->onRowLoaded = [this](Label& row) { program_.form.takeLanguageRow(row); };
  connectMessageForm(program.machine, program.message);
}

FormDesk::~FormDesk() = default;

// Loading is finished before the form is seen.
template <class Code>
Code& FormDesk::open(std::unique_ptr<Code>& code) {
  if (code) {
    code->form.visible = true;
    ++code->form.shown_again;
    return *code;
  }
  code = std::make_unique<Code>(context_);
  Code& opened = *code;
  opened.Form_Load();
  // The loading pumps: the hot key may have unloaded the form meanwhile.
  if (code.get() == &opened) opened.form.visible = true;
  return opened;
}

// The handler that closes a form still stands in its code: the object stays.
template <class Code>
void FormDesk::leave(std::unique_ptr<Code>& code) {
  if (!code) return;
  code->form.visible = false;
  for (Control* const control : code->form.controls()) {
    if (auto* const timer = dynamic_cast<FormTimer*>(control)) timer->setEnabled(false);
    if (auto* const button = dynamic_cast<ChameleonButton*>(control)) {
      button->OverTimer.setEnabled(false);
    }
  }
  unloaded_.emplace_back(std::move(code));
}

void FormDesk::openSettings() {
  program_.form.enabled = false;
  open(settings_);
}

void FormDesk::openOptions() {
  program_.form.enabled = false;
  open(options_);
}

void FormDesk::openAbout() {
  program_.form.enabled = false;
  open(about_);
}

void FormDesk::openBrowserNote(std::string_view browser) {
  if (!note_) {
    note_ = std::make_unique<Form4Code>(context_, program_.message);
    note_->Form_Load();
  }
  note_->form.Text1.setText(browser);
  note_->form.visible = true;
  ++note_->form.shown_again;
}

void FormDesk::openKeepList(std::string_view heading, std::string_view mode) {
  const bool is_open = keep_list_ != nullptr;
  Form52Code& list = open(keep_list_);
  const Form& opener = settings_ ? static_cast<const Form&>(settings_->form) : program_.form;
  if (!is_open) placeOver(list.form, opener);
  list.open(heading, mode);
}

void FormDesk::loadLanguages() {
  languages_->loadavlang();
  program_.language.apply(program_.form);
  languages_->markRowInForce();
}

void FormDesk::scheduleTick() { Timer1_Timer(context_); }

Form1& FormDesk::form1() { return program_.form; }

std::string_view FormDesk::dialogMode() const { return program_.form.dialog_mode; }

void FormDesk::unload(std::string_view form) {
  if (loaded(form) == nullptr) return;
  if (sameText(form, "Form52")) return leave(keep_list_);
  if (sameText(form, "Form4")) return leave(note_);
  if (sameText(form, "frmmsg")) {
    program_.message.visible = false;
    return;
  }
  if (sameText(form, "Form1")) return;  // its end is the end of the process
  if (sameText(form, "Form2")) leave(settings_);
  if (sameText(form, "Form3")) leave(options_);
  if (sameText(form, "frmabout")) leave(about_);
  program_.form.enabled = true;
}

void FormDesk::showMessage(std::string_view heading, std::string_view text,
                           std::string_view subject) {
  program_.message.showMessage(heading, text, subject);
}

void FormDesk::detachShadow(std::string_view form) {
  if (sameText(form, "Form1")) program_.form.shadow = false;
}

void FormDesk::endProcess() { throw ProcessEnd{}; }

Form* FormDesk::loaded(std::string_view form) const {
  if (sameText(form, "Form1")) return &program_.form;
  if (sameText(form, "frmmsg") && program_.message.visible) return &program_.message;
  if (settings_ && sameText(form, "Form2")) return &settings_->form;
  if (options_ && sameText(form, "Form3")) return &options_->form;
  if (keep_list_ && sameText(form, "Form52")) return &keep_list_->form;
  if (note_ && sameText(form, "Form4")) return &note_->form;
  if (about_ && sameText(form, "frmabout")) return &about_->form;
  return nullptr;
}

void FormDesk::freeUnloaded() { unloaded_.clear(); }

}  // namespace tavr
