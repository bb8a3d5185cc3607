// The labels, the live figures and the life-long statistics.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "engine/counters.h"
#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using testing::TestMachine;
using testing::WatchedProgram;

constexpr std::string_view kTempFile = "C:\\Users\\user\\AppData\\Local\\Temp\\a";
constexpr std::string_view kLive = "software\\tavrwork\\Tavr Brightbox Deluxe\\real";
constexpr std::string_view kStatistics =
    "software\\tavrwork\\Tavr Brightbox Deluxe\\statics\\tracks";
constexpr std::string_view kStatisticsHere = "Tavr Brightbox Deluxe\\statics\\tracks";
constexpr std::string_view kStatisticsRaw =
    "HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\tavrwork\\Tavr Brightbox Deluxe\\statics\\tracks";

TEST(DisplaySize, TurnsToMegabytesAtAThousandKilobytes) {
  const std::pair<double, const char*> sizes[] = {
      {0, "0.000 KB"},
      {1, "0.001 KB"},
      {512, "0.500 KB"},
      {1023, "0.999 KB"},
      {1024, "1.000 KB"},
      {1023999, "999.999 KB"},
      {1024000, "0.977 MB"},
      {1048576, "1.000 MB"},
      {1073741824, "1024.000 MB"},
      {-5, "-0.005 KB"},
      {-2147483648.0, "-2097152.000 KB"},
      {1023999.9, "1000.000 KB"},  // below the limit, rounded up to it
  };
  for (const auto& [bytes, text] : sizes) EXPECT_EQ(displaySize(bytes, '.'), text) << bytes;
  EXPECT_EQ(displaySize(1024000, ','), "0,977 MB");
}

TEST(Labels, ASizeOf1024000BytesIsTheSmallestThatShowsInMegabytes) {
  for (const auto& [size, text] : {std::pair(1023999, "999.999 KB"), {1024000, "0.977 MB"}}) {
    TestMachine machine;
    machine.select("10").file(kTempFile, std::string(static_cast<std::size_t>(size), 'x'));
    WatchedProgram program(machine);
    program.run(RunKind::test);
    EXPECT_EQ(program.form.Label6.caption, text);
  }
}

TEST(Labels, AreZeroFromTheHeadOn) {
  TestMachine machine;
  machine.select("10").file(kTempFile);
  WatchedProgram program(machine);
  program.form.Label2.caption = program.form.Label4.caption = program.form.Label6.caption = "old";
  std::string seen;
  program.events.next([&] {
    seen = program.form.Label2.caption + "," + program.form.Label4.caption + "," +
           program.form.Label6.caption;
  });
  program.run(RunKind::test);
  EXPECT_EQ(seen, "0,0,0");
}

// The Run history waits two seconds.
TEST(LiveFigures, TheTimerTicksTwentyTimesInTwoSeconds) {
  TestMachine machine;
  machine.select("11").select("13").value(
      "HKEY_CURRENT_USER\\software\\microsoft\\windows\\currentversion\\explorer\\TypedPaths", "u",
      "C:\\x");
  WatchedProgram program(machine);
  int ticks = 0;
  std::string at_last_tick;
  program.form.Timer2.onTick = [&] {
    Timer2_Timer(program.program);
    ++ticks;
    at_last_tick = program.form.Label2.caption + "," + program.form.Label4.caption + "," +
                   program.form.Label6.caption;
  };
  program.run(RunKind::test);
  EXPECT_EQ(ticks, 20);
  EXPECT_EQ(at_last_tick, "2,0,0.000 KB");
  EXPECT_EQ(program.form.Label2.caption, "3");  // the labels lagged behind the run
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kLive, "tracks-reg-count"), "2");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kLive, "tracks-file-count"), "0");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kLive, "tracks-size-count"), "0.000 KB");
}

TEST(LiveFigures, ARunThatTakesNoTimeNeverTicks) {
  TestMachine machine;
  machine.select("10").file(kTempFile);
  WatchedProgram program(machine);
  program.run(RunKind::erase);
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kLive, "tracks-reg-count"), "<none>");
}

TEST(LiveFigures, NothingTicksBehindARun) {
  TestMachine machine;
  WatchedProgram program(machine);
  program.run(RunKind::erase);
  machine.machine().events.wait(1000);
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kLive, "tracks-reg-count"), "<none>");
}

TEST(LiveFigures, OneThatCannotBeWrittenLeavesTheOtherTwo) {
  TestMachine machine;
  machine.ini("[fault]\nRegSetValueEx=1,5\n");
  WatchedProgram program(machine);
  program.form.txtregcount.setText("7");
  program.form.txtfilecount.setText("12");
  Timer2_Timer(program.program);
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kLive, "tracks-reg-count"), "<none>");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kLive, "tracks-file-count"), "12");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kLive, "tracks-size-count"), "0.000 KB");
}

