#include "platform/folder/directory_entries.h"

#include <algorithm>
#include <optional>

#include "basic/text.h"
#include "platform/folder/windows_path.h"

namespace tavr::folder {

namespace {

bool isAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

char upperAscii(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c ^ 0x20) : c; }

// Two keys that differ are in the order of their names; a character beyond ASCII
// is above every other and ends the key, since its own place is not a byte's.
std::uint64_t sortKey(std::string_view name) {
  std::uint64_t key = 0;
  int shift = 56;
  for (std::size_t i = 0; i < name.size() && shift >= 0; ++i, shift -= 8) {
    if (!isAscii(name[i])) return key | std::uint64_t{0x80} << shift;
    key |= std::uint64_t{static_cast<unsigned char>(upperAscii(name[i]))} << shift;
  }
  return key;
}

std::optional<EntryKind> kindOf(unsigned char type) {
  switch (type) {
    case DT_REG:
      return EntryKind::kFile;
    case DT_DIR:
      return EntryKind::kFolder;
    case DT_LNK:
    case DT_UNKNOWN:
      return EntryKind::kToBeSeen;
    default:
      return std::nullopt;  // pipes, sockets and devices are nothing to Windows
  }
}

}  // namespace

bool listsBefore(std::string_view a, std::string_view b) {
  const std::size_t common = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < common; ++i) {
    if (!isAscii(a[i]) || !isAscii(b[i])) {
      const int order = compareUpper(a.substr(i), b.substr(i));
      return order != 0 ? order < 0 : a < b;
    }
    const char x = upperAscii(a[i]);
    const char y = upperAscii(b[i]);
    if (x != y) return x < y;
  }
  return a.size() != b.size() ? a.size() < b.size() : a < b;
}

void EntryList::add(std::string_view name, EntryKind kind, bool matches) {
  entries_.push_back({.key = sortKey(name),
                      .name_at = static_cast<std::uint32_t>(names_.size()),
                      .name_size = static_cast<std::uint32_t>(name.size()),
                      .kind = kind,
                      .matches = matches});
  names_.append(name).push_back('\0');
}

Status EntryList::read(int directory, const NamePattern* pattern) {
  names_.clear();
  entries_.clear();
  const Status status = forEachEntry(directory, [&](std::string_view name, unsigned char type) {
    const std::optional<EntryKind> kind = kindOf(type);
    if (!kind || !isMachineName(name)) return;
    const bool matches = pattern != nullptr && pattern->matches(name);
    if (matches || *kind != EntryKind::kFile) add(name, *kind, matches);
  });
  std::sort(entries_.begin(), entries_.end(), [&](const Entry& a, const Entry& b) {
    return a.key != b.key ? a.key < b.key : listsBefore(name(a), name(b));
  });
  return status;
}

}  // namespace tavr::folder
