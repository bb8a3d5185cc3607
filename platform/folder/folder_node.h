// One step in the machine folder: from an open folder to what has a certain name
// in it. Linux never walks a path of more than one name for it and never follows
// a link by itself, so nothing outside the machine folder is reached. A link is
// taken apart here: it counts as what it leads to when that is a file or folder
// on one of the drives, and does not exist otherwise. Pipes, sockets and devices
// do not exist either.
#pragma once

#include <sys/stat.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/folder/file_descriptor.h"
#include "platform/win_error.h"

namespace tavr::folder {

/// An open folder of the machine, or the machine folder itself (no parent).
struct Folder {
  FileDescriptor handle;
  std::shared_ptr<const Folder> parent;  // where it really lies, links resolved
  std::string name;                      // its name there
  int fd() const { return handle.get(); }
};
using FolderRef = std::shared_ptr<const Folder>;

/// A file or folder that exists. One that was reached by a link is where the
/// link leads; the link itself is remembered.
struct Node {
  FolderRef folder;
  std::string name;
  struct statx facts {};
  FolderRef link_folder;  // null: no link
  std::string link_name;

  bool isFolder() const { return S_ISDIR(facts.stx_mode); }
  bool isLink() const { return link_folder != nullptr; }
  const std::string& shownName() const { return isLink() ? link_name : name; }
};

/// Is this the name of a drive's folder?
bool isDriveName(std::string_view name);

/// The machine folder itself, whose folders with a letter for a name are the
/// drives. What else lies in it is not on the machine.
class MachineRoot {
 public:
  /// Raises UnusableMachine when the directory cannot be opened.
  explicit MachineRoot(const std::string& directory);

  const std::string& realPath() const { return real_path_; }
  const FolderRef& folder() const { return root_; }

  /// The entry of exactly this name; false when that is not on the machine.
  bool child(const FolderRef& folder, const char* name, Node& node) const;

  /// The entry of this name, else the first that differs from it in case alone.
  bool find(const FolderRef& folder, const std::string& name, Node& node) const;

  /// 3: no such folder any more; 5.
  Status open(const Node& node, FolderRef& folder) const;

  /// find() and open() in one step where the name is exact. 3: no such folder.
  Status openChild(const FolderRef& folder, const std::string& name, FolderRef& opened) const;

 private:
  bool findOtherCase(const FolderRef& folder, const std::string& name, Node& node) const;
  bool follow(const FolderRef& folder, const char* name, Node& node) const;
  bool readLink(FolderRef& folder, const char* name, std::vector<std::string>& ahead) const;

  std::string real_path_;
  FolderRef root_;
};

}  // namespace tavr::folder
