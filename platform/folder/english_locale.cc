// The machine folder's locale: English as in the United States, everywhere.
#include "platform/folder/english_locale.h"

#include <chrono>
#include <cstdio>
#include <vector>

#include "basic/text.h"

namespace tavr::folder {

namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;

constexpr double kSecondsOfDay = 86400;

// Two digits stand for 1930 to 2029.
constexpr int kLastShortYear = 29;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

constexpr std::string_view kDateSigns = "/-.";
constexpr std::string_view kTimeSigns = ":";

// The numbers of a text that holds nothing but numbers and, between them, one of
// the signs each; empty for any other text.
std::vector<int> numbersIn(std::string_view text, std::string_view signs) {
  constexpr std::size_t kMostDigits = 4;
  std::vector<int> numbers;
  for (std::size_t i = 0; i < text.size();) {
    std::size_t end = i;
    int number = 0;
    while (end < text.size() && isDigit(text[end])) number = number * 10 + (text[end++] - '0');
    if (end == i || end - i > kMostDigits) return {};
    numbers.push_back(number);
    if (end == text.size()) return numbers;
    if (signs.find(text[end]) == signs.npos) return {};
    i = end + 1;
  }
  return {};  // empty, or a sign at the end
}

int fullYear(int written) {
  if (written > 99) return written;
  return written + (written <= kLastShortYear ? 2000 : 1900);
}

// "10:00:00 AM" or "22:00" as a fraction of a day.
std::optional<double> timeOfDay(std::string_view text) {
  const std::string upper = UCase(text);
  std::string_view digits = upper;
  const bool morning = digits.ends_with(" AM");
  const bool evening = digits.ends_with(" PM");
  if (morning || evening) digits.remove_suffix(3);
  std::vector<int> parts = numbersIn(digits, kTimeSigns);
  if (parts.size() < 2 || parts.size() > 3) return {};
  parts.resize(3);
  if (morning || evening) {
    if (parts[0] < 1 || parts[0] > 12) return {};
    parts[0] = parts[0] % 12 + (evening ? 12 : 0);
  }
  if (parts[0] > 23 || parts[1] > 59 || parts[2] > 59) return {};
  return (parts[0] * 3600 + parts[1] * 60 + parts[2]) / kSecondsOfDay;
}

}  // namespace

std::string EnglishLocale::shortDate(const LocalTime& time) {
  char text[48];
  std::snprintf(text, sizeof text, "%d/%d/%d", time.month, time.day, time.year);
  return text;
}

std::string EnglishLocale::longTime(const LocalTime& time) {
  const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
  char text[48];
  std::snprintf(text, sizeof text, "%d:%02d:%02d %s", hour, time.minute, time.second,
                time.hour < 12 ? "AM" : "PM");
  return text;
}

std::optional<double> EnglishLocale::dateValue(std::string_view raw) {
  const std::string_view text = Trim(raw);
  if (const std::optional<double> time = timeOfDay(text)) return time;
  const std::size_t blank = text.find(' ');
  const std::vector<int> parts = numbersIn(text.substr(0, blank), kDateSigns);
  if (parts.size() != 3) return {};
  const std::chrono::year_month_day date(year(fullYear(parts[2])),
                                         month(static_cast<unsigned>(parts[0])),
                                         day(static_cast<unsigned>(parts[1])));
  if (!date.ok()) return {};
  const sys_days day_zero = year(1899) / month(12) / day(30);
  const auto whole = static_cast<double>((sys_days(date) - day_zero).count());
  if (blank == text.npos) return whole;
  const std::optional<double> time = timeOfDay(Trim(text.substr(blank)));
  if (!time) return {};
  return whole + *time;
}

}  // namespace tavr::folder
