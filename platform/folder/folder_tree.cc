#include "platform/folder/folder_tree.h"

#include <sys/stat.h>

#include <algorithm>
#include <utility>

#include "basic/text.h"
#include "basic/utf.h"
#include "platform/folder/directory_entries.h"

namespace tavr::folder {

namespace {

bool isFullText(std::string_view text) {
  return text.size() > 2 && text[1] == ':' && isSeparator(text[2]);
}

std::vector<std::string> withDrive(const WindowsPath& path, std::size_t depth) {
  std::vector<std::string> components{std::string(1, path.drive)};
  components.insert(components.end(), path.components.begin(),
                    path.components.begin() + static_cast<std::ptrdiff_t>(depth));
  return components;
}

bool sameFolder(const Folder& a, const Folder& b) {
  struct stat x {};
  struct stat y {};
  return ::fstat(a.fd(), &x) == 0 && ::fstat(b.fd(), &y) == 0 && x.st_dev == y.st_dev &&
         x.st_ino == y.st_ino;
}

}  // namespace

FolderTree::FolderTree(const std::string& directory, const std::string& app_path)
    : root_(directory) {
  WindowsPath program;
  if (parse(app_path, program) == kSuccess) base_ = {program.drive, program};
}

Status FolderTree::parse(std::string_view text, WindowsPath& path) const {
  return parsePath(text, base_, path);
}

void FolderTree::forget() {
  chain_.clear();
  chain_text_.clear();
}

void FolderTree::dropFrom(std::size_t step) {
  if (step >= chain_.size()) return;
  chain_.resize(step);
  chain_text_.clear();
}

Status FolderTree::walkFrom(std::size_t kept, const std::vector<std::string>& components) {
  chain_text_.clear();
  chain_.resize(kept);
  for (std::size_t i = kept; i < components.size(); ++i) {
    FolderRef next;
    const Status status =
        root_.openChild(i == 0 ? root_.folder() : chain_.back().folder, components[i], next);
    if (status != kSuccess) return status;
    chain_.push_back({components[i], std::move(next)});
  }
  return kSuccess;
}

Status FolderTree::walk(const std::vector<std::string>& components, bool& remembered) {
  std::size_t kept = 0;
  while (kept < chain_.size() && kept < components.size() &&
         chain_[kept].component == components[kept]) {
    ++kept;
  }
  remembered = kept > 0;
  const Status status = walkFrom(kept, components);
  // What was kept open may have been removed and made again since.
  return status != kSuccess && remembered ? walkFrom(0, components) : status;
}

bool FolderTree::rememberedPlace(std::string_view text, Place& place) const {
  if (chain_text_.empty() || !text.starts_with(chain_text_)) return false;
  const std::string_view name = text.substr(chain_text_.size());
  if (!isMachineName(name) || reaches(text, kMaxPath)) return false;
  place.folder = chain_.back().folder;
  place.name = name;
  place.is_drive = place.ends_in_separator = false;
  place.remembered = true;
  return true;
}

Status FolderTree::place(std::string_view text, Place& place) {
  text = untilNul(text);
  if (rememberedPlace(text, place)) return kSuccess;
  WindowsPath path;
  if (const Status status = parse(text, path)) return status;
  place = {};
  place.ends_in_separator = path.ends_in_separator;
  if (path.components.empty()) {
    place.folder = root_.folder();
    place.name = path.drive;
    place.is_drive = true;
    return kSuccess;
  }
  place.name = path.components.back();
  const Status status = walk(withDrive(path, path.components.size() - 1), place.remembered);
  if (status != kSuccess) return status;
  place.folder = chain_.back().folder;
  const std::size_t cut = text.find_last_of("\\/") + 1;
  if (isFullText(text) && text.substr(cut) == place.name) chain_text_ = text.substr(0, cut);
  return kSuccess;
}

Status FolderTree::placeOfSearch(std::string_view text, Place& place) {
  WindowsPath path;
  if (const Status status = parse(text, path)) return status;
  dropFrom(path.components.empty() ? 0 : path.components.size() - 1);
  const Status status = this->place(text, place);
  return status == kPathNotFound && liesInFile(text) ? kDirectory : status;
}

bool FolderTree::liesInFile(std::string_view text) {
  WindowsPath path;
  if (parse(text, path) != kSuccess || path.components.size() < 2) return false;
  path.components.pop_back();
  Node node;
  return locate(pathText(path), node) == kSuccess && !node.isFolder();
}

// True when the place's folder was kept open and its path leads to another one
// by now, or to none; the place is there then.
bool FolderTree::hasChanged(Place& place) {
  if (!place.remembered || chain_.empty() || chain_.back().folder != place.folder) return false;
  std::vector<std::string> components;
  for (const Step& step : chain_) components.push_back(step.component);
  const std::string text = chain_text_;
  place.remembered = false;
  if (walkFrom(0, components) != kSuccess) {
    place.folder = nullptr;
    return true;
  }
  chain_text_ = text;
  const bool same = sameFolder(*place.folder, *chain_.back().folder);
  place.folder = chain_.back().folder;
  return !same;
}

Status FolderTree::lookup(Place& place, Node& node) {
  if (!hasNameCharacters(place.name)) return kInvalidName;
  if (!place.folder) return kPathNotFound;
  if (root_.find(place.folder, place.name, node)) {
    return place.ends_in_separator && !node.isFolder() ? kInvalidName : kSuccess;
  }
  if (hasChanged(place)) return lookup(place, node);
  return place.is_drive ? kPathNotFound : kFileNotFound;
}

Status FolderTree::locate(std::string_view text, Node& node) {
  Place where;
  const Status status = place(text, where);
  return status != kSuccess ? status : lookup(where, node);
}

Status FolderTree::openFolder(std::string_view text, FolderRef& folder) {
  text = untilNul(text);
  WindowsPath path;
  if (const Status status = parse(text, path)) return status;
  const std::vector<std::string> components = withDrive(path, path.components.size());
  dropFrom(components.size() - 1);
  bool remembered = false;
  if (const Status status = walk(components, remembered)) return status;
  folder = chain_.back().folder;
  if (isFullText(text) && isSeparator(text.back())) chain_text_ = text;
  return kSuccess;
}

Status FolderTree::setCurrentDirectory(std::string_view text) {
  WindowsPath path;
  if (const Status status = parse(text, path)) return status;
  Node node;
  const Status status = locate(text, node);
  if (status != kSuccess) return status;
  if (!node.isFolder()) return kDirectory;
  base_.current = path;
  chain_text_.clear();
  return kSuccess;
}

std::string FolderTree::drives() const {
  std::string letters;
  forEachEntry(root_.folder()->fd(), [&](std::string_view name, unsigned char /*type*/) {
    if (isDriveName(name)) letters += UCase(name);
  });
  std::sort(letters.begin(), letters.end());
  letters.erase(std::unique(letters.begin(), letters.end()), letters.end());
  std::erase_if(letters, [&](char letter) {
    Node node;
    return !root_.find(root_.folder(), std::string(1, letter), node) || !node.isFolder();
  });
  return letters;
}

}  // namespace tavr::folder
