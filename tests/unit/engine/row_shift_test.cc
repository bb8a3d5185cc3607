// The rows "2" and "4" stand in the task table and belong to no step: from
// there on every result stands one row higher than its label, twice with both.
// Each browser has a number of traces of its own, so a result can be told by it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/browser_traces.h"
#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using testing::addDistinctCookies;
using testing::kBrowserLabels;
using testing::TestMachine;
using testing::WatchedProgram;

constexpr std::string_view kTypedPaths =
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\TypedPaths";
// 53, the icon cache, shows 0; 13 shows its typed paths.
constexpr int kTypedPathCount = 12;

struct Picture {
  const char* name;
  std::vector<const char*> selected;
  std::vector<std::string> rows;  // label|status|count, from the table's top to its end
  const char* first_plug_in_row;
};

void PrintTo(const Picture& picture, std::ostream* out) { *out << picture.name; }

// The browser rows when the first of them shows the result of group `shift` (0
// to 9): that many rows at the end have none and count as plug-in rows.
std::vector<std::string> browsers(int shift, std::vector<std::string> before) {
  for (int row = 0; row < 10; ++row) {
    const int group = row + shift;
    before.push_back(std::string(kBrowserLabels[static_cast<std::size_t>(row)]) +
                     (group < 10 ? "|Finished|" + std::to_string(group + 1) : "|Done|"));
  }
  before.push_back("P|Done|");
  return before;
}

const Picture kPictures[] = {
    {"Neither", {}, browsers(0, {}), "11"},
    {"NeitherWithTwoSteps",
     {"13", "53"},
     browsers(0,
              {"Recent Documents History|Finished|12", "Notification Area Icon Cache|Finished|0"}),
     "13"},
    {"Only2", {"2"}, browsers(1, {"Temporary Internet File (cache)|Finished|1"}), "11"},
    {"Only4", {"4"}, browsers(1, {"Index.dat|Finished|1"}), "11"},
    {"Both",
     {"2", "4"},
     browsers(2, {"Temporary Internet File (cache)|Finished|1", "Index.dat|Finished|2"}),
     "11"},
    {"Only2WithTwoSteps",
     {"2", "13", "53"},
     browsers(1,
              {"Temporary Internet File (cache)|Finished|12", "Recent Documents History|Finished|0",
               "Notification Area Icon Cache|Finished|1"}),
     "13"},
    {"Only4WithTwoSteps",
     {"4", "13", "53"},
     browsers(1, {"Recent Documents History|Finished|12", "Index.dat|Finished|0",
                  "Notification Area Icon Cache|Finished|1"}),
     "13"},
    {"BothWithTwoSteps",
     {"2", "4", "13", "53"},
     browsers(2,
              {"Temporary Internet File (cache)|Finished|12", "Recent Documents History|Finished|0",
               "Index.dat|Finished|1", "Notification Area Icon Cache|Finished|2"}),
     "13"},
    {"Only4WithStepsOnlyBeforeIt",
     {"4", "13"},
     browsers(1, {"Recent Documents History|Finished|12", "Index.dat|Finished|1"}),
     "12"},
};

void prepare(TestMachine& machine) {
  machine.select("52");
  addDistinctCookies(machine);
  for (int i = 1; i <= kTypedPathCount; ++i) {
    machine.value(kTypedPaths, "url" + std::to_string(i), "C:\\x");
  }
  machine.file("C:\\Program Files\\Tavr Wipe\\slectplg.cln", "P\r\n");
}

class RowShift : public ::testing::TestWithParam<std::tuple<Picture, RunKind>> {};
INSTANTIATE_TEST_SUITE_P(Pictures, RowShift,
                         ::testing::Combine(::testing::ValuesIn(kPictures),
                                            ::testing::Values(RunKind::erase, RunKind::test)),
                         [](const auto& chosen) {
                           return std::string(std::get<0>(chosen.param).name) +
                                  (std::get<1>(chosen.param) == RunKind::erase ? "Erase" : "Test");
                         });

TEST_P(RowShift, EachRowShowsTheResultThatReachesIt) {
  const auto& [picture, kind] = GetParam();
  TestMachine machine;
  prepare(machine);
  for (const char* value : picture.selected) machine.select(value);
  WatchedProgram program(machine);
  program.run(kind);
  EXPECT_EQ(program.table(), picture.rows);
  EXPECT_EQ(program.form.Text14.text(), picture.first_plug_in_row);
}

