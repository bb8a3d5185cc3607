// A machine folder as it stands on the disk, with the folder beside it: made
// from a scenario's entries, and read back. It knows nothing of what a run does.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tests/machine/scenario.h"

namespace tavr::testing {

/// Two folders in a temporary one that goes with it: the machine, and beside it
/// one where no run has any business.
class Ground {
 public:
  Ground();
  ~Ground();
  Ground(const Ground&) = delete;
  Ground& operator=(const Ground&) = delete;

  const std::filesystem::path& top() const { return top_; }
  std::filesystem::path machine() const { return top_ / "machine"; }
  std::filesystem::path outside() const { return top_ / "machine.outside"; }

  /// The text with "{machine}" and "{outside}" as the paths of the two folders.
  std::string filled(std::string_view text) const;
  /// The Linux path of an entry's path.
  std::filesystem::path place(std::string_view path) const;

  void unpack(const std::vector<Entry>& entries) const;
  /// Everything belongs to `user` from here on.
  void giveTo(unsigned user) const;

 private:
  std::filesystem::path top_;
};

/// What stands at one path; the files' times are no part of it.
struct Node {
  EntryKind kind = EntryKind::folder;
  std::string contents;
  Marks marks;

  bool operator==(const Node&) const = default;
};

Node readNode(const std::filesystem::directory_entry& entry);
void setMarks(const std::filesystem::path& path, const Marks& marks);

/// By an entry's path: what is in the machine as it is, the rest as
/// "{outside}/..." or, anywhere else beside the machine, "{beside}/...".
using TreeImage = std::map<std::string, Node>;

TreeImage readTree(const Ground& ground);

}  // namespace tavr::testing
