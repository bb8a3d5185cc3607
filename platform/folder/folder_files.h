// The files of a machine folder.
//
// A file with a second name on Linux (a hard link) may be outside the machine by
// that name: it is neither opened for writing nor are its attributes changed (5).
// It can be read, and deleted, which takes away the one name alone.
#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/folder/directory_entries.h"
#include "platform/folder/faults.h"
#include "platform/folder/file_descriptor.h"
#include "platform/folder/folder_tree.h"
#include "platform/folder/locked_files.h"

namespace tavr::folder {

class FolderFiles : public Files {
 public:
  /// `locked`: full Windows paths of the files that somebody else holds open.
  /// The tree and the faults outlive this object.
  FolderFiles(FolderTree& tree, const std::vector<std::string>& locked, Faults& faults);

  Status find(std::string_view path, std::vector<FoundFile>& found) override;
  Status findFirst(std::string_view path, FoundFile& found) override;
  void listFolder(std::string_view folder, std::string_view mask, FolderListing& listing) override;
  Status attributes(std::string_view path, std::uint32_t& out) override;
  Status setAttributes(std::string_view path, std::uint32_t attributes) override;
  Status remove(std::string_view path) override;
  OpenedFile open(std::string_view path, OpenMode mode) override;
  Status copy(std::string_view from, std::string_view to) override;
  bool canOpen(std::string_view path) override;
  Status setCurrentDirectory(std::string_view path) override;
  Status subfolders(std::string_view folder, std::vector<std::string>& names) override;
  Status security(std::string_view /*path*/, SecurityDescriptor& /*out*/) override {
    return kNotSupported;
  }
  Status setSecurity(std::string_view /*path*/, const SecurityDescriptor& /*descriptor*/) override {
    return kNotSupported;
  }

 private:
  struct Search;

  Status beginSearch(std::string_view path, Search& search);
  Status openHost(std::string_view path, OpenMode mode, FileDescriptor& file);
  Status copyTo(int source, std::string_view to);
  /// True when every file that was listed is plain and writable.
  bool listEntries(const FolderRef& folder, FolderListing& listing) const;
  bool removeWritable(std::string_view path);
  void listFound(std::string_view folder, std::string_view mask, FolderListing& listing);

  FolderTree& tree_;
  LockedFiles locked_;
  // Folders, by the text they were searched with, in which the last listing saw
  // plain writable files only: a deletion there need not look at each again.
  // Whatever the program itself changes empties it, and so does another current
  // directory; where any file is locked it is not used. A file that somebody else
  // makes read-only between a search and the deletion that follows it at once is
  // deleted: the machine's programs do nothing in between.
  std::set<std::string, std::less<>> writable_folders_;
  EntryList entries_;  // of the folder listed last; kept for its memory
  Faults::Point& find_fault_;
  Faults::Point& get_attributes_fault_;
  Faults::Point& set_attributes_fault_;
  Faults::Point& delete_fault_;
  Faults::Point& create_fault_;
  Faults::Point& read_fault_;
  Faults::Point& write_fault_;
  Faults::Point& copy_fault_;
  Faults::Point& directory_fault_;
};

}  // namespace tavr::folder
