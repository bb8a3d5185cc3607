// The file list box File1 and the directory list box Dir1: a folder's entries,
// sorted by name without case, hidden and system ones left out.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "platform/files.h"

namespace tavr {

class FileListBox : public Control {
 public:
  explicit FileListBox(Files& files) : files_(files) {}

  const std::string& path() const { return path_; }
  const std::string& pattern() const { return pattern_; }
  /// Raises 76 and keeps the old folder when there is no such folder.
  void setPath(std::string_view path);
  void setPattern(std::string_view pattern);

  int count() const { return static_cast<int>(names_.size()); }
  /// "" outside.
  std::string list(int index) const;

  /// The selected row, -1 for none: `fileName` gives its name, else "".
  int list_index = -1;
  std::string fileName() const { return list(list_index); }

 private:
  void refresh();

  Files& files_;
  std::string path_;
  std::string pattern_ = "*.*";
  std::vector<std::string> names_;
};

class DirListBox : public Control {
 public:
  explicit DirListBox(Files& files) : files_(files) {}

  const std::string& path() const { return path_; }
  /// Raises 76 and keeps the old folder when there is no such folder.
  void setPath(std::string_view path);
  /// The full path of the folder's subfolder `index`, "" outside.
  std::string list(int index) const;

 private:
  Files& files_;
  std::string path_;
  std::vector<std::string> names_;
};

}  // namespace tavr
