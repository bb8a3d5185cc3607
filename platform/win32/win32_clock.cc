#include "platform/win32/win32_clock.h"

#include <windows.h>
// Behind windows.h.
#include <oleauto.h>

#include <memory>
#include <string>

#include "platform/win32/wide.h"

namespace tavr::win32 {

namespace {

constexpr int kTextLength = 128;

struct FreeText {
  void operator()(wchar_t* text) const { SysFreeString(text); }
};

// Written by the service that reads dates back, in its calendar: the formats of
// the user may be those of another. "" for what is no date.
std::string textOf(const SYSTEMTIME& time, ULONG part) {
  UDATE calendar{};
  calendar.st = time;
  DATE date = 0;
  BSTR text = nullptr;
  if (FAILED(VarDateFromUdate(&calendar, 0, &date)) ||
      FAILED(VarBstrFromDate(date, LOCALE_USER_DEFAULT, part, &text))) {
    return {};
  }
  const std::unique_ptr<wchar_t, FreeText> owned(text);
  return narrow({text, SysStringLen(text)});
}

}  // namespace

SYSTEMTIME systemTime(const LocalTime& time) {
  SYSTEMTIME out{};
  out.wYear = static_cast<WORD>(time.year);
  out.wMonth = static_cast<WORD>(time.month);
  out.wDay = static_cast<WORD>(time.day);
  out.wHour = static_cast<WORD>(time.hour);
  out.wMinute = static_cast<WORD>(time.minute);
  out.wSecond = static_cast<WORD>(time.second);
  return out;
}

std::uint64_t tickCount() {
  static const std::uint64_t kPerSecond = [] {
    LARGE_INTEGER frequency{};
    QueryPerformanceFrequency(&frequency);
    return static_cast<std::uint64_t>(frequency.QuadPart);
  }();
  LARGE_INTEGER counter{};
  QueryPerformanceCounter(&counter);
  const auto count = static_cast<std::uint64_t>(counter.QuadPart);
  return count / kPerSecond * 1000 + count % kPerSecond * 1000 / kPerSecond;
}

LocalTime Win32Clock::now() {
  SYSTEMTIME time{};
  GetLocalTime(&time);
  return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond};
}

std::string Win32Locale::shortDate(const LocalTime& time) {
  const SYSTEMTIME system_time = systemTime(time);
  std::string date = textOf(system_time, VAR_DATEVALUEONLY);
  if (!date.empty()) return date;
  // Day zero of date values is no date to that service.
  wchar_t text[kTextLength] = L"";
  GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &system_time, nullptr, text,
                  kTextLength, nullptr);
  return narrow(text);
}

std::string Win32Locale::longTime(const LocalTime& time) {
  const SYSTEMTIME system_time = systemTime(time);
  std::string written = textOf(system_time, VAR_TIMEVALUEONLY);
  if (!written.empty()) return written;
  // Midnight is no time to that service.
  wchar_t text[kTextLength] = L"";
  GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &system_time, nullptr, text, kTextLength);
  return narrow(text);
}

std::optional<double> Win32Locale::dateValue(std::string_view text) {
  DATE date = 0;
  std::wstring written = wide(text);
  if (FAILED(VarDateFromStr(written.data(), LOCALE_USER_DEFAULT, 0, &date))) return {};
  return date;
}

char Win32Locale::decimalSign() {
  wchar_t sign[4] = L"";
  GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, sign, 4);
  // A sign beyond ASCII has no place in a char; texts then keep the point.
  return sign[0] > 0 && sign[0] < 0x80 ? static_cast<char>(sign[0]) : '.';
}

}  // namespace tavr::win32
