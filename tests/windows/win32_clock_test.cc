// The text forms of dates and times: those of the system, whatever its locale.
#include "platform/win32/win32_clock.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "platform/win32/wide.h"

namespace tavr::win32 {
namespace {

constexpr int kTextLength = 128;
constexpr LocalTime kMorning{2026, 11, 20, 9, 5, 7};

// The user's calendar is that of date values, which the texts are in.
bool usersCalendarIsGregorian() {
  DWORD calendar = 0;
  GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_ICALENDARTYPE | LOCALE_RETURN_NUMBER,
                  reinterpret_cast<wchar_t*>(&calendar), sizeof(calendar) / sizeof(wchar_t));
  return calendar == CAL_GREGORIAN || calendar == CAL_GREGORIAN_US;
}

TEST(Win32LocaleTest, ADateIsTheUsersShortDate) {
  if (!usersCalendarIsGregorian()) GTEST_SKIP() << "the user counts years otherwise";
  const SYSTEMTIME time = systemTime(kMorning);
  wchar_t text[kTextLength] = L"";
  ASSERT_GT(GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr, text,
                            kTextLength, nullptr),
            0);
  EXPECT_EQ(Win32Locale().shortDate(kMorning), narrow(text));
}

TEST(Win32LocaleTest, ATimeIsTheUsersLongTime) {
  for (const int hour : {0, 1, 9, 12, 23}) {
    LocalTime time = kMorning;
    time.hour = hour;
    const SYSTEMTIME system_time = systemTime(time);
    wchar_t text[kTextLength] = L"";
    ASSERT_GT(
        GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &system_time, nullptr, text, kTextLength), 0);
    EXPECT_EQ(Win32Locale().longTime(time), narrow(text));
  }
}

TEST(Win32LocaleTest, DayZeroOfDateValuesHasADateText) {
  const std::string text = Win32Locale().shortDate({1899, 12, 30, 0, 0, 0});
  EXPECT_NE(text.find("30"), std::string::npos) << text;
  EXPECT_NE(text.find("12"), std::string::npos) << text;
}

TEST(Win32LocaleTest, TheDecimalSignIsTheUsers) {
  wchar_t sign[4] = L"";
  ASSERT_GT(GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, sign, 4), 0);
  const char expected = sign[0] < 0x80 ? static_cast<char>(sign[0]) : '.';
  EXPECT_EQ(Win32Locale().decimalSign(), expected);
}

TEST(Win32ClockTest, NowIsTheLocalTimeOfTheSystem) {
  SYSTEMTIME before{};
  SYSTEMTIME after{};
  GetLocalTime(&before);
  const LocalTime now = Win32Clock().now();
  GetLocalTime(&after);
  EXPECT_TRUE(now.minute == before.wMinute || now.minute == after.wMinute);
  EXPECT_TRUE(now.hour == before.wHour || now.hour == after.wHour);
  EXPECT_TRUE(now.day == before.wDay || now.day == after.wDay);
}

}  // namespace
}  // namespace tavr::win32
