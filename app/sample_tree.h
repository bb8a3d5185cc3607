// Writes the files of a sample machine. The same seed gives the same tree, byte
// for byte; nothing here knows what the files stand for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tavr::sample {

/// Numbers that depend on the seed alone (SplitMix64).
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : state_(seed) {}
  std::uint64_t next();
  /// 0 to `sides` - 1.
  std::uint64_t roll(std::uint64_t sides) { return next() % sides; }

 private:
  std::uint64_t state_;
};

/// A folder held open, so that many files are made in it without a path each.
class OpenFolder {
 public:
  explicit OpenFolder(const std::string& path);
  ~OpenFolder();
  OpenFolder(const OpenFolder&) = delete;
  OpenFolder& operator=(const OpenFolder&) = delete;

  /// A file of `size` bytes, all zero. Raises std::runtime_error.
  void addFile(const char* name, std::size_t size) const;

 private:
  std::string path_;
  int descriptor_;
};

class SampleTree {
 public:
  /// Makes `directory` when it is missing. Raises std::runtime_error (one line)
  /// when it holds anything already or cannot be made.
  SampleTree(std::string directory, std::uint64_t seed);

  /// A file with these bytes, with the folders above it. `path` is relative and
  /// has "/" between its names.
  void write(std::string_view path, std::string_view bytes);

  /// Copies the files of a folder of this computer into one of the tree; they
  /// are not counted. Raises std::runtime_error when there are none.
  void copyFiles(const std::string& from, std::string_view to);

  /// A folder with the folders above it; gives its whole path.
  std::string makeFolder(std::string_view path);

  /// Counts files that were made through an OpenFolder.
  void count(std::size_t files) { files_ += files; }

  std::size_t files() const { return files_; }
  Dice& dice() { return dice_; }

 private:
  std::string directory_;
  Dice dice_;
  std::size_t files_ = 0;
};

}  // namespace tavr::sample
