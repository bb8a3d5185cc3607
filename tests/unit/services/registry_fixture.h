// A registry layer of a test's own over a machine in a temporary folder.
#pragma once

#include <gtest/gtest.h>

#include "services/registry_layer.h"
#include "tests/support/test_machine.h"

namespace tavr {

class RegistryTest : public ::testing::Test {
 protected:
  static constexpr std::string_view kKey = "HKEY_CURRENT_USER\\Software\\Test";

  RegistryLayer& layer() {
    if (!layer_) layer_.emplace(machine.machine(), List12, List20, Text2);
    return *layer_;
  }

  static std::vector<std::string> rows(const TextList& list) {
    std::vector<std::string> all;
    for (int i = 0; i < list.count(); ++i) all.push_back(list.at(i));
    return all;
  }

  /// A text that may hold NULs.
  template <std::size_t size>
  static std::string bytes(const char (&literal)[size]) {
    return {literal, size - 1};
  }

  testing::TestMachine machine;
  TextList List12;
  TextList List20;
  TextBox Text2;

 private:
  std::optional<RegistryLayer> layer_;
};

using Rows = std::vector<std::string>;

}  // namespace tavr
