// The colour that the person's look gives to forms and close buttons.
#pragma once

#include <cstdint>

#include "platform/machine.h"

namespace tavr {

/// The look key's colour as a 32-bit colour number, read through WMI; the
/// default for none. Raises 13 or 6 for a text that is no such number: the
/// form keeps the colours of its design then.
std::int32_t lookColor(Machine& machine);

}  // namespace tavr
