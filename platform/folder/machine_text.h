// The machine folder's own text files: read whole at the start, replaced whole
// when they change. Not the files of the machine's drives (folder_files.h).
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavr::folder {

/// Raises MalformedFile "file:line: what"; the first line is 1.
[[noreturn]] void refuseLine(std::string_view file, std::size_t line, std::string_view what);

/// The bytes of directory/name, nothing when it is missing. A link, a folder
/// or a file that cannot be read raises MalformedFile: a link could lead out of
/// the machine.
std::optional<std::string> readMachineFile(const std::string& directory, const std::string& name);

enum class Flush { kNone, kToDisk };

/// Replaces directory/name by `text` in one step, keeping its mode: written beside
/// under a name that nothing has, and renamed. Killed at any time, the old file or
/// the new one is whole; with kToDisk that also holds for a loss of power. False:
/// the old file stands.
bool replaceMachineFile(const std::string& directory, const std::string& name,
                        std::string_view text, Flush flush);

/// Without the blanks and tabs at both ends.
std::string_view trimBlanks(std::string_view text);

/// A whole decimal number of 32 bits and nothing else.
std::optional<std::uint32_t> decimal(std::string_view text);

/// "X:\..."
bool isFullWindowsPath(std::string_view path);

/// A file of lines of which some are taken away while the program runs. What
/// stays keeps its bytes. A missing file has no lines.
class LineFile {
 public:
  /// Raises MalformedFile as readMachineFile does, and for a NUL in a line.
  LineFile(const std::string& directory, std::string name);

  std::size_t size() const { return lines_.size(); }
  /// The line without its end; valid as long as this object.
  std::string_view line(std::size_t index) const;
  /// Raises MalformedFile for that line.
  [[noreturn]] void refuse(std::size_t index, std::string_view what) const;

  /// Leaves the line out of what write() writes, or takes it in again.
  void setRemoved(std::size_t index, bool removed) { lines_[index].removed = removed; }
  bool removed(std::size_t index) const { return lines_[index].removed; }
  /// Replaces the file. False: the old one stands.
  bool write() const;

 private:
  struct Line {
    std::size_t begin = 0;
    std::size_t length = 0;  // without the line's end
    std::size_t total = 0;   // with it
    bool removed = false;
  };

  std::string directory_;
  std::string name_;
  std::string text_;
  std::vector<Line> lines_;
};

}  // namespace tavr::folder
