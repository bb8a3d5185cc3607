// Dates as the settings hold them: a number of days in memory, the locale's
// short form as text. Not the clock, and no calendar arithmetic beyond days.
#pragma once

#include <string>
#include <string_view>

#include "platform/clock.h"

namespace tavr {

/// Days since 30 December 1899; a time of day is the fraction. 0 is what a date
/// variable holds that was never set.
using DateNumber = double;

/// The date of a moment, without its time of day.
DateNumber dateOf(const LocalTime& time);

/// The day `days` after (before, when negative) a date. Raises 6 outside the
/// years 100 to 9999.
DateNumber addDays(DateNumber date, double days);

/// The short form of the locale; a date that has a time of day carries it
/// behind, in the long form.
std::string dateText(Locale& locale, DateNumber date);

/// The date that a text in the locale's short form stands for, with or without
/// a time behind it. Raises 13 for any other text.
DateNumber toDate(Locale& locale, std::string_view text);

}  // namespace tavr
