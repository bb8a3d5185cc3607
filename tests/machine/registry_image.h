// What a registry.reg says, as a list that two can be compared by: keys and
// values without case, a text with and without its closing NUL the same.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tests/machine/scenario.h"

namespace tavr::testing {

class RegistryImage {
 public:
  /// From the bytes of a registry.reg; "" is an empty registry. Raises
  /// folder::MalformedFile.
  static RegistryImage of(std::string_view file);

  /// Makes the changes, removals first; what could not be made, one line each:
  /// a removed key or value that was not there, a line that changes nothing.
  std::vector<std::string> apply(const std::vector<RegistryLine>& lines);

  /// Makes the changes that lead from one registry to another.
  void changeAs(const RegistryImage& from, const RegistryImage& to);

  /// "-" lines for what is missing in `actual`, "+" lines for what it has more,
  /// both for a value that differs.
  std::vector<std::string> differences(const RegistryImage& actual) const;

  /// What stands here and not in `later`, whatever its value there.
  std::vector<std::string> missingIn(const RegistryImage& later) const;

 private:
  struct Item {
    std::string name;   // as it is shown
    std::string value;  // type and data, "" for a key
    bool operator==(const Item& other) const { return value == other.value; }
  };

  bool removeKey(std::string_view key);

  std::map<std::string, Item> items_;  // by the upper-cased path, and name behind a NUL
};

}  // namespace tavr::testing
