// How the forms' controls are shown: which button is a command, which label a
// heading, and the areas that a form is divided into. The forms know their
// controls, boxes and captions; what makes a window of today of them is here.
#pragma once

#include <string_view>

#include "forms/form.h"
#include "ui/win32/drawing.h"

namespace tavr::win32 {

enum class LabelLook : std::uint8_t { kPlain, kHeading, kFigure, kFaint, kLink, kMenuRow, kTitle };

struct ControlLook {
  std::string_view form;
  std::string_view control;  ///< its full name, "Label1(1)"
  ButtonRole role = ButtonRole::kPlain;
  LabelLook label = LabelLook::kPlain;
  std::string_view icon;
  std::string_view panel;         ///< the frame that a navigation button opens
  std::string_view follows = {};  ///< the control that it stands close behind, on the same line
};

/// The look of a control; a plain one when nothing is said of it. A picture of
/// which nothing is said has no window.
const ControlLook& lookOf(const Form& form, const Control& control);

/// Whether another control stands close behind this one.
bool isFollowed(const Form& form, const Control& control);

struct FormLook {
  std::string_view form;
  int strip_height = 36;
  int strip_above = 0;           ///< how much the strip adds to a form that left no room for it
  int side_width = 0;            ///< the column of commands, 0 for none
  int head_height = 0;           ///< the toolbar's row below the strip
  int foot_top = 0;              ///< where the totals begin, 0 for none
  std::string_view title_label;  ///< its caption is the title; "" for the form's own
};

const FormLook& lookOf(const Form& form);

/// Which part of a form a point lies in.
enum class Area : std::uint8_t { kStrip, kSide, kCentre };
Area areaAt(const Form& form, int left, int top);

}  // namespace tavr::win32
