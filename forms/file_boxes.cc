#include "forms/file_boxes.h"

#include <algorithm>

#include "basic/resume_next.h"
#include "basic/text.h"

namespace tavr {

namespace {

bool isFolder(Files& files, std::string_view path) {
  std::uint32_t attributes = 0;
  return !path.empty() && files.attributes(path, attributes) == kSuccess &&
         (attributes & kAttrDirectory) != 0;
}

void requireFolder(Files& files, std::string_view path) {
  if (!isFolder(files, path)) throw RuntimeError{kErrPathNotFound, "Path not found"};
}

// The entries of `folder` that match; of folders when `folders`, else of files.
std::vector<std::string> entries(Files& files, const std::string& folder, std::string_view pattern,
                                 bool folders) {
  std::vector<FoundFile> found;
  files.find(std::string(withoutBackslash(folder)) + "\\" + std::string(pattern), found);
  std::vector<std::string> names;
  for (FoundFile& entry : found) {
    if ((entry.attributes & (kAttrHidden | kAttrSystem)) != 0) continue;
    if (((entry.attributes & kAttrDirectory) != 0) != folders) continue;
    if (entry.name == "." || entry.name == "..") continue;
    names.push_back(std::move(entry.name));
  }
  std::ranges::stable_sort(
      names, [](const std::string& a, const std::string& b) { return compareUpper(a, b) < 0; });
  return names;
}

std::string elementOrNone(const std::vector<std::string>& names, int index) {
  return index >= 0 && index < static_cast<int>(names.size())
             ? names[static_cast<std::size_t>(index)]
             : std::string();
}

}  // namespace

void FileListBox::setPath(std::string_view path) {
  requireFolder(files_, path);
  path_ = path;
  refresh();
}

void FileListBox::setPattern(std::string_view pattern) {
  pattern_ = pattern;
  refresh();
}

void FileListBox::refresh() {
  list_index = -1;
  names_.clear();
  if (path_.empty() || pattern_.empty()) return;
  names_ = entries(files_, path_, pattern_, false);
}

std::string FileListBox::list(int index) const { return elementOrNone(names_, index); }

void DirListBox::setPath(std::string_view path) {
  requireFolder(files_, path);
  path_ = path;
  names_ = entries(files_, path_, "*.*", true);
}

std::string DirListBox::list(int index) const {
  const std::string name = elementOrNone(names_, index);
  if (name.empty()) return "";
  return std::string(withoutBackslash(path_)) + "\\" + name;
}

}  // namespace tavr
