// The files that somebody else holds open: they can be looked at, but neither
// opened nor deleted.
#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "basic/text.h"
#include "platform/folder/folder_tree.h"

namespace tavr::folder {

class LockedFiles {
 public:
  /// Full Windows paths; one that is no path locks nothing.
  LockedFiles(const FolderTree& tree, const std::vector<std::string>& paths) : tree_(tree) {
    for (const std::string& path : paths) {
      if (std::string name = key(path); !name.empty()) paths_.insert(std::move(name));
    }
  }

  /// By the path's text alone, without case.
  bool holds(std::string_view path) const { return !paths_.empty() && paths_.contains(key(path)); }

 private:
  std::string key(std::string_view text) const {
    WindowsPath path;
    return tree_.parse(text, path) == kSuccess ? UCase(pathText(path)) : std::string();
  }

  const FolderTree& tree_;
  std::unordered_set<std::string> paths_;
};

}  // namespace tavr::folder
