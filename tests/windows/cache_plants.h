// Entries of the URL cache of this machine.
#pragma once

#include <cstdint>
#include <string>

namespace tavr::windows_test {

/// Commits the entry. WinINet takes a file only where it keeps its own, so a file
/// that stands elsewhere, or whose place differs in case, goes to a place of its
/// choice: a line "there<TAB>as asked" is given back, "" when none was needed.
std::string plantCacheEntry(std::uint32_t type, const std::string& url, const std::string& file);

/// "type<TAB>url<TAB>file" a line, in the order of the walk.
std::string listCacheEntries();

}  // namespace tavr::windows_test
