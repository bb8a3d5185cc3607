// The program on a test's machine with its message boxes, its event pump, its
// file operations and its use of WMI watched: what a test needs to answer a prompt,
// to act in the middle of a run, or to count the openings of a file.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/program.h"
#include "tests/support/forwarding_files.h"
#include "tests/support/observed_events.h"
#include "tests/support/test_machine.h"

namespace tavr::testing {

/// Keeps every box and answers it.
class RecordingDialogs : public Dialogs {
 public:
  struct Box {
    std::string text;
    std::uint32_t flags = 0;
    std::string title;
    bool operator==(const Box&) const = default;
  };

  int messageBox(std::string_view text, std::uint32_t flags, std::string_view title) override;
  void beep() override {}

  std::vector<Box> asked;
  int answer = kAnswerNo;
  std::function<int(const Box& box)> answerTo;  ///< in the place of `answer`
};

/// The machine's pump, with actions of the test in it.
class HookedEvents : public ObservedEvents {
 public:
  using ObservedEvents::ObservedEvents;

  /// `action` runs once, inside the first doEvents at which `condition` holds.
  void when(std::function<bool()> condition, std::function<void()> action);
  /// `action` runs once, inside the next doEvents.
  void next(std::function<void()> action);

  void doEvents() override;

 private:
  std::vector<std::pair<std::function<bool()>, std::function<void()>>> actions_;
};

/// The machine's files, with the openings, removals and marks kept.
class RecordingFiles : public ForwardingFiles {
 public:
  using ForwardingFiles::ForwardingFiles;

  Status setAttributes(std::string_view path, std::uint32_t attributes) override;
  Status remove(std::string_view path) override;
  OpenedFile open(std::string_view path, OpenMode mode) override;

  /// How often `path` was opened in `mode`.
  int openings(std::string_view path, OpenMode mode) const;

  std::vector<std::pair<std::string, OpenMode>> opened;
  std::vector<std::string> removed;
  std::vector<std::pair<std::string, std::uint32_t>> attributes_set;
};

/// The machine's WMI, with the queries for processes kept and the bindings of the
/// registry provider counted.
class RecordingWmi : public Wmi {
 public:
  explicit RecordingWmi(Wmi& inner) : inner_(inner) {}

  std::unique_ptr<StdRegProv> bindRegistryProvider(std::string_view moniker) override {
    ++bindings;
    return inner_.bindRegistryProvider(moniker);
  }
  bool queryProcessIds(std::string_view query, std::vector<std::uint32_t>& ids) override {
    asked.emplace_back(query);
    return inner_.queryProcessIds(query, ids);
  }

  std::vector<std::string> asked;
  int bindings = 0;

 private:
  Wmi& inner_;
};

/// A program of its own on the machine, which must outlive it.
class WatchedProgram {
 public:
  explicit WatchedProgram(TestMachine& test);

  /// Starts the program with these arguments to its end; true when it ended
  /// the process.
  bool start(std::string_view arguments);
  /// An Erase or a Test run from its button; true when it ended the process.
  bool run(RunKind kind);

  std::vector<std::string> rows() const;  ///< View200
  /// The table as lines "label|status|count" (the icon of a row apart).
  std::vector<std::string> table();
  /// One row of the table as "status|count", "<no row>" when there is none.
  std::string task(std::string_view label);

  RecordingDialogs dialogs;
  HookedEvents events;
  RecordingFiles files;
  RecordingWmi wmi;
  Machine machine;
  Program program;
  Form1& form;
};

}  // namespace tavr::testing
