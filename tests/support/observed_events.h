// The events of another machine, handed through and counted.
#pragma once

#include <utility>

#include "platform/events.h"

namespace tavr::testing {

class ObservedEvents : public Events {
 public:
  explicit ObservedEvents(Events& inner) : inner_(inner) {}

  void doEvents() override {
    ++pumped;
    if (onPump) onPump();
    inner_.doEvents();
  }
  void wait(std::uint32_t milliseconds) override { inner_.wait(milliseconds); }
  TimerId startTimer(std::uint32_t interval_ms, std::function<void()> on_tick) override {
    return inner_.startTimer(interval_ms, std::move(on_tick));
  }
  void stopTimer(TimerId id) override { inner_.stopTimer(id); }

  int pumped = 0;                ///< calls of doEvents
  std::function<void()> onPump;  ///< what is done inside each

 private:
  Events& inner_;
};

}  // namespace tavr::testing