TEST(LiveFigures, AreTheTextsAsTheyStandWhereTheLabelsTakeNumbers) {
  TestMachine machine;
  WatchedProgram program(machine);
  program.form.txtregcount.setText("007");
  program.form.txtfilecount.setText("12 files");
  program.form.txtfilesize.setText("1024000");
  Timer2_Timer(program.program);
  EXPECT_EQ(program.form.Label2.caption, "7");
  EXPECT_EQ(program.form.Label4.caption, "12");
  EXPECT_EQ(program.form.Label6.caption, "0.977 MB");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kLive, "tracks-reg-count"), "007");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kLive, "tracks-file-count"), "12 files");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kLive, "tracks-size-count"), "0.977 MB");
}

TEST(LiveFigures, ATestRunOverwritesThemAndLeavesTheStatistics) {
  TestMachine machine;
  machine.select("11")
      .setting("Tavr Brightbox Deluxe\\real", "tracks-reg-count", "old")
      .setting("Tavr Brightbox Deluxe\\real", "tracks-file-count", "old")
      .setting("Tavr Brightbox Deluxe\\real", "tracks-size-count", "old")
      .setting(kStatisticsHere, "rcount", "40")
      .setting(kStatisticsHere, "count", "41");
  machine.run("w2");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kLive, "tracks-reg-count"), "0");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kLive, "tracks-file-count"), "0");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kLive, "tracks-size-count"), "0.000 KB");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kStatistics, "rcount"), "40");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kStatistics, "count"), "41");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kStatistics, "size"), "<none>");
}

// --- Statistics ----------------------------------------------------------------

struct Statistics {
  std::string rcount, count, size;
  bool operator==(const Statistics&) const = default;
};

void PrintTo(const Statistics& s, std::ostream* out) {
  *out << s.rcount << ", " << s.count << ", " << s.size;
}

// The statistics behind an Erase run that finds 2 registry tracks and one file
// of 1536 bytes.
Statistics afterErase(TestMachine& machine) {
  machine.select("53").select("10").file(kTempFile, std::string(1536, 'x'));
  WatchedProgram program(machine);
  program.run(RunKind::erase);
  const auto read = [&](std::string_view name) {
    return machine.registryText(Root::kLocalMachine, kStatistics, name);
  };
  return {read("rcount"), read("count"), read("size")};
}

TEST(StatisticsOfErase, StartFromNothing) {
  TestMachine machine;
  EXPECT_EQ(afterErase(machine), (Statistics{"2", "1", "2.5"}));
}

TEST(StatisticsOfErase, SizeIsTheNewCountAndThisRunsKilobytes) {
  TestMachine machine;
  machine.setting(kStatisticsHere, "rcount", "10")
      .setting(kStatisticsHere, "count", "20")
      .setting(kStatisticsHere, "size", "99999");
  EXPECT_EQ(afterErase(machine), (Statistics{"12", "21", "22.5"}));
}

TEST(StatisticsOfErase, AreKeptWithoutALogToo) {
  TestMachine machine;
  machine.setting("Tavr wipe\\option\\option", "6", "1");
  EXPECT_EQ(afterErase(machine), (Statistics{"2", "1", "2.5"}));
  EXPECT_FALSE(machine.exists("C:\\Program Files\\Tavr Wipe\\eraselog.txt"));
}

TEST(StatisticsOfErase, ATextThatIsNoNumberCountsAsZero) {
  TestMachine machine;
  machine.setting(kStatisticsHere, "rcount", "many").setting(kStatisticsHere, "count", "3 or 4");
  EXPECT_EQ(afterErase(machine), (Statistics{"2", "4", "5.5"}));
}

// One text serves all the reads: bytes are not read into it, so it still holds
// the new total of the registry count.
TEST(StatisticsOfErase, ABinaryCountStartsFromTheRegistryTotal) {
  TestMachine machine;
  machine.setting(kStatisticsHere, "rcount", "10").rawValue(kStatisticsRaw, "count", "hex:63");
  EXPECT_EQ(afterErase(machine), (Statistics{"12", "13", "14.5"}));
}

// A number appends its digits to the text, and the whole is read as hexadecimal.
TEST(StatisticsOfErase, ANumberCountAppendsToTheRegistryTotal) {
  TestMachine machine;
  machine.setting(kStatisticsHere, "rcount", "10")
      .rawValue(kStatisticsRaw, "count", "dword:00000005");
  // Three bytes are kept of the four: "12" and "0", "0", "5", that is 0x12005.
  EXPECT_EQ(afterErase(machine), (Statistics{"12", "73734", "73735.5"}));
}

TEST(StatisticsOfErase, ThatCannotBeWrittenHoldNothingUp) {
  TestMachine machine;
  machine.ini("[fault]\nRegSetValueEx=0,5\n");
  EXPECT_EQ(afterErase(machine), (Statistics{"<none>", "<none>", "<none>"}));
  EXPECT_FALSE(machine.exists(kTempFile));
}

}  // namespace
}  // namespace tavr
