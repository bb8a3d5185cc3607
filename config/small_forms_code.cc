#include "config/small_forms_code.h"

#include <array>
#include <cstdint>
#include <string>

#include "basic/number.h"
#include "basic/resume_next.h"
#include "config/language.h"
#include "config/look_color.h"
#include "config/maker_site.h"
#include "services/program_folder.h"
#include "services/settings_keys.h"

namespace tavr {

namespace {

constexpr std::string_view kNamePlace = "bnam$";
constexpr std::string_view kSupportPage = "/support.htm";
constexpr int kShowNormal = 1;

void centre(Machine& machine, Form& form) {
  const ScreenSize screen = machine.desktop.screen();
  form.left = (screen.width - form.width) / 2;
  form.top = (screen.height - form.height) / 2;
}

std::string replaced(std::string text, std::string_view what, std::string_view with) {
  for (std::size_t at = text.find(what); at != std::string::npos;
       at = text.find(what, at + with.size())) {
    text.replace(at, what.size(), with);
  }
  return text;
}

}  // namespace

void connectMessageForm(Machine& machine, frmmsg& form) {
  form.onLoad = [&machine, &form] { centre(machine, form); };
}

void chkmsg(Machine& machine, frmmsg& form, std::string_view text) {
  form.state.clear();
  form.load();
  form.Text1.setText(text);
  form.visible = true;
  ++form.shown_again;
  while (form.state.empty()) machine.events.doEvents();
}

Form4Code::Form4Code(FormContext& context, frmmsg& message) : context_(context), message_(message) {
  form.Text1.onChange = [this] { Text1_Change(); };
  form.Check1.onClick = [this] { Check1_Click(); };
  form.command2.onClick = [this] {
    form.visible = false;
    context_.host.unload(form.name());
  };
}

void Form4Code::Form_Load() {
  // Kept: not this form but the message form is put on top.
  message_.topmost = true;
  centre(context_.machine, form);
}

void Form4Code::Text1_Change() {
  form.Label1.caption = replaced(form.Label1.caption, kNamePlace, form.Text1.text());
}

void Form4Code::Check1_Click() {
  context_.registry.saveSetting(settings::kOptionKeyOfNote, "msg", numberText(form.Check1.value()));
}

FrmaboutCode::FrmaboutCode(FormContext& context) : form(context.machine.events), context_(context) {
  for (int index = 0; index < static_cast<int>(form.Label2.size()); ++index) {
    form.Label2[static_cast<std::size_t>(index)].onClick = [this, index] { Label2_Click(index); };
  }
  form.chameleonButton1.onClick = [this] { chameleonButton1_Click(); };
}

void FrmaboutCode::Form_Load() {
  ResumeNext on;
  context_.language.apply(form);
  on.next([&] {
    const std::int32_t color = lookColor(context_.machine);
    form.back_color = color;
    form.has_look_color = true;
    form.chameleonButton1.color = color;
    form.chameleonButton1.hover_color = color;
  });
  form.Label3.caption = "Copyright " + numberText(kFirstYear) + " - " +
                        numberText(context_.machine.clock.now().year) + " Tavrwork";
  centre(context_.machine, form);
}

void FrmaboutCode::Label2_Click(int index) {
  const std::string site(kMakerSite);
  const std::array<std::string, 4> targets = {
      programFile(context_.machine, "tavrlocale.exe"),
      site + std::string(kSupportPage),
      site + std::string(kPlugInPage),
      site,
  };
  context_.machine.shell.execute("open", targets.at(static_cast<std::size_t>(index)), kShowNormal);
}

void FrmaboutCode::chameleonButton1_Click() {
  context_.host.form1().enabled = true;
  form.visible = false;
  context_.host.unload(form.name());
}

}  // namespace tavr
