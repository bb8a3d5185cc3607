#include "ui/win32/form_looks.h"

#include <algorithm>
#include <iterator>

#include "basic/text.h"

namespace tavr::win32 {

namespace {

using enum ButtonRole;
using Label = LabelLook;

constexpr ControlLook button(std::string_view form, std::string_view control, ButtonRole role,
                             std::string_view icon, std::string_view panel = "") {
  return {form, control, role, Label::kPlain, icon, panel};
}

constexpr ControlLook label(std::string_view form, std::string_view control, Label look) {
  return {form, control, kPlain, look, "", ""};
}

// A part of a sentence, close behind the one before it.
constexpr ControlLook behind(std::string_view form, std::string_view control,
                             std::string_view before) {
  return {form, control, kPlain, Label::kPlain, "", "", before};
}

constexpr ControlLook kControls[] = {
    button("Form1", "chameleonButton12", kStrip, ""),
    button("Form1", "chameleonButton13", kStrip, "about"),
    button("Form1", "chameleonButton10", kStrip, "minimise"),
    button("Form1", "chameleonButton9", kStrip, "close"),
    button("Form1", "cmd_settings", kCommand, "settings"),
    button("Form1", "cmd_option", kCommand, "options"),
    button("Form1", "cmd_plugin", kCommand, "plugins"),
    button("Form1", "cmd_test", kOutlined, "test"),
    button("Form1", "cmd_start", kPrimary, "erase"),
    button("Form1", "cmd_stop", kCommand, "stop"),
    button("Form1", "cmd_view", kCommand, "view-log"),
    button("Form1", "cmd_clear", kCommand, "clear-log"),
    button("Form1", "chameleonButton4", kCommand, ""),
    button("Form1", "chameleonButton11", kCommand, "exit"),
    button("Form1", "Image44", kPlain, "help"),
    button("Form1", "imglangselect", kPlain, "check"),
    button("Form1", "pictrlang", kPlain, "", "pictrlang"),
    button("Form1", "Gif89a1", kPlain, "", "Gif89a1"),
    button("Form1", "Toolbar1(1)", kTool, "settings"),
    button("Form1", "Toolbar1(2)", kTool, "options"),
    button("Form1", "Toolbar1(4)", kTool, "plugins"),
    button("Form1", "Toolbar1(6)", kTool, "test"),
    button("Form1", "Toolbar1(8)", kTool, "erase"),
    button("Form1", "Toolbar1(10)", kTool, "stop"),
    button("Form1", "Toolbar1(11)", kTool, "view-log"),
    button("Form1", "Toolbar1(12)", kTool, "clear-log"),
    button("Form1", "Toolbar1(14)", kTool, "maker"),
    label("Form1", "Label88(6)", Label::kTitle),
    label("Form1", "lbllanguage", Label::kMenuRow),
    label("Form1", "Label222", Label::kFaint),
    label("Form1", "Label1(0)", Label::kFaint),
    label("Form1", "Label1(1)", Label::kFaint),
    label("Form1", "Label3", Label::kFaint),
    label("Form1", "Label5", Label::kFaint),
    label("Form1", "Label2", Label::kFigure),
    label("Form1", "Label4", Label::kFigure),
    label("Form1", "Label6", Label::kFigure),
    label("Form2", "Label222(1)", Label::kTitle),
    button("Form2", "chameleonButton32", kStrip, "close"),
    button("Form2", "Image44", kStrip, "help"),
    button("Form2", "cmd_plugin", kNavigation, "", "Frame9"),
    button("Form2", "chameleonButton30", kNavigation, "", "Frame2"),
    button("Form2", "chameleonButton31", kNavigation, "", "Frame3"),
    button("Form2", "chameleonButton4", kPrimary, ""),
    button("Form2", "chameleonButton17", kPlain, "check-all"),
    button("Form2", "chameleonButton18", kPlain, "check-none"),
    label("Form2", "Label2(6)", Label::kHeading),
    label("Form2", "Label2(15)", Label::kHeading),
    label("Form3", "Label222(1)", Label::kTitle),
    button("Form3", "chameleonButton32", kStrip, "close"),
    button("Form3", "cmd_plugin", kNavigation, "", "Frame3"),
    button("Form3", "chameleonButton8", kNavigation, "", "Frame2"),
    button("Form3", "chameleonButton19", kPrimary, ""),
    behind("Form3", "Label2(12)", "Label2(15)"),
    behind("Form3", "Combo2", "Label2(12)"),
    behind("Form3", "Combo1", "Label2(2)"),
    behind("Form3", "Label2(3)", "Combo1"),
    label("Form3", "Label2(13)", Label::kHeading),
    label("Form3", "Label2(17)", Label::kHeading),
    label("Form3", "Label2(19)", Label::kHeading),
    label("Form3", "Label2(14)", Label::kFaint),
    label("Form3", "Label2(8)", Label::kFaint),
    label("Form3", "Label3(0)", Label::kFaint),
    button("Form4", "command2", kPrimary, ""),
    label("Form52", "Label1(16)", Label::kTitle),
    button("Form52", "keepbutton2", kOutlined, ""),
    button("Form52", "keepbutton7", kPrimary, ""),
    button("frmmsg", "chameleonButton1", kPrimary, ""),
    label("frmabout", "Label222(1)", Label::kTitle),
    label("frmabout", "Label1", Label::kHeading),
    label("frmabout", "Label3", Label::kFaint),
    label("frmabout", "Label2(0)", Label::kLink),
    label("frmabout", "Label2(1)", Label::kLink),
    label("frmabout", "Label2(2)", Label::kLink),
    label("frmabout", "Label2(3)", Label::kLink),
    button("frmabout", "chameleonButton1", kPrimary, ""),
};

constexpr FormLook kForms[] = {
    {"Form1", 40, 0, 224, 40, 580, "Label88(6)"}, {"Form2", 40, 0, 224, 0, 0, "Label222(1)"},
    {"Form3", 40, 0, 224, 0, 0, "Label222(1)"},   {"Form4", 36, 36, 0, 0, 0, ""},
    {"Form52", 40, 0, 0, 0, 0, "Label1(16)"},     {"frmmsg", 36, 36, 0, 0, 0, ""},
    {"frmabout", 40, 0, 0, 0, 0, "Label222(1)"},
};

// The rows of the language list share what is said of their array.
bool isMeant(const ControlLook& look, const Form& form, const Control& control) {
  if (look.form != form.name()) return false;
  const ControlDesign& design = control.design;
  return look.control == fullName(design.name, design.index) ||
         (look.label == Label::kMenuRow && look.control == design.name);
}

}  // namespace

const ControlLook& lookOf(const Form& form, const Control& control) {
  static constexpr ControlLook kOther;
  const auto found = std::ranges::find_if(
      kControls, [&](const ControlLook& look) { return isMeant(look, form, control); });
  return found == std::end(kControls) ? kOther : *found;
}

bool isFollowed(const Form& form, const Control& control) {
  return std::ranges::any_of(kControls, [&](const ControlLook& look) {
    return !look.follows.empty() && look.form == form.name() &&
           look.follows == fullName(control.design.name, control.design.index);
  });
}

const FormLook& lookOf(const Form& form) {
  static constexpr FormLook kOther;
  const auto found =
      std::ranges::find_if(kForms, [&](const FormLook& look) { return look.form == form.name(); });
  return found == std::end(kForms) ? kOther : *found;
}

Area areaAt(const Form& form, int left, int top) {
  const FormLook& look = lookOf(form);
  if (top < look.strip_height - look.strip_above) return Area::kStrip;
  if (left < look.side_width || top < look.strip_height + look.head_height) {
    return look.side_width > 0 ? Area::kSide : Area::kCentre;
  }
  return look.foot_top > 0 && top >= look.foot_top ? Area::kSide : Area::kCentre;
}

}  // namespace tavr::win32
