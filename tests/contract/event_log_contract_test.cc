// platform/event_log.h.
#include "tests/contract/contract_test.h"

namespace tavr::contract {
namespace {

using EventLogContract = ContractTest;

TEST_F(EventLogContract, AnEventOfEachTypeIsTaken) {
  for (const int type : {1, 2, 4}) {
    EXPECT_EQ(machine().event_log.report("", "Spoorwipe", static_cast<std::uint16_t>(type), 5000,
                                         "a text"),
              kSuccess)
        << type;
  }
}

}  // namespace
}  // namespace tavr::contract
