// INI files through the profile services of Windows. Section and key names
// compare without case; the first match counts, of a section too; a value loses
// the blanks around it and, read as a text, one pair of quotes that encloses it.
// A line that begins with ";" is a comment. Text is UTF-8 in the file, too.
//
// Paths are those of platform/files.h, and one that its operations refuse names no
// file here. A bare name without any folder is what the machine makes of it: Windows
// looks for it, and writes it, in its own folder, a machine folder in the current
// directory.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/win_error.h"

namespace tavr {

class IniFiles {
 public:
  virtual ~IniFiles() = default;

  /// GetPrivateProfileString into a buffer of `capacity` characters: at most
  /// capacity - 1 come back. A missing file, section or key gives `fallback`.
  virtual std::string getString(std::string_view section, std::string_view key,
                                std::string_view fallback, std::uint32_t capacity,
                                std::string_view file) = 0;

  /// GetPrivateProfileInt: the leading digits of the value, `fallback` when the
  /// key is missing, 0 when it holds no number.
  virtual std::int32_t getInt(std::string_view section, std::string_view key, std::int32_t fallback,
                              std::string_view file) = 0;

  /// GetPrivateProfileSection: the section's "key=value" lines without blanks
  /// around key and value and without comments, each with its NUL, and a closing
  /// NUL, cut to `capacity` characters, the two NULs included; "" when it
  /// is missing or empty.
  virtual std::string getSection(std::string_view section, std::uint32_t capacity,
                                 std::string_view file) = 0;

  /// WritePrivateProfileString: sets the key, making file, section and line as
  /// needed; every other line stays as it was. 5 or 32 when the file refuses; the
  /// numbers of files.h for a path that is no file's.
  virtual Status writeString(std::string_view section, std::string_view key, std::string_view value,
                             std::string_view file) = 0;
};

}  // namespace tavr
