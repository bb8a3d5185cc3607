// Every road to each command of the main window.
#include "engine/commands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "config/maker_site.h"
#include "tests/support/started_program.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace testing;

constexpr std::string_view kTexts = "C:\\Program Files\\Tavr Wipe\\lang\\english.ini";

struct Road {
  const char* control;
  const char* opens;  ///< the form that comes up
  const char* shell;  ///< what the shell is asked for
  std::vector<RunKind> runs;
  const char* result;  ///< a file that is there afterwards
};

void PrintTo(const Road& road, std::ostream* out) { *out << road.control; }

constexpr const char* kMaker = "run 2 C:\\Program Files\\Tavr Wipe\\plug-in maker.exe\n";
constexpr const char* kLogOpened = "execute 1 - C:\\Program Files\\Tavr Wipe\\eraselog.txt\n";
constexpr const char* kHelp =
    "htmlhelp 15 21 C:\\Program Files\\Tavr Wipe\\tavrwork-helpdoc.chm>sec\n";
constexpr const char* kLog = "C:\\Program Files\\Tavr Wipe\\eraselog.txt";

const Road kRoads[] = {
    {"chameleonButton7", "Form2", "", {}, ""},
    {"cmd_settings", "Form2", "", {}, ""},
    {"Toolbar1(1)", "Form2", "", {}, ""},
    {"a4", "Form2", "", {}, ""},
    {"chameleonButton8", "Form3", "", {}, ""},
    {"cmd_option", "Form3", "", {}, ""},
    {"Toolbar1(2)", "Form3", "", {}, ""},
    {"a5", "Form3", "", {}, ""},
    {"chameleonButton3", "", kMaker, {}, ""},
    {"cmd_plugin", "", kMaker, {}, ""},
    {"Toolbar1(4)", "", kMaker, {}, ""},
    {"chameleonButton6", "", "", {RunKind::test}, ""},
    {"cmd_test", "", "", {RunKind::test}, ""},
    {"Toolbar1(6)", "", "", {RunKind::test}, ""},
    {"chameleonButton5", "", "", {RunKind::erase}, ""},
    {"cmd_start", "", "", {RunKind::erase}, ""},
    {"Toolbar1(8)", "", "", {RunKind::erase}, ""},
    {"a7", "", "", {RunKind::erase}, ""},
    {"chameleonButton1", "", kLogOpened, {}, ""},
    {"cmd_view", "", kLogOpened, {}, ""},
    {"Toolbar1(11)", "", kLogOpened, {}, ""},
    {"chameleonButton2", "frmmsg", "", {}, kLog},
    {"cmd_clear", "frmmsg", "", {}, kLog},
    {"Toolbar1(12)", "frmmsg", "", {}, kLog},
    {"Toolbar1(14)", "", "run 1 C:\\Program Files\\Tavr Wipe\\tavrclean.exe\n", {}, ""},
    {"chameleonButton4", "", kHelp, {}, ""},
    {"Image44", "", kHelp, {}, ""},
    {"chameleonButton13", "frmabout", "", {}, ""},
    // Shown, and without effect.
    {"a9", "", "", {}, ""},
    {"a8", "", "", {}, ""},
    {"a6", "", "", {}, ""},
    {"a3", "", "", {}, ""},
    {"a1", "", "", {}, ""},
    {"Toolbar1(3)", "", "", {}, ""},
    {"Toolbar1(5)", "", "", {}, ""},
    {"Toolbar1(7)", "", "", {}, ""},
    {"Toolbar1(9)", "", "", {}, ""},
    {"Toolbar1(13)", "", "", {}, ""},
};

class CommandRoad : public ::testing::TestWithParam<Road> {};

TEST_P(CommandRoad, LeadsToItsCommand) {
  const Road& road = GetParam();
  TestMachine machine;
  machine.setting(kOptionSetting, "firsttime", "1");
  StartedProgram started(machine);
  started.start();
  Control* const control = started.form().find(road.control);
  ASSERT_NE(control, nullptr);
  control->press();
  for (const char* form : {"Form2", "Form3", "Form52", "frmabout", "frmmsg"}) {
    EXPECT_EQ(started.open(form), std::string_view(form) == road.opens) << form;
  }
  const bool dialog = std::string_view(road.opens).starts_with("Form") ||
                      std::string_view(road.opens) == "frmabout";
  EXPECT_EQ(started.form().enabled, !dialog);
  EXPECT_EQ(machine.readMachineFile("shell.log"), road.shell);
  EXPECT_EQ(started.runs, road.runs);
  if (*road.result != '\0') {
    EXPECT_TRUE(machine.exists(road.result));
  }
}

INSTANTIATE_TEST_SUITE_P(Table, CommandRoad, ::testing::ValuesIn(kRoads));

