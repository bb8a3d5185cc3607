// The folder a fuzz target works in: private, below TMPDIR (scripts/fuzz names a
// memory disk), used again for every input and removed when the process ends.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tavr::fuzz {

class FuzzFolder {
 public:
  /// A machine folder with a virtual clock and an empty drive C.
  FuzzFolder();
  ~FuzzFolder();
  FuzzFolder(const FuzzFolder&) = delete;
  FuzzFolder& operator=(const FuzzFolder&) = delete;

  std::string directory() const { return path_.string(); }
  /// Makes or replaces the file path_/name, folders included.
  void write(std::string_view name, std::string_view bytes) const;
  /// "" when missing.
  std::string read(std::string_view name) const;
  void remove(std::string_view name) const;

 private:
  std::filesystem::path path_;
};

}  // namespace tavr::fuzz
