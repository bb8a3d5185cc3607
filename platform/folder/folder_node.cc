#include "platform/folder/folder_node.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "basic/text.h"
#include "platform/folder/directory_entries.h"
#include "platform/folder/dos_attributes.h"
#include "platform/folder/host_error.h"
#include "platform/folder/machine_folder.h"
#include "platform/folder/windows_path.h"

namespace tavr::folder {

namespace {

// As many as Linux itself follows before it calls it a loop.
constexpr int kMaxLinks = 40;

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

}  // namespace

bool isDriveName(std::string_view name) {
  return name.size() == 1 && upperCase(static_cast<unsigned char>(name[0])) >= 'A' &&
         upperCase(static_cast<unsigned char>(name[0])) <= 'Z';
}

MachineRoot::MachineRoot(const std::string& directory) {
  char resolved[PATH_MAX];
  if (::realpath(directory.c_str(), resolved) == nullptr) {
    throw UnusableMachine(directory + ": " + std::strerror(errno));
  }
  real_path_ = resolved;
  FileDescriptor handle(::open(resolved, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!handle.valid()) throw UnusableMachine(directory + ": " + std::strerror(errno));
  root_ = makeFolder(std::move(handle), nullptr, "");
}

bool MachineRoot::readLink(FolderRef& folder, const char* name,
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

bool MachineRoot::follow(const FolderRef& folder, const char* name, Node& node) const {
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

bool MachineRoot::child(const FolderRef& folder, const char* name, Node& node) const {
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

bool MachineRoot::findOtherCase(const FolderRef& folder, const std::string& name,
                                Node& node) const {
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

bool MachineRoot::find(const FolderRef& folder, const std::string& name, Node& node) const {
  return child(folder, name.c_str(), node) || findOtherCase(folder, name, node);
}

Status MachineRoot::open(const Node& node, FolderRef& folder) const {
  FileDescriptor handle = openDirectory(*node.folder, node.name.c_str());
  if (!handle.valid()) {
    return errno == ENOENT ? kPathNotFound : windowsError(errno);
  }
  folder = makeFolder(std::move(handle), node.folder, node.name);
  return kSuccess;
}

Status MachineRoot::openChild(const FolderRef& folder, const std::string& name,
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
  return open(node, opened);
}

}  // namespace tavr::folder
