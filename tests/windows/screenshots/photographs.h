// The pictures of the program's forms: each opened as a person opens it, and
// photographed by whoever watches a folder. The place of a picture stands in
// FOLDER\NAME.ask ("left top width height", pixels of the screen), and the next
// one is opened when that file has been taken away.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <utility>

#include "tests/windows/window/driven_program.h"
#include "tests/windows/window/task_bar.h"

namespace tavr::testing {

class Photographs {
 public:
  /// `language` is a row of the language list.
  Photographs(std::string folder, int language) : folder_(std::move(folder)), language_(language) {}

  // Each raises std::runtime_error where a picture cannot be had.
  void ofUsual();
  void ofLarge();
  void ofAlone();
  void ofRunning();
  void ofQuestion();

 private:
  void take(const std::string& name, HWND window);
  void takeAtOnce(const std::string& name, HWND window) const;
  void take(const DrivenProgram& program, const std::string& name, std::string_view form);
  void choose(const DrivenProgram& program) const;
  void ofMain(const DrivenProgram& program);
  void ofSettings(const DrivenProgram& program);
  void ofOptions(const DrivenProgram& program);
  void ofSmallForms(const DrivenProgram& program);
  void ofMenu(const DrivenProgram& program, const TaskBar& bar);

  std::string folder_;
  int language_;
};

}  // namespace tavr::testing
