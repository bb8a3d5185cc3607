// The interactive finder: raises an event for each folder and each file, and
// can be cancelled and paused from the events that it pumps.
#pragma once

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/machine.h"

namespace tavr {

class clsdirsearch {
 public:
  explicit clsdirsearch(Machine& machine) : machine_(machine) {}

  bool pause = false;
  bool searchinsubfolders = true;
  std::function<void(const std::string& folder)> searching;
  std::function<void(const std::string& name, const std::string& folder)> found;

  /// Full paths, each once; kept after Cancel.
  const std::vector<std::string>& filesfound() const { return files_; }
  void Cancel() { cancel_ = true; }
  /// `masks` separated by "|". A folder's own files stand ahead of those of
  /// its subfolders.
  void findfiles(std::string_view start, std::string_view masks);

 private:
  void walk(std::string folder);
  bool findSubfolders(const std::string& folder, std::vector<std::string>& names);
  bool findMask(const std::string& folder, const std::string& mask);
  /// Waits while paused; false when the search has been cancelled.
  bool goOn();

  Machine& machine_;
  std::vector<std::string> masks_;
  std::vector<std::string> files_;
  std::set<std::string> seen_;
  bool cancel_ = false;
};

}  // namespace tavr
