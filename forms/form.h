// A form: its own state and its controls by name.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace tavr {

enum class WindowState : std::uint8_t { kNormal, kMinimised };

class Form {
 public:
  Form(std::string_view name, std::string_view form_caption, int form_width, int form_height)
      : caption(form_caption), width(form_width), height(form_height), name_(name) {}
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  std::string caption;
  int width;  ///< pixels at 96 dpi
  int height;
  int left = 0;
  int top = 0;
  bool visible = false;
  bool enabled = true;
  bool topmost = false;
  WindowState window_state = WindowState::kNormal;
  std::int32_t back_color = 0;
  bool has_look_color = false;  ///< the person's look gave the form its colour
  std::string language;         ///< that its captions are in; "" for those of the design
  int shown_again = 0;          ///< grows with every showing of a form that is open already

  /// For a form that steps aside for a moment: told at once, as nobody sees a value
  /// that is changed and changed back within one handler. A view's notice.
  std::function<void(bool on)> onTopmost;
  void setTopmost(bool on) {
    topmost = on;
    if (onTopmost) onTopmost(on);
  }

  std::string_view name() const { return name_; }

  /// In the order of the design.
  const std::vector<Control*>& controls() const { return controls_; }

  /// By name without case, "Check1(44)" for a member of an array; null: none.
  Control* find(std::string_view control_name) const;

 protected:
  /// Puts a control in its place; the design table is searched for name and
  /// index, and every row is to be placed once. Raises a logic_error when there
  /// is no such row: the table is broken.
  void place(std::span<const ControlDesign> table, std::string_view control_name, int index,
             Control& control);

 private:
  std::string name_;
  std::vector<Control*> controls_;
};

/// "Check1(44)" or "Label2".
std::string fullName(std::string_view name, int index);

}  // namespace tavr
