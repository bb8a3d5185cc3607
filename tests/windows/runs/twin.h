// The same runs on a machine folder, the real program there, on the ground that a
// Windows machine had: with what it keeps of its own beside the scenario's.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/machine/registry_image.h"
#include "tests/machine/scenario.h"
#include "tests/machine/tree_image.h"

namespace tavr::testing {

class Twin {
 public:
  /// Makes the runs of the scenario, the second Erase included.
  explicit Twin(const Scenario& scenario);

  /// Makes in a tree of the drives the changes that the runs made.
  void changeTree(TreeImage& tree) const;
  void changeRegistry(RegistryImage& registry) const;

  /// A file of the machine folder behind the runs, "" when there is none.
  std::string fileAfter(const std::string& path) const;
  /// Names in the recycle bin behind the runs, sorted.
  std::vector<std::string> recycled() const;
  /// Whether this file is another one behind the runs.
  bool changes(const std::string& path) const;
  /// The same behind the Erase ahead of the second one.
  bool changesFirst(const std::string& path) const;
  /// Files that the second Erase removed.
  std::vector<std::string> removedAgain() const;
  /// "status N", a line for each run.
  const std::string& statuses() const { return statuses_; }

 private:
  TreeImage before_;
  TreeImage after_;
  TreeImage first_;
  TreeImage second_;
  std::string statuses_;
};

}  // namespace tavr::testing
