// How the options form is laid out, a row a control.
#pragma once

#include <span>
#include <string_view>

#include "forms/control.h"

namespace tavr {

inline constexpr int kForm3Width = 800;  ///< pixels at 96 dpi
inline constexpr int kForm3Height = 540;

extern const std::span<const ControlDesign> kForm3Design;

/// Does the control array have this member?
bool inForm3Design(std::string_view name, int index);

}  // namespace tavr
