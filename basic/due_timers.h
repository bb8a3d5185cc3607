// Timers that somebody who knows the time asks to fire: nothing here waits.
#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <vector>

namespace tavr {

class DueTimers {
 public:
  using Id = std::uint32_t;
  static constexpr std::uint64_t kNever = std::numeric_limits<std::uint64_t>::max();

  /// Times are in milliseconds; an interval of 0 counts as 1. Ids are never 0 and
  /// never given twice.
  Id start(std::uint64_t now, std::uint32_t interval, std::function<void()> on_tick);
  /// From inside a handler, too. An unknown timer is no error.
  void stop(Id id);

  /// When the next one is due, kNever without any.
  std::uint64_t nextDue() const { return next_due_; }
  /// Calls what is due, the longest overdue first, each once however many of its
  /// intervals have passed. A handler may start and stop timers and may come back
  /// here; an exception of one leaves the others for the next call.
  void fire(std::uint64_t now);

 private:
  struct Timer {
    Id id = 0;
    std::uint32_t interval = 1;
    std::uint64_t due = 0;
    // Shared: a handler may stop its own timer while it runs.
    std::shared_ptr<std::function<void()>> on_tick;
  };

  void findNextDue();
  Timer* timer(Id id);

  std::vector<Timer> timers_;
  std::uint64_t next_due_ = kNever;
  Id last_id_ = 0;
};

}  // namespace tavr
