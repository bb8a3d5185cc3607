// The task table: which rows stand in it, in which order and with which icon.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/test_machine.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using testing::TestMachine;

std::vector<std::string> built(TestMachine& machine) {
  Form1& form = machine.program().form;
  form.Text4.setText("");
  form.Text4.setText("1");
  std::vector<std::string> rows;
  for (int row = 1; row <= form.View100.count(); ++row) {
    rows.push_back(form.View100.item(row).text + "|" + form.View100.item(row).small_icon);
  }
  return rows;
}

const std::vector<std::string> kBrowsers = {"Internet Explorer Browser|a", "Firefox Browser|ffo",
                                            "Google chrome Browser|chr",   "Opera Browser|opr",
                                            "Microsoft Edge Browser|edg",  "Yandex Browser|ydx",
                                            "Vivaldi Browser|viv",         "Brave Browser|brv",
                                            "Torch Browser|tor",           "Maxthon Browser|max"};

std::vector<std::string> withBrowsers(std::vector<std::string> rows) {
  rows.insert(rows.end(), kBrowsers.begin(), kBrowsers.end());
  return rows;
}

TEST(TaskTable, NothingSelectedGivesExactlyTheTenBrowserRows) {
  TestMachine machine;
  EXPECT_THAT(built(machine), ElementsAreArray(kBrowsers));
}

TEST(TaskTable, EverySelectedTrackHasItsRowInTheFixedOrder) {
  TestMachine machine;
  for (const char* value : {"2", "4", "8", "9", "10", "11", "12", "13", "53", "54"}) {
    machine.select(value);
  }
  EXPECT_THAT(built(machine),
              ElementsAreArray(withBrowsers(
                  {"Temporary Internet File (cache)|a", "Recent Documents History|b",
                   "Start Menu Search History|b", "Start Menu Run History|b", "Windows Temporary|b",
                   "Open / Save Dialog Box History|b", "Recycle Bin|b", "Index.dat|a",
                   "Notification Area Icon Cache|b", "Windows Searching History|b"})));
}

TEST(TaskTable, ASelectionIsOnWhenItConvertsToExactlyOne) {
  TestMachine machine;
  machine.select("13", "1.0")
      .select("12", "2")
      .select("11", "abc")
      .select("10", " 1")
      .select("9", "0");
  machine.rawValue("HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\tavrwork\\tavr wipe\\option\\win",
                   "8", "dword:00000001");
  EXPECT_THAT(built(machine),
              ElementsAreArray(withBrowsers(
                  {"Recent Documents History|b", "Windows Temporary|b", "Recycle Bin|b"})));
}

TEST(TaskTable, AnySpellingOfTheSelectionKeyAddressesTheSameKey) {
  TestMachine machine;
  machine.value("HKEY_LOCAL_MACHINE\\software\\wow6432node\\TAVRWORK\\Tavr Wipe\\OPTION\\Win", "10",
                "1");
  EXPECT_THAT(built(machine), ElementsAreArray(withBrowsers({"Windows Temporary|b"})));
}

TEST(TaskTable, ASelectionInThe64BitViewIsNotRead) {
  TestMachine machine;
  machine.value("HKEY_LOCAL_MACHINE\\SOFTWARE\\tavrwork\\tavr wipe\\option\\win", "10", "1");
  EXPECT_THAT(built(machine), ElementsAreArray(kBrowsers));
}

TEST(TaskTable, ASelectionThatCannotBeReadIsOff) {
  TestMachine machine;
  machine.select("10").ini("[fault]\nRegQueryValueEx=0,5\n");
  EXPECT_THAT(built(machine), ElementsAreArray(kBrowsers));
}

TEST(TaskTable, TheSelectedPlugInsFollowAsTheirLinesStand) {
  TestMachine machine;
  machine.file("C:\\Program Files\\Tavr Wipe\\slectplg.cln",
               "First\r\n  \r\n\r\n Second \r\nThird*");
  std::vector<std::string> expected = kBrowsers;
  for (const char* row : {"First|c", " Second |c", "Third*|c"}) expected.emplace_back(row);
  EXPECT_THAT(built(machine), ElementsAreArray(expected));
}

TEST(TaskTable, WithoutASelectionFileNoPlugInRowIsAdded) {
  TestMachine machine;
  EXPECT_THAT(built(machine), ElementsAreArray(kBrowsers));
  EXPECT_FALSE(machine.exists("C:\\Program Files\\Tavr Wipe\\slectplg.cln"));
  EXPECT_EQ(machine.program().numbers.freeFile(), 1);  // nothing stays open
}

TEST(TaskTable, AnEmptySelectionFileAddsNoRow) {
  TestMachine machine;
  machine.file("C:\\Program Files\\Tavr Wipe\\slectplg.cln", "");
  EXPECT_THAT(built(machine), ElementsAreArray(kBrowsers));
}

TEST(TaskTable, ASelectionFileThatSomebodyHoldsAddsNoRow) {
  TestMachine machine;
  machine.file("C:\\Program Files\\Tavr Wipe\\slectplg.cln", "First\r\n")
      .machineFile("locked.txt", "C:\\Program Files\\Tavr Wipe\\slectplg.cln\n");
  EXPECT_THAT(built(machine), ElementsAreArray(kBrowsers));
}

TEST(TaskTable, TheSameTriggerTwiceRebuildsNothing) {
  TestMachine machine;
  machine.program().form.Text4.setText("1");
  machine.program().form.View100.clear();
  machine.program().form.Text4.setText("1");
  EXPECT_EQ(machine.program().form.View100.count(), 0);
  machine.program().form.Text4.setText("");
  EXPECT_EQ(machine.program().form.View100.count(), 0);
  machine.program().form.Text4.setText("1");
  EXPECT_EQ(machine.program().form.View100.count(), 10);
}

TEST(TaskTable, OnlyATriggerOfOneRebuilds) {
  TestMachine machine;
  for (const char* text : {"2", "0", "x"}) {
    machine.program().form.Text4.setText(text);
    EXPECT_EQ(machine.program().form.View100.count(), 0) << text;
  }
}

TEST(TaskTable, BothCellsOfARowExistFromTheStart) {
  TestMachine machine;
  built(machine);
  ListRow& row = machine.program().form.View100.item(1);
  EXPECT_EQ(row.subItem(1).text, "");
  EXPECT_EQ(row.subItem(2).text, "");
  EXPECT_FALSE(row.subItem(2).bold);
}

}  // namespace
}  // namespace tavr
