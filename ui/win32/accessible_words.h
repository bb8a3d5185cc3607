// What a sign says in a word, for those to whom it is read out: the buttons that
// show nothing but a sign have no caption that a language file could translate.
#pragma once

#include <string_view>

namespace tavr::win32 {

/// The word of a sign (a name of artwork.h) in a language of the program ("de");
/// in English for a language it does not know, "" for a sign that needs none.
std::string_view wordOfSign(std::string_view sign, std::string_view language);

}  // namespace tavr::win32
