// The header of a list as far as its style goes: whether its columns are buttons.
#pragma once

#include <cstdint>

namespace tavr {

struct ListHeader {
  /// HDS_BUTTONS.
  static constexpr std::uint32_t kButtons = 2;

  std::uint32_t style = kButtons;

  bool clickable() const { return (style & kButtons) != 0; }
};

}  // namespace tavr
