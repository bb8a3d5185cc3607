// The report in eraselog.txt, to the letter.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using testing::TestMachine;
using testing::WatchedProgram;

constexpr std::string_view kLog = "C:\\Program Files\\Tavr Wipe\\eraselog.txt";
constexpr std::string_view kTemp = "C:\\Users\\user\\AppData\\Local\\Temp\\";

const std::string kStart =
    "\r\n\r\nTest Mode: Test Start --------------------at 11/20/2026  10:00:00 AM\r\n";
const std::string kRule =
    "--------------------------------------------------------------------------------------------"
    "---------------------------------------------------------------\r\n";

std::string end(const std::string& totals) {
  return kRule + "Test Mode: --Test Completed ----Registry Keys Scanned: " + totals +
         " *********  at 11/20/2026  10:00:00 AM\r\n";
}

class EraseLog : public ::testing::TestWithParam<RunKind> {};
INSTANTIATE_TEST_SUITE_P(Kinds, EraseLog, ::testing::Values(RunKind::erase, RunKind::test),
                         [](const auto& kind) {
                           return kind.param == RunKind::erase ? "Erase" : "Test";
                         });

TEST_P(EraseLog, WithoutRowsHasNothingBetweenStartAndRule) {
  TestMachine machine;
  WatchedProgram program(machine);
  program.run(GetParam());
  EXPECT_EQ(kRule.size(), 157u);
  EXPECT_EQ(machine.read(kLog), kStart + end("0, Files : 0 , Hard Disk Space: 0.000 KB"));
}

TEST_P(EraseLog, PrintsEveryRowTrimmedAndTheTotals) {
  TestMachine machine;
  machine.select("10").select("53");
  machine.file(std::string(kTemp) + "a", std::string(1000, 'a'))
      .file(std::string(kTemp) + "\xC3\xA9");
  WatchedProgram program(machine);
  program.run(GetParam());
  const std::string icons =
      "Test Mode : Erasing Notification Area: Software\\Classes\\Local "
      "Settings\\Software\\Microsoft"
      "\\Windows\\CurrentVersion\\TrayNotify\\";
  EXPECT_EQ(
      machine.read(kLog),
      kStart +
          "Test Mode : Erasing C:\\Users\\user\\AppData\\Local\\Temp\\a windows temp folder\r\n"
          "Test Mode : Erasing C:\\Users\\user\\AppData\\Local\\Temp\\\xC3\xA9 windows temp "
          "folder\r\n" +
          icons + "PastIconsStream  <OK>\r\n" + icons + "IconStreams  <OK>\r\n" +
          end("2, Files : 2 , Hard Disk Space: 0.978 KB"));
}

TEST_P(EraseLog, ASecondRunAppends) {
  TestMachine machine;
  machine.file(kLog, "before");
  WatchedProgram program(machine);
  program.run(GetParam());
  program.run(GetParam());
  const std::string report = kStart + end("0, Files : 0 , Hard Disk Space: 0.000 KB");
  EXPECT_EQ(machine.read(kLog), "before" + report + report);
}

TEST_P(EraseLog, ReadsTheClockAnewForItsLastLine) {
  TestMachine machine;
  WatchedProgram program(machine);
  program.events.when([&] { return program.program.numbers.freeFile() == 2; },
                      [&] { machine.machine().events.wait(2 * 3600 * 1000 + 61 * 1000); });
  program.run(GetParam());
  EXPECT_THAT(machine.read(kLog), HasSubstr("at 11/20/2026  10:00:00 AM\r\n"));
  EXPECT_THAT(machine.read(kLog), EndsWith("at 11/20/2026  12:01:01 PM\r\n"));
}

TEST_P(EraseLog, AReadOnlyLogIsMadeWritable) {
  TestMachine machine;
  machine.file(kLog, "before").readOnly(kLog);
  WatchedProgram program(machine);
  program.run(GetParam());
  EXPECT_THAT(machine.read(kLog), EndsWith("AM\r\n"));
  EXPECT_THAT(program.files.attributes_set,
              ::testing::Contains(std::pair<std::string, std::uint32_t>(kLog, 32)));
}

TEST_P(EraseLog, ALogThatSomebodyHoldsLosesTheReportAndTheRunGoesOn) {
  TestMachine machine;
  machine.select("11").file(kLog, "before").machineFile("locked.txt", std::string(kLog) + "\n");
  WatchedProgram program(machine);
  program.run(GetParam());
  EXPECT_EQ(machine.read(kLog), "before");
  EXPECT_TRUE(program.dialogs.asked.empty());
  EXPECT_EQ(program.form.Text10.text(), "0");
  EXPECT_EQ(program.form.Label2.caption, "1");
}

TEST_P(EraseLog, OnlyTheOptionAtOneSwitchesItOff) {
  for (const auto& [text, written] : {std::pair("1", false),
                                      {"1.0", false},
                                      {"2", true},
                                      {"0", true},
                                      {"yes", true},
                                      {"", true}}) {
    TestMachine machine;
    machine.setting("Tavr wipe\\option\\option", "6", text);
    WatchedProgram program(machine);
    program.run(GetParam());
    EXPECT_EQ(machine.exists(kLog), written) << text;
  }
}

TEST_P(EraseLog, ClosesEveryFileNumberBeforeItBegins) {
  TestMachine machine;
  machine.file("C:\\held.txt", "x");
  WatchedProgram program(machine);
  program.program.numbers.open(1, "C:\\held.txt", OpenMode::kInput);
  program.run(GetParam());
  EXPECT_THAT(machine.read(kLog), EndsWith("AM\r\n"));
  EXPECT_EQ(program.program.numbers.freeFile(), 1);
}

}  // namespace
}  // namespace tavr
