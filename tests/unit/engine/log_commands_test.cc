#include "engine/log_commands.h"

#include <gtest/gtest.h>

#include "tests/support/test_machine.h"

namespace tavr {
namespace {

using testing::TestMachine;

constexpr std::string_view kLog = "C:\\Program Files\\Tavr Wipe\\eraselog.txt";

TEST(ViewLog, TheShellOpensTheLogAsAPersonWould) {
  TestMachine machine;
  machine.file(kLog, "report\r\n");
  machine.program().form.cmd_view.click();
  EXPECT_EQ(machine.readMachineFile("shell.log"),
            "execute 1 - C:\\Program Files\\Tavr Wipe\\eraselog.txt\n");
}

TEST(ClearLog, LeavesAnEmptyLogAndSaysSo) {
  TestMachine machine;
  machine.file(kLog, "report\r\n");
  machine.program().form.cmd_clear.click();
  EXPECT_TRUE(machine.exists(kLog));
  EXPECT_EQ(machine.read(kLog), "");
  const frmmsg& message = machine.program().message;
  EXPECT_TRUE(message.visible);
  EXPECT_EQ(message.caption, "Spoorwipe");
  EXPECT_EQ(message.Text1.text(), "Successfully Cleaned Log File");
}

TEST(ClearLog, WithoutALogMakesAnEmptyOne) {
  TestMachine machine;
  machine.program().form.cmd_clear.click();
  EXPECT_TRUE(machine.exists(kLog));
}

TEST(ClearLog, AReadOnlyLogStaysAndTheMessageComesAllTheSame) {
  TestMachine machine;
  machine.file(kLog, "report\r\n").readOnly(kLog);
  machine.program().form.cmd_clear.click();
  EXPECT_EQ(machine.read(kLog), "report\r\n");
  EXPECT_TRUE(machine.program().message.visible);
}

TEST(ClearLog, TheLogGrowsUntilItIsCleared) {
  TestMachine machine;
  machine.program().form.chameleonButton6.click();
  const std::size_t one = machine.read(kLog).size();
  machine.program().form.chameleonButton6.click();
  EXPECT_EQ(machine.read(kLog).size(), 2 * one);
  machine.program().form.cmd_clear.click();
  EXPECT_EQ(machine.read(kLog).size(), 0U);
}

}  // namespace
}  // namespace tavr
