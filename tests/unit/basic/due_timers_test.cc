#include "basic/due_timers.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace tavr {
namespace {

class DueTimersTest : public ::testing::Test {
 protected:
  std::function<void()> notes(char letter) {
    return [this, letter] { fired_ += letter; };
  }
  DueTimers timers_;
  std::string fired_;
};

TEST_F(DueTimersTest, NothingIsDueWithoutATimer) {
  EXPECT_EQ(timers_.nextDue(), DueTimers::kNever);
  timers_.fire(DueTimers::kNever - 1);
  EXPECT_EQ(fired_, "");
}

TEST_F(DueTimersTest, TheLongestOverdueFiresFirst) {
  timers_.start(100, 50, notes('b'));
  timers_.start(100, 20, notes('a'));
  EXPECT_EQ(timers_.nextDue(), 120u);
  timers_.fire(119);
  EXPECT_EQ(fired_, "");
  timers_.fire(150);
  EXPECT_EQ(fired_, "ab");
}

TEST_F(DueTimersTest, MissedIntervalsFireOnceAndTheBeatIsKept) {
  timers_.start(0, 10, notes('a'));
  timers_.fire(47);
  EXPECT_EQ(fired_, "a");
  EXPECT_EQ(timers_.nextDue(), 50u);
}

TEST_F(DueTimersTest, AnIntervalOfZeroCountsAsOne) {
  timers_.start(5, 0, notes('a'));
  EXPECT_EQ(timers_.nextDue(), 6u);
}

TEST_F(DueTimersTest, AStoppedTimerDoesNotFireInTheSameRound) {
  DueTimers::Id second = 0;
  timers_.start(0, 1, [this, &second] { timers_.stop(second); });
  second = timers_.start(0, 2, notes('b'));
  timers_.fire(2);
  EXPECT_EQ(fired_, "");
}

TEST_F(DueTimersTest, AHandlerMayStopItsOwnTimer) {
  DueTimers::Id own = 0;
  own = timers_.start(0, 1, [this, &own] {
    timers_.stop(own);
    fired_ += 'a';
  });
  timers_.fire(1);
  timers_.fire(2);
  EXPECT_EQ(fired_, "a");
  EXPECT_EQ(timers_.nextDue(), DueTimers::kNever);
}

TEST_F(DueTimersTest, ATimerThatWasServedInsideAHandlerIsNotServedAgain) {
  timers_.start(0, 1, [this] { timers_.fire(2); });
  timers_.start(0, 2, notes('b'));
  timers_.fire(2);
  EXPECT_EQ(fired_, "b");
}

TEST_F(DueTimersTest, AHandlerThatComesBackLaterIsServedInsideItself) {
  timers_.start(0, 10, [this] {
    fired_ += '(';
    if (fired_.size() < 3) timers_.fire(10 * (fired_.size() + 1));
    fired_ += ')';
  });
  timers_.fire(10);
  EXPECT_EQ(fired_, "((()))");
  EXPECT_EQ(timers_.nextDue(), 40u);
}

TEST_F(DueTimersTest, AHandlerThatComesBackAtOnceIsNotServedAgain) {
  timers_.start(0, 10, [this] {
    fired_ += 'a';
    timers_.fire(19);
  });
  timers_.fire(10);
  EXPECT_EQ(fired_, "a");
}

TEST_F(DueTimersTest, ATimerStartedByAHandlerWaitsForItsOwnTime) {
  timers_.start(0, 10, [this] {
    if (timers_.nextDue() == 20) timers_.start(10, 5, notes('b'));
  });
  timers_.fire(10);
  EXPECT_EQ(fired_, "");
  EXPECT_EQ(timers_.nextDue(), 15u);
  timers_.fire(15);
  EXPECT_EQ(fired_, "b");
}

TEST_F(DueTimersTest, AfterAnExceptionTheOthersFireAtTheNextCall) {
  timers_.start(0, 1, [] { throw std::runtime_error("refused"); });
  timers_.start(0, 2, notes('b'));
  EXPECT_THROW(timers_.fire(2), std::runtime_error);
  EXPECT_EQ(fired_, "");
  timers_.fire(2);
  EXPECT_EQ(fired_, "b");
}

TEST_F(DueTimersTest, IdsAreNotGivenTwice) {
  const DueTimers::Id first = timers_.start(0, 1, notes('a'));
  timers_.stop(first);
  EXPECT_NE(timers_.start(0, 1, notes('b')), first);
  EXPECT_NE(first, 0u);
}

}  // namespace
}  // namespace tavr
