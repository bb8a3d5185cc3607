#include "platform/folder/folder_events.h"

#include <algorithm>
#include <utility>

namespace tavr::folder {

FolderEvents::FolderEvents(MachineClock& clock, std::function<void()> on_idle)
    : clock_(clock), on_idle_(std::move(on_idle)) {}

void FolderEvents::wait(std::uint32_t milliseconds) {
  if (on_idle_) on_idle_();
  const std::uint64_t end = clock_.ticks() + milliseconds;
  for (;;) {
    doEvents();
    if (clock_.ticks() >= end) return;
    clock_.passUntil(std::min(end, timers_.nextDue()));
  }
}

TimerId FolderEvents::startTimer(std::uint32_t interval_ms, std::function<void()> on_tick) {
  return timers_.start(clock_.ticks(), interval_ms, std::move(on_tick));
}

void FolderEvents::stopTimer(TimerId id) { timers_.stop(id); }

void FolderEvents::serveInterrupt() {
  interrupted_.store(false, std::memory_order_relaxed);
  if (on_interrupt_) on_interrupt_();
}

}  // namespace tavr::folder
