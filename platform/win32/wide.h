// The two texts of the Windows edge: UTF-8 inside, UTF-16 in every call.
//
// Windows lets a file name hold half of a surrogate pair, which has no UTF-8
// form. Here it gets the three bytes that its number would have, so that a name
// that a search has found reaches the file again.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tavr::win32 {

/// As nextCharacter of basic/utf.h, and half a pair from its three bytes.
char32_t nextWide(std::string_view text, std::size_t& pos);

/// For a parameter of a wide call; c_str() ends at the first NUL, as the call
/// reads it.
std::wstring wide(std::string_view text);

std::string narrow(std::wstring_view text);

}  // namespace tavr::win32
