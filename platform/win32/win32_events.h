// The message pump of this machine, and the timers that it serves. The timers
// stand in a list of their own: a timer of Windows would call its handler from
// inside the system, where an exception cannot pass.
#pragma once

#include <cstdint>
#include <exception>
#include <functional>
#include <memory>

#include "basic/due_timers.h"
#include "platform/events.h"

struct tagMSG;  // MSG

namespace tavr::win32 {

class Win32Events : public Events {
 public:
  Win32Events();
  ~Win32Events() override;
  Win32Events(const Win32Events&) = delete;
  Win32Events& operator=(const Win32Events&) = delete;

  /// A run calls this once a file, and a look into the message queue costs as much
  /// as a file does: the queue is looked at once in each millisecond.
  void doEvents() override;
  void wait(std::uint32_t milliseconds) override;
  TimerId startTimer(std::uint32_t interval_ms, std::function<void()> on_tick) override;
  void stopTimer(TimerId id) override;

  /// Sees every message ahead of its window and answers whether it has served it,
  /// as IsDialogMessage does. Windows with keys to move between set it.
  void setMessageFilter(std::function<bool(tagMSG&)> filter) { filter_ = std::move(filter); }

  /// Called behind every message that was dispatched, and at the end of every look
  /// into the queue: where exceptions pass, unlike in a window's procedure. It may
  /// pump again.
  void setAfterMessages(std::function<void()> after) { after_ = std::move(after); }

  /// For as long as it lives the timers are served from a message loop of the
  /// system's own, such as that of a message box, and so is what stands behind the
  /// messages. While a menu is open they wait, as they do without a box.
  class ModalLoop {
   public:
    explicit ModalLoop(Win32Events& events);
    ~ModalLoop();
    ModalLoop(const ModalLoop&) = delete;
    ModalLoop& operator=(const ModalLoop&) = delete;
    /// Behind the loop: throws what a handler threw inside. That closed the box.
    void rethrow();

    /// Called by the timer of the system that this loop runs.
    static void onTimer(std::uintptr_t timer);

   private:
    friend class Win32Events;
    void serve();

    Win32Events& events_;
    ModalLoop* const outer_;
    const std::uintptr_t timer_;
    std::exception_ptr thrown_;
  };

 private:
  struct WaitableTimer;

  /// False: the message that ends the program is there. It stays.
  bool pump();
  void sleep(std::uint64_t milliseconds, bool wake_for_messages);

  std::function<bool(tagMSG&)> filter_;
  std::function<void()> after_;
  std::unique_ptr<WaitableTimer> waitable_;
  DueTimers timers_;
  std::uint64_t last_pump_ = DueTimers::kNever;
};

}  // namespace tavr::win32
