// platform/events.h and the clock that it goes by.
#include <chrono>
#include <stdexcept>
#include <thread>

#include "tests/contract/contract_test.h"

namespace tavr::contract {
namespace {

using ::testing::ElementsAre;

constexpr std::uint32_t kInterval = 40;  // ms; a real clock needs room

class EventsContract : public ContractTest {
 protected:
  Events& events() { return machine().events; }

  TimerId count(std::uint32_t interval, int& ticks) {
    return events().startTimer(interval, [&ticks] { ++ticks; });
  }
};

TEST_F(EventsContract, WaitingLetsTheTimePass) {
  const std::uint64_t before = machine().clock.ticks();
  events().wait(kInterval);
  EXPECT_GE(machine().clock.ticks(), before + kInterval);
}

TEST_F(EventsContract, TheClockShowsATimeOfTheCalendar) {
  const LocalTime now = machine().clock.now();
  EXPECT_GT(now.year, 2000);
  EXPECT_TRUE(now.month >= 1 && now.month <= 12);
  EXPECT_TRUE(now.day >= 1 && now.day <= 31);
  EXPECT_TRUE(now.hour >= 0 && now.hour < 24 && now.minute >= 0 && now.minute < 60);
}

TEST_F(EventsContract, ATimersFirstTickComesAfterOneInterval) {
  int ticks = 0;
  const TimerId timer = count(kInterval, ticks);
  events().doEvents();
  EXPECT_EQ(ticks, 0);
  events().wait(kInterval + kInterval / 2);
  EXPECT_EQ(ticks, 1);
  events().stopTimer(timer);
}

TEST_F(EventsContract, ATimerGoesOnTicking) {
  int ticks = 0;
  const TimerId timer = count(kInterval, ticks);
  for (int i = 0; i < 3; ++i) events().wait(kInterval);
  events().wait(kInterval / 2);
  EXPECT_EQ(ticks, 3);
  events().stopTimer(timer);
}

TEST_F(EventsContract, TimersOfDifferentIntervalsTickInTheirOrder) {
  std::vector<int> fired;
  const TimerId slow =
      events().startTimer(2 * kInterval + kInterval / 2, [&fired] { fired.push_back(2); });
  const TimerId quick = events().startTimer(kInterval, [&fired] { fired.push_back(1); });
  events().wait(2 * kInterval + 3 * kInterval / 4);
  EXPECT_THAT(fired, ElementsAre(1, 1, 2));
  events().stopTimer(slow);
  events().stopTimer(quick);
}

TEST_F(EventsContract, AStoppedTimerDoesNotTick) {
  int ticks = 0;
  const TimerId timer = count(kInterval, ticks);
  events().stopTimer(timer);
  events().wait(2 * kInterval);
  EXPECT_EQ(ticks, 0);
  events().stopTimer(timer);  // a second time: nothing
}

TEST_F(EventsContract, AHandlerMayStopItsOwnTimer) {
  int ticks = 0;
  TimerId timer = 0;
  timer = events().startTimer(kInterval, [&] {
    ++ticks;
    events().stopTimer(timer);
  });
  events().wait(3 * kInterval);
  EXPECT_EQ(ticks, 1);
}

TEST_F(EventsContract, AHandlerThatPumpsIsCalledAgainInside) {
  int depth = 0;
  int deepest = 0;
  const TimerId timer = events().startTimer(kInterval, [&] {
    deepest = std::max(deepest, ++depth);
    if (depth == 1) events().wait(kInterval + kInterval / 2);
    --depth;
  });
  events().wait(kInterval + kInterval / 2);
  events().stopTimer(timer);
  EXPECT_EQ(deepest, 2);
}

TEST_F(EventsContract, AnExceptionOfAHandlerPassesThroughAndTheTimerStays) {
  int ticks = 0;
  const TimerId timer = events().startTimer(kInterval, [&ticks] {
    if (++ticks == 1) throw std::runtime_error("from the handler");
  });
  EXPECT_THROW(events().wait(2 * kInterval), std::runtime_error);
  events().wait(kInterval + kInterval / 2);
  EXPECT_GE(ticks, 2);
  events().stopTimer(timer);
}

TEST_F(EventsContract, TimersFireOnlyWhileSomebodyPumps) {
  on().useRealClock();
  int ticks = 0;
  const TimerId timer = count(kInterval, ticks);
  std::this_thread::sleep_for(std::chrono::milliseconds(2 * kInterval));
  EXPECT_EQ(ticks, 0);
  events().doEvents();
  EXPECT_EQ(ticks, 1);
  events().stopTimer(timer);
}

TEST_F(EventsContract, MissedTicksDoNotPileUp) {
  on().useRealClock();
  int ticks = 0;
  const TimerId timer = count(kInterval, ticks);
  std::this_thread::sleep_for(std::chrono::milliseconds(4 * kInterval + kInterval / 4));
  events().doEvents();
  events().doEvents();
  EXPECT_EQ(ticks, 1);
  events().stopTimer(timer);
}

TEST_F(EventsContract, TicksNeverGoBack) {
  on().useRealClock();
  std::uint64_t last = machine().clock.ticks();
  for (int i = 0; i < 1000; ++i) {
    const std::uint64_t now = machine().clock.ticks();
    ASSERT_GE(now, last);
    last = now;
  }
}

}  // namespace
}  // namespace tavr::contract
