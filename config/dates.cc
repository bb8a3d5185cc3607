#include "config/dates.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <optional>
#include <vector>

#include "basic/resume_next.h"
#include "basic/text.h"

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

// Two digits stand for 1930 to 2029.
constexpr int kLastShortYear = 29;

sys_days dayZero() { return sys_days(year(1899) / month(12) / day(30)); }

// The numbers in a text, whatever stands between them; none when one is longer than
// a year.
std::vector<int> numbersIn(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789";
  constexpr std::size_t kMostDigits = 4;
  std::vector<int> numbers;
  for (std::size_t at = text.find_first_of(kDigits); at != text.npos;) {
    const std::size_t end = std::min(text.find_first_not_of(kDigits, at), text.size());
    if (end - at > kMostDigits) return {};
    int number = 0;
    std::from_chars(text.data() + at, text.data() + end, number);
    numbers.push_back(number);
    at = text.find_first_of(kDigits, end);
  }
  return numbers;
}

std::optional<DateNumber> validDate(int written_year, int month_number, int day_number) {
  const int full_year = written_year > 99                ? written_year
                        : written_year <= kLastShortYear ? 2000 + written_year
                                                         : 1900 + written_year;
  const std::chrono::year_month_day date(year(full_year),
                                         month(static_cast<unsigned>(month_number)),
                                         day(static_cast<unsigned>(day_number)));
  if (!date.ok()) return {};
  return static_cast<double>((sys_days(date) - dayZero()).count());
}

// The times of day that three numbers can stand for, before noon and after it; no
// numbers are no time.
std::vector<double> timesOfDay(const std::vector<int>& numbers) {
  if (numbers.empty()) return {0};
  if (numbers[0] > 23 || numbers[1] > 59 || numbers[2] > 59) return {};
  std::vector<double> times;
  for (const int hour : {numbers[0], (numbers[0] + 12) % 24}) {
    times.push_back((hour * 3600.0 + numbers[1] * 60.0 + numbers[2]) / kSecondsOfDay);
  }
  return times;
}

// The system writes forms that it does not read, as "2026. 11. 20." in Hungarian or
// a time with points. Such a text stands for the date that is written so.
std::optional<DateNumber> dateWrittenAs(Locale& locale, std::string_view text) {
  constexpr std::size_t kInDate = 3;
  constexpr std::size_t kInBoth = 6;
  const std::vector<int> numbers = numbersIn(text);
  if (numbers.size() != kInDate && numbers.size() != kInBoth) return {};
  const std::vector<double> times = timesOfDay({numbers.begin() + kInDate, numbers.end()});
  std::array<std::size_t, kInDate> order = {0, 1, 2};
  do {
    const auto date = validDate(numbers[order[0]], numbers[order[1]], numbers[order[2]]);
    for (const double time : times) {
      if (date && Trim(dateText(locale, *date + time)) == Trim(text)) return *date + time;
    }
  } while (std::next_permutation(order.begin(), order.end()));
  return {};
}

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
  std::optional<double> date = locale.dateValue(text);
  if (!date) date = dateWrittenAs(locale, text);
  if (!date) throw RuntimeError{kErrTypeMismatch, "Type mismatch"};
  return *date;
}

}  // namespace tavr
