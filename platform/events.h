// The message pump and the timers that it serves. One thread: timers fire only
// inside doEvents, wait and message boxes, and a handler may start long work
// that pumps again.
#pragma once

#include <cstdint>
#include <functional>

namespace tavr {

using TimerId = std::uint32_t;

class Events {
 public:
  virtual ~Events() = default;

  /// Serves what is pending: every timer that is due fires once. An exception
  /// from a handler passes through.
  virtual void doEvents() = 0;

  /// Pumps events until the tick counter has passed its present value by
  /// `milliseconds`. With a virtual clock the time passes at once, timers firing
  /// at their times on the way.
  virtual void wait(std::uint32_t milliseconds) = 0;

  /// A periodic timer; its first tick comes one interval from now. Ticks that
  /// were missed do not pile up.
  virtual TimerId startTimer(std::uint32_t interval_ms, std::function<void()> on_tick) = 0;
  /// A handler may stop its own timer; an unknown id does nothing.
  virtual void stopTimer(TimerId id) = 0;
};

}  // namespace tavr
