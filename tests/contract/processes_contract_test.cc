// platform/processes.h, and the process list of platform/wmi.h.
#include <algorithm>
#include <chrono>
#include <thread>
#include <vector>

#include "tests/contract/contract_test.h"

namespace tavr::contract {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::uint32_t kTerminate = 0x1;
constexpr std::uint32_t kQueryInformation = 0x400;
constexpr std::string_view kImage = "tavr contract process.exe";
constexpr std::string_view kQuery =
    "select * from Win32_Process where Name='tavr contract process.exe'";

class ProcessesContract : public ContractTest {
 protected:
  std::vector<std::uint32_t> running(std::string_view image) {
    std::vector<ProcessEntry> entries;
    EXPECT_EQ(machine().processes.snapshot(entries), kSuccess);
    std::vector<std::uint32_t> ids;
    for (const ProcessEntry& entry : entries) {
      if (entry.image == image) ids.push_back(entry.id);
    }
    return ids;
  }
  std::vector<std::uint32_t> queried(std::string_view query) {
    std::vector<std::uint32_t> ids;
    EXPECT_TRUE(machine().wmi.queryProcessIds(query, ids)) << query;
    return ids;
  }
};

TEST_F(ProcessesContract, TheSnapshotHoldsIdAndImageWithoutItsFolder) {
  const std::uint32_t id = on().startProcess(kImage);
  EXPECT_THAT(running(kImage), ElementsAre(id));
}

TEST_F(ProcessesContract, ASnapshotReplacesWhatTheListHeld) {
  on().startProcess(kImage);
  std::vector<ProcessEntry> entries{{4242, "left over"}};
  EXPECT_EQ(machine().processes.snapshot(entries), kSuccess);
  EXPECT_TRUE(std::none_of(entries.begin(), entries.end(),
                           [](const ProcessEntry& entry) { return entry.image == "left over"; }));
}

TEST_F(ProcessesContract, AnEndedProcessLeavesTheSnapshots) {
  const std::uint32_t ended = on().startProcess(kImage);
  const std::uint32_t other = on().startProcess(kImage);
  std::unique_ptr<Process> process;
  ASSERT_EQ(machine().processes.open(ended, kTerminate, process), kSuccess);
  ASSERT_NE(process, nullptr);
  EXPECT_EQ(process->terminate(0), kSuccess);
  process.reset();
  // Nobody waits for the end; on Windows it comes a moment later.
  for (int look = 0; look < 100 && running(kImage).size() > 1; ++look) {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  }
  EXPECT_THAT(running(kImage), ElementsAre(other));
}

TEST_F(ProcessesContract, ClosingAProcessDoesNotEndIt) {
  const std::uint32_t id = on().startProcess(kImage);
  std::unique_ptr<Process> process;
  ASSERT_EQ(machine().processes.open(id, kTerminate, process), kSuccess);
  process.reset();
  EXPECT_THAT(running(kImage), ElementsAre(id));
}

TEST_F(ProcessesContract, WithoutTheRightAProcessIsNotEnded) {
  const std::uint32_t id = on().startProcess(kImage);
  std::unique_ptr<Process> process;
  ASSERT_EQ(machine().processes.open(id, kQueryInformation, process), kSuccess);
  EXPECT_EQ(process->terminate(0), kAccessDenied);
  EXPECT_THAT(running(kImage), ElementsAre(id));
}

TEST_F(ProcessesContract, OpeningWhatDoesNotRunFails) {
  std::unique_ptr<Process> process;
  EXPECT_EQ(machine().processes.open(0xFFFFFFF0, kTerminate, process), kInvalidParameter);
  EXPECT_EQ(process, nullptr);
  EXPECT_EQ(machine().processes.open(0, kTerminate, process), kInvalidParameter) << "the idle one";
}

TEST_F(ProcessesContract, AQueryGivesTheIdsOfOneName) {
  const std::uint32_t first = on().startProcess(kImage);
  on().startProcess("another tavr contract process.exe");
  const std::uint32_t second = on().startProcess(kImage);
  EXPECT_THAT(queried(kQuery), ElementsAre(first, second));
}

TEST_F(ProcessesContract, AQueryComparesTheWholeNameWithoutCase) {
  const std::uint32_t id = on().startProcess("Tavr Contract PROCESS.exe");
  on().startProcess("tavr contract process.exe.exe");
  EXPECT_THAT(queried(kQuery), ElementsAre(id));
}

TEST_F(ProcessesContract, AQueryThatFindsNothingIsAnsweredAllTheSame) {
  std::vector<std::uint32_t> ids{1};
  EXPECT_TRUE(machine().wmi.queryProcessIds(kQuery, ids));
  EXPECT_THAT(ids, IsEmpty());
}

TEST_F(ProcessesContract, AQuoteInAQueryIsEscaped) {
  const std::uint32_t id = on().startProcess("tavr's process.exe");
  EXPECT_THAT(queried("select * from Win32_Process where Name='tavr\\'s process.exe'"),
              ElementsAre(id));
}

TEST_F(ProcessesContract, AQueryThatCannotBeReadFails) {
  std::vector<std::uint32_t> ids;
  EXPECT_FALSE(machine().wmi.queryProcessIds("select from nowhere", ids));
  EXPECT_FALSE(machine().wmi.queryProcessIds("", ids));
  EXPECT_FALSE(
      machine().wmi.queryProcessIds("select * from Win32_Process where Name='it's.exe'", ids));
}

}  // namespace
}  // namespace tavr::contract
