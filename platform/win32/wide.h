// The two texts of the Windows edge: UTF-8 inside, UTF-16 in every call.
#pragma once

#include <string>
#include <string_view>

#include "basic/utf.h"

namespace tavr::win32 {

/// For a parameter of a wide call; c_str() ends at the first NUL, as the call
/// reads it.
inline std::wstring wide(std::string_view text) {
  const std::u16string units = toUtf16(text);
  return {units.begin(), units.end()};
}

inline std::string narrow(std::wstring_view text) {
  return fromUtf16(std::u16string(text.begin(), text.end()));
}

}  // namespace tavr::win32
