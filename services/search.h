// The recursive file finder of the track procedures. It collects the whole
// tree before anything is reported; it filters nothing, and the keep list has
// no part in it.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/machine.h"
#include "services/call_stack.h"

namespace tavr {

/// A date as the runtime keeps it: days since 1899-12-30, the time as fraction.
using Date = double;

/// One found file.
struct File {
  std::string FileNameFull;
  std::string FileName;
  std::string FilePath;  ///< with its trailing backslash
  std::uint32_t FileAttributes = 0;
  Date Created = 0;
  Date Accessed = 0;
  Date Modified = 0;
  double FileSize = 0;
};

/// The found files in their order. Names are kept beside their folder, so a
/// million of them stay small; a File is put together when it is asked for.
class FoundFiles {
 public:
  explicit FoundFiles(Files& files) : files_(files) {}

  std::size_t count() const { return count_; }
  /// Items are numbered from 1. Raises 9 outside.
  File item(std::size_t index) const;

  /// The full name and the size alone, for walking many.
  void fullName(std::size_t index, std::string& out) const;
  double size(std::size_t index) const { return record(index).size; }

  /// Adds an entry of `folder`, which ends in "\"; a run of entries of one
  /// folder shares it.
  void add(std::string_view folder, const FoundFile& found, double size, const Date (&dates)[3]);

 private:
  struct Record {
    const char* name = nullptr;
    std::uint32_t name_length = 0;
    std::uint32_t folder = 0;
    std::uint32_t attributes = 0;
    double size = 0;
    Date dates[3] = {};  // created, accessed, modified
  };
  static constexpr std::size_t kRecordsPerBlock = 4096;
  static constexpr std::size_t kNameBlock = std::size_t{1} << 16;

  const Record& record(std::size_t index) const;
  const char* keep(std::string_view name);

  Files& files_;
  std::deque<std::string> folders_;
  std::vector<std::unique_ptr<Record[]>> records_;
  std::vector<std::unique_ptr<char[]>> names_;
  std::size_t count_ = 0;
  std::size_t free_ = 0;
  char* next_ = nullptr;
};

/// One search; results of several SearchFiles calls add up.
class Search {
 public:
  Search(Machine& machine, CallStack& stack)
      : machine_(machine), stack_(stack), found_(machine.files) {}

  /// Every file below `folder` whose name matches `mask`: subfolders first,
  /// depth-first, in the machine's order, each ahead of the folder's own files.
  /// A folder that is not there adds nothing. A folder that is "" or "\" finds
  /// nothing: it would be the root of the current drive, and no track means a
  /// whole drive.
  void SearchFiles(std::string_view folder, std::string_view mask, bool recursive);

  const FoundFiles& found() const { return found_; }

 private:
  void walk(std::string folder, std::string_view mask, bool recursive);
  void addFile(std::string_view folder, const FoundFile& file);
  Date date(std::uint64_t file_time);
  double sizeOf(const FoundFile& file);

  Machine& machine_;
  CallStack& stack_;
  FoundFiles found_;
};

/// A FILETIME as a date, with no change to local time. Raises 13 for a time
/// that no date value holds.
Date fileTimeToDate(std::uint64_t file_time);

/// High word times 0x7FFFFFFF plus low word in signed 32-bit arithmetic: from
/// 2 GiB to 4 GiB negative. Raises 6 when it overflows.
double fileSizeToDouble(std::uint32_t high, std::uint32_t low);

}  // namespace tavr
