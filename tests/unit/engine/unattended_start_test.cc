// The road of an unattended start: which runs it makes, what it leaves, and how
// the process ends.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "basic/resume_next.h"
#include "engine/start.h"
#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using testing::TestMachine;
using testing::WatchedProgram;

// As the program spells it, in the view of a 32-bit program.
constexpr std::string_view kLiveKey =
    "software\\WOW6432Node\\tavrwork\\Tavr Brightbox Deluxe\\real";

std::string mark(TestMachine& machine) {
  return machine.registryText(Root::kLocalMachine,
                              "software\\tavrwork\\Tavr Brightbox Deluxe\\real", "ic");
}

struct Row {
  const char* arguments;
  std::vector<RunKind> runs;
  bool result_file;
  bool parent_rows;  // eresetmp.txt
  const char* ic;
};

void PrintTo(const Row& row, std::ostream* out) { *out << '"' << row.arguments << '"'; }

constexpr RunKind E = RunKind::erase;
constexpr RunKind T = RunKind::test;

const Row kRows[] = {
    {"w4", {E}, true, false, "<none>"},  {"w4-c4", {E}, true, false, "<none>"},
    {"w4-x", {T}, true, true, "1"},      {"t", {E}, false, false, "1"},
    {"t-c", {E}, false, false, "1"},     {"t-x", {T, E}, false, false, "1"},
    {"w2", {T}, true, false, "1"},       {"w2-c2", {T}, true, false, "1"},
    {"W2-C2", {T}, true, false, "1"},    {"w2-x", {T, E}, false, false, "1"},
    {"w3", {T}, true, false, "1"},       {"w3-c3", {T}, true, false, "1"},
    {"w3-x", {T, E}, false, false, "1"},
};

class UnattendedStart : public ::testing::TestWithParam<Row> {};

TEST_P(UnattendedStart, MakesItsRunsAndEndsTheProcess) {
  TestMachine machine;
  machine.ini("[parent]\nwindow=Tavrwork Brightbox\n");
  WatchedProgram program(machine);
  std::vector<RunKind> runs;
  program.program.onRunFinished = [&](RunKind kind) { runs.push_back(kind); };
  EXPECT_TRUE(program.start(GetParam().arguments));
  EXPECT_EQ(runs, GetParam().runs);
  EXPECT_FALSE(program.form.visible);
  EXPECT_EQ(machine.exists("C:\\Program Files\\Tavr Wipe\\eresst.txt"), GetParam().result_file);
  EXPECT_EQ(machine.exists("C:\\Program Files\\Tavr Wipe\\eresetmp.txt"), GetParam().parent_rows);
  EXPECT_EQ(mark(machine), GetParam().ic);
}

INSTANTIATE_TEST_SUITE_P(Rows, UnattendedStart, ::testing::ValuesIn(kRows));

TEST(Start, AnInteractiveStartEndsNothingAndRunsNothing) {
  for (const char* arguments : {"", "d", "s", "anything"}) {
    TestMachine machine;
    WatchedProgram program(machine);
    EXPECT_FALSE(program.start(arguments)) << arguments;
    EXPECT_EQ(program.form.View100.count(), 10) << arguments;
    EXPECT_EQ(program.form.taskrow, 0) << arguments;
    EXPECT_EQ(mark(machine), "<none>") << arguments;
  }
}

TEST(Start, AFirstUnattendedStartPresetsNothingAndWalksWithNothingSelected) {
  TestMachine machine;
  WatchedProgram program(machine);
  program.start("t");
  EXPECT_FALSE(
      machine.keyExists(Root::kLocalMachine, "software\\tavrwork\\tavr wipe\\option\\win"));
  EXPECT_EQ(program.form.View100.count(), 10);
  EXPECT_THAT(program.table(), Each(EndsWith("|Finished|0")));
  EXPECT_THAT(program.rows(), IsEmpty());
}

TEST(Start, AnUnattendedStartDoesNotWriteTheFirstTimeMark) {
  TestMachine machine;
  machine.run("t-x");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, "software\\tavrwork\\tavr wipe\\option",
                                 "firsttime"),
            "<none>");
}

TEST(Start, TheMarkOfASilentRunIsKeptInTheViewOfThe32BitProgram) {
  TestMachine machine;
  machine.run("t");
  EXPECT_THAT(
      machine.readMachineFile("registry.reg"),
      ::testing::HasSubstr("[HKEY_LOCAL_MACHINE\\" + std::string(kLiveKey) + "]\n\"ic\"=\"1\"\n"));
}

TEST(Start, AnUnattendedRunComesBeforeTheLanguageFileAndTheStartPageAreKnown) {
  TestMachine machine;
  machine.select("11")
      .setting("tavr wipe", "language", "english.ini")
      .setting("Tavr Wipe", "homepage", "http://home/")
      .file("C:\\Program Files\\Tavr Wipe\\lang\\english.ini", "[001]\r\n033=Cleaned: \r\n");
  WatchedProgram program(machine);
  program.start("t");
  EXPECT_THAT(program.rows(), ElementsAre("Clean start run history  <OK>"));
  EXPECT_EQ(program.form.txtlang.text(), "");
  EXPECT_EQ(program.form.Text12.text(), "");
  EXPECT_EQ(program.form.Text13.text(), "");
}

