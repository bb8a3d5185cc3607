// The removing executor, which stands ready and is called by nobody: what it
// deletes, and the stamps that it puts elsewhere.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "engine/executors.h"
#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::TestMachine;
using testing::WatchedProgram;

constexpr std::string_view kCookies = "C:\\Cookies";
const std::string kMask =
    "010101010111111111111111111000000000000000000000000011111111111111111111011010101";

void queueFolder(Form1& form, std::string_view folder, std::string_view mask,
                 std::string_view flag) {
  form.List8.add(folder);
  form.List9.add(mask);
  form.List10.add(flag);
}

void secure(TestMachine& machine, std::string_view option, std::string_view passes) {
  machine.setting("tavr wipe\\option\\option", "3", option)
      .setting("Tavr Wipe", "secure_value", passes)
      .folder(kCookies);
}

TEST(RemovingExecutor, ReportsCountsAndDeletesFiles) {
  TestMachine machine;
  machine.file("C:\\a.dat", "12345").readOnly("C:\\a.dat").file("C:\\b.dat", "1");
  WatchedProgram program(machine);
  program.form.List7.add("C:\\a.dat");
  program.form.List7.add("C:\\gone.dat");
  program.form.List7.add("C:\\b.dat");
  Command4(program.program);
  EXPECT_THAT(program.rows(), ElementsAre("Plug In Application Files = C:\\a.dat <OK>",
                                          "Plug In Application Files = C:\\gone.dat <OK>",
                                          "Plug In Application Files = C:\\b.dat <OK>"));
  EXPECT_EQ(program.form.txtfilecount.text(), "3");
  EXPECT_EQ(program.form.txtfilesize.text(), "6");  // sized before it goes
  EXPECT_FALSE(machine.exists("C:\\a.dat"));        // its read-only mark was cleared first
  EXPECT_FALSE(machine.exists("C:\\b.dat"));
}

TEST(RemovingExecutor, AHeldFileStaysAndTheNextOneGoes) {
  TestMachine machine;
  machine.file("C:\\a.dat").file("C:\\b.dat").machineFile("locked.txt", "C:\\a.dat\n");
  WatchedProgram program(machine);
  program.form.List7.add("C:\\a.dat");
  program.form.List7.add("C:\\b.dat");
  Command4(program.program);
  EXPECT_TRUE(machine.exists("C:\\a.dat"));
  EXPECT_FALSE(machine.exists("C:\\b.dat"));
}

TEST(RemovingExecutor, DeletesAFoldersFilesAndWithTheMarkThoseBelow) {
  TestMachine machine;
  machine.file("C:\\app\\a.log").file("C:\\app\\k.txt").file("C:\\app\\sub\\b.log");
  machine.file("C:\\other\\c.log").file("C:\\other\\sub\\d.log");
  WatchedProgram program(machine);
  queueFolder(program.form, "C:\\app", "*.log", "1");
  queueFolder(program.form, "C:\\other", "*.log", "0");
  Command4(program.program);
  EXPECT_FALSE(machine.exists("C:\\app\\a.log"));
  EXPECT_FALSE(machine.exists("C:\\app\\sub\\b.log"));
  EXPECT_TRUE(machine.exists("C:\\app\\k.txt"));
  EXPECT_FALSE(machine.exists("C:\\other\\c.log"));
  EXPECT_TRUE(machine.exists("C:\\other\\sub\\d.log"));
  // The folder's own file is gone when the search below looks.
  EXPECT_THAT(program.rows(), ElementsAre("Plug In Application Files = C:\\app\\a.log <OK>",
                                          "C:\\app\\sub\\b.log Plug In Application Files =  <OK>",
                                          "Plug In Application Files = C:\\other\\c.log <OK>"));
}

TEST(RemovingExecutor, AStopLeavesTheFilesBelowFromTheOneAtWhichItIsMetAndNothingElse) {
  TestMachine machine;
  machine.file("C:\\a.dat").file("C:\\app\\own.log");
  machine.file("C:\\app\\sub\\b.log").file("C:\\app\\sub\\c.log");
  machine.key("HKEY_CURRENT_USER\\A\\B");
  WatchedProgram program(machine);
  program.form.stopflag = 1;
  program.form.List7.add("C:\\a.dat");
  queueFolder(program.form, "C:\\app", "*.log", "1");
  program.form.List11.add("HKEY_CURRENT_USER\\A\\B,1");
  Command4(program.program);
  EXPECT_FALSE(machine.exists("C:\\a.dat"));
  EXPECT_FALSE(machine.exists("C:\\app\\own.log"));
  EXPECT_TRUE(machine.exists("C:\\app\\sub\\b.log"));
  EXPECT_TRUE(machine.exists("C:\\app\\sub\\c.log"));
  EXPECT_FALSE(machine.keyExists(Root::kCurrentUser, "A\\B"));
  EXPECT_THAT(program.rows(), ElementsAre("Plug In Application Files = C:\\a.dat <OK>",
                                          "Plug In Application Files = C:\\app\\own.log <OK>",
                                          "C:\\app\\sub\\b.log Plug In Application Files =  <OK>",
                                          "Plug In Registry Links = HKCU\\A\\B <OK>"));
}

