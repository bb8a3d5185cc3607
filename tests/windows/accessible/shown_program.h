// The program with its windows, without a loop of its own: a test does what a
// person does, pumps, and looks. It touches nothing but the settings of the
// machine that it runs on.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

#include "engine/program.h"
#include "platform/win32/win32_machine.h"
#include "ui/win32/action_queue.h"
#include "ui/win32/bound_control.h"
#include "ui/win32/window_set.h"

namespace tavr::win32::testing {

class ShownProgram {
 public:
  /// The main form, in a language of the program's ("de").
  explicit ShownProgram(std::string_view language = "en");
  ShownProgram(const ShownProgram&) = delete;
  ShownProgram& operator=(const ShownProgram&) = delete;

  /// By its name: "Form2", "Form3", "Form4", "Form52", "frmmsg", "frmabout".
  void open(std::string_view form);
  /// Serves every message, runs what it queued and brings the windows up to date.
  void pump();

  Program& program() { return program_; }
  /// A form that is open.
  Form& form(std::string_view name) { return *program_.desk.loaded(name); }
  Control& control(std::string_view form_name, std::string_view name) {
    return *form(form_name).find(name);
  }
  HWND formWindow(std::string_view form) const;
  HWND window(std::string_view form_name, std::string_view name);
  /// Every control of a form that a person sees, and has a window.
  std::vector<BoundControl*> shown(std::string_view form) const;

 private:
  void serveMessages();

  Win32Machine machine_;
  Program program_;
  ActionQueue actions_;
  WindowSet windows_;
};

/// Every form of the program, and the panels of those that have several.
struct FormPanel {
  std::string_view form;
  std::string_view opened_by;  ///< the entry that opens the panel, "" for none
};
inline constexpr FormPanel kFormPanels[] = {
    {"Form1", ""},
    {"Form2", "cmd_plugin"},
    {"Form2", "chameleonButton30"},
    {"Form2", "chameleonButton31"},
    {"Form3", "cmd_plugin"},
    {"Form3", "chameleonButton8"},
    {"Form4", ""},
    {"Form52", ""},
    {"frmmsg", ""},
    {"frmabout", ""},
};

/// As the name of a test that is run for each of them.
std::string nameOfPanel(const ::testing::TestParamInfo<FormPanel>& panel);

/// Opens a form at one of its panels.
void open(ShownProgram& shown, const FormPanel& panel);

}  // namespace tavr::win32::testing
