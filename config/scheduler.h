// The main form's clock of ten seconds: the schedule of automatic erasing, and
// the watch over the browser's start page. It runs no track itself; it sets the
// hidden box Text5, whose change starts the run.
#pragma once

#include <cstdint>

#include "config/form_host.h"

namespace tavr {

/// Interval of Form1.Timer1 in milliseconds.
inline constexpr std::uint32_t kSchedulerInterval = 10'000;

/// One tick of Form1.Timer1. Everything is read from the settings anew.
void Timer1_Timer(FormContext& context);

}  // namespace tavr
