// One form as its windows stand, measured with what draws them.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/windows/accessible/shown_program.h"
#include "ui/win32/form_window.h"

namespace tavr::win32::testing {

class MeasuredForm {
 public:
  /// One that is open.
  MeasuredForm(ShownProgram& shown, std::string_view form)
      : shown_(shown),
        form_(shown.form(form)),
        window_(*FormWindow::of(shown.formWindow(form))),
        dc_(GetDC(nullptr)) {}
  ~MeasuredForm() { ReleaseDC(nullptr, dc_); }
  MeasuredForm(const MeasuredForm&) = delete;
  MeasuredForm& operator=(const MeasuredForm&) = delete;

  void at(int dpi);
  /// ALT goes down or up: while it is held some captions are longer.
  void holdAlt(bool down);

  // What does not fit, in words; "" when all does.
  std::string clipped() const;
  std::string overlapping() const;
  std::string outside() const;
  std::string title() const;

 private:
  RECT holderOf(HWND control) const;
  bool fits(const BoundControl& bound) const;
  bool buttonFits(const BoundControl& bound) const;
  bool labelFits(const BoundControl& bound) const;
  bool headingsFit(HWND list, const std::vector<std::string>& columns, const Control& of) const;
  std::vector<BoundControl*> controls() const { return shown_.shown(form_.name()); }
  double scale() const { return window_.scale(); }

  ShownProgram& shown_;
  Form& form_;
  FormWindow& window_;
  HDC dc_;
};

}  // namespace tavr::win32::testing
