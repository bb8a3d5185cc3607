// One whole run as a file: the machine before it, the command line, what is
// printed, and what differs afterwards. README.md beside this file is the
// format; this reads it and checks its form, and knows no machine.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavr::testing {

enum class EntryKind { file, folder, link };

/// The marks of a file that the program can see and change.
struct Marks {
  bool read_only = false;
  bool hidden = false;
  bool system = false;

  bool operator==(const Marks&) const = default;
};

/// A "-- " entry. `path` is relative to the machine folder, with "/";
/// "{outside}/..." stands beside it.
struct Entry {
  EntryKind kind = EntryKind::file;
  std::string path;
  std::string contents;  ///< of a file; where a link leads
  Marks marks;
};

struct AttributesLine {
  std::string path;
  Marks marks;
};

/// A "reg+" or "reg-" line. `value` is what stands behind the key in the
/// notation of registry.reg ("\"name\"=\"text\""), "" for the key itself.
struct RegistryLine {
  bool removes = false;
  std::string key;
  std::string value;
};

/// One start of the program.
struct Run {
  std::string arguments;
  bool whole_command = false;  ///< `arguments` are the whole command line
};

struct Scenario {
  std::string about;
  std::vector<Run> runs;
  std::string options = "--rows";
  int exit_status = 0;
  std::vector<std::string> errors;  ///< a text for each line of standard error
  std::vector<std::string> again;
  bool second_run = true;
  bool unprivileged = false;

  std::vector<Entry> before;
  std::string printed;

  std::vector<std::string> removed;
  std::vector<std::string> removed_trees;
  std::vector<AttributesLine> attributes;
  std::vector<RegistryLine> registry;
  std::vector<Entry> after;
};

/// Raises std::runtime_error "line: what" for a file that is not of the form.
Scenario readScenario(const std::filesystem::path& file);

/// The last run, by its arguments, removes nothing.
bool endsWithTest(const Scenario& scenario);

}  // namespace tavr::testing
