// Stored properties of the self-drawn controls: key and text, and the texts that
// each type of value is kept as.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <type_traits>

#include "basic/number.h"
#include "basic/text.h"

namespace tavr {

using PropertyBag = std::map<std::string, std::string, std::less<>>;

inline std::string storedText(const std::string& value) { return value; }
inline std::string storedText(bool value) { return value ? "True" : "False"; }
inline std::string storedText(std::int32_t value) { return std::to_string(value); }

/// The value that a stored text stands for: a text without a number is 0, a
/// number that does not fit the nearest that does.
template <class T>
void fromStored(std::string_view text, T& value) {
  if constexpr (std::is_same_v<T, std::string>) {
    value = text;
  } else if constexpr (std::is_same_v<T, bool>) {
    value = sameText(text, "True") || Val(text) != 0;
  } else {
    using Limits = std::numeric_limits<T>;
    value = static_cast<T>(std::clamp<double>(Val(text), Limits::min(), Limits::max()));
  }
}

}  // namespace tavr
