// The file that this process runs.
#pragma once

#include <string>
#include <string_view>

namespace tavr::win32 {

/// Its full path. A program that was started by a path with the "\\?\" that lifts
/// the limit of paths gets it without: no other file of the program is reached so.
std::wstring programFile();

/// The path without that head; one on a share begins with "\\server" again.
std::wstring withoutLiftedLimit(std::wstring_view path);

}  // namespace tavr::win32
