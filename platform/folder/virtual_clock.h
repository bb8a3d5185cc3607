// The clock of a machine folder, of two kinds: the real one, and one that
// stands still until somebody waits. And its locale, which is always English
// (United States), so that the dates in a log do not depend on the host.
#pragma once

#include <cstdint>
#include <string>

#include "platform/clock.h"

namespace tavr::folder {

/// A clock that can be waited for.
class MachineClock : public Clock {
 public:
  /// Lets the time pass until ticks() is `tick`, or comes back earlier, so that
  /// the caller can look whether it is still wanted.
  virtual void passUntil(std::uint64_t tick) = 0;
};

/// Starts at a given time with tick 0; passUntil moves it at once.
class VirtualClock : public MachineClock {
 public:
  explicit VirtualClock(const LocalTime& start);
  LocalTime now() override;
  std::uint64_t ticks() override { return ticks_; }
  void passUntil(std::uint64_t tick) override;

 private:
  std::int64_t start_seconds_;  // since 1970-01-01 of the same local calendar
  std::uint64_t ticks_ = 0;
};

/// The host's local time. Its ticks are as coarse as GetTickCount's.
class RealClock : public MachineClock {
 public:
  LocalTime now() override;
  std::uint64_t ticks() override;
  void passUntil(std::uint64_t tick) override;
};

/// Does the calendar have this day, and the day this time?
bool validTime(const LocalTime& time);

}  // namespace tavr::folder
