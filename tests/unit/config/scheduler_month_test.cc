// A month of each kind of schedule, with its exact times, and ticks during a run.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/support/scheduler_stage.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::kDay;
using testing::Scheduler;

TEST_F(Scheduler, AMonthOfFortyFiveMinutesEndsWithTheFirstDay) {
  stage();
  save(&Form3::Option1, &Form3::Text1, "45");
  play(30 * kDay);
  EXPECT_THAT(fired,
              ElementsAre("11/20 10:45:00", "11/20 11:31:00", "11/20 12:17:00", "11/20 13:03:00",
                          "11/20 13:48:00", "11/20 14:34:00", "11/20 15:20:00", "11/20 16:06:00",
                          "11/20 16:51:00", "11/20 17:37:00", "11/20 18:23:00", "11/20 19:09:00",
                          "11/20 19:54:00", "11/20 20:40:00", "11/20 21:26:00", "11/20 22:12:00",
                          "11/20 22:57:00", "11/20 23:43:00"));
  EXPECT_EQ(stored("nextmin"), "29");
  EXPECT_EQ(stored("nexthoure"), "24");
}

TEST_F(Scheduler, AMonthOfSixHoursFiresAtEveryTickOfItsMinuteOnceADay) {
  stage();
  save(&Form3::Option2, &Form3::Text2, "6");
  play(30 * kDay);
  std::vector<std::string> expected;
  for (int day = 0; day < 30; ++day) {
    const std::string date =
        day < 11 ? "11/" + std::to_string(20 + day) : "12/" + std::to_string(day - 10);
    for (const char* second : {"00", "10", "20", "30", "40", "50"}) {
      expected.push_back(date + " 16:00:" + second);
    }
  }
  EXPECT_EQ(fired, expected);
  EXPECT_EQ(expected.front(), "11/20 16:00:00");
  EXPECT_EQ(expected.back(), "12/19 16:00:50");
  EXPECT_EQ(stored("nexthoure"), "16");
}

// The carry moves the hour on: the minute is met once an hour, until no clock
// shows the hour.
TEST_F(Scheduler, AMonthOfSixHoursLateInTheHourFiresOnceAnHourUntilMidnight) {
  startClockAt("10:55:00");
  stage();
  save(&Form3::Option2, &Form3::Text2, "6");
  play(30 * kDay);
  EXPECT_THAT(fired,
              ElementsAre("11/20 16:55:00", "11/20 17:55:00", "11/20 18:55:00", "11/20 19:55:00",
                          "11/20 20:55:00", "11/20 21:55:00", "11/20 22:55:00", "11/20 23:55:00"));
  EXPECT_EQ(stored("nexthoure"), "24");
}

TEST_F(Scheduler, HoursSavedAtTwentyTwoFireAtOne) {
  startClockAt("22:00:00");
  stage();
  save(&Form3::Option2, &Form3::Text2, "3");
  EXPECT_EQ(stored("nexthoure"), "1");
  play(kDay);
  EXPECT_THAT(fired, ElementsAre("11/21 01:00:00", "11/21 01:00:10", "11/21 01:00:20",
                                 "11/21 01:00:30", "11/21 01:00:40", "11/21 01:00:50"));
}

TEST_F(Scheduler, HoursSavedAtTwentyOneNeverFire) {
  startClockAt("21:00:00");
  stage();
  save(&Form3::Option2, &Form3::Text2, "3");
  EXPECT_EQ(stored("nexthoure"), "24");
  play(3 * kDay);
  EXPECT_THAT(fired, IsEmpty());
}

TEST_F(Scheduler, AMonthOfSixDays) {
  stage();
  save(&Form3::Option3, &Form3::Text3, "6");
  play(30 * kDay);
  EXPECT_THAT(fired, ElementsAre("11/26 00:00:00", "12/2 00:00:00", "12/8 00:00:00",
                                 "12/14 00:00:00", "12/20 00:00:00"));
  EXPECT_EQ(stored("nextday"), "12/26/2026");
  EXPECT_EQ(stored("nexthoure"), "11/26/2026");
  EXPECT_EQ(stored("nextweek"), "11/26/2026");
}

TEST_F(Scheduler, AMonthOfTwoWeeks) {
  stage();
  save(&Form3::Option4, &Form3::Text4, "2");
  play(30 * kDay);
  EXPECT_THAT(fired, ElementsAre("12/4 00:00:00", "12/18 00:00:00"));
  EXPECT_EQ(stored("nextweek"), "1/1/2027");
  EXPECT_EQ(stored("nextday"), "12/4/2026");
}

TEST_F(Scheduler, AMonthOfOneMonthHasThirtyDays) {
  stage();
  save(&Form3::Option5, &Form3::Text5, "1");
  play(30 * kDay);
  EXPECT_THAT(fired, ElementsAre("12/20 00:00:00"));
  EXPECT_EQ(stored("nextmnth"), "1/19/2027");
}

TEST_F(Scheduler, AMonthWithTheStartOfWindowsChosenFiresNothing) {
  stage();
  {
    Form3Code options(stage().context);
    options.form.Option1.setValue(true);
    options.form.Check1[4].setValue(1);
    options.chameleonButton5_Click();
  }
  EXPECT_EQ(stored("option"), "6");
  EXPECT_EQ(stored("nextmin"), "45");
  play(30 * kDay);
  EXPECT_THAT(fired, IsEmpty());
}

TEST_F(Scheduler, AMissedMinuteWaitsForTheNextDay) {
  stage();
  save(&Form3::Option1, &Form3::Text1, "5");
  events().wait(3'600'000);  // the program does not run: no tick
  play(23 * 3'600'000U + 6 * 60'000U);
  EXPECT_THAT(fired, ElementsAre("11/21 10:05:00"));
}

TEST_F(Scheduler, TicksDuringARunStartNestedRuns) {
  stage();
  save(&Form3::Option2, &Form3::Text2, "6");
  int depth = 0;
  int deepest = 0;
  onRun = [&] {
    deepest = std::max(deepest, ++depth);
    events().wait(15'000);
    --depth;
  };
  play(7 * 3'600'000U);
  EXPECT_THAT(fired, ElementsAre("11/20 16:00:00", "11/20 16:00:10", "11/20 16:00:20",
                                 "11/20 16:00:30", "11/20 16:00:40", "11/20 16:00:50"));
  EXPECT_EQ(deepest, 6);
  EXPECT_EQ(depth, 0);
}

}  // namespace
}  // namespace tavr
