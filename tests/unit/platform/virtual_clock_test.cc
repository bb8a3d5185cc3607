#include "platform/folder/virtual_clock.h"

#include <gtest/gtest.h>

#include <ctime>
#include <string>

#include "platform/folder/english_locale.h"

namespace tavr::folder {
namespace {

std::string written(const LocalTime& time) {
  EnglishLocale locale;
  return locale.shortDate(time) + " " + locale.longTime(time);
}

TEST(VirtualClock, StandsStillUntilItIsMoved) {
  VirtualClock clock({2026, 11, 20, 10, 0, 0});
  EXPECT_EQ(clock.ticks(), 0U);
  EXPECT_EQ(clock.ticks(), 0U);
  EXPECT_EQ(written(clock.now()), "11/20/2026 10:00:00 AM");
}

TEST(VirtualClock, ItsTimeIsItsStartAndItsTicks) {
  VirtualClock clock({2026, 12, 31, 23, 59, 58});
  clock.passUntil(1999);
  EXPECT_EQ(clock.ticks(), 1999U);
  EXPECT_EQ(written(clock.now()), "12/31/2026 11:59:59 PM");
  clock.passUntil(2000);
  EXPECT_EQ(written(clock.now()), "1/1/2027 12:00:00 AM");
}

TEST(VirtualClock, NeverGoesBack) {
  VirtualClock clock({2026, 11, 20, 10, 0, 0});
  clock.passUntil(500);
  clock.passUntil(100);
  EXPECT_EQ(clock.ticks(), 500U);
}

TEST(VirtualClock, KnowsLeapYearsAndDaysBefore1970) {
  VirtualClock leap({2028, 2, 28, 23, 59, 59});
  leap.passUntil(1000);
  EXPECT_EQ(written(leap.now()), "2/29/2028 12:00:00 AM");
  VirtualClock early({1601, 1, 1, 0, 0, 0});
  early.passUntil(61'000);
  EXPECT_EQ(written(early.now()), "1/1/1601 12:01:01 AM");
}

TEST(RealClock, ShowsTheHostsLocalTime) {
  RealClock clock;
  std::tm local{};
  LocalTime now;
  std::time_t before = 0;
  do {  // both readings in one second
    before = std::time(nullptr);
    ::localtime_r(&before, &local);
    now = clock.now();
  } while (before != std::time(nullptr));
  EXPECT_EQ(now.year, local.tm_year + 1900);
  EXPECT_EQ(now.month, local.tm_mon + 1);
  EXPECT_EQ(now.day, local.tm_mday);
  EXPECT_EQ(now.hour, local.tm_hour);
  EXPECT_EQ(now.minute, local.tm_min);
}

TEST(RealClock, TicksPassWhileItIsWaitedFor) {
  RealClock clock;
  const std::uint64_t from = clock.ticks();
  while (clock.ticks() < from + 20) clock.passUntil(from + 20);
  EXPECT_GE(clock.ticks(), from + 20);
  const std::uint64_t later = clock.ticks();
  clock.passUntil(from);  // past already: no wait
  EXPECT_LT(clock.ticks(), later + 1000);
}

TEST(EnglishLocale, WritesDatesAndTimesUnpadded) {
  EXPECT_EQ(written({2026, 1, 2, 0, 3, 4}), "1/2/2026 12:03:04 AM");
  EXPECT_EQ(written({2026, 1, 2, 9, 3, 4}), "1/2/2026 9:03:04 AM");
  EXPECT_EQ(written({2026, 1, 2, 12, 0, 0}), "1/2/2026 12:00:00 PM");
  EXPECT_EQ(written({2026, 1, 2, 13, 0, 0}), "1/2/2026 1:00:00 PM");
  EXPECT_EQ(EnglishLocale().decimalSign(), '.');
}

}  // namespace
}  // namespace tavr::folder
