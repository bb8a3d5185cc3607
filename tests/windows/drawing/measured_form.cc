#include "tests/windows/drawing/measured_form.h"

// Behind windows.h.
#include <commctrl.h>

#include <algorithm>

#include "forms/list_view.h"
#include "forms/result_list.h"
#include "ui/win32/caption.h"
#include "ui/win32/control_places.h"
#include "ui/win32/drawing.h"
#include "ui/win32/form_looks.h"

namespace tavr::win32::testing {

namespace {

constexpr double kTitleSize = 11.0 / 9;
constexpr int kBeforeTitle = 42;    // px at 96 dpi: the program's sign
constexpr int kBesideHeading = 12;  // px at 96 dpi before and behind a column's heading

RECT placeOf(HWND window) {
  RECT place;
  GetWindowRect(window, &place);
  return place;
}

SIZE sizeOf(HWND window) {
  RECT area;
  GetClientRect(window, &area);
  return {area.right, area.bottom};
}

std::string nameOf(const BoundControl& bound) {
  const ControlDesign& design = bound.control().design;
  return fullName(design.name, design.index) + " \"" + bound.control().caption + "\"";
}

}  // namespace

void MeasuredForm::at(int dpi) {
  SendMessageW(window_.window(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), 0);
  shown_.pump();
}

void MeasuredForm::holdAlt(bool down) {
  const UINT message = down ? WM_SYSKEYDOWN : WM_SYSKEYUP;
  window_.serveKey({window_.window(), message, VK_MENU, 0, 0, {}});
}

bool MeasuredForm::buttonFits(const BoundControl& bound) const {
  const Control& control = bound.control();
  const ControlLook& look = lookOf(form_, control);
  DrawnState state;
  state.scale = scale();
  state.icon = look.icon;
  const std::string caption = window_.captionOf(control);
  state.caption = caption;
  const SIZE wanted = buttonSize(dc_, control, look.role, state);
  const SIZE has = sizeOf(bound.window());
  return wanted.cx <= has.cx && wanted.cy <= has.cy;
}

bool MeasuredForm::labelFits(const BoundControl& bound) const {
  const Control& label = bound.control();
  const LabelLook look = lookOf(form_, label).label;
  const bool heading = look == LabelLook::kHeading;
  const bool figure = look == LabelLook::kFigure;
  Control as_shown;
  as_shown.caption = window_.captionOf(label);
  as_shown.font = label.font;
  const SIZE line = textSize(dc_, as_shown.caption, label.font, scale(), heading || figure,
                             heading  ? kHeadingSize
                             : figure ? kFigureSize
                                      : 1);
  const SIZE has = sizeOf(bound.window());
  if (line.cy > has.cy) return false;
  if (line.cx <= has.cx) return true;
  return has.cy >= 2 * line.cy &&
         labelHeight(dc_, as_shown, has.cx, heading, figure, scale()) <= has.cy;
}

bool MeasuredForm::headingsFit(HWND list, const std::vector<std::string>& columns,
                               const Control& of) const {
  const HWND header = ListView_GetHeader(list);
  for (std::size_t i = 0; i < columns.size(); ++i) {
    RECT part;
    Header_GetItemRect(header, static_cast<int>(i), &part);
    const SIZE text = textSize(dc_, columns[i], of.font, scale(), true);
    if (text.cx + 2 * window_.px(kBesideHeading) > part.right - part.left) return false;
  }
  return true;
}

bool MeasuredForm::fits(const BoundControl& bound) const {
  const Control& control = bound.control();
  if (const auto* const list = dynamic_cast<const ListView*>(&control)) {
    return headingsFit(bound.window(), list->columns, control);
  }
  if (const auto* const results = dynamic_cast<const ResultList*>(&control)) {
    return headingsFit(bound.window(), results->columns, control);
  }
  if (control.caption.empty()) return true;
  switch (control.design.kind) {
    case ControlKind::kButton:
    case ControlKind::kToolbarButton:
      return buttonFits(bound);
    case ControlKind::kLabel:
      return labelFits(bound);
    case ControlKind::kCheckBox:
    case ControlKind::kOption: {
      DrawnState state;
      state.scale = scale();
      const std::string caption = window_.captionOf(control);
      state.caption = caption;
      const SIZE wanted = boxSize(dc_, control, state);
      const SIZE has = sizeOf(bound.window());
      return wanted.cx <= has.cx && wanted.cy <= has.cy;
    }
    default:
      return true;
  }
}

std::string MeasuredForm::clipped() const {
  std::string found;
  for (const BoundControl* const bound : controls()) {
    if (!fits(*bound)) found += nameOf(*bound) + "\n";
  }
  return found;
}

// An open list of choices lies above the rest of its form.
std::string MeasuredForm::overlapping() const {
  std::string found;
  const std::vector<BoundControl*> all = controls();
  for (std::size_t i = 0; i < all.size(); ++i) {
    for (std::size_t j = i + 1; j < all.size(); ++j) {
      const Control& one = all[i]->control();
      const Control& other = all[j]->control();
      if (one.design.parent != other.design.parent) continue;
      if (one.design.name == "pictrlang" || other.design.name == "pictrlang") continue;
      const RECT a = placeOf(all[i]->window());
      const RECT b = placeOf(all[j]->window());
      RECT both;
      if (IntersectRect(&both, &a, &b)) found += nameOf(*all[i]) + " and " + nameOf(*all[j]) + "\n";
    }
  }
  return found;
}

// A window manager may hold the form itself back to the size of its screen.
RECT MeasuredForm::holderOf(HWND control) const {
  const HWND parent = GetParent(control);
  RECT place = placeOf(parent);
  if (parent != window_.window()) return place;
  place.right = place.left + window_.px(form_.width);
  place.bottom = place.top + window_.px(form_.height + lookOf(form_).strip_above);
  return place;
}

std::string MeasuredForm::outside() const {
  std::string found;
  for (const BoundControl* const bound : controls()) {
    const RECT holder = holderOf(bound->window());
    const RECT place = placeOf(bound->window());
    RECT both;
    IntersectRect(&both, &holder, &place);
    if (!EqualRect(&both, &place)) found += nameOf(*bound) + "\n";
  }
  return found;
}

// The title stands between the sign and what is on the strip behind it.
std::string MeasuredForm::title() const {
  RECT form = placeOf(window_.window());
  form.right = form.left + window_.px(form_.width);
  const FormLook& look = lookOf(form_);
  int room = form.right - form.left - window_.px(kBeforeTitle);
  for (const BoundControl* const bound : controls()) {
    const RECT place = placeOf(bound->window());
    if (place.top >= form.top + window_.px(look.strip_height)) continue;
    const int from_start =
        window_.rightToLeft() ? form.right - place.right : place.left - form.left;
    room = std::min(room, from_start - window_.px(kBeforeTitle));
  }
  Control caption;
  const Control* const label = look.title_label.empty() ? nullptr : form_.find(look.title_label);
  caption.caption = label ? label->caption : form_.caption;
  if (label) caption.font.charset = label->font.charset;
  const SIZE wanted = textSize(dc_, caption.caption, caption.font, scale(), true, kTitleSize);
  return wanted.cx <= room ? "" : caption.caption;
}

}  // namespace tavr::win32::testing
