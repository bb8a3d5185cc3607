#include "ui/win32/accessible_name.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <vector>

#include "basic/text.h"
#include "forms/controls.h"
#include "forms/list_view.h"
#include "forms/result_list.h"
#include "ui/win32/accessible_words.h"
#include "ui/win32/form_looks.h"

namespace tavr::win32 {

namespace {

constexpr int kSameRow = 6;  // px between the tops of what stands in one row

// What a person sees from the place of it, and no row or heading tells.
struct NamedBy {
  std::string_view form;
  std::string_view control;
  std::string_view namer;
};

constexpr NamedBy kNamedBy[] = {
    {"Form1", "pictrlang", "chameleonButton12"},
    {"Form1", "imglangselect", "chameleonButton12"},
    {"Form1", "bar1", "Label1(0)"},
    {"Form1", "Gif89a1", "Label1(0)"},
    {"Form1", "Label2", "Label1(1)"},
    {"Form1", "Label4", "Label3"},
    {"Form1", "Label6", "Label5"},
    {"Form52", "List1", "Label1(1)"},
    {"Form52", "List2", "Label1(0)"},
};

std::string trimmed(std::string_view text) { return std::string(Trim(text)); }

std::string captionOf(const Form& form, std::string_view control) {
  const Control* const found = control.empty() ? nullptr : form.find(control);
  return found ? trimmed(found->caption) : std::string();
}

std::string placedName(const Form& form, const Control& control) {
  const std::string name = fullName(control.design.name, control.design.index);
  for (const NamedBy& row : kNamedBy) {
    if (row.form == form.name() && row.control == name) return captionOf(form, row.namer);
  }
  return "";
}

std::string columnName(const Control& control) {
  if (const auto* const list = dynamic_cast<const ListView*>(&control)) {
    return list->columns.empty() ? "" : trimmed(list->columns.front());
  }
  const auto* const results = dynamic_cast<const ResultList*>(&control);
  return results && !results->columns.empty() ? trimmed(results->columns.front()) : "";
}

// A tool does what the command with its sign does, whose caption is translated.
std::string commandOf(const Form& form, const Control& tool) {
  const std::string_view sign = lookOf(form, tool).icon;
  for (const Control* const other : form.controls()) {
    if (other->design.kind != ControlKind::kButton || other->caption.empty()) continue;
    const ControlLook& look = lookOf(form, *other);
    if (look.icon == sign && look.role != ButtonRole::kStrip) return trimmed(other->caption);
  }
  return trimmed(tool.caption);
}

// "Every .... 30 Minutes.": the rows of a schedule begin alike. A box's own text
// is its value, and no part of its name.
std::string rowName(const Form& form, const Control& control) {
  std::vector<const Control*> row;
  const bool with_texts = control.design.kind == ControlKind::kOption;
  for (const Control* const other : form.controls()) {
    const ControlKind kind = other->design.kind;
    if (kind != ControlKind::kLabel && !(with_texts && kind == ControlKind::kTextBox)) continue;
    if (!other->visible || other->design.parent != control.design.parent) continue;
    if (std::abs(other->box.top - control.box.top) <= kSameRow) row.push_back(other);
  }
  std::ranges::stable_sort(row, {}, [](const Control* other) { return other->box.left; });
  std::string name;
  for (const Control* const other : row) {
    const std::string part = trimmed(other->shown());
    if (!part.empty()) name += (name.empty() ? "" : " ") + part;
  }
  return name;
}

bool standsInRow(const Control& control) {
  switch (control.design.kind) {
    case ControlKind::kCheckBox:
    case ControlKind::kOption:
    case ControlKind::kTextBox:
    case ControlKind::kComboBox:
    case ControlKind::kScrollBar:
      return true;
    default:
      return false;
  }
}

// Its heading, else the entry that opens it.
std::string panelName(const Form& form, const Control& panel) {
  for (const Control* const other : form.controls()) {
    if (other->design.parent != panel.design.name) continue;
    if (lookOf(form, *other).label == LabelLook::kHeading) return trimmed(other->caption);
  }
  for (const Control* const other : form.controls()) {
    if (other->design.kind != ControlKind::kButton) continue;
    if (lookOf(form, *other).panel == panel.design.name) return trimmed(other->caption);
  }
  return "";
}

std::string nameWithoutCaption(const Form& form, const Control& control) {
  std::string name = placedName(form, control);
  if (name.empty()) name = columnName(control);
  if (name.empty() && standsInRow(control)) name = rowName(form, control);
  if (name.empty() && control.design.kind == ControlKind::kFrame) name = panelName(form, control);
  if (name.empty()) name = trimmed(control.tool_tip);
  if (name.empty()) name = accessibleFormName(form);
  // A question has no title: its text is all there is.
  return name.empty() ? trimmed(control.shown()) : name;
}

}  // namespace

bool showsSignAlone(const Form& form, const Control& control) {
  const ControlLook& look = lookOf(form, control);
  if (look.icon.empty() || look.icon == control.design.name) return false;
  return control.caption.empty() || look.role == ButtonRole::kStrip ||
         look.role == ButtonRole::kTool;
}

std::string accessibleFormName(const Form& form) {
  const std::string title = captionOf(form, lookOf(form).title_label);
  return title.empty() ? trimmed(form.caption) : title;
}

std::string accessibleName(const Form& form, const Control& control, std::string_view language) {
  const ControlLook& look = lookOf(form, control);
  if (control.design.kind == ControlKind::kToolbarButton) {
    return look.icon.empty() ? trimmed(control.caption) : commandOf(form, control);
  }
  if (showsSignAlone(form, control)) {
    const std::string_view word = wordOfSign(look.icon, language);
    if (!word.empty()) return std::string(word);
  }
  std::string caption = trimmed(control.caption);
  // A figure alone says nothing.
  if (look.label == LabelLook::kFigure) {
    const std::string of = placedName(form, control);
    return of.empty() ? caption : of + " " + caption;
  }
  if (!caption.empty()) return caption;
  if (control.design.kind == ControlKind::kLabel) return "";
  return nameWithoutCaption(form, control);
}

}  // namespace tavr::win32
