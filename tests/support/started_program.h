// The interactive program on a test's machine, with its desktop and its runs in
// view.
#pragma once

#include <string_view>
#include <vector>

#include "basic/resume_next.h"
#include "engine/start.h"
#include "platform/folder/folder_desktop.h"
#include "tests/support/test_machine.h"

namespace tavr::testing {

class StartedProgram {
 public:
  /// The machine must outlive it; nothing has run yet.
  explicit StartedProgram(TestMachine& machine) : machine_(machine) {
    machine.program().onRunFinished = [this](RunKind kind) { runs.push_back(kind); };
  }

  /// Initialises and loads the main form; true when that ended the process.
  bool start(std::string_view arguments = "") {
    return ends([&] {
      Form_Initialize(program(), arguments);
      Form_Load(program());
    });
  }
  /// Whether an action ends the process.
  template <class Action>
  bool ends(Action&& action) {
    try {
      action();
    } catch (const ProcessEnd&) {
      return true;
    }
    return false;
  }

  Program& program() { return machine_.program(); }
  Form1& form() { return program().form; }
  folder::FolderDesktop& desktop() {
    return dynamic_cast<folder::FolderDesktop&>(machine_.machine().desktop);
  }
  bool open(std::string_view form_name) {
    const Form* found = program().desk.loaded(form_name);
    return found != nullptr && found->visible;
  }

  std::vector<RunKind> runs;

 private:
  TestMachine& machine_;
};

/// Keys below HKLM\software\tavrwork, as TestMachine::setting takes them.
inline constexpr std::string_view kMainSetting = "tavr wipe";
inline constexpr std::string_view kOptionSetting = "tavr wipe\\option";
inline constexpr std::string_view kOptionsSetting = "tavr wipe\\option\\option";

}  // namespace tavr::testing
