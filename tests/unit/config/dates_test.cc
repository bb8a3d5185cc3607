// Dates as the settings hold them: the locale's short form, and back.
#include "config/dates.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "basic/resume_next.h"
#include "platform/folder/english_locale.h"
#include "tests/support/german_locale.h"

namespace tavr {
namespace {

// Writes dates with blanks and a closing sign and times with points, as Hungarian
// and Finnish do, and reads neither.
class ForeignLocale : public Locale {
 public:
  explicit ForeignLocale(const char* date_form, int century = 0)
      : date_form_(date_form), century_(century) {}
  std::string shortDate(const LocalTime& time) override {
    char text[48];
    std::snprintf(text, sizeof text, date_form_, time.day, time.month, time.year - century_);
    return text;
  }
  std::string longTime(const LocalTime& time) override {
    char text[48];
    const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
    std::snprintf(text, sizeof text, "%s %d.%02d.%02d", time.hour < 12 ? "before" : "after", hour,
                  time.minute, time.second);
    return text;
  }
  std::optional<double> dateValue(std::string_view) override { return {}; }
  char decimalSign() override { return ','; }

 private:
  const char* date_form_;
  int century_;  // left out of the year
};

class Dates : public ::testing::Test {
 protected:
  int errorOf(std::string_view text) {
    try {
      toDate(english, text);
      return 0;
    } catch (const RuntimeError& error) {
      return error.number;
    }
  }
  DateNumber day(int year, int month, int date) { return dateOf({year, month, date, 13, 14, 15}); }

  folder::EnglishLocale english;
  testing::GermanLocale german;
};

TEST_F(Dates, CountFromTheThirtiethOfDecember1899) {
  EXPECT_EQ(day(1899, 12, 30), 0);
  EXPECT_EQ(day(1900, 1, 1), 2);
  EXPECT_EQ(day(2026, 11, 20), 46346);
  EXPECT_EQ(day(1899, 12, 29), -1);
}

TEST_F(Dates, AreWrittenInTheShortForm) {
  EXPECT_EQ(dateText(english, day(2026, 11, 20)), "11/20/2026");
  EXPECT_EQ(dateText(english, day(2027, 1, 2)), "1/2/2027");
  EXPECT_EQ(dateText(german, day(2027, 1, 2)), "02.01.2027");
}

TEST_F(Dates, WithATimeOfDayCarryTheLongForm) {
  EXPECT_EQ(dateText(english, day(2026, 11, 20) + 0.5), "11/20/2026 12:00:00 PM");
  EXPECT_EQ(dateText(german, day(2026, 11, 20) + 0.75), "20.11.2026 18:00:00");
}

TEST_F(Dates, AreReadBackFromTheShortForm) {
  EXPECT_EQ(toDate(english, "11/20/2026"), day(2026, 11, 20));
  EXPECT_EQ(toDate(english, " 1/2/2027 "), day(2027, 1, 2));
  EXPECT_EQ(toDate(english, "2/29/2028"), day(2028, 2, 29));
  EXPECT_EQ(toDate(english, "11-20-2026"), day(2026, 11, 20));
  EXPECT_EQ(toDate(german, "02.01.2027"), day(2027, 1, 2));
  EXPECT_EQ(toDate(english, "11/20/2026 12:00:00 PM"), day(2026, 11, 20) + 0.5);
  EXPECT_EQ(toDate(english, "11/20/2026 12:00:00 AM"), day(2026, 11, 20));
  EXPECT_EQ(toDate(german, "20.11.2026 18:00:00"), day(2026, 11, 20) + 0.75);
}

TEST_F(Dates, AreReadBackInAFormThatTheSystemWritesAndDoesNotRead) {
  ForeignLocale foreign[] = {ForeignLocale("%3$d. %2$d. %1$d."), ForeignLocale("%02d.%02d.%d."),
                             ForeignLocale("%2$d-%1$d-%3$d y"),
                             ForeignLocale("%02d.%02d.%02d.", 2000)};
  for (ForeignLocale& locale : foreign) {
    for (const DateNumber date : {day(2026, 11, 20), day(2026, 12, 2), day(2027, 2, 12),
                                  day(2028, 2, 29), day(2003, 2, 1)}) {
      for (const double hour : {0, 1, 11, 12, 13, 23}) {
        const std::string text = dateText(locale, date + hour / 24);
        ASSERT_NEAR(toDate(locale, text), date + hour / 24, 1e-9) << text;
      }
    }
  }
}

TEST_F(Dates, OfSuchAFormAreNothingElse) {
  ForeignLocale foreign("%3$d. %2$d. %1$d.");
  for (const char* text :
       {"", "2026. 11. 31.", "2026.11.20", "20. 11. 2026.", "2026. 11.", "2026. 11. 20. x",
        "2026. 11. 20. after 6.00", "99999. 11. 20.", "2026. 11. 20. after 99.00.00",
        "2026. 11. 20. noon 1.00.00", "99999999999999999999. 1. 1."}) {
    EXPECT_THROW(toDate(foreign, text), RuntimeError) << text;
  }
}

TEST_F(Dates, OfAShortYearLieBetween1930And2029) {
  EXPECT_EQ(toDate(english, "1/2/29"), day(2029, 1, 2));
  EXPECT_EQ(toDate(english, "1/2/30"), day(1930, 1, 2));
}

TEST_F(Dates, RaiseATypeMismatchForAnyOtherText) {
  for (const char* text : {"",
                           " ",
                           "25",
                           "13",
                           "abc",
                           "2/30/2026",
                           "13/1/2026",
                           "0/1/2026",
                           "1/0/2026",
                           "1/2",
                           "1/2/3/4",
                           "11/20/2026x",
                           "/11/20/2026",
                           "11/20/",
                           "11/20/20261",
                           "11/20/2026 noon",
                           "11/20/2026 25:00",
                           "11/20/2026 0:00:00 AM",
                           "11/20/2026 13:00:00 PM",
                           "11/20/2026 1.5",
                           "11a20b2026",
                           "11:20:2026",
                           "11:20/2026",
                           "11/20/2026 10:30/15",
                           "10x30:00"}) {
    EXPECT_EQ(errorOf(text), kErrTypeMismatch) << text;
  }
}

TEST_F(Dates, EveryDayOfFiveYearsComesBack) {
  for (DateNumber date = day(2024, 1, 1); date < day(2029, 1, 1); ++date) {
    ASSERT_EQ(toDate(english, dateText(english, date)), date);
    ASSERT_EQ(toDate(german, dateText(german, date)), date);
  }
}

TEST_F(Dates, MoveByDays) {
  EXPECT_EQ(dateText(english, addDays(day(2026, 11, 20), 14)), "12/4/2026");
  EXPECT_EQ(dateText(english, addDays(day(2028, 2, 28), 1)), "2/29/2028");
  EXPECT_EQ(dateText(english, addDays(day(2026, 1, 1), -1)), "12/31/2025");
}

TEST_F(Dates, EndWithTheYear9999) {
  EXPECT_EQ(dateText(english, addDays(day(9999, 12, 30), 1)), "12/31/9999");
  EXPECT_THROW(addDays(day(9999, 12, 31), 1), RuntimeError);
  EXPECT_THROW(addDays(day(2026, 11, 20), 1e300), RuntimeError);
  EXPECT_THROW(addDays(day(2026, 11, 20), -1e300), RuntimeError);
}

}  // namespace
}  // namespace tavr
