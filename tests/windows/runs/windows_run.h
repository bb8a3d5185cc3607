// One scenario on a Windows machine: planted in a pen, run there by the real
// program, and read back at each pause as a machine folder would stand.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "tests/machine/registry_image.h"
#include "tests/machine/scenario.h"
#include "tests/machine/tree_image.h"
#include "tests/windows/runs/pen.h"

namespace tavr::testing {

/// What is known of the machine at one moment.
struct Moment {
  TreeImage tree;
  RegistryImage registry;
  std::vector<std::string> processes;  ///< images, sorted
  std::vector<std::string> recycled;   ///< names in the recycle bin, sorted
};

class WindowsRun {
 public:
  WindowsRun(Pen& pen, const Scenario& scenario);

  /// Plants, runs, erases twice more where the scenario asks for it.
  void carryOut();

  /// "before", "after", and with a second Erase "first" and "second".
  const Moment& at(const std::string& pause) const { return moments_.at(pause); }
  bool has(const std::string& pause) const { return moments_.contains(pause); }
  /// The scenario on the machine that it found: with the URL cache in its order,
  /// the folders of the shell, and the files that WinINet keeps in the cookies'.
  Scenario asFound() const;
  /// The entries of the URL cache, as in urlcache.txt: when all was planted, and at
  /// the end.
  std::vector<std::string> cacheBefore() const { return cacheAt("before"); }
  std::vector<std::string> cacheAfter() const { return cacheAt("after"); }
  /// The folder of the cookies, which is one of WinINet's own, on the drive.
  std::string cookiesFolder() const;
  /// What the parent's window was told.
  std::string parentLog() const;
  /// What the session printed; "status 0" for each run that went well.
  const Outcome& session() const { return session_; }
  /// Files that stand where Windows keeps them are named as the scenario does.
  std::string asPlanted(std::string text) const;

 private:
  void plantFiles();
  std::string orders();
  std::string planting();
  std::string plantingRegistry(const std::string& profile);
  void readAt(const std::string& pause);
  std::vector<std::string> cacheAt(const std::string& name) const;

  Pen& pen_;
  const Scenario& scenario_;
  std::string cookies_;  // folders of the shell, as paths of the machine
  std::string internet_cache_;
  std::vector<std::string> pauses_;
  std::map<std::string, Moment> moments_;
  std::vector<std::pair<std::string, std::string>> moved_;  // there, as planted
  Outcome session_;
};

}  // namespace tavr::testing
