#include "platform/folder/recycle_bin.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "basic/text.h"
#include "platform/folder/directory_entries.h"

namespace tavr::folder {

namespace {

// Every entry that can be on the machine, files included.
std::vector<std::string> namesIn(const Folder& folder) {
  const NamePattern every("*");
  EntryList list;
  list.read(folder.fd(), &every);
  std::vector<std::string> names;
  for (const Entry& entry : list.entries()) names.emplace_back(list.name(entry));
  return names;
}

std::string below(const std::string& path, const std::string& name) {
  std::string text = path;
  return text.append("\\").append(name);
}

bool isItem(std::string_view name) { return sameText(name.substr(0, 2), "$R"); }

bool isRecord(std::string_view name) { return sameText(name.substr(0, 2), "$I"); }

std::int64_t bytesIn(const FolderTree& tree, const Node& node) {
  if (node.isLink()) return 0;
  if (!node.isFolder()) return static_cast<std::int64_t>(node.facts.stx_size);
  FolderRef folder;
  if (tree.openFolder(node, folder) != kSuccess) return 0;
  std::int64_t size = 0;
  for (const std::string& name : namesIn(*folder)) {
    Node inner;
    if (tree.child(folder, name.c_str(), inner)) size += bytesIn(tree, inner);
  }
  return size;
}

}  // namespace

RecycleBin::RecycleBin(FolderTree& tree, const std::vector<std::string>& locked, Faults& faults)
    : tree_(tree),
      locked_(tree, locked),
      query_fault_(faults.point("SHQueryRecycleBin")),
      empty_fault_(faults.point("SHEmptyRecycleBin")) {}

std::vector<RecycleBin::Bin> RecycleBin::bins() {
  std::vector<Bin> found;
  for (const char drive : tree_.drives()) {
    const std::string path = std::string{drive} + ":\\$Recycle.Bin";
    FolderRef folder;
    if (tree_.openFolder(path, folder) != kSuccess) continue;
    for (const std::string& name : namesIn(*folder)) {
      Node node;
      FolderRef bin;
      if (!tree_.child(folder, name.c_str(), node) || !node.isFolder()) continue;
      if (tree_.openFolder(node, bin) == kSuccess) found.push_back({below(path, name), bin});
    }
  }
  return found;
}

Status RecycleBin::query(std::int64_t& size, std::int64_t& items) {
  size = 0;
  items = 0;
  if (const Status fault = query_fault_.hit()) return fault;
  for (const Bin& bin : bins()) {
    for (const std::string& name : namesIn(*bin.folder)) {
      Node node;
      if (!isItem(name) || !tree_.child(bin.folder, name.c_str(), node)) continue;
      ++items;
      size += bytesIn(tree_, node);
    }
  }
  return kSuccess;
}

// True when the entry is gone.
bool RecycleBin::removeEntry(const FolderRef& folder, const std::string& path,
                             const std::string& name) {
  Node node;
  if (!tree_.child(folder, name.c_str(), node)) return false;
  const std::string own_path = below(path, name);
  if (node.isLink() || !node.isFolder()) {
    return !locked_.holds(own_path) && ::unlinkat(folder->fd(), name.c_str(), 0) == 0;
  }
  FolderRef inner;
  if (tree_.openFolder(node, inner) != kSuccess) return false;
  // On Linux a folder without the write bit keeps what is in it.
  if ((node.facts.stx_mode & S_IWUSR) == 0) ::fchmod(inner->fd(), 0700);
  for (const std::string& entry : namesIn(*inner)) removeEntry(inner, own_path, entry);
  return ::unlinkat(folder->fd(), name.c_str(), AT_REMOVEDIR) == 0;
}

Status RecycleBin::empty() {
  if (const Status fault = empty_fault_.hit()) return fault;
  for (const Bin& bin : bins()) {
    for (const std::string& name : namesIn(*bin.folder)) {
      if (isItem(name) || isRecord(name)) removeEntry(bin.folder, bin.path, name);
    }
  }
  tree_.forget();
  return kSuccess;
}

}  // namespace tavr::folder
