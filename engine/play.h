// A script in the place of a person: one line an action on the forms. For tests
// and for demonstration on a machine folder; docs/play.md is its page.
#pragma once

#include <cstdint>
#include <cstdio>
#include <functional>
#include <string>
#include <string_view>

#include "forms/form.h"

namespace tavr {

/// What a script can do besides working on controls.
struct PlayActions {
  std::function<Form*(std::string_view name)> form;  ///< a loaded form, null for none
  std::function<void(std::uint32_t milliseconds)> wait;
  std::function<void()> hotkey;
  std::function<void()> minimise;
  std::function<void()> close;
  std::function<void(std::string_view file)> choose;  ///< what the next file dialog answers
};

enum class PlayResult : std::uint8_t {
  kDone,
  kExpectFailed,  ///< something is not as an `expect` says
  kWrongLine,     ///< a line that cannot be carried out
};

/// Plays a script to its end, or to the first line that fails; `message` is then
/// "LINE: what". Lines that are empty or begin with "#" are skipped. What `show`
/// prints goes to `out`.
PlayResult play(std::string_view script, const PlayActions& actions, std::FILE* out,
                std::string& message);

}  // namespace tavr
