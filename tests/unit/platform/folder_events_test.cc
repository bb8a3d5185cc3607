#include "platform/folder/folder_events.h"

#include <gtest/gtest.h>

#include <chrono>
#include <stdexcept>
#include <vector>

namespace tavr::folder {
namespace {

using Times = std::vector<std::uint64_t>;

class FolderEventsTest : public ::testing::Test {
 protected:
  VirtualClock clock{{2026, 11, 20, 10, 0, 0}};
  FolderEvents events{clock};
  Times fired;

  TimerId every(std::uint32_t interval) {
    return events.startTimer(interval, [this] { fired.push_back(clock.ticks()); });
  }
};

TEST_F(FolderEventsTest, AVirtualClockNeverMovesByPumping) {
  every(100);
  for (int i = 0; i < 1000; ++i) events.doEvents();
  EXPECT_EQ(clock.ticks(), 0U);
  EXPECT_TRUE(fired.empty());
}

TEST_F(FolderEventsTest, WaitingFiresTimersAtTheirTimesAndEndsAtItsOwn) {
  every(100);
  every(250);
  events.wait(520);
  EXPECT_EQ(fired, (Times{100, 200, 250, 300, 400, 500, 500}));
  EXPECT_EQ(clock.ticks(), 520U);
}

TEST_F(FolderEventsTest, ATimerThatIsDueWhenTheWaitEndsFires) {
  every(100);
  events.wait(100);
  EXPECT_EQ(fired, Times{100});
}

TEST_F(FolderEventsTest, TimersOfOneTimeFireInTheOrderOfTheirStart) {
  std::vector<int> order;
  events.startTimer(100, [&] { order.push_back(1); });
  events.startTimer(100, [&] { order.push_back(2); });
  events.startTimer(50, [&] { order.push_back(3); });
  events.wait(100);
  EXPECT_EQ(order, (std::vector<int>{3, 1, 2, 3}));
}

TEST_F(FolderEventsTest, MissedTicksDoNotPileUpAndTheBeatIsKept) {
  every(100);
  clock.passUntil(350);
  events.doEvents();
  events.doEvents();
  EXPECT_EQ(fired, Times{350});
  events.wait(50);
  EXPECT_EQ(fired, (Times{350, 400}));
}

TEST_F(FolderEventsTest, AHandlerMayStopItsOwnTimer) {
  TimerId id = 0;
  id = events.startTimer(100, [&] {
    events.stopTimer(id);
    fired.push_back(clock.ticks());
  });
  events.wait(1000);
  EXPECT_EQ(fired, Times{100});
}

TEST_F(FolderEventsTest, AHandlerMayStopAnotherTimerThatIsDue) {
  TimerId other = 0;
  events.startTimer(100, [&] { events.stopTimer(other); });
  other = every(100);
  events.wait(300);
  EXPECT_TRUE(fired.empty());
}

TEST_F(FolderEventsTest, AHandlerMayStartTimers) {
  TimerId first = 0;
  first = events.startTimer(100, [&] {
    events.stopTimer(first);
    for (int i = 0; i < 100; ++i) events.stopTimer(events.startTimer(1, [] {}));
    every(10);
  });
  events.wait(125);
  EXPECT_EQ(fired, (Times{110, 120}));
}

TEST_F(FolderEventsTest, ATimerFiresAgainInsideItsOwnHandlerWhenItIsDue) {
  int depth = 0;
  int deepest = 0;
  events.startTimer(100, [&] {
    fired.push_back(clock.ticks());
    deepest = std::max(deepest, ++depth);
    if (fired.size() < 3) events.wait(100);
    --depth;
  });
  events.wait(100);
  EXPECT_EQ(fired, (Times{100, 200, 300}));
  EXPECT_EQ(deepest, 3);
}

TEST_F(FolderEventsTest, AHandlerThatPumpsWithoutWaitingIsNotEnteredAgain) {
  events.startTimer(100, [&] {
    fired.push_back(clock.ticks());
    for (int i = 0; i < 10; ++i) events.doEvents();
  });
  events.wait(200);
  EXPECT_EQ(fired, (Times{100, 200}));
}

TEST_F(FolderEventsTest, ATimerServedByANestedPumpDoesNotFireTwice) {
  events.startTimer(100, [&] { events.doEvents(); });
  every(100);
  events.wait(100);
  EXPECT_EQ(fired, Times{100});
}

TEST_F(FolderEventsTest, AnExceptionOfAHandlerPassesThroughAndTheTimerGoesOn) {
  bool fail = true;
  events.startTimer(100, [&] {
    fired.push_back(clock.ticks());
    if (std::exchange(fail, false)) throw std::runtime_error("end");
  });
  EXPECT_THROW(events.wait(300), std::runtime_error);
  EXPECT_EQ(clock.ticks(), 100U);
  events.wait(100);
  EXPECT_EQ(fired, (Times{100, 200}));
}

TEST_F(FolderEventsTest, AStoppedTimerIsSilentAndAnUnknownOneIsIgnored) {
  const TimerId id = every(100);
  events.stopTimer(id);
  events.stopTimer(id);
  events.stopTimer(77);
  events.wait(500);
  EXPECT_TRUE(fired.empty());
}

TEST_F(FolderEventsTest, AnInterruptCallsTheHandlerOnceAtTheNextPump) {
  int calls = 0;
  events.setInterruptHandler([&] { ++calls; });
  events.doEvents();
  EXPECT_EQ(calls, 0);
  events.interrupt();
  events.interrupt();
  EXPECT_EQ(calls, 0);
  events.doEvents();
  events.doEvents();
  EXPECT_EQ(calls, 1);
  events.interrupt();
  events.wait(0);
  EXPECT_EQ(calls, 2);
}

TEST(FolderEvents, EveryWaitBeginsWithTheIdleCall) {
  VirtualClock clock({2026, 11, 20, 10, 0, 0});
  Times idle;
  FolderEvents events(clock, [&] { idle.push_back(clock.ticks()); });
  events.doEvents();
  events.wait(100);
  events.wait(0);
  EXPECT_EQ(idle, (Times{0, 100}));
}

TEST(FolderEvents, OnTheRealClockAWaitTakesItsTime) {
  RealClock clock;
  FolderEvents events(clock);
  int ticks = 0;
  events.startTimer(20, [&] { ++ticks; });
  const auto from = std::chrono::steady_clock::now();
  events.wait(70);
  const auto passed = std::chrono::steady_clock::now() - from;
  EXPECT_GE(passed, std::chrono::milliseconds(60));  // the tick counter is coarse
  EXPECT_GE(ticks, 1);
  EXPECT_LE(ticks, 3);
}

}  // namespace
}  // namespace tavr::folder
