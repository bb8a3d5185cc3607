// What the arguments make of the form's mode fields, row for row.
#include <gtest/gtest.h>

#include <string>

#include "engine/start.h"
#include "tests/support/test_machine.h"

namespace tavr {
namespace {

using testing::TestMachine;

struct Modes {
  bool hasArguments = true;
  int unattended = 0;
  int resultMode = 0;
  int parentMode = 0;
  int hideOnLoad = 0;
  bool visible = true;
  bool minimised = false;
  std::string text11 = {};
  std::string dialog_mode = {};
  bool operator==(const Modes&) const = default;
};

void PrintTo(const Modes& m, std::ostream* out) {
  *out << "arguments " << m.hasArguments << " unattended " << m.unattended << " result "
       << m.resultMode << " parent " << m.parentMode << " hide " << m.hideOnLoad << " visible "
       << m.visible << " minimised " << m.minimised << " Text11 \"" << m.text11 << "\" dialogs \""
       << m.dialog_mode << "\"";
}

constexpr bool kInvisible = false;
const Modes kNone = {.hasArguments = false};
const Modes kOther = {};
const Modes kParentErase = {.unattended = 1, .parentMode = 2};
const Modes kParentTest = {.unattended = 1, .parentMode = 1};
const Modes kEraseOnly = {.unattended = 1, .resultMode = 1, .visible = kInvisible};
const Modes kBothInvisible = {.unattended = 1, .visible = kInvisible};
const Modes kBoth = {.unattended = 1};
const Modes kDialogs = {.unattended = 5, .dialog_mode = "d"};
const Modes kResult = {.unattended = 1, .resultMode = 2};
const Modes kHiddenResult = {.unattended = 1, .resultMode = 2, .hideOnLoad = 1};
const Modes kWindowsStart = {.minimised = true, .text11 = "s"};

struct Row {
  const char* arguments;
  Modes modes;
};

void PrintTo(const Row& row, std::ostream* out) { *out << '"' << row.arguments << '"'; }

const Row kRows[] = {
    {"", kNone},
    {"   ", kNone},
    {"w4", kParentErase},
    {"w4-c4", kParentErase},
    {"w4-x", kParentTest},
    {"w4-c2", kParentTest},
    {"w4-", kParentTest},
    {"w4-c4-x", kParentErase},
    {"w4-x-c4", kParentTest},
    {"t", kEraseOnly},
    {"t-c", kEraseOnly},
    {"t-x", kBothInvisible},
    {"t-", kBothInvisible},
    {"t-c-x", kEraseOnly},
    {"t-c4", kBothInvisible},
    {"d", kDialogs},
    {"d-c", kOther},
    {"w2", kResult},
    {"w2-c2", kResult},
    {"w2-x", kBoth},
    {"w2-", kBoth},
    {"w2-c2-x", kResult},
    {"w2-c3", kBoth},
    {"w3", kHiddenResult},
    {"w3-c3", kHiddenResult},
    {"w3-x", kBoth},
    {"w3-", kBoth},
    {"w3-c2", kBoth},
    {"s", kWindowsStart},
    {"s-x", kOther},
    {"W2-C2", kResult},
    {"W4", kParentErase},
    {"T-C", kEraseOnly},
    {"D", kDialogs},
    {"S", kWindowsStart},
    {"  w3-c3  ", kHiddenResult},
    // Words are not trimmed: each of these is another word.
    {"w4 -c4", kOther},
    {"w4- c4", kParentTest},
    {"t -c", kOther},
    {"t- c", kBothInvisible},
    // Only the whole word counts, and only a hyphen joins words.
    {"t c", kOther},
    {"test", kOther},
    {"*", kOther},
    {"?", kOther},
    {"-t", kOther},
    {"-", kOther},
    {"w1", kOther},
    {"w5-c5", kOther},
    {"help", kOther},
};

class CommandLine : public ::testing::TestWithParam<Row> {};

TEST_P(CommandLine, SetsTheModeFields) {
  TestMachine machine;
  Form_Initialize(machine.program(), GetParam().arguments);
  const Form1& form = machine.program().form;
  const Modes found = {form.hasArguments,
                       form.unattended,
                       form.resultMode,
                       form.parentMode,
                       form.hideOnLoad,
                       form.visible,
                       (form.window_state == WindowState::kMinimised),
                       form.Text11.text(),
                       form.dialog_mode};
  EXPECT_EQ(found, GetParam().modes);
}

INSTANTIATE_TEST_SUITE_P(Rows, CommandLine, ::testing::ValuesIn(kRows));

}  // namespace
}  // namespace tavr