class CommandsTest : public ::testing::Test {
 protected:
  CommandsTest() {
    machine.setting(kOptionSetting, "firsttime", "1");
    machine.file(kTexts,
                 "[001]\r\n018=Visit\r\n120=erase\r\n121=test\r\n122=settings\r\n123=options\r\n"
                 "125=exit\r\n127=view\r\n128=clear\r\n129=plug-ins\r\n");
    started.start();
  }

  bool tool(int index) { return form.toolbar[static_cast<std::size_t>(index)].enabled; }

  TestMachine machine;
  StartedProgram started{machine};
  Form1& form{started.form()};
};

TEST_F(CommandsTest, ADialogEnablesTheMainFormWhenItCloses) {
  for (const char* dialog : {"Form2", "Form3", "frmabout"}) {
    form.enabled = false;
    if (std::string_view(dialog) == "Form2") form.chameleonButton7.press();
    if (std::string_view(dialog) == "Form3") form.chameleonButton8.press();
    if (std::string_view(dialog) == "frmabout") form.chameleonButton13.press();
    EXPECT_FALSE(form.enabled) << dialog;
    started.program().desk.unload(dialog);
    EXPECT_TRUE(form.enabled) << dialog;
    EXPECT_EQ(started.program().desk.loaded(dialog), nullptr);
  }
}

TEST_F(CommandsTest, ADialogThatIsOpenIsNotLoadedAgain) {
  form.chameleonButton7.press();
  Form* const first = started.program().desk.loaded("Form2");
  form.menu[4].press();
  EXPECT_EQ(started.program().desk.loaded("Form2"), first);
}

TEST_F(CommandsTest, ADialogCanBeOpenedAgainAfterItWasClosed) {
  for (int i = 0; i < 3; ++i) {
    form.chameleonButton7.press();
    ASSERT_TRUE(started.open("Form2"));
    started.program().desk.loaded("Form2")->find("chameleonButton4")->press();
    EXPECT_FALSE(started.open("Form2"));
    started.program().desk.freeUnloaded();
  }
}

TEST_F(CommandsTest, TheToolbarsTestLocksTheOtherButtonsAndLeavesThemLocked) {
  bool seen = false;
  form.bar1.onValue = [&](int value) {
    if (value != 5) return;
    seen = true;
    EXPECT_TRUE(form.Gif89a1.visible);
    EXPECT_TRUE(tool(10));
    for (const int index : {1, 2, 4, 6, 8, 11, 12}) EXPECT_FALSE(tool(index)) << index;
    EXPECT_TRUE(tool(14));
  };
  form.toolbar[6].press();
  EXPECT_TRUE(seen);
  EXPECT_FALSE(form.Gif89a1.visible);
  // The end of a run enables the command column alone.
  EXPECT_TRUE(form.cmd_test.enabled);
  for (const int index : {1, 2, 4, 6, 8, 11, 12}) EXPECT_FALSE(tool(index)) << index;
  EXPECT_TRUE(tool(10));
}

TEST_F(CommandsTest, TheToolbarsStopBringsTheButtonsBack) {
  form.toolbar[6].press();
  form.Gif89a1.visible = true;
  form.bar1.setVisible(true);
  form.Label1[0].visible = true;
  form.cmd_view.enabled = false;
  form.cmd_stop.enabled = true;
  form.toolbar[10].press();
  EXPECT_EQ(form.stopflag, 1);
  // The column of commands is the other Stop's.
  EXPECT_FALSE(form.cmd_view.enabled);
  EXPECT_TRUE(form.cmd_stop.enabled);
  for (const int index : {1, 2, 4, 6, 8, 11, 12}) EXPECT_TRUE(tool(index)) << index;
  EXPECT_FALSE(tool(10));
  EXPECT_FALSE(form.Gif89a1.visible);
  EXPECT_FALSE(form.bar1.visible());
  EXPECT_FALSE(form.Label1[0].visible);
}

TEST_F(CommandsTest, TheToolbarsEraseLeavesTheOtherButtonsAsTheyAre) {
  bool seen = false;
  form.bar1.onValue = [&](int value) {
    if (value != 5) return;
    seen = true;
    EXPECT_TRUE(form.Gif89a1.visible);
    EXPECT_TRUE(tool(10));
    for (const int index : {1, 2, 4, 6, 8, 11, 12}) EXPECT_TRUE(tool(index)) << index;
  };
  form.toolbar[8].press();
  EXPECT_TRUE(seen);
  EXPECT_FALSE(form.Gif89a1.visible);
  EXPECT_TRUE(tool(10));
}

