// The Windows shell: special folders, the recycle bin, and opening things.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/win_error.h"

namespace tavr {

/// CSIDL_COOKIES.
inline constexpr int kFolderCookies = 33;

class Shell {
 public:
  virtual ~Shell() = default;

  /// SHGetSpecialFolderLocation and SHGetPathFromIDList: the folder's path as
  /// the buffer holds it, a NUL behind the text. Only folder 33 is asked for.
  virtual Status specialFolder(int id, std::string& buffer) = 0;

  /// SHQueryRecycleBin over all drives.
  virtual Status queryRecycleBin(std::int64_t& size, std::int64_t& items) = 0;
  /// SHEmptyRecycleBin over all drives, with no window. Read-only items go too.
  virtual Status emptyRecycleBin(std::uint32_t flags) = 0;
  virtual void updateRecycleBinIcon() = 0;

  /// ShellExecute with the desktop window as parent. `verb` may be empty.
  virtual Status execute(std::string_view verb, std::string_view file, int show) = 0;
  /// Starts a program by a command text. 2: no such program.
  virtual Status run(std::string_view command, int window_style) = 0;
  /// HtmlHelp on a help file and window.
  virtual Status htmlHelp(std::string_view file_and_window, std::uint32_t command,
                          std::uint32_t data) = 0;
};

}  // namespace tavr
