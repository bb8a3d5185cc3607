// The files of a machine folder that describe what is no file on Windows.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/machine/scenario.h"

namespace tavr::testing {

/// The contents of an entry, "" when there is none.
std::string contentsOf(const std::vector<Entry>& entries, std::string_view path);
bool hasEntry(const std::vector<Entry>& entries, std::string_view path);

/// Stands on a drive, outside the recycle bin.
bool isPlainFile(std::string_view path);
/// The first component below the bin's folder of an owner, when it is an item of
/// the bin; "" for anything else.
std::string recycledItem(std::string_view path);

std::string replaced(std::string text, std::string_view what, std::string_view with);

/// The lines without the empty ones.
std::vector<std::string> linesOf(std::string_view text);
/// Of a processes.txt, sorted.
std::vector<std::string> imagesOf(std::string_view processes);

/// "key=value" of a section of machine.ini, in its order.
std::vector<std::pair<std::string, std::string>> section(std::string_view ini,
                                                         std::string_view name);

}  // namespace tavr::testing
