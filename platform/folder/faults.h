// Faults of the machine folder: the nth call of an operation fails with a
// Windows error, as machine.ini's [fault] section says. Operations carry their
// Windows names without the A or W ("DeleteFile", "RegOpenKeyEx"); one may fail
// several times.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "basic/text.h"
#include "platform/win_error.h"

namespace tavr::folder {

class Faults {
 public:
  /// The counter of one operation. An operation calls hit() first and returns
  /// what it answers unless that is 0.
  class Point {
   public:
    Status hit() { return faults_.empty() ? kSuccess : ofNextCall(); }

   private:
    friend class Faults;
    struct Fault {
      std::uint32_t nth = 0;
      Status error = kSuccess;
    };

    Status ofNextCall() {
      ++calls_;
      Status of_every_call = kSuccess;
      for (const Fault& fault : faults_) {
        if (fault.nth == calls_) return fault.error;
        if (fault.nth == 0) of_every_call = fault.error;
      }
      return of_every_call;
    }

    std::vector<Fault> faults_;
    std::uint32_t calls_ = 0;  // counted from the first fault on
  };

  /// The nth call fails; `nth` 0: every call that no other fault names.
  void add(std::string_view operation, std::uint32_t nth, Status error) {
    points_[UCase(operation)].faults_.push_back({nth, error});
  }

  /// The operation's counter; lives as long as this object.
  Point& point(std::string_view operation) { return points_[UCase(operation)]; }

 private:
  std::map<std::string, Point> points_;
};

}  // namespace tavr::folder
