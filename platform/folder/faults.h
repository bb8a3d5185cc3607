// Faults of the machine folder: the nth call of an operation fails with a
// Windows error, as machine.ini's [fault] section says. Operations carry their
// Windows names without the A or W ("DeleteFile", "RegOpenKeyEx").
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "basic/text.h"
#include "platform/win_error.h"

namespace tavr::folder {

class Faults {
 public:
  /// The counter of one operation. An operation calls hit() first and returns
  /// what it answers unless that is 0.
  class Point {
   public:
    Status hit() {
      if (error_ == kSuccess) return kSuccess;
      ++calls_;
      return nth_ == 0 || calls_ == nth_ ? error_ : kSuccess;
    }

   private:
    friend class Faults;
    std::uint32_t nth_ = 0;  // 0: every call
    std::uint32_t calls_ = 0;
    Status error_ = kSuccess;
  };

  void set(std::string_view operation, std::uint32_t nth, Status error) {
    Point& point = points_[UCase(operation)];
    point.nth_ = nth;
    point.error_ = error;
  }

  /// The operation's counter; lives as long as this object.
  Point& point(std::string_view operation) { return points_[UCase(operation)]; }

 private:
  std::map<std::string, Point> points_;
};

}  // namespace tavr::folder
