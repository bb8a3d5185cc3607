// The entries of one open directory, as Linux gives them and as the machine
// lists them. Links are not looked at here.
#pragma once

#include <dirent.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "platform/folder/host_error.h"
#include "platform/folder/name_match.h"

namespace tavr::folder {

/// Calls visit(name, d_type) for every entry but "." and "..", in the host's
/// order. The name ends in a NUL. Nothing may change the directory's position
/// meanwhile.
template <class Visit>
Status forEachEntry(int directory, Visit&& visit) {
  alignas(dirent64) char buffer[32768];
  if (::lseek(directory, 0, SEEK_SET) < 0) return windowsError(errno);
  for (;;) {
    const ssize_t size = ::getdents64(directory, buffer, sizeof buffer);
    if (size < 0) return windowsError(errno);
    if (size == 0) return kSuccess;
    for (ssize_t at = 0; at < size;) {
      const auto* entry = reinterpret_cast<const dirent64*>(buffer + at);
      at += entry->d_reclen;
      const std::string_view name(entry->d_name);
      if (name != "." && name != "..") visit(name, entry->d_type);
    }
  }
}

enum class EntryKind : std::uint8_t {
  kFile,
  kFolder,
  kToBeSeen,  // a link, or the host does not tell: only a closer look says what it is
};

/// One entry; its name is in the list it comes from.
struct Entry {
  std::uint64_t key = 0;  // the first eight characters, upper-cased, as one number
  std::uint32_t name_at = 0;
  std::uint32_t name_size = 0;
  EntryKind kind = EntryKind::kFile;
  bool matches = false;
};

/// What can be on the machine of a directory's entries, in the machine's order:
/// by upper-cased name, names that differ in case alone by their bytes.
class EntryList {
 public:
  /// Reads the directory once. Entries are folders, and files whose name
  /// matches `pattern`; every entry says whether it matches. Null: no files.
  Status read(int directory, const NamePattern* pattern);

  const std::vector<Entry>& entries() const { return entries_; }
  /// Ends in a NUL.
  std::string_view name(const Entry& entry) const {
    return std::string_view(names_).substr(entry.name_at, entry.name_size);
  }

 private:
  void add(std::string_view name, EntryKind kind, bool matches);

  std::string names_;
  std::vector<Entry> entries_;
};

/// Order of two names in a listing.
bool listsBefore(std::string_view a, std::string_view b);

}  // namespace tavr::folder
