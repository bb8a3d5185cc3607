// The message pump of a machine folder: timers, and an interrupt from outside.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>

#include "basic/due_timers.h"
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
    if (timers_.nextDue() != DueTimers::kNever) fireDue();
  }
  void wait(std::uint32_t milliseconds) override;
  TimerId startTimer(std::uint32_t interval_ms, std::function<void()> on_tick) override;
  void stopTimer(TimerId id) override;

  /// The next doEvents calls `handler` once for all interrupts before it.
  void setInterruptHandler(std::function<void()> handler) { on_interrupt_ = std::move(handler); }
  /// Safe in a signal handler.
  void interrupt() { interrupted_.store(true, std::memory_order_relaxed); }

 private:
  void serveInterrupt();
  void fireDue() {
    const std::uint64_t now = clock_.ticks();
    if (now >= timers_.nextDue()) timers_.fire(now);
  }

  static_assert(std::atomic<bool>::is_always_lock_free);
  MachineClock& clock_;
  std::function<void()> on_idle_;
  std::function<void()> on_interrupt_;
  std::atomic<bool> interrupted_ = false;
  DueTimers timers_;
};

}  // namespace tavr::folder
