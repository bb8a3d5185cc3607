#include "basic/due_timers.h"

#include <algorithm>
#include <utility>

namespace tavr {

DueTimers::Id DueTimers::start(std::uint64_t now, std::uint32_t interval,
                               std::function<void()> on_tick) {
  const std::uint32_t step = std::max(interval, 1U);
  timers_.push_back(
      {++last_id_, step, now + step, std::make_shared<std::function<void()>>(std::move(on_tick))});
  findNextDue();
  return last_id_;
}

void DueTimers::stop(Id id) {
  std::erase_if(timers_, [id](const Timer& timer) { return timer.id == id; });
  findNextDue();
}

void DueTimers::fire(std::uint64_t now) {
  std::vector<std::pair<std::uint64_t, Id>> due;
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

void DueTimers::findNextDue() {
  next_due_ = kNever;
  for (const Timer& timer : timers_) next_due_ = std::min(next_due_, timer.due);
}

DueTimers::Timer* DueTimers::timer(Id id) {
  const auto found = std::find_if(timers_.begin(), timers_.end(),
                                  [id](const Timer& timer) { return timer.id == id; });
  return found == timers_.end() ? nullptr : &*found;
}

}  // namespace tavr
