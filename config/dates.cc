#include "config/dates.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <optional>

#include "basic/resume_next.h"

namespace tavr {

namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;

constexpr double kFirstDate = -657434;  // 1/1/100
constexpr double kLastDate = 2958465;   // 12/31/9999
constexpr double kSecondsOfDay = 86400;

sys_days dayZero() { return sys_days(year(1899) / month(12) / day(30)); }

}  // namespace

DateNumber dateOf(const LocalTime& time) {
  const sys_days date(year(time.year) / month(static_cast<unsigned>(time.month)) /
                      day(static_cast<unsigned>(time.day)));
  return static_cast<double>((date - dayZero()).count());
}

DateNumber addDays(DateNumber date, double days_after) {
  const double sum = date + days_after;
  if (!(sum >= kFirstDate && sum < kLastDate + 1)) throw RuntimeError{kErrOverflow, "Overflow"};
  return sum;
}

std::string dateText(Locale& locale, DateNumber date) {
  const double whole = std::floor(date);
  const auto seconds =
      static_cast<int>(std::min(std::round((date - whole) * kSecondsOfDay), kSecondsOfDay - 1));
  const std::chrono::year_month_day civil(dayZero() + days(static_cast<std::int64_t>(whole)));
  const LocalTime time{static_cast<int>(civil.year()),
                       static_cast<int>(static_cast<unsigned>(civil.month())),
                       static_cast<int>(static_cast<unsigned>(civil.day())),
                       seconds / 3600,
                       seconds / 60 % 60,
                       seconds % 60};
  const std::string text = locale.shortDate(time);
  return seconds == 0 ? text : text + " " + locale.longTime(time);
}

DateNumber toDate(Locale& locale, std::string_view text) {
  const std::optional<double> date = locale.dateValue(text);
  if (!date) throw RuntimeError{kErrTypeMismatch, "Type mismatch"};
  return *date;
}

}  // namespace tavr
