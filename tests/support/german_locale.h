// The text forms of a German Windows: day, month and year with points, hours to
// 24, a comma before fractions.
#pragma once

#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

#include "config/dates.h"
#include "platform/clock.h"

namespace tavr::testing {

class GermanLocale : public Locale {
 public:
  std::string shortDate(const LocalTime& time) override {
    char text[48];
    std::snprintf(text, sizeof text, "%02d.%02d.%04d", time.day, time.month, time.year);
    return text;
  }
  std::string longTime(const LocalTime& time) override {
    char text[48];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", time.hour, time.minute, time.second);
    return text;
  }
  std::optional<double> dateValue(std::string_view text) override {
    int day = 0;
    int month = 0;
    int year = 0;
    int hour = 0;
    if (std::sscanf(std::string(text).c_str(), "%d.%d.%d %d:", &day, &month, &year, &hour) < 3) {
      return {};
    }
    return dateOf({year, month, day, 0, 0, 0}) + hour / 24.0;
  }
  char decimalSign() override { return ','; }
};

}  // namespace tavr::testing
