#include "services/search.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "basic/resume_next.h"
#include "basic/text.h"
#include "services/event_log.h"

namespace tavr {

namespace {

constexpr std::string_view kModule = "Search";
constexpr std::uint64_t kTicksPerSecond = 10000000;
constexpr double kSecondsPerDay = 86400;
// 1601-01-01 to 1899-12-30.
constexpr double kFileTimeToDateDays = 109205;
// 9999-12-31 24:00, the end of what a date value holds.
constexpr double kEndOfDates = 2958466;

}  // namespace

Date fileTimeToDate(std::uint64_t file_time) {
  const std::uint64_t whole_seconds = file_time / kTicksPerSecond;
  const auto seconds = static_cast<double>(whole_seconds);
  const Date date = seconds / kSecondsPerDay - kFileTimeToDateDays;
  if (date >= kEndOfDates) throw RuntimeError{kErrTypeMismatch, "Type mismatch"};
  if (date >= 0) return date;
  // Before the first day the day counts down and its time still counts up.
  const Date day = std::floor(date);
  return day - (date - day);
}

double fileSizeToDouble(std::uint32_t high, std::uint32_t low) {
  const std::int64_t product = std::int64_t{static_cast<std::int32_t>(high)} * 0x7FFFFFFF;
  const std::int64_t sum = product + static_cast<std::int32_t>(low);
  const auto fits = [](std::int64_t value) {
    return value >= std::numeric_limits<std::int32_t>::min() &&
           value <= std::numeric_limits<std::int32_t>::max();
  };
  if (!fits(product) || !fits(sum)) throw RuntimeError{kErrOverflow, "Overflow"};
  return static_cast<double>(sum);
}

const FoundFiles::Record& FoundFiles::record(std::size_t index) const {
  if (index < 1 || index > count_) throw RuntimeError{kErrSubscript, "Subscript out of range"};
  return records_[(index - 1) / kRecordsPerBlock][(index - 1) % kRecordsPerBlock];
}

const char* FoundFiles::keep(std::string_view name) {
  if (name.size() > free_) {
    const std::size_t size = std::max(name.size(), kNameBlock);
    names_.push_back(std::make_unique_for_overwrite<char[]>(size));
    next_ = names_.back().get();
    free_ = size;
  }
  const char* const at = next_;
  next_ = std::copy(name.begin(), name.end(), next_);
  free_ -= name.size();
  return at;
}

void FoundFiles::add(std::string_view folder, const FoundFile& found, double size,
                     const Date (&dates)[3]) {
  if (folders_.empty() || folders_.back() != folder) folders_.emplace_back(folder);
  if (count_ % kRecordsPerBlock == 0) {
    records_.push_back(std::make_unique_for_overwrite<Record[]>(kRecordsPerBlock));
  }
  records_.back()[count_ % kRecordsPerBlock] = {keep(found.name),
                                                static_cast<std::uint32_t>(found.name.size()),
                                                static_cast<std::uint32_t>(folders_.size() - 1),
                                                found.attributes,
                                                size,
                                                {dates[0], dates[1], dates[2]}};
  ++count_;
}

void FoundFiles::fullName(std::size_t index, std::string& out) const {
  const Record& found = record(index);
  out.assign(folders_[found.folder]);
  out.append(found.name, found.name_length);
}

File FoundFiles::item(std::size_t index) const {
  const Record& found = record(index);
  File file;
  fullName(index, file.FileNameFull);
  file.FileName.assign(found.name, found.name_length);
  file.FilePath = folders_[found.folder];
  file.FileAttributes = found.attributes;
  // A listing may lack hidden and system; they are asked for with the item.
  std::uint32_t attributes = 0;
  if (files_.attributes(file.FileNameFull, attributes) == kSuccess) {
    file.FileAttributes |= attributes & (kAttrHidden | kAttrSystem);
  }
  file.Created = found.dates[0];
  file.Accessed = found.dates[1];
  file.Modified = found.dates[2];
  file.FileSize = found.size;
  return file;
}

void Search::SearchFiles(std::string_view folder, std::string_view mask, bool recursive) {
  if (folder.empty() || folder == "\\") return;
  walk(std::string(folder), mask, recursive);
}

// The call is noted with the folder as it was asked for.
void Search::walk(std::string folder, std::string_view mask, bool recursive) {
  const auto call = stack_.enter(
      kModule, "SearchFiles", "FilePath: " + folder,
      ", FileName: " + std::string(mask) + ", Recursive: " + (recursive ? "True" : "False"));
  if (!endsInBackslash(folder)) folder += '\\';
  // One listing serves both walks of the folder: nothing else runs between them.
  FolderListing listing;
  machine_.files.listFolder(folder, mask, listing);
  if (recursive) {
    for (const std::string& name : listing.subfolders) walk(folder + name, mask, recursive);
  }
  for (const FoundFile& file : listing.files) addFile(folder, file);
}

void Search::addFile(std::string_view folder, const FoundFile& file) {
  const Date dates[3] = {date(file.created), date(file.accessed), date(file.written)};
  found_.add(folder, file, sizeOf(file), dates);
}

// The two conversions stand on the call stack only where somebody reads it.
Date Search::date(std::uint64_t file_time) {
  try {
    return fileTimeToDate(file_time);
  } catch (const RuntimeError& error) {
    const auto call = stack_.enter(kModule, "FileTimeToDate");
    fReportError(machine_, stack_, error, kModule, "FileTimeToDate", 0);
    return 0;
  }
}

double Search::sizeOf(const FoundFile& file) {
  try {
    return fileSizeToDouble(file.size_high, file.size_low);
  } catch (const RuntimeError& error) {
    const auto call = stack_.enter(kModule, "FileSizeToDouble");
    fReportError(machine_, stack_, error, kModule, "FileSizeToDouble", 0);
    return 0;
  }
}

}  // namespace tavr
