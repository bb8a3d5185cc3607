// What a caller gets of a run: the result file, and the messages to a parent
// program's window.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/support/browser_traces.h"
#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using testing::addCookies;
using testing::TestMachine;
using testing::WatchedProgram;

constexpr std::string_view kResult = "C:\\Program Files\\Tavr Wipe\\eresst.txt";
constexpr std::string_view kRows = "C:\\Program Files\\Tavr Wipe\\eresetmp.txt";
constexpr std::string_view kLog = "C:\\Program Files\\Tavr Wipe\\eraselog.txt";
constexpr std::string_view kTempFile = "C:\\Users\\user\\AppData\\Local\\Temp\\a";
constexpr const char* kParent = "[parent]\nwindow=Tavrwork Brightbox\n";

// Two registry tracks, one file of 1500 bytes, and a plug-in file of 20.
void someOfEach(TestMachine& machine) {
  machine.select("53").select("10").file(kTempFile, std::string(1500, 'x'));
  machine.file("C:\\Program Files\\Tavr Wipe\\slectplg.cln", "P\r\n")
      .file("C:\\Program Files\\Tavr Wipe\\plugins\\P.tv",
            "P\r\nme\r\nall\r\nfiles\r\nfile=C:\\x.dat,1\r\n")
      .file("C:\\x.dat", std::string(20, 'x'));
}

TEST(ResultFile, OfATestRunLacksThePlugIns) {
  TestMachine machine;
  someOfEach(machine);
  WatchedProgram program(machine);
  EXPECT_TRUE(program.start("w2"));
  EXPECT_EQ(machine.read(kResult), "3|1500\r\n");
  EXPECT_EQ(program.form.txtfilecount.text(), "2");  // the run went on
  EXPECT_FALSE(machine.exists(kRows));
}

TEST(ResultFile, OfAnEraseRunHoldsThePlugIns) {
  TestMachine machine;
  someOfEach(machine);
  machine.ini(kParent);
  WatchedProgram program(machine);
  EXPECT_TRUE(program.start("w4"));
  EXPECT_EQ(machine.read(kResult), "4|1520\r\n");
  EXPECT_FALSE(machine.exists(kRows));
}

TEST(ResultFile, IsWrittenOver) {
  TestMachine machine;
  machine.file(kResult, "a long line that was here before\r\nand another\r\n");
  machine.run("w3");
  EXPECT_EQ(machine.read(kResult), "0|0\r\n");
}

TEST(ResultFile, IsNotWrittenWhenNobodyAsked) {
  for (const char* arguments : {"t", "t-x", "w2-x"}) {
    TestMachine machine;
    machine.run(arguments);
    EXPECT_FALSE(machine.exists(kResult)) << arguments;
  }
}

TEST(ResultFile, ThatCannotBeWrittenHoldsNothingUp) {
  TestMachine machine;
  machine.select("11").file(kResult, "old").machineFile("locked.txt", std::string(kResult) + "\n");
  machine.run("w2");
  EXPECT_EQ(machine.read(kResult), "old");
  EXPECT_THAT(machine.read(kLog), ::testing::HasSubstr("Windows Start Run History"));
}

TEST(ResultRows, AreAnEmptyFileAsThePlugInListIsEmptyAtThatMoment) {
  TestMachine machine;
  someOfEach(machine);
  machine.ini(kParent).file(kRows, "before");
  WatchedProgram program(machine);
  EXPECT_TRUE(program.start("w4-x"));
  EXPECT_TRUE(machine.exists(kRows));
  EXPECT_EQ(machine.read(kRows), "");
  EXPECT_EQ(machine.read(kResult), "3|1500\r\n");
  EXPECT_EQ(program.form.View1.count(), 1);
}

// --- Messages to the parent ---------------------------------------------------

std::string messages(TestMachine& machine, std::string_view arguments) {
  machine.ini(kParent);
  machine.run(arguments);
  return machine.readMachineFile("parent.log");
}

TEST(ParentMessages, TheFirstTellsOfNothingWithASizeThatIsNotSetYet) {
  for (const char* arguments : {"w4", "w4-x"}) {
    TestMachine machine;
    EXPECT_EQ(messages(machine, arguments), "t|0|\n") << arguments;
  }
}

TEST(ParentMessages, CarryTheSizeFromBeforeTheirGroup) {
  TestMachine machine;
  machine.select("52").select("10").file(kTempFile, std::string(7, 'x'));
  addCookies(machine, 2, 2, 10);
  addCookies(machine, 3, 3, 100);
  EXPECT_EQ(messages(machine, "w4-x"), "t|0|\nt|1|0\nt|3|7\nt|6|27\n");
}

