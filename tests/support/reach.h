// Which controls of a form a person can get at: what is seen changes with the
// panels, and some panels stand beyond the edge for good.
#pragma once

#include <string>
#include <vector>

#include "forms/form.h"

namespace tavr::testing {

/// A control with the panels that it stands on, the innermost first.
struct Place {
  std::string name;
  Form* form = nullptr;
  Control* control = nullptr;
  std::vector<Control*> panels;
};

/// What can be clicked or typed into, reached or not.
inline std::vector<Place> placesOf(Form& form) {
  std::vector<Place> places;
  for (Control* const control : form.controls()) {
    const ControlDesign& design = control->design;
    Place place{
        std::string(form.name()) + "." + fullName(design.name, design.index), &form, control, {}};
    for (std::string_view parent = design.parent; !parent.empty();) {
      place.panels.push_back(form.find(parent));
      parent = place.panels.back()->design.parent;
    }
    if (design.kind != ControlKind::kFrame && design.kind != ControlKind::kTimer) {
      places.push_back(place);
    }
  }
  return places;
}

/// Seen, in use, and not beyond the edge.
inline bool inReach(const Place& place) {
  if (!place.control->visible || !place.control->enabled) return false;
  int left = place.control->box.left;
  for (const Control* const panel : place.panels) {
    if (!panel->visible) return false;
    left += panel->box.left;
  }
  return left < place.form->width;
}

}  // namespace tavr::testing
