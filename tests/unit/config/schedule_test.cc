// What saving a schedule stores, and the next times: the limits are odd and
// stay so.
#include "config/schedule.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "platform/folder/english_locale.h"

namespace tavr {
namespace {

constexpr LocalTime at(int hour, int minute) { return {2026, 11, 20, hour, minute, 30}; }

// option, value, nextmin, slot
using Saved = std::tuple<std::string, std::string, std::string, std::string>;

Saved save(ScheduleKind kind, std::string_view interval, const LocalTime& now = at(10, 5)) {
  folder::EnglishLocale locale;
  const SavedSchedule saved = savedSchedule(locale, now, kind, interval);
  return {saved.option, saved.value, saved.nextmin, saved.slot};
}

TEST(Schedule, OfMinutesStoresMinuteAndHour) {
  EXPECT_EQ(save(ScheduleKind::kMinutes, "45"), Saved("1", "45", "50", "10"));
  EXPECT_EQ(save(ScheduleKind::kMinutes, " 45 "), Saved("1", "45", "50", "10"));
}

// English but for the sign before a fraction.
class CommaLocale : public folder::EnglishLocale {
 public:
  char decimalSign() override { return ','; }
};

TEST(Schedule, ReadsAndWritesFractionsWithTheSignOfTheLocale) {
  CommaLocale locale;
  const auto with_comma = savedSchedule(locale, at(10, 5), ScheduleKind::kMinutes, "2,5");
  EXPECT_EQ(with_comma.value, "2,5");
  EXPECT_EQ(with_comma.nextmin, "7,5");
  const auto with_point = savedSchedule(locale, at(10, 5), ScheduleKind::kMinutes, "2.5");
  EXPECT_EQ(with_point.nextmin, "");
  EXPECT_EQ(save(ScheduleKind::kMinutes, "2.5"), Saved("1", "2.5", "7.5", "10"));
  EXPECT_EQ(save(ScheduleKind::kMinutes, "2,5"), Saved("1", "2,5", "", ""));
}

TEST(Schedule, OfHoursStoresTheHourAlone) {
  EXPECT_EQ(save(ScheduleKind::kHours, "6"), Saved("2", "6", "", "16"));
}

TEST(Schedule, OfDaysWeeksAndMonthsStoresTheDate) {
  EXPECT_EQ(save(ScheduleKind::kDays, "6"), Saved("3", "6", "", "11/26/2026"));
  EXPECT_EQ(save(ScheduleKind::kWeeks, "2"), Saved("4", "2", "", "12/4/2026"));
  EXPECT_EQ(save(ScheduleKind::kMonths, "1"), Saved("5", "1", "", "12/20/2026"));
}

TEST(Schedule, AMonthHasThirtyDays) {
  EXPECT_EQ(save(ScheduleKind::kMonths, "12"), Saved("5", "12", "", "11/15/2027"));
}

TEST(Schedule, WithoutAKindStoresNothing) {
  EXPECT_EQ(save(ScheduleKind::kNone, "45"), Saved("", "", "", ""));
  EXPECT_EQ(save(ScheduleKind::kWindowsStart, "45"), Saved("", "", "", ""));
}

TEST(Schedule, MinuteFiftyEightAndFiveGiveFourInTheNextHour) {
  EXPECT_EQ(save(ScheduleKind::kMinutes, "5", at(10, 58)), Saved("1", "5", "4", "11"));
}

TEST(Schedule, SixtyMinutesRollToOne) {
  EXPECT_EQ(save(ScheduleKind::kMinutes, "5", at(10, 54)), Saved("1", "5", "59", "10"));
  EXPECT_EQ(save(ScheduleKind::kMinutes, "5", at(10, 55)), Saved("1", "5", "1", "11"));
}

TEST(Schedule, TheHourAfterTwentyThreeIsTwentyFour) {
  EXPECT_EQ(save(ScheduleKind::kMinutes, "5", at(23, 58)), Saved("1", "5", "4", "24"));
}

TEST(Schedule, OfManyMinutesLeavesAMinuteThatNoClockShows) {
  EXPECT_EQ(save(ScheduleKind::kMinutes, "118", at(10, 0)), Saved("1", "118", "59", "11"));
  EXPECT_EQ(save(ScheduleKind::kMinutes, "119", at(10, 0)), Saved("1", "119", "60", "11"));
  EXPECT_EQ(save(ScheduleKind::kMinutes, "1439", at(10, 0)), Saved("1", "1439", "1380", "11"));
}

TEST(Schedule, PastHourTwentyFourRollsToOne) {
  EXPECT_EQ(save(ScheduleKind::kHours, "3", at(22, 0)), Saved("2", "3", "", "1"));
}

TEST(Schedule, HourTwentyFourStays) {
  EXPECT_EQ(save(ScheduleKind::kHours, "3", at(21, 0)), Saved("2", "3", "", "24"));
}

TEST(Schedule, OfATextThatIsNoNumberKeepsItAndHasNoNextTime) {
  EXPECT_EQ(save(ScheduleKind::kMinutes, "abc"), Saved("1", "abc", "", ""));
  EXPECT_EQ(save(ScheduleKind::kHours, ""), Saved("2", "", "", ""));
  EXPECT_EQ(save(ScheduleKind::kDays, "6 days"), Saved("3", "6 days", "", ""));
  EXPECT_EQ(save(ScheduleKind::kDays, "inf"), Saved("3", "inf", "", ""));
  EXPECT_EQ(save(ScheduleKind::kDays, "--6"), Saved("3", "--6", "", ""));
}

TEST(Schedule, TakesAnyNumberAsTyped) {
  EXPECT_EQ(save(ScheduleKind::kMinutes, "0"), Saved("1", "0", "5", "10"));
  EXPECT_EQ(save(ScheduleKind::kMinutes, "-10"), Saved("1", "-10", "-5", "10"));
  EXPECT_EQ(save(ScheduleKind::kMinutes, "+2.5"), Saved("1", "+2.5", "7.5", "10"));
  EXPECT_EQ(save(ScheduleKind::kHours, "&H6"), Saved("2", "&H6", "", "16"));
  EXPECT_EQ(save(ScheduleKind::kDays, "1e1"), Saved("3", "1e1", "", "11/30/2026"));
  EXPECT_EQ(save(ScheduleKind::kDays, "0.5"), Saved("3", "0.5", "", "11/20/2026 12:00:00 PM"));
}

TEST(Schedule, BeyondTheCalendarHasNoNextTime) {
  EXPECT_EQ(save(ScheduleKind::kMonths, "99999999"), Saved("5", "99999999", "", ""));
}

TEST(Schedule, AfterMinutesAndHoursForEveryClockTime) {
  for (int hour = 0; hour < 24; ++hour) {
    for (int minute = 0; minute < 60; ++minute) {
      for (const int interval : {1, 5, 45, 59, 60}) {
        const ClockMinute next = afterMinutes(interval, hour, minute);
        const bool carried = minute + interval >= 60;
        ASSERT_EQ(next.minute, carried ? minute + interval - 59 : minute + interval);
        ASSERT_EQ(next.hour, carried ? hour + 1 : hour);
      }
    }
    for (int interval = 1; interval < 24; ++interval) {
      const int sum = hour + interval;
      ASSERT_EQ(afterHours(interval, hour), sum >= 25 ? sum - 24 : sum);
    }
  }
}

}  // namespace
}  // namespace tavr