TEST(Start, ARunWithALanguageFileInForceTakesItsNumberedText) {
  TestMachine machine;
  machine.select("11").file("C:\\Program Files\\Tavr Wipe\\lang\\english.ini",
                            "[001]\r\n029=other\r\n033=Cleaned: \r\n");
  WatchedProgram program(machine);
  program.form.txtlang.setText("english.ini");
  program.run(RunKind::erase);
  EXPECT_THAT(program.rows(), ElementsAre("Cleaned:Clean start run history  <OK>"));
}

TEST(Start, ANumberedTextThatIsMissingIsEmpty) {
  TestMachine machine;
  machine.select("11").file("C:\\Program Files\\Tavr Wipe\\lang\\english.ini",
                            "[002]\r\n033=wrong section\r\n");
  WatchedProgram program(machine);
  program.form.txtlang.setText("english.ini");
  program.run(RunKind::erase);
  EXPECT_THAT(program.rows(), ElementsAre("Clean start run history  <OK>"));
}

// Nothing in the program writes Text15; its handler stands ready all the same.
TEST(Start, AChangeOfTheHandlerThatNothingFiresTestsStoresTheWizardStatisticsAndEnds) {
  TestMachine machine;
  machine.select("10").file("C:\\Users\\user\\AppData\\Local\\Temp\\a", "12345");
  WatchedProgram program(machine);
  EXPECT_THROW(program.form.Text15.setText("x"), ProcessEnd);
  constexpr std::string_view kKey =
      "software\\tavrwork\\Tavr Brightbox Deluxe\\wizard\\statics\\tracks";
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kKey, "rcount"), "0");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kKey, "count"), "1");
  EXPECT_EQ(machine.registryText(Root::kLocalMachine, kKey, "size"), "5");
  EXPECT_EQ(mark(machine), "1");
  EXPECT_TRUE(machine.exists("C:\\Users\\user\\AppData\\Local\\Temp\\a"));
}

TEST(Start, TheSameHandlerErasesForTheArgumentT) {
  TestMachine machine;
  machine.select("10").file("C:\\Users\\user\\AppData\\Local\\Temp\\a");
  WatchedProgram program(machine);
  Form_Initialize(program.program, "t");
  EXPECT_THROW(program.form.Text15.setText("x"), ProcessEnd);
  EXPECT_FALSE(machine.exists("C:\\Users\\user\\AppData\\Local\\Temp\\a"));
}

TEST(FormLoad, ATaskTableThatCouldNotBeBuiltPresetsTheWindowsTracks) {
  TestMachine machine;
  Program& program = machine.program();
  program.form.Text4.onChange = nullptr;
  machine.run("t");
  const auto value = [&](std::string_view name) {
    return machine.registryText(Root::kLocalMachine, "software\\tavrwork\\tavr wipe\\option\\win",
                                name);
  };
  for (const char* name : {"8", "9", "10", "11", "12", "13"}) EXPECT_EQ(value(name), "1") << name;
  EXPECT_EQ(value("7"), "<none>");
  EXPECT_EQ(value("14"), "<none>");
}

TEST(FormLoad, GrantsAccessToTheSelectionKeyInTheWiderView) {
  // Read right behind the grant: later ones have results of their own.
  const auto failedAtLoad = [](TestMachine& machine) {
    Form1& form = machine.program().form;
    std::optional<bool> failed;
    const auto build_table = form.Text4.onChange;
    form.Text4.onChange = [&] {
      if (!failed) failed = form.grant_failed;
      if (build_table) build_table();
    };
    machine.run("t");
    form.Text4.onChange = build_table;
    return failed;
  };
  TestMachine with_key;
  with_key.key("HKEY_LOCAL_MACHINE\\SOFTWARE\\Tavrwork\\tavr wipe\\option\\win");
  EXPECT_EQ(failedAtLoad(with_key), false);
  TestMachine without_key;
  EXPECT_EQ(failedAtLoad(without_key), true);
}

TEST(FormLoad, WithoutWmiTheStripAndItsFourButtonsTakeTheDefaultColour) {
  TestMachine machine;
  machine.ini("[fault]\nGetObject=0,429\n");
  machine.run("");
  const Form1& form = machine.program().form;
  EXPECT_EQ(form.strip_color, 10118205);
  for (const StripButton* button : {&form.chameleonButton9, &form.chameleonButton10,
                                    &form.chameleonButton12, &form.chameleonButton13}) {
    EXPECT_EQ(button->color, 10118205);
    EXPECT_EQ(button->hover_color, 10118205);
  }
}

TEST(FormLoad, ShowsTheYearOfTheClock) {
  TestMachine machine;
  machine.run("");
  EXPECT_EQ(machine.program().form.Label222.caption, "2026");
}

}  // namespace
}  // namespace tavr