TEST(RowShift, TheLiveStatusGoesToTheWrongRowToo) {
  TestMachine machine;
  prepare(machine);
  machine.select("2");
  WatchedProgram program(machine);
  std::vector<std::string> during;
  program.events.next([&] { during = program.table(); });  // Internet Explorer's first file
  program.run(RunKind::test);
  EXPECT_EQ(during.at(0), "Temporary Internet File (cache)|Test Erasing|");
  EXPECT_EQ(during.at(1), "Internet Explorer Browser||");
}

TEST(RowShift, IconsAndFormatsGoToTheWrongRowToo) {
  TestMachine machine;
  prepare(machine);
  machine.select("2");
  WatchedProgram program(machine);
  program.run(RunKind::test);
  ListView& table = program.form.View100;
  EXPECT_EQ(table.item(1).subItem(1).report_icon, "o");  // Internet Explorer's result
  EXPECT_FALSE(table.item(1).subItem(2).bold);           // its track has no row tail
  EXPECT_TRUE(table.item(2).subItem(2).bold);            // Firefox's has
  EXPECT_EQ(table.item(2).subItem(2).fore_color, kDarkRed);
  EXPECT_EQ(table.item(11).text, "Maxthon Browser");
  EXPECT_EQ(table.item(11).small_icon, "o");  // taken for a plug-in row
  EXPECT_EQ(table.item(11).subItem(1).report_icon, "");
  EXPECT_EQ(table.item(10).small_icon, "tor");
}

// --- A value switched while the run is under way ------------------------------

void selectNow(TestMachine& machine, std::string_view value, std::string_view text) {
  machine.machine()
      .registry
      .create(Root::kLocalMachine, "software\\tavrwork\\tavr wipe\\option\\win", "1", 0x2003F)
      .key->setValue(value, kRegSz, text);
}

TEST(SwitchedDuringARun, OffPutsLaterResultsOneRowHigh) {
  TestMachine machine;
  prepare(machine);
  machine.select("10").select("53").file("C:\\Users\\user\\AppData\\Local\\Temp\\a");
  WatchedProgram program(machine);
  program.events.next([&] { selectNow(machine, "53", "0"); });
  program.run(RunKind::test);
  EXPECT_EQ(program.table(), browsers(1, {"Windows Temporary|Finished|1",
                                          "Notification Area Icon Cache|Finished|1"}));
  EXPECT_EQ(program.form.Text14.text(), "12");
}

TEST(SwitchedDuringARun, OnPutsLaterResultsOneRowLow) {
  TestMachine machine;
  prepare(machine);
  machine.select("10").file("C:\\Users\\user\\AppData\\Local\\Temp\\a");
  WatchedProgram program(machine);
  program.events.next([&] { selectNow(machine, "53", "1"); });
  program.run(RunKind::test);
  std::vector<std::string> expected = {"Windows Temporary|Finished|1",
                                       "Internet Explorer Browser|Finished|0"};
  for (std::size_t row = 1; row < 10; ++row) {
    expected.push_back(std::string(kBrowserLabels[row]) + "|Finished|" + std::to_string(row));
  }
  expected.emplace_back("P|Finished|10");  // Maxthon's, and not "Done"
  EXPECT_EQ(program.table(), expected);
  EXPECT_EQ(program.form.Text14.text(), "13");
}

TEST(SwitchedDuringARun, AResultWithoutARowIsLostAndItsTotalsAreAdded) {
  TestMachine machine;
  machine.select("52").select("10").file("C:\\Users\\user\\AppData\\Local\\Temp\\a");
  addDistinctCookies(machine);
  WatchedProgram program(machine);
  program.events.next([&] { selectNow(machine, "53", "1"); });
  program.run(RunKind::test);
  EXPECT_EQ(program.task("Maxthon Browser"), "Finished|9");
  EXPECT_EQ(program.form.txtfilecount.text(), "56");
  EXPECT_EQ(program.form.View100.count(), 11);
}

TEST(SwitchedDuringARun, ABrowserSelectionCountsAsItStoodAtTheHead) {
  TestMachine machine;
  prepare(machine);
  machine.select("10").file("C:\\Users\\user\\AppData\\Local\\Temp\\a");
  WatchedProgram program(machine);
  program.events.next([&] { selectNow(machine, "52", "0"); });
  program.run(RunKind::test);
  EXPECT_EQ(program.task("Maxthon Browser"), "Finished|10");
}

}  // namespace
}  // namespace tavr
