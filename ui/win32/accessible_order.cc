#include "ui/win32/accessible_order.h"

#include <algorithm>
#include <tuple>

#include "ui/win32/form_looks.h"

namespace tavr::win32 {

namespace {

// What stands in a row has its middles on one line; a list begins where it does.
constexpr int kRow = 8;       // px
constexpr int kLargest = 60;  // px of height, of what is part of a row

// An open list lies above what it covers.
bool liesAbove(const Control& control) { return control.design.name == "pictrlang"; }

int partOf(const Form& form, const Control& control) {
  if (!control.design.parent.empty()) return 0;
  const FormLook& look = lookOf(form);
  if (look.foot_top > 0 && control.box.top >= look.foot_top) return 3;
  switch (areaAt(form, control.box.left, control.box.top)) {
    case Area::kStrip:
      return 0;
    case Area::kSide:
      return 1;
    case Area::kCentre:
      break;
  }
  return 2;
}

int lineOf(const Box& box) {
  return (box.height <= kLargest ? box.top + box.height / 2 : box.top) / kRow;
}

auto placeOf(const Form& form, const Control& control) {
  return std::tuple(!liesAbove(control), partOf(form, control), lineOf(control.box),
                    control.box.left);
}

}  // namespace

bool isReadBefore(const Form& form, const Control& a, const Control& b) {
  return placeOf(form, a) < placeOf(form, b);
}

void orderForReading(const Form& form, std::vector<BoundControl*> controls) {
  std::ranges::stable_sort(controls, [&form](const BoundControl* a, const BoundControl* b) {
    return isReadBefore(form, a->control(), b->control());
  });
  // From the last on, each above those before it; holders keep to their own.
  for (auto at = controls.rbegin(); at != controls.rend(); ++at) {
    SetWindowPos((*at)->window(), HWND_TOP, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
  }
}

}  // namespace tavr::win32
