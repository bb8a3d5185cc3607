#include "ui/win32/action_queue.h"

#include <utility>

#include "basic/resume_next.h"

namespace tavr::win32 {

void ActionQueue::post(const void* owner, std::function<void()> action) {
  actions_.push_back({owner, std::move(action)});
}

void ActionQueue::discard(const void* owner) {
  std::erase_if(actions_, [owner](const Action& action) { return action.owner == owner; });
}

void ActionQueue::drain() {
  while (!actions_.empty()) {
    // Taken out first: its owner may be gone when it returns.
    const std::function<void()> run = std::move(actions_.front().run);
    actions_.pop_front();
    ResumeNext on;
    on.next(run);
  }
}

}  // namespace tavr::win32
