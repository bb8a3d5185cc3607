// The message pump of a machine folder: timers, and an interrupt from outside.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <vector>

#include "platform/events.h"
#include "platform/folder/virtual_clock.h"

namespace tavr::folder {

class FolderEvents : public Events {
 public:
  /// `on_idle` is called at the start of every wait.
  explicit FolderEvents(MachineClock& clock, std::function<void()> on_idle = nullptr);

  /// A run pumps once a file: with no timer due this is a look at the clock.
  void doEvents() override {
    if (interrupted_.load(std::memory_order_relaxed)) serveInterrupt();
    if (next_due_ != kNever && clock_.ticks() >= next_due_) fireDue();
  }
  void wait(std::uint32_t milliseconds) override;
  TimerId startTimer(std::uint32_t interval_ms, std::function<void()> on_tick) override;
  void stopTimer(TimerId id) override;

  /// The next doEvents calls `handler` once for all interrupts before it.
  void setInterruptHandler(std::function<void()> handler) { on_interrupt_ = std::move(handler); }
  /// Safe in a signal handler.
  void interrupt() { interrupted_.store(true, std::memory_order_relaxed); }

 private:
  static constexpr std::uint64_t kNever = std::numeric_limits<std::uint64_t>::max();

  struct Timer {
    TimerId id = 0;
    std::uint32_t interval = 1;
    std::uint64_t due = 0;
    // Shared: a handler may stop its own timer while it runs.
    std::shared_ptr<std::function<void()>> on_tick;
  };

  void serveInterrupt();
  void fireDue();
  void findNextDue();
  Timer* timer(TimerId id);

  static_assert(std::atomic<bool>::is_always_lock_free);
  MachineClock& clock_;
  std::function<void()> on_idle_;
  std::function<void()> on_interrupt_;
  std::atomic<bool> interrupted_ = false;
  std::vector<Timer> timers_;
  std::uint64_t next_due_ = kNever;
  TimerId last_id_ = 0;
};

}  // namespace tavr::folder
