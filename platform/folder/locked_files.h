// The files that somebody else holds open: they can be looked at, but neither
// opened nor deleted, whichever of their names they are asked for by.
#pragma once

#include <sys/stat.h>

#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_set>
#include <vector>

#include "basic/text.h"
#include "platform/folder/folder_tree.h"

namespace tavr::folder {

class LockedFiles {
 public:
  /// Full Windows paths; one that is no path locks nothing. A file that exists
  /// by now is known by itself too, not by its path alone: links lead to it.
  LockedFiles(FolderTree& tree, const std::vector<std::string>& paths) : tree_(tree) {
    for (const std::string& path : paths) {
      if (std::string name = key(path); !name.empty()) paths_.insert(std::move(name));
      Node node;
      if (tree.locate(path, node) == kSuccess && !node.isFolder()) files_.insert(file(node.facts));
    }
  }

  bool empty() const { return paths_.empty(); }

  /// By the path's text, without case: the file need not exist.
  bool holds(std::string_view path) const { return !empty() && paths_.contains(key(path)); }

  /// By the path's text, or by the file that the path leads to.
  bool holds(std::string_view path, const struct statx& facts) const {
    return !empty() && (files_.contains(file(facts)) || holds(path));
  }

 private:
  using File = std::tuple<std::uint32_t, std::uint32_t, std::uint64_t>;

  static File file(const struct statx& facts) {
    return {facts.stx_dev_major, facts.stx_dev_minor, facts.stx_ino};
  }

  std::string key(std::string_view text) const {
    WindowsPath path;
    return tree_.parse(text, path) == kSuccess ? UCase(pathText(path)) : std::string();
  }

  const FolderTree& tree_;
  std::unordered_set<std::string> paths_;
  std::set<File> files_;
};

}  // namespace tavr::folder
