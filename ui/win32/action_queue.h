// What a person did and has not been served yet. Window procedures only put
// actions in: a handler may end the process or run for minutes, and neither may
// happen inside a call that Windows made.
#pragma once

#include <deque>
#include <functional>

namespace tavr::win32 {

class ActionQueue {
 public:
  /// `owner` is the object that the action works on.
  void post(const void* owner, std::function<void()> action);
  /// Drops what waits for an owner that goes away.
  void discard(const void* owner);
  bool empty() const { return actions_.empty(); }

  /// Runs every action that waits, those posted meanwhile included. An action
  /// may pump, which drains the rest inside it. An error that no statement of a
  /// handler caught ends that handler alone; the end of the process passes.
  void drain();

 private:
  struct Action {
    const void* owner;
    std::function<void()> run;
  };
  std::deque<Action> actions_;
};

}  // namespace tavr::win32
