// platform/security.h, as far as every machine has it.
#include "tests/contract/contract_test.h"

namespace tavr::contract {
namespace {

using AccountsContract = ContractTest;

TEST_F(AccountsContract, AnAccountThatNobodyKnowsIs1332AndHasNoSid) {
  std::string sid = "left over";
  EXPECT_EQ(machine().accounts.sidOf("tavr contract nobody", sid), kNoneMapped);
  EXPECT_EQ(sid, "");
}

}  // namespace
}  // namespace tavr::contract
