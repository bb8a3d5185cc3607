#include "engine/play.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>

#include "basic/resume_next.h"
#include "forms/controls.h"
#include "forms/list_view.h"

namespace tavr {
namespace {

constexpr ControlDesign kDesign[] = {
    {"Check1", 52, ControlKind::kCheckBox, "", {}, 0, ""},
    {"Text1", -1, ControlKind::kTextBox, "", {}, 1, ""},
    {"go", -1, ControlKind::kButton, "", {}, 2, "Go"},
    {"View1", -1, ControlKind::kListView, "", {}, 3, ""},
    {"List1", -1, ControlKind::kList, "", {}, 4, ""},
};

struct SmallForm : Form {
  SmallForm() : Form("Small", "", 100, 100) {
    place(kDesign, "Check1", 52, box);
    place(kDesign, "Text1", -1, text);
    place(kDesign, "go", -1, button);
    place(kDesign, "View1", -1, list);
    place(kDesign, "List1", -1, choices);
  }
  CheckBox box;
  TextBox text;
  Button button;
  ListView list;
  ListBox choices;
};

class PlayTest : public ::testing::Test {
 protected:
  PlayResult played(std::string_view script) {
    actions.form = [this](std::string_view name) -> Form* {
      return name == "Small" ? &form : nullptr;
    };
    actions.wait = [this](std::uint32_t ms) { waited += ms; };
    actions.hotkey = [this] { said += "hotkey "; };
    actions.minimise = [this] { said += "minimise "; };
    actions.close = [this] { said += "close "; };
    actions.choose = [this](std::string_view file) { said += file; };
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> out(std::tmpfile(), std::fclose);
    const PlayResult result = play(script, actions, out.get(), message);
    printed.resize(static_cast<std::size_t>(std::ftell(out.get())));
    std::rewind(out.get());
    EXPECT_EQ(std::fread(printed.data(), 1, printed.size(), out.get()), printed.size());
    return result;
  }

  SmallForm form;
  PlayActions actions;
  std::uint32_t waited = 0;
  std::string said;
  std::string message;
  std::string printed;
};

TEST_F(PlayTest, ActsOnControlsByTheirNames) {
  int clicks = 0;
  form.button.onClick = [&] { ++clicks; };
  EXPECT_EQ(played("click Small.go\nclick Small.GO\ncheck Small.Check1(52)\n"
                   "type Small.Text1 a text\nexpect Small.Text1 a text\n"
                   "expect Small.Check1(52) 1\nexpect Small.go Go\n"),
            PlayResult::kDone);
  EXPECT_EQ(clicks, 2);
}

TEST_F(PlayTest, ADisabledButtonIsPressedInVain) {
  int clicks = 0;
  form.button.onClick = [&] { ++clicks; };
  form.button.enabled = false;
  EXPECT_EQ(played("click Small.go"), PlayResult::kDone);
  EXPECT_EQ(clicks, 0);
}

TEST_F(PlayTest, CommentsAndEmptyLinesCountAsLines) {
  EXPECT_EQ(played("# first\n\n\nexpect Small.Text1 x\n"), PlayResult::kExpectFailed);
  EXPECT_EQ(message, "4: expected \"x\", found \"\"");
}

TEST_F(PlayTest, AWrongLineIsToldWithItsNumberAndEndsTheScript) {
  EXPECT_EQ(played("type Small.Text1 a\njump\ntype Small.Text1 b\n"), PlayResult::kWrongLine);
  EXPECT_EQ(message, "2: unknown action: jump");
  EXPECT_EQ(form.text.text(), "a");
}

TEST_F(PlayTest, WhatIsNotThereIsAWrongLine) {
  EXPECT_EQ(played("click Other.go"), PlayResult::kWrongLine);
  EXPECT_EQ(message, "1: no such form is open: Other.go");
  EXPECT_EQ(played("click Small.stop"), PlayResult::kWrongLine);
  EXPECT_EQ(message, "1: no such control: Small.stop");
  EXPECT_EQ(played("click go"), PlayResult::kWrongLine);
  EXPECT_EQ(message, "1: no control: go");
  EXPECT_EQ(played("tick Small.go"), PlayResult::kWrongLine);
  EXPECT_EQ(message, "1: is no timer");
  EXPECT_EQ(played("click Small.View1 1"), PlayResult::kWrongLine);
  EXPECT_EQ(message, "1: no such row: 1");
  EXPECT_EQ(played("wait 10"), PlayResult::kWrongLine);
  EXPECT_EQ(message, "1: no time such as 10s: 10");
}

TEST_F(PlayTest, RowsOfListsAreClickedAndTicked) {
  form.list.add("a", "b");
  form.list.add("c", "b");
  int checked_row = 0;
  form.list.onItemCheck = [&](int row) { checked_row = row; };
  form.choices.add("x");
  EXPECT_EQ(played("click Small.View1 2\ncheck Small.View1 2\nclick Small.List1 1\n"
                   "show Small.View1\nshow Small.List1\nexpect Small.View1 2\n"),
            PlayResult::kDone);
  EXPECT_EQ(form.list.selected, 2);
  EXPECT_EQ(checked_row, 2);
  EXPECT_EQ(printed, "  a |  | \n* c |  | \n* x\n");
}

TEST_F(PlayTest, TimeAndTheWindowAreActionsOfTheirOwn) {
  EXPECT_EQ(played("wait 2s\nwait 250ms\nwait 1m\nhotkey\nminimise\nclose\nchoose C:\\a.tv\r\n"),
            PlayResult::kDone);
  EXPECT_EQ(waited, 62250U);
  EXPECT_EQ(said, "hotkey minimise close C:\\a.tv");
}

TEST_F(PlayTest, TheEndOfTheProcessPassesThroughAScript) {
  form.button.onClick = [] { throw ProcessEnd{}; };
  EXPECT_THROW(played("click Small.go\n"), ProcessEnd);
}

}  // namespace
}  // namespace tavr
