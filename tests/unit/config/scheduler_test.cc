// One tick of the main form's clock: what it reads, writes and starts.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/scheduler_stage.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::kBrowserSettings;
using testing::kDay;
using testing::kMainSettings;
using testing::Scheduler;
using ::testing::SizeIs;

TEST_F(Scheduler, WithoutAScheduleNothingFires) {
  play(kDay);
  EXPECT_THAT(changes, IsEmpty());
  EXPECT_EQ(form().Text7.text(), "0");
  EXPECT_THAT(person.boxes, IsEmpty());
}

// `whattodo` is read and changes nothing: every schedule erases.
TEST_F(Scheduler, WhatToDoIsReadWithoutEffect) {
  timerSetting("option", "3");
  timerSetting("nextday", "1/1/2020");
  timerSetting("whattodo", "2");
  play(10'000);
  EXPECT_THAT(fired, SizeIs(1));
}

TEST_F(Scheduler, AnUnknownKindFiresNothing) {
  timerSetting("option", "7");
  timerSetting("nextday", "1/1/2020");
  play(600'000);
  EXPECT_THAT(fired, IsEmpty());
  EXPECT_EQ(form().Text7.text(), "7");
}

TEST_F(Scheduler, MinutesFillTheWorkingBoxesFromNextminAndNexthoure) {
  timerSetting("option", "1");
  timerSetting("nextmin", "45");
  timerSetting("nexthoure", "11");
  timerSetting("min", "7");
  tick();
  EXPECT_EQ(form().Text7.text(), "1");
  EXPECT_EQ(form().Text8.text(), "11");
  EXPECT_EQ(form().Text9.text(), "45");
}

TEST_F(Scheduler, HoursFillTheWorkingBoxesFromMinAndNexthoure) {
  timerSetting("option", "2");
  timerSetting("nextmin", "45");
  timerSetting("nexthoure", "11");
  timerSetting("min", "7");
  tick();
  EXPECT_EQ(form().Text7.text(), "2");
  EXPECT_EQ(form().Text8.text(), "11");
  EXPECT_EQ(form().Text9.text(), "7");
}

TEST_F(Scheduler, TheStartOfWindowsIsNoted) {
  timerSetting("option", "6");
  timerSetting("value", "0");
  play(kDay);
  EXPECT_EQ(form().Text8.text(), "now");
  EXPECT_THAT(fired, IsEmpty());
}

TEST_F(Scheduler, MinutesFireInTheirMinuteAndStoreTheNextOne) {
  timerSetting("option", "1");
  timerSetting("value", "45");
  timerSetting("nextmin", "0");
  timerSetting("nexthoure", "10");
  tick();
  EXPECT_THAT(changes, ElementsAre("2"));
  EXPECT_EQ(stored("cncl"), "0");
  EXPECT_EQ(stored("finish"), "0");
  EXPECT_EQ(stored("nextmin"), "45");
  EXPECT_EQ(stored("nexthoure"), "10");
}

TEST_F(Scheduler, AllIsStoredBeforeTheRunStarts) {
  timerSetting("option", "1");
  timerSetting("value", "5");
  timerSetting("nextmin", "0");
  timerSetting("nexthoure", "10");
  stage();
  std::vector<std::string> seen;
  onRun = [&] {
    seen = {stored("cncl"), stored("nextmin"), stored("nexthoure"), stored("finish")};
  };
  tick();
  EXPECT_THAT(seen, ElementsAre("0", "5", "10", "0"));
}

TEST_F(Scheduler, ASecondFiringEmptiesTheTriggerFirst) {
  timerSetting("option", "2");
  timerSetting("value", "6");
  timerSetting("min", "0");
  timerSetting("nexthoure", "10");
  tick();
  tick();
  EXPECT_THAT(changes, ElementsAre("2", "", "2"));
}

TEST_F(Scheduler, AtTwentyThreeTheCarryGivesTwentyFour) {
  startClockAt("23:58:00");
  timerSetting("option", "1");
  timerSetting("value", "5");
  timerSetting("nextmin", "58");
  timerSetting("nexthoure", "23");
  play(3 * kDay);
  EXPECT_THAT(fired, ElementsAre("11/20 23:58:10"));
  EXPECT_EQ(stored("nextmin"), "4");
  EXPECT_EQ(stored("nexthoure"), "24");
}

// Empty texts count as 0 o'clock.
TEST_F(Scheduler, MinutesWithoutANextTimeFireAtMidnight) {
  timerSetting("option", "1");
  timerSetting("value", "30");
  play(kDay);
  EXPECT_THAT(fired,
              ElementsAre("11/21 00:00:00", "11/21 00:30:00", "11/21 01:01:00", "11/21 01:31:00",
                          "11/21 02:02:00", "11/21 02:32:00", "11/21 03:03:00", "11/21 03:33:00",
                          "11/21 04:04:00", "11/21 04:34:00", "11/21 05:05:00", "11/21 05:35:00",
                          "11/21 06:06:00", "11/21 06:36:00", "11/21 07:07:00", "11/21 07:37:00",
                          "11/21 08:08:00", "11/21 08:38:00", "11/21 09:09:00", "11/21 09:39:00"));
}

TEST_F(Scheduler, HoursFireAndStoreTheNextTimeInMinutes) {
  timerSetting("option", "2");
  timerSetting("value", "6");
  timerSetting("min", "0");
  timerSetting("nexthoure", "10");
  tick();
  EXPECT_EQ(stored("cncl"), "0");
  EXPECT_EQ(stored("finish"), "0");
  EXPECT_EQ(stored("nextmin"), "6");
  EXPECT_EQ(stored("nexthoure"), "10");
  EXPECT_EQ(stored("min"), "0");
}

struct DateKind {
  const char* option;
  const char* name;
  const char* next;
  const char* cncl;
};

class DateSchedules : public Scheduler, public ::testing::WithParamInterface<DateKind> {};

TEST_P(DateSchedules, FireOnTheirDateAndStoreTheNextOne) {
  timerSetting("option", GetParam().option);
  timerSetting("value", "2");
  timerSetting(GetParam().name, "11/20/2026");
  tick();
  EXPECT_EQ(fired.size(), 1U);
  EXPECT_EQ(stored(GetParam().name), GetParam().next);
  EXPECT_EQ(stored("cncl"), GetParam().cncl);
  EXPECT_EQ(stored("finish"), "0");
  tick();
  EXPECT_EQ(fired.size(), 1U);
}

TEST_P(DateSchedules, FireLateAtTheFirstTick) {
  timerSetting("option", GetParam().option);
  timerSetting("value", "2");
  timerSetting(GetParam().name, "3/1/2025");
  tick();
  EXPECT_EQ(fired.size(), 1U);
  EXPECT_EQ(stored(GetParam().name), GetParam().next);
}

TEST_P(DateSchedules, DoNotFireBeforeTheirDate) {
  timerSetting("option", GetParam().option);
  timerSetting("value", "2");
  timerSetting(GetParam().name, "11/21/2026");
  tick();
  EXPECT_THAT(fired, IsEmpty());
  EXPECT_EQ(stored("finish"), "<none>");
}

TEST_P(DateSchedules, WithoutADateFireAtTheFirstTick) {
  timerSetting("option", GetParam().option);
  timerSetting("value", "2");
  tick();
  EXPECT_EQ(fired.size(), 1U);
  EXPECT_EQ(stored(GetParam().name), GetParam().next);
}

TEST_P(DateSchedules, KeepTheDateOfAnEarlierTickForATextThatIsNone) {
  timerSetting("option", GetParam().option);
  timerSetting("value", "2");
  timerSetting(GetParam().name, "1/1/2030");
  tick();
  stage().program.registry.saveSetting("software\\tavrwork\\tavr wipe\\timer", GetParam().name,
                                       "someday");
  tick();
  EXPECT_THAT(fired, IsEmpty());
}

TEST_P(DateSchedules, WithoutAnIntervalFireAtEveryTickOfTheirDay) {
  timerSetting("option", GetParam().option);
  timerSetting(GetParam().name, "11/20/2026");
  play(30'000);
  EXPECT_THAT(fired, ElementsAre("11/20 10:00:10", "11/20 10:00:20", "11/20 10:00:30"));
  EXPECT_EQ(stored(GetParam().name), "11/20/2026");
}

TEST_P(DateSchedules, BeyondTheCalendarTheOldDateStays) {
  timerSetting("option", GetParam().option);
  timerSetting("value", "9999999");
  timerSetting(GetParam().name, "11/19/2026");
  tick();
  EXPECT_EQ(fired.size(), 1U);
  EXPECT_EQ(stored(GetParam().name), "11/19/2026");
}

INSTANTIATE_TEST_SUITE_P(Kinds, DateSchedules,
                         ::testing::Values(DateKind{"3", "nextday", "11/22/2026", "0"},
                                           DateKind{"4", "nextweek", "12/4/2026", "<none>"},
                                           DateKind{"5", "nextmnth", "1/19/2027", "<none>"}));

// The slots hold what the last save put there: the hour of an hours schedule is
// no date.
TEST_F(Scheduler, AnHourInADateSlotIsNoDate) {
  save(&Form3::Option2, &Form3::Text2, "6");
  stage().program.registry.saveSetting("software\\tavrwork\\tavr wipe\\timer", "option", "3");
  EXPECT_EQ(stored("nextday"), "16");
  tick();
  EXPECT_EQ(fired.size(), 1U);
}

TEST_F(Scheduler, RunTypeOneStopsEverythingHoweverItIsWritten) {
  timerSetting("option", "3");
  timerSetting("value", "1");
  timerSetting("nextday", "1/1/2020");
  machine.setting(kMainSettings, "protect_home", "1");
  machine.value(kBrowserSettings, "Start Page", "http://other");
  for (const char* type : {"1", "1.0"}) {
    SCOPED_TRACE(type);
    stage().program.registry.saveSetting("software\\tavrwork\\tavr wipe\\timer", "runtype", type);
    play(kDay);
    EXPECT_THAT(changes, IsEmpty());
    EXPECT_THAT(person.boxes, IsEmpty());
    EXPECT_EQ(form().Text7.text(), "");
  }
}

TEST_F(Scheduler, OtherRunTypesLetItWork) {
  for (const char* type : {"", "0", "2", "abc"}) {
    SCOPED_TRACE(type);
    fired.clear();
    stage().program.registry.saveSetting("software\\tavrwork\\tavr wipe\\timer", "runtype", type);
    stage().program.registry.saveSetting("software\\tavrwork\\tavr wipe\\timer", "option", "3");
    stage().program.registry.saveSetting("software\\tavrwork\\tavr wipe\\timer", "nextday",
                                         "1/1/2020");
    tick();
    EXPECT_EQ(fired.size(), 1U);
  }
}

}  // namespace
}  // namespace tavr
