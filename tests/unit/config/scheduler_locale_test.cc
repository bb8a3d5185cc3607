// The schedule on a machine whose dates and fractions are written otherwise.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <optional>
#include <string>

#include "tests/support/german_locale.h"
#include "tests/support/scheduler_stage.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::kDay;
using testing::Scheduler;

class GermanScheduler : public Scheduler {
 protected:
  GermanScheduler() { locale = &german_; }

 private:
  testing::GermanLocale german_;
};

TEST_F(GermanScheduler, DateAndTimeOfTheSavingAreInItsForm) {
  save(&Form3::Option1, &Form3::Text1, "45");
  EXPECT_EQ(stored("startdate"), "20.11.2026");
  EXPECT_EQ(stored("starttime"), "10:00:00");
}

// The second of December, and not the twelfth of February.
TEST_F(GermanScheduler, DatesAreStoredInItsFormAndReadBack) {
  save(&Form3::Option3, &Form3::Text3, "6");
  EXPECT_EQ(stored("nextday"), "26.11.2026");
  EXPECT_EQ(stored("nexthoure"), "26.11.2026");
  play(30 * kDay);
  EXPECT_THAT(fired, ElementsAre("11/26 00:00:00", "12/2 00:00:00", "12/8 00:00:00",
                                 "12/14 00:00:00", "12/20 00:00:00"));
  EXPECT_EQ(stored("nextday"), "26.12.2026");
}

TEST_F(GermanScheduler, ADateOfAnotherFormIsNone) {
  timerSetting("option", "4");
  timerSetting("value", "2");
  timerSetting("nextweek", "01.01.2030");
  tick();
  stage().program.registry.saveSetting("software\\tavrwork\\tavr wipe\\timer", "nextweek",
                                       "11/19/2026");
  tick();
  EXPECT_THAT(fired, IsEmpty());
}

// A fraction is written with the comma, where the reading of a number ends.
TEST_F(GermanScheduler, FractionsAreWrittenWithItsSignAndReadWithoutThem) {
  save(&Form3::Option1, &Form3::Text1, "2,5");
  EXPECT_EQ(stored("value"), "2,5");
  EXPECT_EQ(stored("nextmin"), "2,5");
  play(120'000);
  EXPECT_THAT(fired, ElementsAre("11/20 10:02:00"));
  EXPECT_EQ(stored("nextmin"), "4");
}

TEST_F(GermanScheduler, APartOfADayIsStoredAsATime) {
  save(&Form3::Option3, &Form3::Text3, "1,5");
  EXPECT_EQ(stored("nextday"), "21.11.2026 12:00:00");
  play(2 * kDay);
  ASSERT_FALSE(fired.empty());
  EXPECT_EQ(fired.front(), "11/22 00:00:00");
}

// Hungarian: the system writes such a date and does not read it. Were it no date, an
// Erase would start at every tick.
class HungarianLocale : public testing::GermanLocale {
 public:
  std::string shortDate(const LocalTime& time) override {
    char text[48];
    std::snprintf(text, sizeof text, "%04d. %02d. %02d.", time.year, time.month, time.day);
    return text;
  }
  std::optional<double> dateValue(std::string_view) override { return {}; }
};

TEST_F(Scheduler, ADateThatTheSystemDoesNotReadBackIsWaitedForAllTheSame) {
  HungarianLocale hungarian;
  locale = &hungarian;
  save(&Form3::Option3, &Form3::Text3, "6");
  EXPECT_EQ(stored("nextday"), "2026. 11. 26.");
  play(13 * kDay);
  EXPECT_THAT(fired, ElementsAre("11/26 00:00:00", "12/2 00:00:00"));
  EXPECT_EQ(stored("nextday"), "2026. 12. 08.");
}

}  // namespace
}  // namespace tavr
