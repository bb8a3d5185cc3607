// The text forms of dates and times (platform/clock.h).
#include <optional>
#include <string>

#include "tests/contract/contract_test.h"

namespace tavr::contract {
namespace {

constexpr LocalTime kTime{2026, 11, 20, 18, 0, 0};
constexpr double kDay = 46346;  // days from 30 December 1899 to it

class LocaleContract : public ContractTest {
 protected:
  Locale& locale() { return machine().locale; }
  std::optional<double> read(const std::string& text) { return locale().dateValue(text); }
};

TEST_F(LocaleContract, AWrittenDateReadsBack) {
  EXPECT_EQ(read(locale().shortDate(kTime)), kDay);
  for (const LocalTime& day : {LocalTime{2000, 2, 29, 0, 0, 0}, LocalTime{2027, 1, 1, 0, 0, 0},
                               LocalTime{2026, 12, 31, 0, 0, 0}}) {
    const std::string text = locale().shortDate(day);
    const std::optional<double> value = read(text);
    ASSERT_TRUE(value) << text;
    EXPECT_EQ(*value, static_cast<double>(static_cast<int>(*value))) << text << ": a whole day";
  }
  EXPECT_EQ(read(locale().shortDate({2027, 1, 1, 0, 0, 0})),
            *read(locale().shortDate({2026, 12, 31, 0, 0, 0})) + 1);
}

TEST_F(LocaleContract, ADayBelowThirteenIsNotTakenForTheMonth) {
  const auto first = read(locale().shortDate({2026, 3, 4, 0, 0, 0}));
  const auto next_day = read(locale().shortDate({2026, 3, 5, 0, 0, 0}));
  ASSERT_TRUE(first && next_day);
  EXPECT_EQ(*next_day, *first + 1);
}

TEST_F(LocaleContract, AWrittenTimeReadsBackAsAPartOfADay) {
  EXPECT_EQ(read(locale().longTime(kTime)), 0.75);
  EXPECT_EQ(read(locale().longTime({2026, 11, 20, 6, 0, 0})), 0.25);
  EXPECT_EQ(read(locale().longTime({2026, 11, 20, 0, 0, 0})), 0.0) << "midnight";
}

TEST_F(LocaleContract, DateAndTimeTogetherReadBack) {
  EXPECT_EQ(read(locale().shortDate(kTime) + " " + locale().longTime(kTime)), kDay + 0.75);
}

TEST_F(LocaleContract, WhatIsNoDateHasNoValue) {
  EXPECT_EQ(read(""), std::nullopt);
  EXPECT_EQ(read("no date"), std::nullopt);
}

}  // namespace
}  // namespace tavr::contract
