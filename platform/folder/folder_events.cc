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
    clock_.passUntil(std::min(end, next_due_));
  }
}

TimerId FolderEvents::startTimer(std::uint32_t interval_ms, std::function<void()> on_tick) {
  const std::uint32_t interval = std::max(interval_ms, 1U);
  timers_.push_back({++last_id_, interval, clock_.ticks() + interval,
                     std::make_shared<std::function<void()>>(std::move(on_tick))});
  findNextDue();
  return last_id_;
}

void FolderEvents::stopTimer(TimerId id) {
  std::erase_if(timers_, [id](const Timer& timer) { return timer.id == id; });
  findNextDue();
}

void FolderEvents::serveInterrupt() {
  interrupted_.store(false, std::memory_order_relaxed);
  if (on_interrupt_) on_interrupt_();
}

void FolderEvents::fireDue() {
  const std::uint64_t now = clock_.ticks();
  std::vector<std::pair<std::uint64_t, TimerId>> due;
  for (const Timer& timer : timers_) {
    if (timer.due <= now) due.emplace_back(timer.due, timer.id);
  }
  std::sort(due.begin(), due.end());
  for (const auto& [at, id] : due) {
    // A handler before this one may have stopped the timer, or pumped and so
    // served it.
    Timer* const next = timer(id);
    if (next == nullptr || next->due != at) continue;
    // Set before the handler runs: it may pump until its own timer is due again.
    next->due += next->interval * ((now - at) / next->interval + 1);
    findNextDue();
    const std::shared_ptr<std::function<void()>> handler = next->on_tick;
    (*handler)();
  }
}

void FolderEvents::findNextDue() {
  next_due_ = kNever;
  for (const Timer& timer : timers_) next_due_ = std::min(next_due_, timer.due);
}

FolderEvents::Timer* FolderEvents::timer(TimerId id) {
  const auto found = std::find_if(timers_.begin(), timers_.end(),
                                  [id](const Timer& timer) { return timer.id == id; });
  return found == timers_.end() ? nullptr : &*found;
}

}  // namespace tavr::folder
