// The way to the files of the machine folder by Windows paths: every component
// is opened by itself beneath the one before (folder_node.h).
//
// The folders on the way to the last path asked for are kept open, as a search
// and the deletions after it go from one folder to its neighbour. A folder that
// somebody else moves away meanwhile stays the folder it was for as long.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/folder/folder_node.h"
#include "platform/folder/windows_path.h"
#include "platform/win_error.h"

namespace tavr::folder {

/// Where a path's last component is looked for; the component need not exist.
struct Place {
  FolderRef folder;
  std::string name;                // "C" in the machine folder for a drive
  bool is_drive = false;           // the path is a drive's root
  bool ends_in_separator = false;  // only a folder can be meant
  bool remembered = false;         // `folder` was already open
};

class FolderTree {
 public:
  /// `app_path` is the program's folder: the current directory at first, and
  /// the drive of paths that begin with "\". Raises UnusableMachine when the
  /// directory cannot be opened.
  FolderTree(const std::string& directory, const std::string& app_path);

  /// The machine folder's own path on Linux, links resolved.
  const std::string& realPath() const { return root_.realPath(); }

  Status parse(std::string_view text, WindowsPath& path) const;

  /// 3: a folder on the way is missing, or the text is too long; 123.
  Status place(std::string_view text, Place& place);
  /// The same with the folder opened anew, as a search of it needs. 267: the
  /// folder is a file.
  Status placeOfSearch(std::string_view text, Place& place);
  /// Is the folder of this path a file?
  bool liesInFile(std::string_view text);

  /// The file or folder at a place. 2: missing; 3: a missing drive; 123: no
  /// file can have that name.
  Status lookup(Place& place, Node& node);

  /// place() and lookup().
  Status locate(std::string_view text, Node& node);

  /// The folder of a path, opened anew. 3: no such folder.
  Status openFolder(std::string_view text, FolderRef& folder);
  Status openFolder(const Node& node, FolderRef& folder) const { return root_.open(node, folder); }

  /// An entry of an open folder by its exact name; false when that is not on
  /// the machine.
  bool child(const FolderRef& folder, const char* name, Node& node) const {
    return root_.child(folder, name, node);
  }

  /// 2, 3: no such folder; 267: a file.
  Status setCurrentDirectory(std::string_view text);

  /// The letters of the drives, ascending.
  std::string drives() const;

  /// Closes the folders kept open; needed after folders have been removed.
  void forget();

 private:
  struct Step {
    std::string component;
    FolderRef folder;
  };

  Status walk(const std::vector<std::string>& components, bool& remembered);
  void dropFrom(std::size_t step);
  Status walkFrom(std::size_t kept, const std::vector<std::string>& components);
  bool rememberedPlace(std::string_view text, Place& place) const;
  bool hasChanged(Place& place);

  MachineRoot root_;
  PathBase base_;
  std::vector<Step> chain_;  // the drive, then one folder a component
  std::string chain_text_;   // a full text of the chain's last folder, with its "\", or empty
};

}  // namespace tavr::folder
