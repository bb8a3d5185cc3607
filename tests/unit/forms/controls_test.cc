#include "forms/controls.h"

#include <gtest/gtest.h>

#include "forms/form1.h"
#include "tests/support/test_machine.h"

namespace tavr {
namespace {

TEST(TextBox, AnotherTextFiresTheChangeHandlerAndTheSameDoesNot) {
  TextBox box;
  int changes = 0;
  box.onChange = [&] { ++changes; };
  box.setText("1");
  box.setText("1");
  EXPECT_EQ(changes, 1);
  box.setText("");
  EXPECT_EQ(changes, 2);
  box.setText("");
  EXPECT_EQ(changes, 2);
}

TEST(TextBox, StartsEmptySoThatEmptyIsNoChangeAndZeroIs) {
  TextBox box;
  int changes = 0;
  box.onChange = [&] { ++changes; };
  box.setText("");
  EXPECT_EQ(changes, 0);
  box.setText("0");
  EXPECT_EQ(changes, 1);
}

TEST(TextBox, TheHandlerSeesTheNewText) {
  TextBox box;
  std::string seen;
  box.onChange = [&] { seen = box.text(); };
  box.setText("2");
  EXPECT_EQ(seen, "2");
}

TEST(TextBox, ATextEndsAtItsFirstNul) {
  TextBox box;
  box.setText(std::string_view("a\0b", 3));
  EXPECT_EQ(box.text(), "a");
}

TEST(TextBox, ATextThatDiffersOnlyBehindTheNulIsTheSame) {
  TextBox box;
  box.setText("a");
  int changes = 0;
  box.onChange = [&] { ++changes; };
  box.setText(std::string_view("a\0b", 3));
  EXPECT_EQ(changes, 0);
}

TEST(TextBox, CaseAndBlanksAreADifference) {
  TextBox box;
  box.setText("a");
  int changes = 0;
  box.onChange = [&] { ++changes; };
  box.setText("A");
  box.setText("A ");
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(box.text(), "A ");
}

TEST(TextList, KeepsItsRowsInOrder) {
  TextList list;
  list.add("b");
  list.add("a");
  list.add("b");
  ASSERT_EQ(list.count(), 3);
  EXPECT_EQ(list.at(0), "b");
  EXPECT_EQ(list.at(1), "a");
  EXPECT_EQ(list.at(2), "b");
  list.clear();
  EXPECT_EQ(list.count(), 0);
}

TEST(TextList, ARowOutsideReadsAsEmptyWithoutAnError) {
  TextList list;
  list.add("a");
  EXPECT_EQ(list.at(-1), "");
  EXPECT_EQ(list.at(1), "");
  EXPECT_EQ(list.at(100), "");
}

TEST(TextList, ARowIsCutAtItsFirstNul) {
  TextList list;
  list.add(std::string_view("C:\\a\0C:\\b", 9));
  list.add(std::string_view("\0", 1));
  EXPECT_EQ(list.at(0), "C:\\a");
  EXPECT_EQ(list.count(), 2);
  EXPECT_EQ(list.at(1), "");
}

TEST(Button, AClickOfAHiddenHandlerIsAPlainCall) {
  Button button;
  button.click();  // nothing is put in yet
  int clicks = 0;
  button.onClick = [&] { ++clicks; };
  button.enabled = false;
  button.click();
  EXPECT_EQ(clicks, 1);
}

TEST(FormTimer, TicksOnlyWhileItIsEnabled) {
  testing::TestMachine machine;
  FormTimer timer(machine.machine().events, 100);
  int ticks = 0;
  timer.onTick = [&] { ++ticks; };
  machine.machine().events.wait(250);
  EXPECT_EQ(ticks, 0);
  timer.setEnabled(true);
  machine.machine().events.wait(250);
  EXPECT_EQ(ticks, 2);
  timer.setEnabled(false);
  machine.machine().events.wait(250);
  EXPECT_EQ(ticks, 2);
}

TEST(FormTimer, ItsTicksEndWithIt) {
  testing::TestMachine machine;
  int ticks = 0;
  {
    FormTimer timer(machine.machine().events, 100);
    timer.onTick = [&] { ++ticks; };
    timer.setEnabled(true);
  }
  machine.machine().events.wait(300);
  EXPECT_EQ(ticks, 0);
}

TEST(MainForm, EveryHiddenBoxStartsEmpty) {
  testing::TestMachine machine;
  const Form1 form(machine.machine());
  for (const TextBox* box :
       {&form.Text2, &form.Text3, &form.Text4, &form.Text5, &form.Text10, &form.Text11,
        &form.Text12, &form.Text13, &form.Text14, &form.Text15, &form.Text16, &form.txtregcount,
        &form.txtfilecount, &form.txtfilesize, &form.txtcountfil, &form.txtlang}) {
    EXPECT_EQ(box->text(), "");
  }
}

}  // namespace
}  // namespace tavr
