// A Windows machine kept in a folder: how the program is tried without risk,
// how its tests run, and where faults are injected. See docs/machine-folder.md
// for the files in it. It holds no policy of the program.
#pragma once

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "platform/machine.h"

namespace tavr::folder {

/// The folder cannot be used: what and where, one line.
struct UnusableMachine : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Asks the person at the terminal; returns 6 (Yes) or 7 (No).
using AskPerson = std::function<int(std::string_view text, std::string_view title)>;

class FolderDesktop;

class MachineFolder {
 public:
  /// Reads every file of the machine and touches nothing. Raises
  /// UnusableMachine for a missing or unwritable folder and for a malformed
  /// file, with its name and line. `ask` is used for message boxes when
  /// machine.ini has no [answers] section; without it they are answered "no".
  explicit MachineFolder(const std::string& directory, AskPerson ask = nullptr);
  ~MachineFolder();
  MachineFolder(const MachineFolder&) = delete;
  MachineFolder& operator=(const MachineFolder&) = delete;

  Machine& machine();

  /// Writes registry.reg back if it changed (beside, flushed, renamed). False:
  /// it could not be written and the old file stands.
  bool save();

  /// The desktop, for whoever acts in the place of a person.
  FolderDesktop& desktop();

  /// Asks the next doEvents to call `handler` once; safe in a signal handler.
  void setInterruptHandler(std::function<void()> handler);
  void interrupt();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace tavr::folder
