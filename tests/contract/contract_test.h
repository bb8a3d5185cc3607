// The fixture of every contract suite: one machine a test.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

#include "tests/contract/contract_machine.h"

namespace tavr::contract {

class ContractTest : public ::testing::Test {
 protected:
  void SetUp() override {
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    const std::string name = std::string(test->test_suite_name()) + "." + test->name();
    if (const std::string reason = machine_->whyNot(name); !reason.empty()) GTEST_SKIP() << reason;
  }

  ContractMachine& on() { return *machine_; }
  Machine& machine() { return machine_->machine(); }

  /// A path in the scratch folder; the folder itself without a name.
  std::string at(std::string_view name = {}) {
    std::string path = machine_->scratchFolder();
    if (!name.empty()) path.append("\\").append(name);
    return path;
  }

  /// A scratch file's path, the file made.
  std::string file(std::string_view name, std::string_view contents = "x") {
    const std::string path = at(name);
    machine_->plantFile(path, contents);
    return path;
  }

 private:
  std::unique_ptr<ContractMachine> machine_ = makeContractMachine();
};

}  // namespace tavr::contract
