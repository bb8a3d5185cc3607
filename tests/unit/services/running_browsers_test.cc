#include "services/running_browsers.h"

#include <gtest/gtest.h>

#include "tests/support/machine_with.h"
#include "tests/support/test_machine.h"

namespace tavr {
namespace {

class RunningBrowsersTest : public ::testing::Test {
 protected:
  Machine& processes(std::string_view lines) {
    machine.machineFile("processes.txt", lines);
    return machine.machine();
  }
  std::string left() { return machine.readMachineFile("processes.txt"); }

  testing::TestMachine machine;
};

TEST_F(RunningBrowsersTest, TheFirstProcessOfThatNameAnswersInAnyCase) {
  Machine& m = processes("10 explorer.exe\n20 Chrome.exe\n30 chrome.exe\n");
  EXPECT_EQ(pid(m, "chrome.exe"), 20u);
  EXPECT_EQ(pid(m, "CHROME.EXE"), 20u);
}

TEST_F(RunningBrowsersTest, ABrowserThatDoesNotRunHasNoIdAboveZero) {
  Machine& m = processes("10 explorer.exe\n");
  EXPECT_FALSE(pid(m, "chrome.exe").value_or(0) > 0);
}

TEST_F(RunningBrowsersTest, WithWmiUnavailableNothingIsReportedRunning) {
  machine.ini("[fault]\nGetObject=1,5\nExecQuery=1,5\n");
  Machine& m = processes("20 chrome.exe\n");
  EXPECT_EQ(pid(m, "chrome.exe"), std::nullopt);  // cannot bind
  EXPECT_EQ(pid(m, "chrome.exe"), std::nullopt);  // cannot ask
  EXPECT_EQ(pid(m, "chrome.exe"), 20u);
}

TEST_F(RunningBrowsersTest, ALongerNameThatEndsInItIsEndedThoughItIsNotReported) {
  Machine& m = processes("10 mybrowser.exe\n11 browser.exe.bak\n");
  EXPECT_EQ(pid(m, "browser.exe"), std::nullopt);
  EXPECT_TRUE(fCloseByList(m, "browser.exe"));
  EXPECT_EQ(left(), "11 browser.exe.bak\n");
}

TEST_F(RunningBrowsersTest, EveryProcessOfTheNameEndsWithoutCase) {
  Machine& m = processes("10 Maxthon.exe\n20 explorer.exe\n30 MAXTHON.EXE\n");
  EXPECT_TRUE(fCloseByList(m, "Maxthon.exe"));
  EXPECT_EQ(left(), "20 explorer.exe\n");
}

TEST_F(RunningBrowsersTest, TheListIsFalseWhenNothingMatched) {
  Machine& m = processes("20 explorer.exe\n");
  EXPECT_FALSE(fCloseByList(m, "chrome.exe"));
  EXPECT_EQ(left(), "20 explorer.exe\n");
}

TEST_F(RunningBrowsersTest, TheQueryEndsExactNamesOnlyAndIsAlwaysTrue) {
  Machine& m = processes("10 mychrome.exe\n20 CHROME.exe\n30 chrome.exe\n");
  EXPECT_TRUE(fCloseByWmi(m, "chrome.exe"));
  EXPECT_EQ(left(), "10 mychrome.exe\n");
  EXPECT_TRUE(fCloseByWmi(m, "chrome.exe"));
}

TEST_F(RunningBrowsersTest, AProcessThatTheListCouldNotEndEndsThroughTheQuery) {
  machine.ini("[fault]\nTerminateProcess=1,5\n");
  Machine& m = processes("10 chrome.exe\n20 chrome.exe\n");
  EXPECT_TRUE(fCloseByList(m, "chrome.exe"));
  EXPECT_EQ(left(), "10 chrome.exe\n");
  EXPECT_TRUE(fCloseByWmi(m, "chrome.exe"));
  EXPECT_EQ(left(), "");
}

TEST_F(RunningBrowsersTest, AProcessThatCannotBeOpenedStaysAndStillCountsAsMatched) {
  machine.ini("[fault]\nOpenProcess=0,5\n");
  Machine& m = processes("10 chrome.exe\n");
  EXPECT_TRUE(fCloseByList(m, "chrome.exe"));
  EXPECT_TRUE(fCloseByWmi(m, "chrome.exe"));
  EXPECT_EQ(left(), "10 chrome.exe\n");
}

TEST_F(RunningBrowsersTest, WithoutASnapshotTheListIsFalseAndNothingEnds) {
  machine.ini("[fault]\nProcess32First=1,5\n");
  Machine& m = processes("10 chrome.exe\n");
  EXPECT_FALSE(fCloseByList(m, "chrome.exe"));
  EXPECT_EQ(left(), "10 chrome.exe\n");
}

// Notes with which rights processes are opened.
class RecordingProcesses : public Processes {
 public:
  Status snapshot(std::vector<ProcessEntry>& entries) override {
    entries = {{0, "chrome.exe"}, {10, std::string("chrome.exe\0rest", 15)}};
    return kSuccess;
  }
  Status open(std::uint32_t id, std::uint32_t access, std::unique_ptr<Process>& /*out*/) override {
    opened.emplace_back(id, access);
    return kAccessDenied;
  }

  std::vector<std::pair<std::uint32_t, std::uint32_t>> opened;
};

class TwoProcesses : public Wmi {
 public:
  std::unique_ptr<StdRegProv> bindRegistryProvider(std::string_view) override { return nullptr; }
  bool queryProcessIds(std::string_view asked, std::vector<std::uint32_t>& ids) override {
    query = asked;
    ids = {0, 10};
    return true;
  }

  std::string query;
};

TEST_F(RunningBrowsersTest, TheListAsksForEveryRightTheQueryOnlyForTheEnd) {
  RecordingProcesses processes;
  TwoProcesses wmi;
  Machine& real = machine.machine();
  Machine fake = testing::machineWith(real, wmi, processes);
  EXPECT_TRUE(fCloseByList(fake, "Chrome.exe"));
  using Opened = std::vector<std::pair<std::uint32_t, std::uint32_t>>;
  EXPECT_EQ(processes.opened, Opened({{0, 0x1F0FFF}, {10, 0x1F0FFF}}));
  processes.opened.clear();
  EXPECT_TRUE(fCloseByWmi(fake, "Chrome.exe"));
  EXPECT_EQ(processes.opened, Opened({{10, 1}}));  // never the id 0
  EXPECT_EQ(wmi.query, "Select * from Win32_Process WHERE Name = 'Chrome.exe'");
}

}  // namespace
}  // namespace tavr
