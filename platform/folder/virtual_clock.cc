#include "platform/folder/virtual_clock.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>

namespace tavr::folder {

namespace {

constexpr std::uint64_t kLongestSleep = 100;  // ms: an interrupt is seen within this time

std::chrono::year_month_day calendarDay(const LocalTime& time) {
  return std::chrono::year(time.year) / std::chrono::month(static_cast<unsigned>(time.month)) /
         std::chrono::day(static_cast<unsigned>(time.day));
}

}  // namespace

bool validTime(const LocalTime& time) {
  return time.month > 0 && time.day > 0 && calendarDay(time).ok() && time.hour >= 0 &&
         time.hour < 24 && time.minute >= 0 && time.minute < 60 && time.second >= 0 &&
         time.second < 60;
}

VirtualClock::VirtualClock(const LocalTime& start) {
  const std::chrono::sys_days day = calendarDay(start);
  const auto time = std::chrono::hours(start.hour) + std::chrono::minutes(start.minute) +
                    std::chrono::seconds(start.second);
  start_seconds_ = (day.time_since_epoch() + time).count();
}

LocalTime VirtualClock::now() {
  const std::chrono::sys_seconds at(
      std::chrono::seconds(start_seconds_ + static_cast<std::int64_t>(ticks_ / 1000)));
  const auto day = std::chrono::floor<std::chrono::days>(at);
  const std::chrono::year_month_day date(day);
  const std::chrono::hh_mm_ss time(at - day);
  return {static_cast<int>(date.year()),
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())),
          static_cast<int>(time.hours().count()),
          static_cast<int>(time.minutes().count()),
          static_cast<int>(time.seconds().count())};
}

void VirtualClock::passUntil(std::uint64_t tick) { ticks_ = std::max(ticks_, tick); }

LocalTime RealClock::now() {
  const std::time_t at = std::time(nullptr);
  std::tm local{};
  ::localtime_r(&at, &local);
  // A leap second has no place in a Windows time.
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
          local.tm_hour,        local.tm_min,     std::min(local.tm_sec, 59)};
}

std::uint64_t RealClock::ticks() {
  // The coarse clock: every file of a run asks, and some milliseconds do not
  // matter to timers of 100 ms and more.
  std::timespec time{};
  ::clock_gettime(CLOCK_MONOTONIC_COARSE, &time);
  return static_cast<std::uint64_t>(time.tv_sec) * 1000 +
         static_cast<std::uint64_t>(time.tv_nsec) / 1'000'000;
}

void RealClock::passUntil(std::uint64_t tick) {
  const std::uint64_t from = ticks();
  if (tick <= from) return;
  const std::uint64_t slice = std::min(tick - from, kLongestSleep);
  const std::timespec sleep{0, static_cast<long>(slice * 1'000'000)};
  ::nanosleep(&sleep, nullptr);  // a signal ends it early, as it should
}

}  // namespace tavr::folder
