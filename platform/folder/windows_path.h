// The text of a Windows path, taken apart as Win32 does before it asks the file
// system. Text only: whether anything of it exists is the folder tree's matter.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/win_error.h"

namespace tavr::folder {

/// Texts of this many UTF-16 units are too long for the file operations.
inline constexpr std::size_t kMaxPath = 260;

/// A full path: "C:\a\b" is drive 'C' and {"a", "b"}; "C:\" has no components.
struct WindowsPath {
  char drive = 'C';
  std::vector<std::string> components;
  bool ends_in_separator = false;  ///< the text named a folder: "C:\a\"
};

/// What a text that is no full path starts from.
struct PathBase {
  char program_drive = 'C';  ///< of a path that begins with "\"
  WindowsPath current;       ///< of a relative path
};

/// Takes `text` apart: "/" counts as "\", repeated ones as one, "." and ".." go
/// by text alone, trailing dots and blanks of the last component are dropped
/// and so is a single trailing dot of another one. The text ends at a NUL.
/// 3: empty, 260 UTF-16 units or more, "\\server" or "\\?\"; 123: a folder in it
/// has a name that cannot exist. The last component is not judged: it may be a
/// search pattern.
Status parsePath(std::string_view text, const PathBase& base, WindowsPath& path);

/// "C:\a\b", without a "\" at the end except for a drive ("C:\").
std::string pathText(const WindowsPath& path);

inline bool isSeparator(char c) { return c == '\\' || c == '/'; }

/// Without the trailing dots and blanks that Win32 drops from a last component.
std::string_view withoutTrailingDots(std::string_view name);

/// No wildcard, separator, colon, bar, quote, angle bracket or control character.
bool hasNameCharacters(std::string_view name);

/// Can a file or folder of this name be on the machine? Linux files with other
/// names are not.
bool isMachineName(std::string_view name);

}  // namespace tavr::folder
