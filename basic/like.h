// The program's pattern operator, as used for plug-in names and definition
// lines. Not the file-name match of a search, which is the machine's.
#pragma once

#include <string_view>

namespace tavr {

/// Does the whole text match the pattern? "?" is one character, "*" any run,
/// "#" a digit, "[abc]", "[a-c]" and "[!a-c]" a set; "[]" matches nothing and
/// takes no character. Case counts. Raises 93 for a "[" that is never closed.
bool Like(std::string_view text, std::string_view pattern);

}  // namespace tavr
