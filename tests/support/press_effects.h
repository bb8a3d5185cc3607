// What one press of each control does on the fresh program, written by hand.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tavr::testing {

/// As the changes of a WholeState, with "~" for the program's settings below
/// HKLM\software, "<p>" for its folder, the log without its contents, and
/// "ends" for the end of the process.
using Effects = std::vector<std::string>;

/// The controls of a form that do something, by their names. The stage: firsttime
/// is over, the selection 52 alone is on, one cookies file of Chrome, one plug-in.
std::map<std::string, Effects> pressEffects(std::string_view form);

}  // namespace tavr::testing
