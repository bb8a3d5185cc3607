#include "ui/win32/control_places.h"

#include <algorithm>
#include <cstdlib>

#include "forms/controls.h"
#include "ui/win32/form_looks.h"

namespace tavr::win32 {

namespace {

constexpr int kSameRow = 6;       // px between the tops of a box and its label
constexpr int kBesideLabel = 40;  // px between a box and the label that names it
constexpr int kBesideBox = 8;     // px between a box and the scroll bar that turns its number

// The number of the button that opens it, which the design places first.
constexpr int kListRowOrder = 20;
// Behind every designed number: the signs, then the toolbar.
constexpr int kToolbarOrder = 1000;
constexpr int kSignOrder = 900;

bool within(const Box& box, int width, int height) {
  return box.left < width && box.top < height && box.left + box.width > 0 &&
         box.top + box.height > 0;
}

bool isListRow(const Control& control) {
  return control.design.kind == ControlKind::kLabel && control.design.name == "lbllanguage";
}

bool isSeparator(const Control& control) {
  return control.design.kind == ControlKind::kToolbarButton && control.caption.empty();
}

// A sign on the strip that acts and has no number in the design.
bool isStripSign(const Form& form, const Control& control) {
  return control.design.kind == ControlKind::kPicture &&
         lookOf(form, control).role == ButtonRole::kStrip;
}

// A scroll bar has no number in the design: it follows the box that it turns.
int orderOfScrollBar(const Form& form, const Control& bar) {
  for (const Control* const box : form.controls()) {
    if (box->design.kind != ControlKind::kTextBox) continue;
    if (box->design.parent != bar.design.parent) continue;
    if (std::abs(box->box.top - bar.box.top) > kSameRow) continue;
    const int gap = bar.box.left - box->box.left - box->box.width;
    if (gap >= 0 && gap <= kBesideBox) return box->design.tab;
  }
  return bar.design.tab;
}

// -1: never.
int orderOf(const Form& form, const Control& control) {
  if (control.design.kind == ControlKind::kScrollBar) return orderOfScrollBar(form, control);
  if (isStripSign(form, control)) return kSignOrder;
  if (control.design.kind == ControlKind::kToolbarButton) {
    return isSeparator(control) ? -1 : kToolbarOrder + control.design.index;
  }
  if (isListRow(control)) return kListRowOrder;
  return control.design.tab;
}

Control* next(const std::vector<Control*>& order, const Control* current, bool back) {
  const auto count = static_cast<std::ptrdiff_t>(order.size());
  const auto at = std::ranges::find(order, current) - order.begin();
  const std::ptrdiff_t start = at < count ? at : back ? 0 : count - 1;
  for (std::ptrdiff_t step = 1; step <= count; ++step) {
    Control* const found =
        order[static_cast<std::size_t>((start + (back ? count - step : step)) % count)];
    if (found->enabled) return found;
  }
  return nullptr;
}

bool sameGroup(const Control& a, const Control& b) {
  return isGrouped(a) && a.design.name == b.design.name && a.design.parent == b.design.parent;
}

// Tab reaches each of them: the boxes of their rows stand between.
bool areOptions(const Control& a, const Control& b) {
  return a.design.kind == ControlKind::kOption && b.design.kind == ControlKind::kOption &&
         a.design.parent == b.design.parent;
}

}  // namespace

// Asked of every control at every comparison, so without a search by text.
Control* holderOf(const Form& form, const Control& control) {
  const std::string_view name = control.design.parent;
  if (name.empty()) return nullptr;
  const auto found = std::ranges::find_if(form.controls(), [name](const Control* other) {
    return other->design.index < 0 && other->design.name == name;
  });
  return found == form.controls().end() ? nullptr : *found;
}

bool inSight(const Form& form, const Control& control) {
  if (!control.visible) return false;
  const Control* const holder = holderOf(form, control);
  if (!holder) return within(control.box, form.width, form.height);
  return within(control.box, holder->box.width, holder->box.height) && inSight(form, *holder);
}

bool isGrouped(const Control& control) {
  return control.design.kind == ControlKind::kToolbarButton || isListRow(control);
}

bool takesKeyboard(const Form& form, const Control& control) { return orderOf(form, control) >= 0; }

std::vector<Control*> focusOrder(const Form& form) {
  std::vector<Control*> order;
  for (Control* const control : form.controls()) {
    if (takesKeyboard(form, *control) && inSight(form, *control)) order.push_back(control);
  }
  std::ranges::stable_sort(order, {},
                           [&form](const Control* control) { return orderOf(form, *control); });
  return order;
}

Control* nextFocus(const Form& form, const Control* current, bool back) {
  std::vector<Control*> order;
  for (Control* const control : focusOrder(form)) {
    const bool in_group_of_last = !order.empty() && sameGroup(*order.back(), *control);
    if (!in_group_of_last) {
      order.push_back(control);
    } else if (control == current || !order.back()->enabled) {
      order.back() = control;  // the group is entered where one can act, and left from anywhere
    }
  }
  return next(order, current, back);
}

Control* nextInGroup(const Form& form, const Control& current, bool back) {
  std::vector<Control*> group;
  for (Control* const control : focusOrder(form)) {
    if (sameGroup(current, *control) || areOptions(current, *control)) group.push_back(control);
  }
  return next(group, &current, back);
}

const Control* namerOf(const Form& form, const Control& control) {
  if (!control.caption.empty()) return &control;
  const bool named_at_right =
      control.design.kind == ControlKind::kCheckBox || control.design.kind == ControlKind::kOption;
  const Control* nearest = nullptr;
  int nearest_gap = kBesideLabel;
  for (const Control* const other : form.controls()) {
    if (other->design.kind != ControlKind::kLabel || !other->visible) continue;
    if (other->caption.empty() || other->design.parent != control.design.parent) continue;
    if (std::abs(other->box.top - control.box.top) > kSameRow) continue;
    const int gap = named_at_right ? other->box.left - control.box.left - control.box.width
                                   : control.box.left - other->box.left - other->box.width;
    if (gap < 0 || gap >= nearest_gap) continue;
    nearest = other;
    nearest_gap = gap;
  }
  return nearest;
}

}  // namespace tavr::win32
