// How the main form stands before anything has run.
#pragma once

#include <span>

#include "forms/control.h"

namespace tavr {

/// One row a control. The form is 960 x 640.
std::span<const ControlDesign> form1Design();

}  // namespace tavr
