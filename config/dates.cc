#include "config/dates.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
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

bool isDigit(char c) { return c >= '0' && c <= '9'; }

[[noreturn]] void raiseMismatch() { throw RuntimeError{kErrTypeMismatch, "Type mismatch"}; }

// The numbers of a text that holds nothing but numbers and, between them, one
// sign each; empty for any other text.
std::vector<int> numbersIn(std::string_view text) {
  constexpr std::size_t kMostDigits = 4;
  std::vector<int> numbers;
  for (std::size_t i = 0; i < text.size();) {
    std::size_t end = i;
    int number = 0;
    while (end < text.size() && isDigit(text[end])) number = number * 10 + (text[end++] - '0');
    if (end == i || end - i > kMostDigits) return {};
    numbers.push_back(number);
    if (end == text.size()) return numbers;
    i = end + 1;
  }
  return {};  // empty, or a sign at the end
}

// Where year, month and day stand among the three numbers of the short form:
// read off a day whose numbers cannot be mistaken for each other.
struct PartOrder {
  std::size_t year = 2;
  std::size_t month = 0;
  std::size_t day = 1;
};

PartOrder partOrder(Locale& locale) {
  const std::vector<int> parts = numbersIn(locale.shortDate({2003, 11, 22, 0, 0, 0}));
  PartOrder order;
  for (std::size_t i = 0; i < parts.size() && i < 3; ++i) {
    if (parts[i] == 11) {
      order.month = i;
    } else if (parts[i] == 22) {
      order.day = i;
    } else {
      order.year = i;
    }
  }
  return order;
}

int fullYear(int written) {
  if (written > 99) return written;
  return written + (written <= kLastShortYear ? 2000 : 1900);
}

// "10:00:00 AM" or "22:00" as a fraction of a day.
double timeOfDay(std::string_view text) {
  const std::string upper = UCase(text);
  std::string_view digits = upper;
  const bool morning = digits.ends_with(" AM");
  const bool evening = digits.ends_with(" PM");
  if (morning || evening) digits.remove_suffix(3);
  std::vector<int> parts = numbersIn(digits);
  if (parts.size() < 2 || parts.size() > 3 || digits.find(':') == digits.npos) raiseMismatch();
  parts.resize(3);
  if (morning || evening) {
    if (parts[0] < 1 || parts[0] > 12) raiseMismatch();
    parts[0] = parts[0] % 12 + (evening ? 12 : 0);
  }
  if (parts[0] > 23 || parts[1] > 59 || parts[2] > 59) raiseMismatch();
  return (parts[0] * 3600 + parts[1] * 60 + parts[2]) / kSecondsOfDay;
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

DateNumber toDate(Locale& locale, std::string_view raw) {
  const std::string_view text = Trim(raw);
  const std::size_t blank = text.find(' ');
  const std::vector<int> parts = numbersIn(text.substr(0, blank));
  if (parts.size() != 3) raiseMismatch();
  const PartOrder order = partOrder(locale);
  const std::chrono::year_month_day date(year(fullYear(parts[order.year])),
                                         month(static_cast<unsigned>(parts[order.month])),
                                         day(static_cast<unsigned>(parts[order.day])));
  if (!date.ok()) raiseMismatch();
  const double whole = static_cast<double>((sys_days(date) - dayZero()).count());
  if (blank == text.npos) return whole;
  return whole + timeOfDay(Trim(text.substr(blank)));
}

}  // namespace tavr
