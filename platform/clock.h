// The machine's clock and the text forms of its locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tavr {

struct LocalTime {
  int year = 0;
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual LocalTime now() = 0;
  /// Milliseconds since some start, never going back.
  virtual std::uint64_t ticks() = 0;
};

class Locale {
 public:
  virtual ~Locale() = default;
  /// The short date form, e.g. "11/20/2026".
  virtual std::string shortDate(const LocalTime& time) = 0;
  /// The long time form, e.g. "10:00:00 AM".
  virtual std::string longTime(const LocalTime& time) = 0;
  /// The date that a text in these forms stands for, with or without a time
  /// behind it, or the time alone, as a date value: days since 30 December 1899,
  /// the time of day as a fraction. What shortDate and longTime write is read back but in
  /// a few locales, whose forms the system writes and does not read. Nothing: the text is
  /// no date.
  virtual std::optional<double> dateValue(std::string_view text) = 0;
  /// The sign between whole and fraction.
  virtual char decimalSign() = 0;
};

}  // namespace tavr
