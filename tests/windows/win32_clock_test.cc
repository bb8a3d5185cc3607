// The text forms of dates and times: those of the system, whatever its locale.
#include "platform/win32/win32_clock.h"

#include <gtest/gtest.h>
#include <windows.h>
// Behind windows.h.
#include <oleauto.h>

#include <string>

#include "platform/win32/wide.h"

namespace tavr::win32 {
namespace {

constexpr LocalTime kMorning{2026, 11, 20, 9, 5, 7};

// The conversion of date values, another road to the same texts.
std::string dateValueText(const LocalTime& time, ULONG part) {
  UDATE calendar{};
  calendar.st.wYear = static_cast<WORD>(time.year);
  calendar.st.wMonth = static_cast<WORD>(time.month);
  calendar.st.wDay = static_cast<WORD>(time.day);
  calendar.st.wHour = static_cast<WORD>(time.hour);
  calendar.st.wMinute = static_cast<WORD>(time.minute);
  calendar.st.wSecond = static_cast<WORD>(time.second);
  DATE date = 0;
  BSTR text = nullptr;
  EXPECT_EQ(VarDateFromUdate(&calendar, 0, &date), S_OK);
  EXPECT_EQ(VarBstrFromDate(date, LOCALE_USER_DEFAULT, part, &text), S_OK);
  const std::string out = narrow({text, SysStringLen(text)});
  SysFreeString(text);
  return out;
}

TEST(Win32LocaleTest, ADateIsTheUsersShortDate) {
  EXPECT_EQ(Win32Locale().shortDate(kMorning), dateValueText(kMorning, VAR_DATEVALUEONLY));
  EXPECT_NE(Win32Locale().shortDate(kMorning).find("20"), std::string::npos);
}

TEST(Win32LocaleTest, ATimeIsTheUsersLongTime) {
  for (const int hour : {1, 9, 12, 23}) {
    LocalTime time = kMorning;
    time.hour = hour;
    EXPECT_EQ(Win32Locale().longTime(time), dateValueText(time, VAR_TIMEVALUEONLY));
    EXPECT_NE(Win32Locale().longTime(time).find("05"), std::string::npos);
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
