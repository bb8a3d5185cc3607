// The scenarios of tests/machine as the parameters of a test suite. Two programs run
// them: on machine folders, and beside the Windows program.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace tavr::testing {

/// Every scenario in `folder`, in the order of their names.
inline std::vector<std::filesystem::path> scenarioFiles(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() == ".scenario") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

/// A test's name takes letters, digits and "_" alone.
inline std::string scenarioTestName(const ::testing::TestParamInfo<std::filesystem::path>& file) {
  std::string name = file.param.stem().string();
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

}  // namespace tavr::testing
