#include "config/schedule.h"

#include <charconv>

#include "basic/number.h"
#include "basic/resume_next.h"
#include "basic/text.h"

namespace tavr {

namespace {

constexpr int kLastMinute = 59;
constexpr int kLastHour = 24;

// The number that a text is as a whole, with the locale's sign before its
// fraction; raises 13 for any other text.
double toNumber(std::string_view written, char decimal) {
  if (written.starts_with('&')) return toLong(written);
  std::string text(written);
  for (char& c : text) c = c == decimal ? '.' : c == '.' ? decimal : c;
  const std::size_t first = text.find_first_not_of("+-");
  if (first == text.npos || first > 1 || text.find_first_of("0123456789.", first) != first) {
    throw RuntimeError{kErrTypeMismatch, "Type mismatch"};
  }
  double number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data() + first, end, number);
  if (error != std::errc() || stop != end) throw RuntimeError{kErrTypeMismatch, "Type mismatch"};
  return text.front() == '-' ? -number : number;
}

}  // namespace

int daysOf(ScheduleKind kind) {
  switch (kind) {
    case ScheduleKind::kDays:
      return 1;
    case ScheduleKind::kWeeks:
      return 7;
    case ScheduleKind::kMonths:
      return 30;
    default:
      return 0;
  }
}

ClockMinute afterMinutes(double interval, int hour, int minute) {
  const double sum = interval + minute;
  if (sum > kLastMinute) return {hour + 1.0, sum - kLastMinute};
  return {static_cast<double>(hour), sum};
}

double afterHours(double interval, int hour) {
  const double sum = hour + interval;
  return sum > kLastHour ? sum - kLastHour : sum;
}

SavedSchedule savedSchedule(Locale& locale, const LocalTime& now, ScheduleKind kind,
                            std::string_view interval) {
  SavedSchedule saved;
  if (kind == ScheduleKind::kNone || kind == ScheduleKind::kWindowsStart) return saved;
  saved.option = numberText(static_cast<int>(kind));
  saved.value = Trim(interval);
  ResumeNext on;
  on.next([&] {
    const char decimal = locale.decimalSign();
    const double number = toNumber(saved.value, decimal);
    if (kind == ScheduleKind::kMinutes) {
      const ClockMinute next = afterMinutes(number, now.hour, now.minute);
      saved.nextmin = numberText(next.minute, decimal);
      saved.slot = numberText(next.hour, decimal);
    } else if (kind == ScheduleKind::kHours) {
      saved.slot = numberText(afterHours(number, now.hour), decimal);
    } else {
      saved.slot = dateText(locale, addDays(dateOf(now), number * daysOf(kind)));
    }
  });
  return saved;
}

}  // namespace tavr
