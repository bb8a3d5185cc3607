// The clock of this machine and the text forms of its user's locale.
#pragma once

#include <windows.h>

#include "platform/clock.h"

namespace tavr::win32 {

/// The time as calls of Windows take it; the day of the week is left to them.
SYSTEMTIME systemTime(const LocalTime& time);

/// Milliseconds of the performance counter: the tick count proper moves in steps
/// of 16, too coarse for the timers.
std::uint64_t tickCount();

class Win32Clock : public Clock {
 public:
  LocalTime now() override;
  std::uint64_t ticks() override { return tickCount(); }
};

class Win32Locale : public Locale {
 public:
  std::string shortDate(const LocalTime& time) override;
  std::string longTime(const LocalTime& time) override;
  std::optional<double> dateValue(std::string_view text) override;
  char decimalSign() override;
};

}  // namespace tavr::win32
