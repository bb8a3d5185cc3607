#include "ui/win32/accessible_facts.h"

// Ahead of oleacc.h.
#include <windows.h>
// In this order.
#include <oleacc.h>

#include <algorithm>
#include <cmath>

#include "basic/utf.h"
#include "forms/chameleon_button.h"
#include "forms/progress_bar.h"
#include "ui/win32/access_keys.h"
#include "ui/win32/accessible_name.h"
#include "ui/win32/control_places.h"
#include "ui/win32/form_looks.h"

namespace tavr::win32 {

namespace {

constexpr int kWhole = 100;  // percent

bool isSeparator(const Control& control) {
  return control.design.kind == ControlKind::kToolbarButton && control.caption.empty();
}

bool isMarked(const Form& form, const Control& row) {
  const Control* const mark = form.find("imglangselect");
  return mark && mark->box.top >= row.box.top && mark->box.top < row.box.top + row.box.height;
}

long labelRole(LabelLook look) {
  if (look == LabelLook::kLink) return ROLE_SYSTEM_LINK;
  return look == LabelLook::kMenuRow ? ROLE_SYSTEM_LISTITEM : ROLE_SYSTEM_STATICTEXT;
}

long pictureRole(const Control& control) {
  if (control.design.name == "pictrlang") return ROLE_SYSTEM_LIST;
  if (control.design.name == "Gif89a1") return ROLE_SYSTEM_ANIMATION;
  const auto& picture = static_cast<const Picture&>(control);
  return picture.onClick ? ROLE_SYSTEM_PUSHBUTTON : ROLE_SYSTEM_GRAPHIC;
}

long roleOf(const Form& form, const Control& control) {
  const ControlLook& look = lookOf(form, control);
  switch (control.design.kind) {
    case ControlKind::kToolbarButton:
      return isSeparator(control) ? ROLE_SYSTEM_SEPARATOR : ROLE_SYSTEM_PUSHBUTTON;
    case ControlKind::kButton:
      return look.role == ButtonRole::kNavigation ? ROLE_SYSTEM_PAGETAB : ROLE_SYSTEM_PUSHBUTTON;
    case ControlKind::kCheckBox:
      return ROLE_SYSTEM_CHECKBUTTON;
    case ControlKind::kOption:
      return ROLE_SYSTEM_RADIOBUTTON;
    case ControlKind::kLabel:
      return labelRole(look.label);
    case ControlKind::kFrame:
      return control.design.name == "Toolbar1" ? ROLE_SYSTEM_TOOLBAR : ROLE_SYSTEM_GROUPING;
    case ControlKind::kPicture:
      return pictureRole(control);
    case ControlKind::kProgressBar:
      return ROLE_SYSTEM_PROGRESSBAR;
    default:
      return ROLE_SYSTEM_CLIENT;
  }
}

long buttonState(const ControlLook& look, const Form& form, const Control& control) {
  long state = 0;
  if (look.role == ButtonRole::kNavigation) {
    const Control* const panel = form.find(look.panel);
    state |= STATE_SYSTEM_SELECTABLE;
    if (panel && panel->visible) state |= STATE_SYSTEM_SELECTED;
  }
  const auto* const chameleon = dynamic_cast<const ChameleonButton*>(&control);
  const bool down = chameleon && ((chameleon->check_box_behaviour && chameleon->value) ||
                                  chameleon->state() == ChameleonButton::State::kPressed);
  if (down) state |= STATE_SYSTEM_PRESSED;
  if (defaultButton(form) == &control) state |= STATE_SYSTEM_DEFAULT;
  return state;
}

long checkState(const Control& control) {
  const int value = static_cast<const CheckBox&>(control).value();
  return value == 0 ? 0 : value == 1 ? STATE_SYSTEM_CHECKED : STATE_SYSTEM_MIXED;
}

long kindState(const Form& form, const Control& control) {
  const ControlLook& look = lookOf(form, control);
  switch (control.design.kind) {
    case ControlKind::kButton:
      return buttonState(look, form, control);
    case ControlKind::kCheckBox:
      return checkState(control);
    case ControlKind::kOption:
      return static_cast<const OptionButton&>(control).value() ? STATE_SYSTEM_CHECKED : 0;
    case ControlKind::kLabel:
      if (look.label == LabelLook::kLink) return STATE_SYSTEM_LINKED;
      if (look.label != LabelLook::kMenuRow) return STATE_SYSTEM_READONLY;
      return STATE_SYSTEM_SELECTABLE | (isMarked(form, control) ? STATE_SYSTEM_SELECTED : 0);
    case ControlKind::kProgressBar:
      return STATE_SYSTEM_READONLY;
    default:
      return 0;
  }
}

std::string_view actionOf(long role, long state) {
  switch (role) {
    case ROLE_SYSTEM_PUSHBUTTON:
      return "Press";
    case ROLE_SYSTEM_PAGETAB:
    case ROLE_SYSTEM_LISTITEM:
      return "Switch";
    case ROLE_SYSTEM_LINK:
      return "Jump";
    case ROLE_SYSTEM_RADIOBUTTON:
      return "Check";
    case ROLE_SYSTEM_CHECKBUTTON:
      return (state & (STATE_SYSTEM_CHECKED | STATE_SYSTEM_MIXED)) != 0 ? "Uncheck" : "Check";
    default:
      return "";
  }
}

std::string valueOf(const Control& control) {
  const auto* const bar = dynamic_cast<const ProgressBar*>(&control);
  if (!bar || bar->max() <= bar->min()) return "";
  const double low = bar->min();
  const double part = (bar->value() - low) / (bar->max() - low);
  return std::to_string(std::lround(std::clamp(part, 0.0, 1.0) * kWhole)) + "%";
}

}  // namespace

AccessibleFacts accessibleFacts(const Form& form, const Control& control,
                                std::string_view language) {
  AccessibleFacts facts;
  facts.name = accessibleName(form, control, language);
  facts.value = valueOf(control);
  facts.role = roleOf(form, control);
  facts.state = kindState(form, control);
  if (!control.enabled) {
    facts.state |= STATE_SYSTEM_UNAVAILABLE;
  } else if (takesKeyboard(form, control)) {
    facts.state |= STATE_SYSTEM_FOCUSABLE;
  }
  if (!inSight(form, control)) facts.state |= STATE_SYSTEM_INVISIBLE;
  facts.action = actionOf(facts.role, facts.state);
  return facts;
}

std::string accessibleShortcut(const Form& form, const Control& control) {
  const std::vector<AccessKey> keys = accessKeys(form);
  const auto found = std::ranges::find(keys, &control, &AccessKey::target);
  if (found == keys.end()) return "";
  std::string text = "Alt+";
  appendUtf8(text, found->letter);
  return text;
}

}  // namespace tavr::win32
