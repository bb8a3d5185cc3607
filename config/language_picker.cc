#include "config/language_picker.h"

#include <string>
#include <vector>

#include "basic/number.h"
#include "basic/resume_next.h"
#include "basic/text.h"
#include "config/language.h"
#include "services/file_statements.h"
#include "services/program_folder.h"
#include "services/settings_keys.h"

namespace tavr {

namespace {

// Between two rows: 100 units, 15 to a pixel.
constexpr int kRowGap = 100 / 15;

const std::string& field(const std::vector<std::string>& fields, std::size_t index) {
  if (index >= fields.size()) throw RuntimeError{kErrSubscript, "Subscript out of range"};
  return fields[index];
}

}  // namespace

LanguagePicker::LanguagePicker(FormContext& context)
    : context_(context), form_(context.host.form1()) {
  form_.chameleonButton12.onClick = [this] { chameleonButton12_Click(); };
  form_.pictrlang.onMouseMove = [this] { pictrlang_MouseMove(); };
  connectRow(0);
}

void LanguagePicker::connectRow(int index) {
  Label& label = row(index);
  label.onClick = [this, index] { lbllanguage_Click(index); };
  label.onMouseMove = [this, index] { lbllanguage_MouseMove(index); };
}

Label& LanguagePicker::row(int index) {
  if (index < 0 || index >= static_cast<int>(form_.lbllanguage.size())) {
    throw RuntimeError{kErrNoElement, "Control array element doesn't exist"};
  }
  return form_.lbllanguage[static_cast<std::size_t>(index)];
}

void LanguagePicker::loadavlang() {
  ResumeNext on;
  Machine& machine = context_.machine;
  const std::string path = programFile(machine, "lang\\data.lang");
  const bool missing = !on.met([&] { return !Dir(machine, path).empty(); });
  if (missing) return;
  const std::string list = readlangfile(machine, path, "lang", machine.environment.exeName());
  const std::vector<std::string> entries = Split(list, '|');
  for (std::size_t i = 0; i < entries.size(); ++i) loadRow(static_cast<int>(i), entries[i]);
  const Box& last = form_.lbllanguage.back().box;
  form_.pictrlang.box.height = last.top + last.height + kRowGap;
}

void LanguagePicker::loadRow(int index, std::string_view entry) {
  ResumeNext on;
  if (index >= static_cast<int>(form_.lbllanguage.size())) {
    Label& made = form_.lbllanguage.emplace_back();
    made.design = form_.lbllanguage.front().design;  // a loaded row is as the first was designed
    made.design.index = index;
    made.box = made.design.box;
    made.caption = made.design.caption;
    connectRow(index);
    if (onRowLoaded) onRowLoaded(made);
  }
  Label& label = row(index);
  label.visible = true;
  if (index > 0) {
    const Box& above = row(index - 1).box;
    label.box.top = above.top + above.height + kRowGap;
  }
  const std::vector<std::string> fields = Split(entry, ',');
  ControlFont font;
  font.name = "Arial Unicode MS";  // every language in its own script
  font.size = "10";
  on.next([&] { font.charset = toInteger(field(fields, 1)); });
  label.font = font;
  on.next([&] { label.caption = field(fields, 0); });
  on.next([&] { label.tag = field(fields, 2); });
}

void LanguagePicker::moveMarker(int index) {
  const Box& box = row(index).box;
  form_.imglangselect.box.top = box.top + (box.height - form_.imglangselect.box.height) / 2;
}

void LanguagePicker::markRowInForce() {
  ResumeNext on;
  on.next([&] { moveMarker(context_.language.langindex); });
}

void LanguagePicker::lbllanguage_Click(int index) {
  ResumeNext on;
  Language& language = context_.language;
  on.next([&] { language.langcode = row(index).font.charset; });
  on.next([&] { language.lang = row(index).tag; });
  const auto save = [&](std::string_view name, const std::string& text) {
    context_.registry.saveSetting(settings::kLanguageKey, name, text);
  };
  save("langcode", numberText(language.langcode));
  save("lang", language.lang);
  save("langindex", numberText(index));
  on.next([&] { moveMarker(index); });
  form_.pictrlang.visible = false;
  language.apply(form_);
}

void LanguagePicker::chameleonButton12_Click() {
  form_.pictrlang.visible = !form_.pictrlang.visible;
}

void LanguagePicker::pictrlang_MouseMove() {
  for (std::size_t index = 1; index < form_.lbllanguage.size(); ++index) {
    form_.lbllanguage[index].highlighted = false;
  }
}

}  // namespace tavr
