// Where an Erase run and a Test run differ.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/browser_traces.h"
#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using testing::TestMachine;
using testing::WatchedProgram;

constexpr std::string_view kTemp = "C:\\Users\\user\\AppData\\Local\\Temp\\";

// Gate 44: the session track of Firefox has no test twin.
TEST(FirefoxSession, ErasingRemovesItWhereTestingOnlySetsTheStatus) {
  const std::string file =
      "C:\\Users\\user\\AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\p\\sessionstore.jsonlz4";
  TestMachine machine;
  machine.select("44").file(file);
  WatchedProgram program(machine);
  program.run(RunKind::test);
  EXPECT_EQ(program.task("Firefox Browser"), "Finished|0");
  EXPECT_THAT(program.rows(), Not(Contains(HasSubstr("Firefox"))));
  EXPECT_TRUE(machine.exists(file));
  program.run(RunKind::erase);
  EXPECT_EQ(program.task("Firefox Browser"), "Finished|1");
  EXPECT_FALSE(machine.exists(file));
  // No row tail either: the count stays plain.
  EXPECT_FALSE(program.form.View100.item(2).subItem(2).bold);
}

TEST(TheTwoRuns, ErasingRemovesWhatTestingReports) {
  TestMachine machine;
  machine.select("52");
  testing::addDistinctCookies(machine);
  WatchedProgram program(machine);
  program.run(RunKind::test);
  const std::vector<std::string> table = program.table();
  const std::size_t found = program.rows().size();
  EXPECT_EQ(found, 55u);
  program.run(RunKind::erase);
  EXPECT_EQ(program.table(), table);
  EXPECT_EQ(program.rows().size(), found);
  program.run(RunKind::test);
  EXPECT_THAT(program.rows(), IsEmpty());
}

TEST(TheTwoRuns, OnlyErasingKeepsStatistics) {
  TestMachine machine;
  machine.select("11");
  WatchedProgram program(machine);
  const auto statistic = [&] {
    return machine.registryText(Root::kLocalMachine,
                                "software\\tavrwork\\Tavr Brightbox Deluxe\\statics\\tracks",
                                "rcount");
  };
  program.run(RunKind::test);
  EXPECT_EQ(statistic(), "<none>");
  program.run(RunKind::erase);
  EXPECT_EQ(statistic(), "1");
}

TEST(TheTwoRuns, NeitherEndsTheProcessWhenNobodyWaits) {
  TestMachine machine;
  WatchedProgram program(machine);
  EXPECT_FALSE(program.run(RunKind::erase));
  EXPECT_FALSE(program.run(RunKind::test));
}

TEST(TheTwoRuns, OnlyErasingEndsTheProcessWhenACallerWaits) {
  TestMachine machine;
  WatchedProgram program(machine);
  program.form.resultMode = 2;
  EXPECT_FALSE(program.run(RunKind::test));
  EXPECT_TRUE(program.run(RunKind::erase));
}

TEST(TheTwoRuns, AFailingProcedureDoesNotHoldTheRunUp) {
  TestMachine machine;
  machine.select("10")
      .select("11")
      .file(std::string(kTemp) + "a")
      .ini("[fault]\nDeleteFile=0,5\nRegDeleteKey=0,5\nRegSetValueEx=0,5\n");
  WatchedProgram program(machine);
  program.run(RunKind::erase);
  EXPECT_EQ(program.task("Windows Temporary"), "Finished|1");
  EXPECT_EQ(program.task("Maxthon Browser"), "Finished|0");
  EXPECT_TRUE(machine.exists(std::string(kTemp) + "a"));
}

}  // namespace
}  // namespace tavr
