// The machine folder's locale: the text forms of an English Windows.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/clock.h"

namespace tavr::folder {

class EnglishLocale : public Locale {
 public:
  std::string shortDate(const LocalTime& time) override;
  std::string longTime(const LocalTime& time) override;
  std::optional<double> dateValue(std::string_view text) override;
  char decimalSign() override { return '.'; }
};

}  // namespace tavr::folder
