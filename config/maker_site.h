// The maker's web site, as far as the program opens pages of it.
#pragma once

#include <string_view>

namespace tavr {

inline constexpr std::string_view kMakerSite = "https://www.tavrwork.example";
inline constexpr std::string_view kPlugInPage = "/plugin.htm";

}  // namespace tavr
