// A machine folder of a test's own, in a temporary folder that goes with it,
// and the program on it.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "engine/program.h"
#include "platform/folder/machine_folder.h"

namespace tavr::testing {

class TestMachine {
 public:
  /// An empty machine with a virtual clock that starts at 2026-11-20 10:00:00,
  /// the program's folder and the user's folders made.
  TestMachine();
  ~TestMachine();
  TestMachine(const TestMachine&) = delete;
  TestMachine& operator=(const TestMachine&) = delete;

  // Before the machine is started -----------------------------------------

  /// More lines of machine.ini ("[answers]\ndefault=yes\n").
  TestMachine& ini(std::string_view lines);
  /// A selection value ("45") set to "1" (or another text).
  TestMachine& select(std::string_view value, std::string_view text = "1");
  /// A text value. The key has its long root; the program's own settings are
  /// given as "HKEY_LOCAL_MACHINE\SOFTWARE\WOW6432Node\...".
  TestMachine& value(std::string_view key, std::string_view name, std::string_view text);
  /// A value in the notation of registry.reg ("dword:00000001", "hex(7):00,00").
  TestMachine& rawValue(std::string_view key, std::string_view name, std::string_view raw);
  TestMachine& key(std::string_view key);
  /// A setting below HKLM\software\tavrwork, in the view where the program
  /// keeps it: setting("tavr wipe\\option\\option", "6", "1").
  TestMachine& setting(std::string_view key_below_tavrwork, std::string_view name,
                       std::string_view text);

  // At any time --------------------------------------------------------------

  /// Makes a file by its Windows path, folders included.
  TestMachine& file(std::string_view windows_path, std::string_view contents = "x");
  TestMachine& folder(std::string_view windows_path);
  TestMachine& readOnly(std::string_view windows_path);
  /// A file of the machine folder itself ("processes.txt").
  TestMachine& machineFile(std::string_view name, std::string_view contents);

  // From here on the machine runs --------------------------------------------

  /// The machine, started at the first call.
  Machine& machine();
  /// The program on it, made at the first call; nothing has run yet.
  Program& program();
  /// Starts the program with these arguments to its end, as main does, and
  /// saves the registry.
  void run(std::string_view arguments);
  /// Ends the program and writes the registry; a later call starts anew.
  void stop();

  // What is left ---------------------------------------------------------------

  bool exists(std::string_view windows_path) const;
  std::string read(std::string_view windows_path) const;
  /// A file of the machine folder itself, "" when missing.
  std::string readMachineFile(std::string_view name) const;
  std::vector<std::string> rows();  ///< View200
  /// Text of a value as the registry now holds it, "<none>" when missing.
  std::string registryText(Root root, std::string_view key, std::string_view name);
  bool keyExists(Root root, std::string_view key);

  std::filesystem::path host(std::string_view windows_path) const;
  const std::filesystem::path& directory() const { return directory_; }

 private:
  void writeRegistry();

  std::filesystem::path directory_;
  std::string ini_;
  std::vector<std::pair<std::string, std::string>> registry_;  // key, line ("" for the key alone)
  std::unique_ptr<folder::MachineFolder> machine_;
  std::unique_ptr<Program> program_;
};

/// Folders of the user "user".
inline constexpr std::string_view kUser = "C:\\Users\\user";
inline constexpr std::string_view kProgramFolder = "C:\\Program Files\\Tavr Wipe";

}  // namespace tavr::testing
