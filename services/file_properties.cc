#include "services/file_properties.h"

#include <chrono>

#include "basic/number.h"
#include "basic/text.h"

namespace tavr {

namespace {

using std::chrono::days;
using std::chrono::seconds;

struct DateAndTime {
  std::string date;
  std::string time;
};

// Day/month/year and hour:minute:second of a FILETIME, unpadded.
DateAndTime texts(std::uint64_t file_time) {
  const std::chrono::sys_days start = std::chrono::year{1601} / 1 / 1;
  const auto total = seconds(static_cast<std::int64_t>(file_time / 10000000));
  const auto whole_days = std::chrono::floor<days>(total);
  const std::chrono::year_month_day day{start + whole_days};
  const std::chrono::hh_mm_ss time{total - whole_days};
  return {numberText(static_cast<unsigned>(day.day())) + "/" +
              numberText(static_cast<unsigned>(day.month())) + "/" +
              numberText(static_cast<int>(day.year())),
          numberText(static_cast<double>(time.hours().count())) + ":" +
              numberText(static_cast<double>(time.minutes().count())) + ":" +
              numberText(static_cast<double>(time.seconds().count()))};
}

std::string both(const DateAndTime& text) { return text.date + " " + text.time; }

std::string sizeText(const FoundFile& file) {
  const std::uint32_t word = file.size_high != 0 ? file.size_high : file.size_low;
  return word == 0 ? "" : numberText(static_cast<std::int32_t>(word));
}

}  // namespace

int clsFileProp::FindFileInfo(std::string_view path) {
  if (path.empty()) return 0;
  FoundFile found;
  if (machine_.files.findFirst(path, found) != kSuccess) found = FoundFile{};
  creation_time_ = both(texts(found.created));
  last_write_time_ = both(texts(found.written));
  last_access_time_ = texts(found.accessed).date;
  attributes_ = found.attributes;
  file_name_ = UCase(path);
  byte_size_ = sizeText(found);
  return 1;
}

}  // namespace tavr
