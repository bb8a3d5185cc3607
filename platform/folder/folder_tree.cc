#include "platform/folder/folder_tree.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "basic/text.h"
#include "basic/utf.h"
#include "platform/folder/directory_entries.h"
#include "platform/folder/dos_attributes.h"
#include "platform/folder/host_error.h"
#include "platform/folder/machine_folder.h"

namespace tavr::folder {

namespace {

// As many as Linux itself follows before it calls it a loop.
constexpr int kMaxLinks = 40;

bool isDriveName(std::string_view name) {
  return name.size() == 1 && upperCase(static_cast<unsigned char>(name[0])) >= 'A' &&
         upperCase(static_cast<unsigned char>(name[0])) <= 'Z';
}

// Beside its drives the machine folder holds the machine's own files; they are
// not on the machine.
bool canHold(const Folder& folder, std::string_view name) {
  return folder.parent ? isMachineName(name) : isDriveName(name);
}

bool look(const Folder& folder, const char* name, struct statx& facts) {
  return ::statx(folder.fd(), name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, kWantedFacts, &facts) ==
         0;
}

FileDescriptor openDirectory(const Folder& folder, const char* name) {
  return FileDescriptor(
      ::openat(folder.fd(), name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

FolderRef makeFolder(FileDescriptor handle, FolderRef parent, std::string name) {
  auto folder = std::make_shared<Folder>();
  folder->handle = std::move(handle);
  folder->parent = std::move(parent);
  folder->name = std::move(name);
  return folder;
}

// The names of a Linux path; empty ones and "." lead nowhere.
std::vector<std::string> linuxComponents(std::string_view path) {
  std::vector<std::string> components = Split(path, '/');
  std::erase_if(components, [](const std::string& c) { return c.empty() || c == "."; });
  return components;
}

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

FolderTree::FolderTree(const std::string& directory, std::string app_path) {
  char resolved[PATH_MAX];
  if (::realpath(directory.c_str(), resolved) == nullptr) {
    throw UnusableMachine(directory + ": " + std::strerror(errno));
  }
  real_path_ = resolved;
  FileDescriptor handle(::open(resolved, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!handle.valid()) throw UnusableMachine(directory + ": " + std::strerror(errno));
  root_ = makeFolder(std::move(handle), nullptr, "");

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

bool FolderTree::readLink(FolderRef& folder, const char* name,
                          std::vector<std::string>& ahead) const {
  char target[PATH_MAX];
  const ssize_t size = ::readlinkat(folder->fd(), name, target, sizeof target);
  if (size <= 0 || size == sizeof target) return false;
  const std::string_view text(target, static_cast<std::size_t>(size));
  std::vector<std::string> names = linuxComponents(text);
  if (text.front() == '/') {
    const std::vector<std::string> root = linuxComponents(real_path_);
    if (names.size() < root.size() || !std::equal(root.begin(), root.end(), names.begin())) {
      return false;
    }
    names.erase(names.begin(), names.begin() + static_cast<std::ptrdiff_t>(root.size()));
    folder = root_;
  }
  ahead.insert(ahead.end(), names.rbegin(), names.rend());
  return true;
}

bool FolderTree::follow(const FolderRef& folder, const char* name, Node& node) const {
  FolderRef at = folder;
  std::vector<std::string> ahead;  // names still to go, the next one last
  if (!readLink(at, name, ahead)) return false;
  for (int links = 1; !ahead.empty();) {
    const std::string next = std::move(ahead.back());
    ahead.pop_back();
    if (next == "..") {
      at = at->parent;
      if (!at) return false;
      continue;
    }
    struct statx facts {};
    if (!canHold(*at, next) || !look(*at, next.c_str(), facts)) return false;
    if (S_ISLNK(facts.stx_mode)) {
      if (++links > kMaxLinks || !readLink(at, next.c_str(), ahead)) return false;
      continue;
    }
    if (ahead.empty()) {
      node.folder = at;
      node.name = next;
      node.facts = facts;
      return true;
    }
    FileDescriptor handle = openDirectory(*at, next.c_str());
    if (!handle.valid()) return false;
    at = makeFolder(std::move(handle), at, next);
  }
  if (!at->parent || !look(*at->parent, at->name.c_str(), node.facts)) return false;
  node.folder = at->parent;
  node.name = at->name;
  return true;
}

bool FolderTree::child(const FolderRef& folder, const char* name, Node& node) const {
  if (!canHold(*folder, name) || !look(*folder, name, node.facts)) return false;
  if (S_ISLNK(node.facts.stx_mode)) {
    if (!follow(folder, name, node)) return false;
    node.link_folder = folder;
    node.link_name = name;
  } else {
    node.folder = folder;
    node.name = name;
    node.link_folder = nullptr;
  }
  return S_ISDIR(node.facts.stx_mode) || S_ISREG(node.facts.stx_mode);
}

bool FolderTree::findOtherCase(const FolderRef& folder, const std::string& name, Node& node) const {
  const char32_t first = upperCase(static_cast<unsigned char>(name[0]));
  std::vector<std::string> candidates;
  forEachEntry(folder->fd(), [&](std::string_view entry, unsigned char /*type*/) {
    // Cheap for the many entries of a large folder; a first character beyond
    // ASCII can be equal to one of another length.
    if (first < 0x80 && upperCase(static_cast<unsigned char>(entry[0])) != first &&
        static_cast<unsigned char>(entry[0]) < 0x80) {
      return;
    }
    if (entry != name && sameText(entry, name)) candidates.emplace_back(entry);
  });
  std::sort(candidates.begin(), candidates.end());
  return std::any_of(candidates.begin(), candidates.end(), [&](const std::string& candidate) {
    return child(folder, candidate.c_str(), node);
  });
}

bool FolderTree::find(const FolderRef& folder, const std::string& name, Node& node) const {
  return child(folder, name.c_str(), node) || findOtherCase(folder, name, node);
}

Status FolderTree::openFolder(const Node& node, FolderRef& folder) const {
  FileDescriptor handle = openDirectory(*node.folder, node.name.c_str());
  if (!handle.valid()) {
    return errno == ENOENT ? kPathNotFound : windowsError(errno);
  }
  folder = makeFolder(std::move(handle), node.folder, node.name);
  return kSuccess;
}

Status FolderTree::openChild(const FolderRef& folder, const std::string& name,
                             FolderRef& opened) const {
  if (!canHold(*folder, name)) return kPathNotFound;
  FileDescriptor handle = openDirectory(*folder, name.c_str());
  if (handle.valid()) {
    opened = makeFolder(std::move(handle), folder, name);
    return kSuccess;
  }
  if (errno != ENOENT && errno != ENOTDIR && errno != ELOOP) return windowsError(errno);
  Node node;
  if (!find(folder, name, node) || !node.isFolder()) return kPathNotFound;
  return openFolder(node, opened);
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
    const Status status = openChild(i == 0 ? root_ : chain_.back().folder, components[i], next);
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
    place.folder = root_;
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
  dropFrom(path.components.size() == 0 ? 0 : path.components.size() - 1);
  return this->place(text, place);
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
  if (find(place.folder, place.name, node)) {
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
  return kSuccess;
}

std::string FolderTree::drives() const {
  std::string letters;
  forEachEntry(root_->fd(), [&](std::string_view name, unsigned char /*type*/) {
    if (isDriveName(name)) letters += UCase(name);
  });
  std::sort(letters.begin(), letters.end());
  letters.erase(std::unique(letters.begin(), letters.end()), letters.end());
  std::erase_if(letters, [&](char letter) {
    Node node;
    return !find(root_, std::string(1, letter), node) || !node.isFolder();
  });
  return letters;
}

}  // namespace tavr::folder
