// What platform/win32/win32_events.h does with the messages of windows, and in
// the loops of message boxes.
#include "platform/win32/win32_events.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <stdexcept>
#include <thread>
#include <vector>

#include "platform/win32/win32_clock.h"
#include "platform/win32/win32_dialogs.h"
#include "platform/win32/win32_machine.h"
#include "tests/contract/win32_parent_window.h"

namespace tavr::win32 {
namespace {

using ::testing::ElementsAre;

constexpr std::uint32_t kInterval = 20;  // ms

void post(UINT message) { PostThreadMessageW(GetCurrentThreadId(), message, 0, 0); }

// A loop such as the system runs for a box: it knows nothing of the timers.
void systemsLoop(std::uint32_t milliseconds) {
  const std::uint64_t end = tickCount() + milliseconds;
  MSG message;
  while (tickCount() < end) {
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  }
}

class Win32EventsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    events_.setMessageFilter([this](MSG& message) {
      if (message.message >= WM_APP) seen_.push_back(message.message - WM_APP);
      return message.message >= WM_APP;
    });
  }

  Win32Events events_;
  std::vector<UINT> seen_;
};

TEST_F(Win32EventsTest, PendingMessagesAreServedInTheirOrder) {
  for (const UINT n : {1U, 2U, 3U}) post(WM_APP + n);
  events_.wait(0);
  EXPECT_THAT(seen_, ElementsAre(1, 2, 3));
}

TEST_F(Win32EventsTest, DoEventsServesAMessageWithinTheNextMillisecond) {
  events_.doEvents();
  post(WM_APP + 1);
  std::this_thread::sleep_for(std::chrono::milliseconds(2));
  events_.doEvents();
  EXPECT_THAT(seen_, ElementsAre(1));
}

TEST_F(Win32EventsTest, AMessageIsServedInTheMiddleOfAWait) {
  const DWORD thread = GetCurrentThreadId();
  std::thread sender([thread] {
    std::this_thread::sleep_for(std::chrono::milliseconds(kInterval));
    PostThreadMessageW(thread, WM_APP + 7, 0, 0);
  });
  std::size_t at_tick = 0;
  const TimerId timer = events_.startTimer(3 * kInterval, [&] { at_tick = seen_.size(); });
  events_.wait(5 * kInterval);
  sender.join();
  events_.stopTimer(timer);
  EXPECT_EQ(at_tick, 1U);
}

TEST_F(Win32EventsTest, TheMessageThatEndsTheProgramStaysForItsLoop) {
  PostQuitMessage(5);
  const std::uint64_t before = tickCount();
  events_.wait(kInterval);
  EXPECT_GE(tickCount(), before + kInterval);
  MSG message;
  ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
  EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
  EXPECT_EQ(message.wParam, 5U);
}

TEST_F(Win32EventsTest, TimersGoOnInALoopOfTheSystem) {
  int ticks = 0;
  const TimerId timer = events_.startTimer(kInterval, [&ticks] { ++ticks; });
  systemsLoop(3 * kInterval);
  EXPECT_EQ(ticks, 0) << "without being asked to";
  {
    Win32Events::ModalLoop loop(events_);
    systemsLoop(5 * kInterval);
    loop.rethrow();
  }
  EXPECT_GE(ticks, 2);
  const int inside = ticks;
  systemsLoop(3 * kInterval);
  EXPECT_EQ(ticks, inside);
  events_.stopTimer(timer);
}

TEST_F(Win32EventsTest, AnExceptionWaitsForTheEndOfTheSystemsLoop) {
  int ticks = 0;
  const TimerId timer = events_.startTimer(kInterval, [&ticks] {
    ++ticks;
    throw std::runtime_error("from the handler");
  });
  Win32Events::ModalLoop loop(events_);
  systemsLoop(5 * kInterval);
  EXPECT_EQ(ticks, 1) << "none behind the one that failed";
  EXPECT_THROW(loop.rethrow(), std::runtime_error);
  events_.stopTimer(timer);
}

TEST_F(Win32EventsTest, AHandlerThatThrowsClosesTheMessageBox) {
  if (!contract::ParentWindow::possible()) GTEST_SKIP() << "no display";
  Win32Dialogs dialogs(&events_);
  const TimerId timer =
      events_.startTimer(5 * kInterval, [] { throw std::runtime_error("from the handler"); });
  EXPECT_THROW(dialogs.messageBox("A question?", MB_YESNO, ""), std::runtime_error);
  events_.stopTimer(timer);
}

TEST(Win32MachineTest, TimersTickInAMessageBoxAndAnExceptionClosesIt) {
  if (!contract::ParentWindow::possible()) GTEST_SKIP() << "no display";
  Win32Machine on;
  Machine& machine = on.machine();
  int ticks = 0;
  const TimerId timer = machine.events.startTimer(kInterval, [&ticks] {
    if (++ticks == 3) throw std::runtime_error("from the handler");
  });
  EXPECT_THROW(machine.dialogs.messageBox("A question?", MB_YESNO, ""), std::runtime_error);
  EXPECT_EQ(ticks, 3);
  machine.events.stopTimer(timer);
}

}  // namespace
}  // namespace tavr::win32
