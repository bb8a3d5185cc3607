// The form's timer ticking in the middle of an unattended run: the schedule and
// the watch over the start page.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "config/scheduler.h"
#include "services/settings_keys.h"
#include "tests/support/watched_program.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::RecordingDialogs;
using testing::TestMachine;
using testing::WatchedProgram;

constexpr std::string_view kBrowserKey =
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\Main";
const std::string kProgram = "C:\\Program Files\\Tavr Wipe\\";

class TicksInARun : public ::testing::Test {
 protected:
  TicksInARun() {
    // A step that pumps while it searches.
    machine.select("10").file("C:\\Users\\user\\AppData\\Local\\Temp\\a");
  }

  // Starts with the form's timer due once inside the run.
  bool startWithATick(std::string_view arguments) {
    it.emplace(machine);
    it->program.onRunFinished = [this](RunKind kind) { runs.push_back(kind); };
    it->events.when([this] { return it->form.View100.count() > 0; },
                    [this] { it->events.wait(kSchedulerInterval); });
    return it->start(arguments);
  }
  std::string browser(std::string_view name) {
    return machine.registryText(Root::kCurrentUser, "Software\\Microsoft\\Internet Explorer\\Main",
                                name);
  }
  std::string setting(std::string_view key, std::string_view name) {
    return machine.registryText(Root::kLocalMachine, key, name);
  }

  TestMachine machine;
  std::optional<WatchedProgram> it;
  std::vector<RunKind> runs;
};

class StartPageInARun : public TicksInARun {
 protected:
  StartPageInARun() {
    machine.setting("Tavr Wipe", "protect_home", "1")
        .setting("Tavr Wipe", "homepage", "http://old");
    machine.value(kBrowserKey, "Start Page", "http://new").value(kBrowserKey, "window title", "N");
  }
};

// The run comes before the held page and the language file are read.
TEST_F(StartPageInARun, IsComparedWithNothingAndAskedAboutWithoutWords) {
  EXPECT_TRUE(startWithATick("t"));
  EXPECT_THAT(it->dialogs.asked, ElementsAre(RecordingDialogs::Box{"\r", 52, ""}));
  EXPECT_EQ(setting(settings::kMainKey, "homepage"), "http://new");
  EXPECT_EQ(setting(settings::kMainKey, "titlepage"), "N");
  EXPECT_EQ(browser("Start Page"), "http://new");
}

TEST_F(StartPageInARun, IsEmptiedOnYes) {
  it.emplace(machine);
  it->dialogs.answer = kAnswerYes;
  it->events.when([this] { return it->form.View100.count() > 0; },
                  [this] { it->events.wait(kSchedulerInterval); });
  EXPECT_TRUE(it->start("t"));
  EXPECT_EQ(browser("Start Page"), "");
  EXPECT_EQ(browser("window title"), "");
  EXPECT_EQ(setting(settings::kMainKey, "homepage"), "http://old");
}

class ScheduleInARun : public TicksInARun {
 protected:
  // A days schedule without a date is always due.
  ScheduleInARun() { machine.setting("Tavr Wipe\\timer", "option", "3"); }
};

TEST_F(ScheduleInARun, ErasesAndEndsTheProcessOfATestForAResultFile) {
  EXPECT_TRUE(startWithATick("w2"));
  EXPECT_THAT(runs, ElementsAre(RunKind::erase));
  EXPECT_FALSE(machine.exists("C:\\Users\\user\\AppData\\Local\\Temp\\a"));
  EXPECT_TRUE(machine.exists(kProgram + "eresst.txt"));
  EXPECT_EQ(setting(settings::kLiveKey, "ic"), "<none>");
}

TEST_F(ScheduleInARun, ErasesInsideAnEraseThatThenGoesOnToItsEnd) {
  EXPECT_TRUE(startWithATick("t"));
  EXPECT_THAT(runs, ElementsAre(RunKind::erase, RunKind::erase));
  EXPECT_EQ(setting(settings::kLiveKey, "ic"), "1");
}

TEST_F(TicksInARun, WithoutAScheduleATickChangesNothing) {
  EXPECT_TRUE(startWithATick("t"));
  EXPECT_THAT(runs, ElementsAre(RunKind::erase));
  EXPECT_THAT(it->dialogs.asked, IsEmpty());
}

}  // namespace
}  // namespace tavr
