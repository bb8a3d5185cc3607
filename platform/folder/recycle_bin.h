// The recycle bin of a machine folder: X:\$Recycle.Bin\<any>\ on every drive. An
// item is an entry "$R...", a file or a folder; "$I..." beside it keeps where it
// came from.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/folder/faults.h"
#include "platform/folder/folder_tree.h"
#include "platform/folder/locked_files.h"

namespace tavr::folder {

class RecycleBin {
 public:
  /// `locked`: full Windows paths of the files that somebody else holds open.
  /// The tree and the faults outlive this object.
  RecycleBin(FolderTree& tree, const std::vector<std::string>& locked, Faults& faults);

  /// SHQueryRecycleBin over all drives: the bytes in all items and how many
  /// items there are. What a link leads to is not in the bin.
  Status query(std::int64_t& size, std::int64_t& items);

  /// SHEmptyRecycleBin over all drives: read-only items go too, locked files
  /// stay, with the folders around them. A folder goes with all that Linux keeps
  /// in it, what is not on the machine included; a link is removed and never
  /// followed, wherever it leads, and so is an item that is one.
  Status empty();

 private:
  struct Bin {
    std::string path;
    FolderRef folder;
  };

  std::vector<Bin> bins();
  /// `folder` is open, `path` its Windows path.
  void removeEntry(int folder, const std::string& path, const std::string& name) const;

  FolderTree& tree_;
  LockedFiles locked_;
  Faults::Point& query_fault_;
  Faults::Point& empty_fault_;
};

}  // namespace tavr::folder