TEST(RemovingExecutor, CarriesOutTheRegistryLines) {
  TestMachine machine;
  machine.value("HKEY_CURRENT_USER\\A\\B", "v", "1")
      .key("HKEY_CURRENT_USER\\C\\D")
      .value("HKEY_CURRENT_USER\\E", "v", "1")
      .value("HKEY_CURRENT_USER\\F", "v", "1")
      .value("HKEY_CURRENT_USER\\F", "w", "1");
  WatchedProgram program(machine);
  for (const char* line : {"HKEY_CURRENT_USER\\A\\B,1", "HKEY_CURRENT_USER\\C,2",
                           "HKEY_CURRENT_USER\\E,3", "HKEY_CURRENT_USER\\F,v,4"}) {
    program.form.List11.add(line);
  }
  Command4(program.program);
  EXPECT_FALSE(machine.keyExists(Root::kCurrentUser, "A\\B"));
  EXPECT_FALSE(machine.keyExists(Root::kCurrentUser, "C\\D"));
  EXPECT_TRUE(machine.keyExists(Root::kCurrentUser, "C"));
  EXPECT_EQ(machine.registryText(Root::kCurrentUser, "E", "v"), "<none>");
  EXPECT_EQ(machine.registryText(Root::kCurrentUser, "F", "v"), "<none>");
  EXPECT_EQ(machine.registryText(Root::kCurrentUser, "F", "w"), "1");
  EXPECT_EQ(program.form.txtregcount.text(), "4");
}

// --- Stamps -----------------------------------------------------------------------

TEST(Stamp, GoesToTheCookiesFolderUnderTheNameInTheFileBox) {
  TestMachine machine;
  secure(machine, "1", "3");
  machine.file("C:\\app\\a.log", "contents");
  WatchedProgram program(machine);
  program.form.Text3.setText(" " + std::string(kCookies) + " ");
  queueFolder(program.form, "C:\\app", "*.log", "0");
  Command4(program.program);
  EXPECT_EQ(program.files.openings("C:\\Cookies\\a.log", OpenMode::kBinary), 3);
  EXPECT_EQ(program.files.openings("C:\\app\\a.log", OpenMode::kBinary), 0);
  EXPECT_FALSE(machine.exists("C:\\app\\a.log"));
  const std::string stamped = machine.read("C:\\Cookies\\a.log");
  // Three stamps at positions 1 to 6: the last one stands whole.
  EXPECT_GE(stamped.size(), kMask.size());
  EXPECT_LE(stamped.size(), kMask.size() + 5);
  EXPECT_LE(stamped.find(kMask), 5u);
}

TEST(Stamp, LeavesTheRestOfAFileThatIsThere) {
  TestMachine machine;
  secure(machine, "1", "1");
  machine.file("C:\\Cookies\\a.log", std::string(200, 'x')).file("C:\\app\\a.log");
  WatchedProgram program(machine);
  program.form.Text3.setText(kCookies);
  queueFolder(program.form, "C:\\app", "*.log", "0");
  Command4(program.program);
  const std::string stamped = machine.read("C:\\Cookies\\a.log");
  const std::size_t at = stamped.find(kMask);
  ASSERT_LE(at, 5u);
  EXPECT_EQ(stamped, std::string(at, 'x') + kMask + std::string(200 - at - kMask.size(), 'x'));
}

TEST(Stamp, OfAFileEntryFindsNoNameInTheFileBox) {
  TestMachine machine;
  secure(machine, "1", "2");
  machine.file("C:\\a.dat", "contents");
  WatchedProgram program(machine);
  program.form.Text3.setText(kCookies);
  program.form.List7.add("C:\\a.dat");
  Command4(program.program);
  EXPECT_EQ(program.files.openings("C:\\Cookies\\", OpenMode::kBinary), 2);
  EXPECT_TRUE(std::filesystem::is_empty(machine.host(kCookies)));
  EXPECT_FALSE(machine.exists("C:\\a.dat"));
}

TEST(Stamp, IsMadeAsOftenAsTheSettingSaysAndOnlyWithTheOption) {
  struct Row {
    const char* option;
    const char* passes;
    int openings;
  };
  for (const Row& row : {Row{"1", "10", 10}, Row{"1", "1", 1}, Row{"1", "", 0}, Row{"1", "x", 0},
                         Row{"1", "2.5", 2}, Row{"1", "20", 20}, Row{"0", "5", 0}, Row{"", "5", 0},
                         Row{"2", "5", 0}, Row{"abc", "5", 0}, Row{"1.0", "5", 5}}) {
    TestMachine machine;
    secure(machine, row.option, row.passes);
    machine.file("C:\\app\\a.log");
    WatchedProgram program(machine);
    program.form.Text3.setText(kCookies);
    queueFolder(program.form, "C:\\app", "*.log", "0");
    Command4(program.program);
    EXPECT_EQ(program.files.openings("C:\\Cookies\\a.log", OpenMode::kBinary), row.openings)
        << row.option << " " << row.passes;
    EXPECT_FALSE(machine.exists("C:\\app\\a.log"));
  }
}

TEST(Stamp, PumpsAtEveryPass) {
  TestMachine machine;
  secure(machine, "1", "4");
  WatchedProgram program(machine);
  program.form.Text14.setText("1");  // behind the last row of the table
  program.form.List7.add("C:\\gone.dat");
  Command4(program.program);
  EXPECT_EQ(program.events.pumped, 5);  // the entry and four passes
}

TEST(Stamp, IsNotMadeByTheReportingExecutor) {
  TestMachine machine;
  secure(machine, "1", "4");
  machine.file("C:\\app\\a.log");
  WatchedProgram program(machine);
  program.form.Text3.setText(kCookies);
  queueFolder(program.form, "C:\\app", "*.log", "1");
  command2(program.program);
  EXPECT_THAT(program.files.opened, IsEmpty());
  EXPECT_TRUE(machine.exists("C:\\app\\a.log"));
}

}  // namespace
}  // namespace tavr
