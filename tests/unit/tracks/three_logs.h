// Three files to find: a.log of 10 bytes, b.log of 20, sub\c.log of 30.
#pragma once

#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {

inline constexpr std::string_view kLogs = "C:\\d";

class ThreeLogs : public TrackTest {
 protected:
  ThreeLogs() {
    world_.file("C:\\d\\a.log", std::string(10, 'a'));
    world_.file("C:\\d\\b.log", std::string(20, 'b'));
    world_.file("C:\\d\\sub\\c.log", std::string(30, 'c'));
    world_.file("C:\\d\\keep.txt");
  }
  bool remains(std::string_view name) {
    return world_.exists(std::string(kLogs) + "\\" + std::string(name));
  }
};

}  // namespace tavr::testing
