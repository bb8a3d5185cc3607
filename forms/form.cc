#include "forms/form.h"

#include <algorithm>
#include <stdexcept>

#include "basic/text.h"

namespace tavr {

std::string fullName(std::string_view name, int index) {
  std::string text(name);
  if (index >= 0) text += "(" + std::to_string(index) + ")";
  return text;
}

Control* Form::find(std::string_view control_name) const {
  for (Control* control : controls_) {
    if (sameText(fullName(control->design.name, control->design.index), control_name)) {
      return control;
    }
  }
  return nullptr;
}

void Form::place(std::span<const ControlDesign> table, std::string_view control_name, int index,
                 Control& control) {
  const auto row = std::ranges::find_if(table, [&](const ControlDesign& design) {
    return design.name == control_name && design.index == index;
  });
  if (row == table.end()) {
    throw std::logic_error("no design for " + std::string(name_) + "." +
                           fullName(control_name, index));
  }
  control.design = *row;
  control.box = row->box;
  control.caption = row->caption;
  control.visible = row->visible;
  control.enabled = row->enabled;
  controls_.push_back(&control);
}

}  // namespace tavr
