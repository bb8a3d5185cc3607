#include "platform/folder/recycle_bin.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "basic/text.h"
#include "platform/folder/directory_entries.h"
#include "platform/folder/dos_attributes.h"
#include "platform/folder/file_descriptor.h"

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

void RecycleBin::removeEntry(int folder, const std::string& path, const std::string& name) const {
  struct statx facts {};
  if (::statx(folder, name.c_str(), AT_SYMLINK_NOFOLLOW, kWantedFacts, &facts) != 0) return;
  const std::string own_path = below(path, name);
  if (!S_ISDIR(facts.stx_mode)) {
    if (!locked_.holds(own_path, facts)) ::unlinkat(folder, name.c_str(), 0);
    return;
  }
  const FileDescriptor inner(
      ::openat(folder, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  if (!inner.valid()) return;
  // On Linux a folder without the write bit keeps what is in it.
  if ((facts.stx_mode & S_IWUSR) == 0) ::fchmod(inner.get(), 0700);
  std::vector<std::string> names;
  forEachEntry(inner.get(),
               [&](std::string_view entry, unsigned char /*type*/) { names.emplace_back(entry); });
  for (const std::string& entry : names) removeEntry(inner.get(), own_path, entry);
  ::unlinkat(folder, name.c_str(), AT_REMOVEDIR);
}

Status RecycleBin::empty() {
  if (const Status fault = empty_fault_.hit()) return fault;
  for (const Bin& bin : bins()) {
    for (const std::string& name : namesIn(*bin.folder)) {
      if (isItem(name) || isRecord(name)) removeEntry(bin.folder->fd(), bin.path, name);
    }
  }
  tree_.forget();
  return kSuccess;
}

}  // namespace tavr::folder
