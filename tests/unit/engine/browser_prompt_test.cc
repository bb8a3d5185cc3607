// The question about a running browser: when it is asked, what it says, and
// what its two answers do.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/browser_traces.h"
#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using testing::addCookies;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using testing::RecordingDialogs;
using ::testing::SizeIs;
using testing::TestMachine;
using testing::WatchedProgram;

using Box = RecordingDialogs::Box;

struct Browser {
  const char* process;
  const char* row;
  const char* prompt;
};

const Browser kBrowsers[] = {
    {"iexplore.exe", "Internet Explorer Browser",
     "Internet Explorer is running. would you like to close it? otherwise tracks can't be "
     "cleaned."},
    {"firefox.exe", "Firefox Browser",
     "FireFox is running. would you like to close it? otherwise tracks can't be cleaned."},
    {"chrome.exe", "Google chrome Browser",
     "Google chrome is running. would you like to close it? otherwise tracks can't be cleaned."},
    {"launcher.exe", "Opera Browser",
     "Opera browser is running. would you like to close it? otherwise tracks can't be cleaned."},
    {"msedge.exe", "Microsoft Edge Browser",
     "Microsoft Edge browser is running. would you like to close it? otherwise tracks can't be "
     "cleaned."},
    {"browser.exe", "Yandex Browser",
     "Yandex browser is running. would you like to close it? otherwise tracks can't be cleaned."},
    {"vivaldi.exe", "Vivaldi Browser",
     "Vivaldi browser is running. would you like to close it? otherwise tracks can't be cleaned."},
    {"brave.exe", "Brave Browser",
     "Brave browser is running. would you like to close it? otherwise tracks can't be cleaned."},
    {"torch.exe", "Torch Browser",
     "Torch browser is running. would you like to close it? otherwise tracks can't be cleaned."},
    {"Maxthon.exe", "Maxthon Browser",
     "Maxthon browser is running. would you like to close it? otherwise tracks can't be cleaned."},
};

std::string allRunning() {
  std::string lines;
  int id = 100;
  for (const Browser& browser : kBrowsers) {
    lines += std::to_string(++id) + " " + browser.process + "\n";
  }
  return lines;
}

std::vector<Box> allBoxes() {
  std::vector<Box> boxes;
  for (const Browser& browser : kBrowsers)
    boxes.push_back({browser.prompt, 0x1024, "confirmation"});
  return boxes;
}

TEST(BrowserPrompt, AsksOnceForEveryRunningBrowserInTheirOrder) {
  for (const RunKind kind : {RunKind::erase, RunKind::test}) {
    TestMachine machine;
    machine.machineFile("processes.txt", allRunning());
    WatchedProgram program(machine);
    program.run(kind);
    EXPECT_THAT(program.dialogs.asked, ElementsAreArray(allBoxes()));
  }
}

TEST(BrowserPrompt, NothingIsAskedWithoutARunningBrowser) {
  TestMachine machine;
  machine.machineFile("processes.txt", "1 explorer.exe\n2 mychrome.exe\n");
  WatchedProgram program(machine);
  program.run(RunKind::erase);
  EXPECT_THAT(program.dialogs.asked, IsEmpty());
}

TEST(BrowserPrompt, AnUnattendedRunWithoutAParentAsksNothingAndCleansBesideTheOpenBrowser) {
  for (const char* arguments : {"t", "w2", "w3", "t-x"}) {
    TestMachine machine;
    machine.select("52").machineFile("processes.txt", allRunning());
    addCookies(machine, 2, 3);
    WatchedProgram program(machine);
    program.start(arguments);
    EXPECT_THAT(program.dialogs.asked, IsEmpty()) << arguments;
    EXPECT_EQ(program.task("Google chrome Browser"), "Finished|3") << arguments;
    EXPECT_EQ(machine.readMachineFile("processes.txt"), allRunning()) << arguments;
  }
}

TEST(BrowserPrompt, NoProcessIsLookedForWhereNobodyCanBeAsked) {
  for (const char* arguments : {"t", "w2", "w3", "t-x"}) {
    TestMachine machine;
    machine.machineFile("processes.txt", allRunning());
    WatchedProgram program(machine);
    program.start(arguments);
    EXPECT_THAT(program.wmi.asked, IsEmpty()) << arguments;
  }
}

// Each of the two tests looks for itself, also the one that the mode keeps from
// being met.
TEST(BrowserPrompt, EachBrowserIsLookedForTwiceWhereSomebodyCanBeAsked) {
  std::vector<std::string> queries;
  for (const Browser& browser : kBrowsers) {
    const std::string process(browser.process);
    queries.insert(queries.end(), 2, "Select * from Win32_Process WHERE Name = '" + process + "'");
  }
  for (const bool for_parent : {false, true}) {
    TestMachine machine;
    machine.ini("[parent]\nwindow=Tavrwork Brightbox\n");
    WatchedProgram program(machine);
    program.form.unattended = for_parent ? 1 : 0;
    program.form.parentMode = for_parent ? 1 : 0;
    program.run(RunKind::test);
    EXPECT_THAT(program.wmi.asked, ElementsAreArray(queries)) << for_parent;
  }
}

