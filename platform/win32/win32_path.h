// A path as the file calls of Windows take it.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "platform/win_error.h"

namespace tavr::win32 {

/// Where every text of a path ends, its NUL counted.
inline constexpr std::size_t kMaxPath = 260;

/// The text of one operation. It is made for each file of a run, so it stays off
/// the heap.
class NativePath {
 public:
  explicit NativePath(std::string_view text);

  /// Not 0: the text goes to no call, and this is the operation's answer.
  Status refused() const { return refused_; }
  const wchar_t* c_str() const { return units_.data(); }
  std::wstring_view text() const { return {units_.data(), length_}; }
  /// The text behind the last separator.
  std::wstring_view lastPart() const;

 private:
  void add(char32_t character);
  void startAtProgramsDrive();

  // More for the drive of a text that names none, the second half of a last pair
  // beyond the limit, and the NUL behind it.
  std::array<wchar_t, kMaxPath + 4> units_;
  std::size_t length_ = 0;
  Status refused_ = kSuccess;
};

/// lastFileStatus() for a call that wants a file: a folder is refused with 5
/// however its path is written.
Status lastStatusOfFile(const NativePath& path);

}  // namespace tavr::win32
