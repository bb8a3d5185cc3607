// The registry as the text of its editor's export.
#pragma once

#include <string>

namespace tavr::windows_test {

/// Both roots that the program works in, whole, with every value in hexadecimal
/// digits: a text with odd characters needs no notation of its own.
std::string exportRegistry();

}  // namespace tavr::windows_test