TEST_F(CommandsTest, NothingGuardsAnEraseFromTheToolbarDuringATest) {
  bool pressed = false;
  form.bar1.onValue = [&](int value) {
    if (value != 5 || pressed) return;
    pressed = true;
    form.toolbar[8].press();
  };
  form.chameleonButton6.press();
  EXPECT_THAT(started.runs, ElementsAre(RunKind::erase, RunKind::test));
}

TEST_F(CommandsTest, AWebEntryFailsAndShowsTheAddress) {
  form.menu[10].press();
  const frmmsg& message = started.program().message;
  EXPECT_TRUE(message.visible);
  EXPECT_EQ(message.caption, "Tavr Wipe Pro");
  EXPECT_EQ(message.Text1.text(), "Visit\r" + std::string(kMakerSite));
  EXPECT_EQ(machine.readMachineFile("shell.log"), "run 2 Start " + std::string(kMakerSite) + "\n");
}

TEST_F(CommandsTest, ThePlugInEntryNamesItsPage) {
  form.menu[2].press();
  EXPECT_EQ(started.program().message.Text1.text(),
            "Visit\r" + std::string(kMakerSite) + "/plugin.htm");
  EXPECT_EQ(started.program().message.caption, "Tavr Wipe Pro");
}

TEST_F(CommandsTest, AWebEntryWhoseProgramStartsShowsNothing) {
  machine.file("C:\\Program Files\\Tavr Wipe\\Start.exe");
  form.menu[10].press();
  EXPECT_FALSE(started.program().message.visible);
}

TEST_F(CommandsTest, TheMenuClosesWhenAnEntryIsChosen) {
  for (const std::size_t number : {10u, 9u, 7u, 5u, 4u, 2u}) {
    form.bccc.visible = true;
    form.menu[number].press();
    EXPECT_FALSE(form.bccc.visible) << number;
  }
}

TEST_F(CommandsTest, TheHoverTextsComeFromTheLanguageFile) {
  const std::pair<const char*, const char*> kHints[] = {
      {"chameleonButton1", "view"},     {"chameleonButton2", "clear"},
      {"chameleonButton3", "plug-ins"}, {"chameleonButton5", "erase"},
      {"chameleonButton6", "test"},     {"chameleonButton7", "settings"},
      {"chameleonButton8", "options"},  {"chameleonButton11", "exit"}};
  for (const auto& [name, text] : kHints) {
    Control* const control = form.find(name);
    EXPECT_EQ(control->tool_tip, "") << name;
    control->onMouseMove();
    EXPECT_EQ(control->tool_tip, text) << name;
  }
  for (const char* without : {"chameleonButton4", "chameleonButton9", "chameleonButton10",
                              "chameleonButton12", "chameleonButton13"}) {
    EXPECT_EQ(form.find(without)->onMouseMove, nullptr) << without;
  }
}

TEST_F(CommandsTest, TheCommandColumnShowsTheHoverTextsOfTheButtonsBelowIt) {
  const std::pair<const char*, const char*> kHints[] = {
      {"cmd_view", "view"},     {"cmd_clear", "clear"}, {"cmd_plugin", "plug-ins"},
      {"cmd_start", "erase"},   {"cmd_test", "test"},   {"cmd_settings", "settings"},
      {"cmd_option", "options"}};
  for (const auto& [name, text] : kHints) {
    form.find(name)->onMouseMove();
    EXPECT_EQ(form.find(name)->tool_tip, text) << name;
  }
}

TEST_F(CommandsTest, TheLanguageButtonTogglesTheList) {
  form.chameleonButton12.press();
  EXPECT_TRUE(form.pictrlang.visible);
  form.chameleonButton12.press();
  EXPECT_FALSE(form.pictrlang.visible);
}

TEST_F(CommandsTest, PickingALanguageIsStoredAndClosesTheList) {
  form.chameleonButton12.press();
  form.lbllanguage[0].press();
  EXPECT_FALSE(form.pictrlang.visible);
  EXPECT_EQ(machine.registryText(Root::kLocalMachine,
                                 "software\\tavrwork\\tavrwork brightbox\\tavrwipe", "langindex"),
            "0");
}

TEST_F(CommandsTest, TheToolbarsStopDuringItsTestFreesTheOthersBeforeTheRunEnds) {
  bool stopped = false;
  form.bar1.onValue = [&](int value) {
    if (value == 5 && !stopped) {
      stopped = true;
      form.toolbar[10].press();
    }
    if (value != 85) return;
    for (const int index : {1, 2, 4, 6, 8, 11, 12}) EXPECT_TRUE(tool(index)) << index;
    EXPECT_FALSE(tool(10));
    EXPECT_EQ(form.stopflag, 1);
  };
  form.toolbar[6].press();
  EXPECT_TRUE(stopped);
  EXPECT_THAT(started.runs, ElementsAre(RunKind::test));
}

}  // namespace
}  // namespace tavr
