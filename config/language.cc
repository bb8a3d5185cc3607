#include "config/language.h"

#include <span>
#include <vector>

#include "basic/number.h"
#include "basic/resume_next.h"
#include "basic/text.h"
#include "config/language_keys.h"
#include "forms/list_view.h"
#include "forms/result_list.h"
#include "services/file_statements.h"
#include "services/program_folder.h"
#include "services/settings_keys.h"

namespace tavr {

namespace {

std::string contentsOf(Machine& machine, std::string_view path) {
  std::string contents;
  const OpenedFile opened = machine.files.open(path, OpenMode::kInput);
  if (opened.status != kSuccess) return contents;
  if (opened.file->read(0, static_cast<std::size_t>(opened.file->length()), contents) != kSuccess)
    contents.clear();
  return contents;
}

// A line begins at `at`, which moves to the next one; its CR is not part of it.
std::string_view takeLine(std::string_view text, std::size_t& at) {
  const std::size_t end = text.find('\n', at);
  std::string_view line = text.substr(at, end == std::string_view::npos ? end : end - at);
  at = end == std::string_view::npos ? text.size() : end + 1;
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

std::string withoutQuotes(std::string_view text) {
  std::string kept;
  for (const char character : text) {
    if (character != '"') kept += character;
  }
  return kept;
}

// The columns of a list that has a header; null for any other control.
std::vector<std::string>* columnsOf(Control& control) {
  if (auto* const list = dynamic_cast<ListView*>(&control)) return &list->columns;
  if (auto* const results = dynamic_cast<ResultList*>(&control)) return &results->columns;
  return nullptr;
}

constexpr std::string_view kColumn = ".ColumnHeaders.Item(";

// What a key names: a control, or a column of it (from 1; 0 for none).
struct KeyTarget {
  Control* control = nullptr;
  std::size_t column = 0;
};

KeyTarget targetOf(const Form& form, std::string_view key) {
  const std::size_t dot = key.find(kColumn);
  if (dot == std::string_view::npos) return {form.find(key), 0};
  const double number = Val(key.substr(dot + kColumn.size()));
  return {form.find(key.substr(0, dot)), static_cast<std::size_t>(number)};
}

// A control or a column that is not there is left out.
void setCaption(const KeyTarget& target, const std::string& caption) {
  if (!target.control) return;
  if (target.column == 0) {
    target.control->caption = caption;
    return;
  }
  std::vector<std::string>* const columns = columnsOf(*target.control);
  if (columns && target.column <= columns->size()) (*columns)[target.column - 1] = caption;
}

std::string lookSetting(const RegistryLayer& registry, std::string_view name,
                        std::string_view fallback) {
  std::string text(fallback);
  registry.fGetString(Root::kLocalMachine, settings::kLookKey, name, text);
  return Trim(text).empty() ? std::string(fallback) : text;
}

ControlFont captionFont(const RegistryLayer& registry, int charset) {
  ResumeNext on;
  ControlFont font;
  font.name = lookSetting(registry, "font name", "Segoe UI");
  const std::string size = lookSetting(registry, "font size", "9");
  // A font object refuses a size that is no number and keeps its own.
  on.next([&] {
    if (toLong(size) > 0) font.size = size;
  });
  font.charset = charset;
  return font;
}

}  // namespace

std::string readlangfile(Machine& machine, std::string_view path, std::string_view section,
                         std::string_view key) {
  const std::string contents = contentsOf(machine, path);
  const std::string header = "[" + LCase(section) + "]";
  const std::string wanted = LCase(key);
  bool in_section = false;
  for (std::size_t at = 0; at < contents.size();) {
    const std::string_view line = Trim(takeLine(contents, at));
    if (LCase(line) == header) in_section = true;
    if (!in_section) continue;
    const std::vector<std::string> fields = Split(line, '=');
    if (fields.empty() || LCase(Trim(fields[0])) != wanted) continue;
    return fields.size() > 1 ? withoutQuotes(Trim(fields[1])) : std::string();
  }
  return {};
}

void Language::apply(Form& form) {
  ResumeNext on;
  const auto setting = [&](std::string_view name) {
    return registry_.setting(settings::kLanguageKey, name);
  };
  on.next([&] { langcode = toInteger(setting("langcode")); });
  lang = setting("lang");
  if (form.name() != "frmabout") on.next([&] { langindex = toInteger(setting("langindex")); });
  file_name = "tavrwipe-" + lang + ".lang";
  const std::string path = programFile(machine_, "lang\\" + file_name);
  if (on.met([&] { return Dir(machine_, path).empty(); })) return;
  form.language = lang;
  const ControlFont font = captionFont(registry_, langcode);
  const std::span<const std::string_view> keys = languageKeys(form.name());
  for (const std::string_view key : keys) {
    if (Control* const control = targetOf(form, key).control) control->font = font;
  }
  for (const std::string_view key : keys) {
    setCaption(targetOf(form, key), readlangfile(machine_, path, form.name(), key));
  }
}

}  // namespace tavr
