// What a schedule comes to: the values that are stored when it is saved, and
// the next time after it has fired. Pure computation; reading and writing the
// settings is the options form's and the scheduler's.
//
// The carries are kept as parent programs have always seen them: 60 minutes
// roll to 1 (59 is subtracted), hour 24 stays 24, a month has 30 days.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "config/dates.h"
#include "platform/clock.h"

namespace tavr {

/// The number under which a kind of schedule is stored.
enum class ScheduleKind : std::uint8_t {
  kNone = 0,
  kMinutes = 1,
  kHours = 2,
  kDays = 3,
  kWeeks = 4,
  kMonths = 5,
  kWindowsStart = 6,
};

/// Days in one interval of the kind: 1, 7 and 30; 0 for kinds without a date.
int daysOf(ScheduleKind kind);

struct ClockMinute {
  double hour = 0;
  double minute = 0;
};

/// The minute `interval` minutes after hour:minute: past 59 the minute is less
/// by 59 and the hour one more, at 23 too.
ClockMinute afterMinutes(double interval, int hour, int minute);

/// The hour `interval` hours after one: past 24 it is less by 24.
double afterHours(double interval, int hour);

/// The texts that saving stores. The one slot goes to all of nexthoure, nextday,
/// nextweek and nextmnth.
struct SavedSchedule {
  std::string option;
  std::string value;
  std::string nextmin;
  std::string slot;
};

/// `interval` is what the person typed. One that is no number leaves the next
/// times empty, as does one that leads out of the calendar; `value` keeps it.
SavedSchedule savedSchedule(Locale& locale, const LocalTime& now, ScheduleKind kind,
                            std::string_view interval);

}  // namespace tavr