TEST(ParentMessages, ComeInTheOrderOfTheFileCountsChangesAndSumBothCounts) {
  TestMachine machine;
  machine.select("52").select("11").select("8").file("C:\\$Recycle.Bin\\S-1\\$RA.txt", "12345");
  addCookies(machine, 9, 1, 10);
  // The registry track tells nothing of itself; the bin adds its count before
  // its size.
  EXPECT_EQ(messages(machine, "w4"), "t|0|\nt|2|0\nt|3|5\n");
}

TEST(ParentMessages, ThePlugInsAddOneToo) {
  TestMachine machine;
  someOfEach(machine);
  EXPECT_EQ(messages(machine, "w4-x"), "t|0|\nt|1|0\nt|4|1500\n");
}

TEST(ParentMessages, AreNotSentWithoutAParentMode) {
  for (const char* arguments : {"t", "w2", "w3-x"}) {
    TestMachine machine;
    EXPECT_EQ(messages(machine, arguments), "") << arguments;
  }
}

TEST(ParentMessages, ASecondRunStartsFromTheFirstOnesTotals) {
  TestMachine machine;
  machine.ini(kParent).select("10").file(kTempFile, "12345").readOnly(kTempFile);
  WatchedProgram program(machine);
  program.form.parentMode = 1;
  program.run(RunKind::test);
  program.run(RunKind::test);
  // The count is set back before the size: the old size shows once more.
  EXPECT_EQ(machine.readMachineFile("parent.log"), "t|0|\nt|1|0\nt|0|5\nt|1|0\n");
}

TEST(ParentWithoutAWindow, EndsTheProcessAtTheHeadWithFilesAsTheyStand) {
  for (const char* window : {"", "[parent]\nwindow=tavrwork brightbox\n"}) {
    for (const char* arguments : {"w4", "w4-x"}) {
      TestMachine machine;
      machine.ini(window).select("10").file(kTempFile).file(kLog, "log").file(kResult, "old");
      WatchedProgram program(machine);
      EXPECT_TRUE(program.start(arguments));
      EXPECT_TRUE(machine.exists(kTempFile));
      EXPECT_EQ(machine.read(kLog), "log");
      EXPECT_EQ(machine.read(kResult), "old");
      EXPECT_FALSE(machine.exists(kRows));
      EXPECT_TRUE(program.rows().empty());
      EXPECT_EQ(machine.registryText(Root::kLocalMachine,
                                     "software\\tavrwork\\Tavr Brightbox Deluxe\\real", "ic"),
                "<none>");
    }
  }
}

TEST(ParentWithoutAWindow, AParentThatLeavesEndsTheRunInItsMiddle) {
  TestMachine machine;
  machine.ini(std::string(kParent) + "[fault]\nFindWindow=3,2\n")
      .select("10")
      .select("52")
      .file(kTempFile);
  addCookies(machine, 2, 1);
  addCookies(machine, 3, 1);
  const std::string user(testing::kUser);
  WatchedProgram program(machine);
  EXPECT_TRUE(program.start("w4"));
  // The third message is Chrome's: what went before is gone, what comes behind stays.
  EXPECT_EQ(machine.readMachineFile("parent.log"), "t|0|\nt|1|0\n");
  EXPECT_FALSE(machine.exists(kTempFile));
  EXPECT_FALSE(
      machine.exists(user + "\\AppData\\Local\\Google\\Chrome\\User Data\\Default\\s1\\Cookies"));
  EXPECT_TRUE(
      machine.exists(user + "\\AppData\\Roaming\\Opera Software\\Opera Stable\\s1\\Cookies"));
  EXPECT_FALSE(machine.exists(kLog));
  EXPECT_FALSE(machine.exists(kResult));
}

TEST(ParentWithoutAMapping, IsToldNothingAndTheRunGoesOn) {
  for (const char* fault : {"[fault]\nCreateFileMapping=0,5\n", "[fault]\nMapViewOfFile=0,5\n"}) {
    TestMachine machine;
    machine.ini(fault).select("10").file(kTempFile);
    machine.run("w4");  // with no window either: it is not looked for
    EXPECT_EQ(machine.readMachineFile("parent.log"), "");
    EXPECT_FALSE(machine.exists(kTempFile));
    EXPECT_EQ(machine.read(kResult), "1|1\r\n");
  }
}

}  // namespace
}  // namespace tavr
