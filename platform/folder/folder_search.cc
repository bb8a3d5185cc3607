// The searching half of FolderFiles: FindFirstFile in its several uses.
#include <fcntl.h>

#include <utility>

#include "basic/text.h"
#include "basic/utf.h"
#include "platform/folder/dos_attributes.h"
#include "platform/folder/folder_files.h"

namespace tavr::folder {

namespace {

// The text of a path behind its last separator, as it was written.
std::string_view lastPart(std::string_view path) {
  path = untilNul(path);
  return path.substr(path.find_last_of("\\/") + 1);
}

// Only wildcards are let through: a pattern with a colon or a bar is no name.
bool isPatternText(std::string_view pattern) {
  for (const char c : pattern) {
    const char text[] = {c};
    const std::string_view one(text, 1);
    if (!hasNameCharacters(one) && !hasWildcard(one)) return false;
  }
  return true;
}

void describe(std::string_view name, const struct statx& facts, FoundFile& found) {
  found.name = name;
  found.attributes = modeAttributes(facts);
  const std::uint64_t size = S_ISDIR(facts.stx_mode) ? 0 : facts.stx_size;
  found.size_high = static_cast<std::uint32_t>(size >> 32);
  found.size_low = static_cast<std::uint32_t>(size);
  found.created = creationTime(facts);
  found.accessed = fileTime(facts.stx_atime);
  found.written = fileTime(facts.stx_mtime);
}

void describeNode(const Node& node, FoundFile& found) {
  describe(node.shownName(), node.facts, found);
  found.attributes |= hiddenAndSystem(node.folder->fd(), node.name.c_str());
}

bool plainFileFacts(const Folder& folder, const char* name, struct statx& facts) {
  return ::statx(folder.fd(), name, AT_SYMLINK_NOFOLLOW, kWantedFacts, &facts) == 0 &&
         S_ISREG(facts.stx_mode);
}

bool dotEntry(const FolderTree& tree, const FolderRef& folder, std::string_view name,
              FoundFile& found) {
  Node node;
  if (!tree.child(folder->parent, folder->name.c_str(), node)) return false;
  describeNode(node, found);
  found.name = name;
  return true;
}

}  // namespace

// One FindFirstFile: the open folder and what of it can match.
struct FolderFiles::Search {
  FolderRef folder;
  NamePattern pattern{""};
};

Status FolderFiles::beginSearch(std::string_view path, Search& search) {
  if (const Status fault = find_fault_.hit()) return fault;
  Place place;
  if (const Status status = tree_.placeOfSearch(path, place)) return status;
  if (place.is_drive || place.ends_in_separator) return kFileNotFound;
  if (!isPatternText(place.name)) return kInvalidName;
  // The trailing dots that the path has lost mean something in a pattern.
  const std::string_view written = lastPart(path);
  search.pattern = NamePattern(withoutTrailingDots(written) == place.name ? written : place.name);
  search.folder = place.folder;
  return entries_.read(search.folder->fd(), &search.pattern);
}

Status FolderFiles::find(std::string_view path, std::vector<FoundFile>& found) {
  found.clear();
  Search search;
  if (const Status status = beginSearch(path, search)) return status;
  const FolderRef& folder = search.folder;
  const bool is_drive = folder->parent->parent == nullptr;  // a root has no "." and ".."
  for (const std::string_view dots : {".", ".."}) {
    FoundFile entry;
    if (is_drive || !search.pattern.matches(dots)) continue;
    if (dotEntry(tree_, dots == "." ? folder : folder->parent, dots, entry)) {
      found.push_back(std::move(entry));
    }
  }
  for (const Entry& entry : entries_.entries()) {
    Node node;
    if (!entry.matches || !tree_.child(folder, entries_.name(entry).data(), node)) continue;
    describeNode(node, found.emplace_back());
  }
  return found.empty() ? kFileNotFound : kSuccess;
}

Status FolderFiles::findFirst(std::string_view path, FoundFile& found) {
  found = {};
  if (hasWildcard(lastPart(path))) {
    std::vector<FoundFile> all;
    const Status status = find(path, all);
    if (status == kSuccess) found = std::move(all.front());
    return status;
  }
  if (const Status fault = find_fault_.hit()) return fault;
  Place place;
  if (const Status status = tree_.place(path, place)) {
    return status == kPathNotFound && tree_.liesInFile(path) ? kDirectory : status;
  }
  if (place.is_drive || place.ends_in_separator) return kFileNotFound;
  Node node;
  if (const Status status = tree_.lookup(place, node)) return status;
  describeNode(node, found);
  return kSuccess;
}

// A mask that is not the plain name of a pattern ("sub\*.txt", ".."): the files
// are those of the search that its text stands for.
void FolderFiles::listFound(std::string_view folder, std::string_view mask,
                            FolderListing& listing) {
  std::vector<FoundFile> found;
  if (find(std::string(folder).append(mask), found) != kSuccess) return;
  for (FoundFile& file : found) {
    if ((file.attributes & kAttrDirectory) == 0) listing.files.push_back(std::move(file));
  }
}

void FolderFiles::listFolder(std::string_view folder, std::string_view mask,
                             FolderListing& listing) {
  listing.subfolders.clear();
  listing.files.clear();
  mask = untilNul(mask);
  const bool plain = mask.empty() || (!withoutTrailingDots(mask).empty() && isPatternText(mask));
  const std::size_t length = utf16Length(folder);
  // Two searches, each with a fault of its own; the folders' one comes first.
  const bool lists_folders = find_fault_.hit() == kSuccess && length + 3 < kMaxPath;
  if (!plain) listFound(folder, mask, listing);
  const bool lists_files = plain && find_fault_.hit() == kSuccess && !mask.empty() &&
                           length + utf16Length(mask) < kMaxPath;
  FolderRef opened;
  if ((!lists_folders && !lists_files) || tree_.openFolder(folder, opened) != kSuccess) return;
  const NamePattern pattern(mask);
  if (entries_.read(opened->fd(), lists_files ? &pattern : nullptr) != kSuccess) return;
  const bool writable = listEntries(opened, listing) && lists_files && mask == "*.*";
  if (writable) {
    writable_folders_.emplace(folder);
  } else if (const auto known = writable_folders_.find(folder); known != writable_folders_.end()) {
    writable_folders_.erase(known);
  }
  if (!lists_folders) listing.subfolders.clear();
}

bool FolderFiles::listEntries(const FolderRef& folder, FolderListing& listing) const {
  listing.files.reserve(entries_.entries().size());
  bool all_writable = true;
  for (const Entry& entry : entries_.entries()) {
    const std::string_view name = entries_.name(entry);
    EntryKind kind = entry.kind;
    Node node;
    if (kind == EntryKind::kToBeSeen) {
      all_writable = false;
      if (!tree_.child(folder, name.data(), node)) continue;
      kind = node.isFolder() ? EntryKind::kFolder : EntryKind::kFile;
    } else if (kind == EntryKind::kFile) {
      // Gone or replaced since it was read: as if it had never been there.
      if (!plainFileFacts(*folder, name.data(), node.facts)) continue;
    }
    if (kind == EntryKind::kFolder) {
      listing.subfolders.emplace_back(name);
    } else if (entry.matches) {
      describe(name, node.facts, listing.files.emplace_back());
      all_writable = all_writable && (node.facts.stx_mode & S_IWUSR) != 0;
    }
  }
  return all_writable;
}

Status FolderFiles::subfolders(std::string_view folder, std::vector<std::string>& names) {
  names.clear();
  FolderRef opened;
  if (const Status status = tree_.openFolder(folder, opened)) {
    return status == kFileNotFound ? kPathNotFound : status;
  }
  if (const Status status = entries_.read(opened->fd(), nullptr)) return status;
  for (const Entry& entry : entries_.entries()) {
    const std::string_view name = entries_.name(entry);
    Node node;
    if (entry.kind != EntryKind::kFolder &&
        (!tree_.child(opened, name.data(), node) || !node.isFolder())) {
      continue;
    }
    names.emplace_back(name);
  }
  return kSuccess;
}

}  // namespace tavr::folder