TEST(BrowserPrompt, ARunForAParentAsksAlthoughItIsHidden) {
  for (const char* arguments : {"w4", "w4-x"}) {
    TestMachine machine;
    machine.ini("[parent]\nwindow=Tavrwork Brightbox\n").machineFile("processes.txt", allRunning());
    WatchedProgram program(machine);
    program.start(arguments);
    EXPECT_FALSE(program.form.visible);
    EXPECT_THAT(program.dialogs.asked, ElementsAreArray(allBoxes())) << arguments;
  }
}

// The two tests stand one behind the other; each asks for itself.
TEST(BrowserPrompt, AskedTwiceWhenBothOfItsTestsHold) {
  TestMachine machine;
  machine.ini("[parent]\nwindow=Tavrwork Brightbox\n")
      .machineFile("processes.txt", "7 chrome.exe\n");
  WatchedProgram program(machine);
  program.form.parentMode = 1;
  program.run(RunKind::test);
  EXPECT_THAT(program.dialogs.asked, SizeIs(2));
}

TEST(BrowserPrompt, NoSkipsTheGroupAndFinishesItsRowWithZero) {
  TestMachine machine;
  machine.select("52").machineFile("processes.txt", "7 chrome.exe\n");
  addCookies(machine, 2, 3);
  addCookies(machine, 3, 4);
  WatchedProgram program(machine);
  program.run(RunKind::erase);
  EXPECT_EQ(program.task("Google chrome Browser"), "Finished|0");
  EXPECT_EQ(program.task("Opera Browser"), "Finished|4");
  EXPECT_EQ(machine.readMachineFile("processes.txt"), "7 chrome.exe\n");
  EXPECT_EQ(program.form.txtfilecount.text(), "4");
}

TEST(BrowserPrompt, YesEndsEveryProcessOfTheBrowserAndCleans) {
  TestMachine machine;
  machine.select("52").machineFile("processes.txt",
                                   "7 chrome.exe\n8 Chrome.EXE\n9 notepad.exe\n10 mychrome.exe\n");
  addCookies(machine, 2, 3);
  WatchedProgram program(machine);
  program.dialogs.answer = kAnswerYes;
  program.run(RunKind::erase);
  EXPECT_EQ(program.task("Google chrome Browser"), "Finished|3");
  // The first closing operation looks at the end of a name only.
  EXPECT_EQ(machine.readMachineFile("processes.txt"), "9 notepad.exe\n");
}

TEST(BrowserPrompt, YesForInternetExplorerAlsoEndsFirefox) {
  TestMachine machine;
  machine.machineFile("processes.txt", "7 iexplore.exe\n8 firefox.exe\n9 chrome.exe\n");
  WatchedProgram program(machine);
  program.dialogs.answer = kAnswerYes;
  program.run(RunKind::test);
  // Firefox is gone when its own group comes.
  EXPECT_THAT(program.dialogs.asked, ElementsAre(allBoxes().at(0), allBoxes().at(2)));
  EXPECT_EQ(machine.readMachineFile("processes.txt"), "");
}

TEST(BrowserPrompt, YesForFirefoxLeavesInternetExplorer) {
  TestMachine machine;
  // No for Internet Explorer, Yes for the two others.
  machine.machineFile("processes.txt", "7 iexplore.exe\n8 firefox.exe\n9 msedge.exe\n");
  WatchedProgram program(machine);
  program.dialogs.answerTo = [](const RecordingDialogs::Box& box) {
    return box == allBoxes().at(0) ? kAnswerNo : kAnswerYes;
  };
  program.run(RunKind::test);
  EXPECT_EQ(machine.readMachineFile("processes.txt"), "7 iexplore.exe\n");
  EXPECT_THAT(program.dialogs.asked, SizeIs(3));
}

TEST(BrowserPrompt, AnyOtherAnswerCountsAsNo) {
  TestMachine machine;
  machine.select("52").machineFile("processes.txt", "7 chrome.exe\n");
  addCookies(machine, 2, 3);
  WatchedProgram program(machine);
  program.dialogs.answer = 2;  // cancelled
  program.run(RunKind::test);
  EXPECT_EQ(program.task("Google chrome Browser"), "Finished|0");
}

TEST(BrowserPrompt, ABrowserThatCannotBeEndedIsCleanedAllTheSame) {
  TestMachine machine;
  machine.select("52")
      .ini("[fault]\nTerminateProcess=0,5\n")
      .machineFile("processes.txt", "7 chrome.exe\n");
  addCookies(machine, 2, 3);
  WatchedProgram program(machine);
  program.dialogs.answer = kAnswerYes;
  program.run(RunKind::test);
  EXPECT_EQ(program.task("Google chrome Browser"), "Finished|3");
}

}  // namespace
}  // namespace tavr
