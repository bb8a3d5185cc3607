#include "services/directory_search.h"

#include <gtest/gtest.h>

#include "tests/support/machine_with.h"
#include "tests/support/observed_events.h"
#include "tests/support/test_machine.h"

namespace tavr {
namespace {

using Names = std::vector<std::string>;

class DirectorySearchTest : public ::testing::Test {
 protected:
  /// A finder that notes its events.
  clsdirsearch& finder() {
    if (!finder_) {
      finder_.emplace(machine.machine());
      finder_->searching = [this](const std::string& folder) { events.push_back("> " + folder); };
      finder_->found = [this](const std::string& name, const std::string& folder) {
        events.push_back(name + " in " + folder);
      };
    }
    return *finder_;
  }

  testing::TestMachine machine;
  Names events;

 private:
  std::optional<clsdirsearch> finder_;
};

TEST_F(DirectorySearchTest, AFoldersOwnFilesStandAheadOfThoseOfItsSubfolders) {
  machine.file("C:\\d\\z.txt").file("C:\\d\\a\\b.txt").file("C:\\d\\a\\c\\d.txt");
  finder().findfiles("C:\\d", "*.txt");
  EXPECT_EQ(finder().filesfound(),
            Names({"C:\\d\\z.txt", "C:\\d\\a\\b.txt", "C:\\d\\a\\c\\d.txt"}));
}

TEST_F(DirectorySearchTest, EachFolderAndEachFileRaisesAnEvent) {
  machine.file("C:\\d\\z.txt").file("C:\\d\\a\\b.txt");
  finder().findfiles("C:\\d", "*.txt");
  EXPECT_EQ(events,
            Names({"> C:\\d\\", "z.txt in C:\\d\\", "> C:\\d\\a\\", "b.txt in C:\\d\\a\\"}));
}

TEST_F(DirectorySearchTest, MasksAreWalkedInTheirOrder) {
  machine.file("C:\\d\\a.txt").file("C:\\d\\b.dat").file("C:\\d\\c.txt");
  finder().findfiles("C:\\d\\", "*.txt|*.dat");
  EXPECT_EQ(finder().filesfound(), Names({"C:\\d\\a.txt", "C:\\d\\c.txt", "C:\\d\\b.dat"}));
}

TEST_F(DirectorySearchTest, AFileThatTwoMasksMatchIsReportedOnce) {
  machine.file("C:\\d\\a.txt").file("C:\\d\\b.txt");
  finder().findfiles("C:\\d", "a.*|*.txt|A.TXT");
  EXPECT_EQ(finder().filesfound(), Names({"C:\\d\\a.txt", "C:\\d\\b.txt"}));
  EXPECT_EQ(events, Names({"> C:\\d\\", "a.txt in C:\\d\\", "b.txt in C:\\d\\"}));
}

TEST_F(DirectorySearchTest, AFolderThatAMaskMatchesIsNotAFile) {
  machine.folder("C:\\d\\x.txt").file("C:\\d\\y.txt");
  finder().findfiles("C:\\d", "*.txt");
  EXPECT_EQ(finder().filesfound(), Names({"C:\\d\\y.txt"}));
}

// An answer without attributes has every bit, that of a folder too; "." and ".."
// are asked for first, and are never walked.
TEST_F(DirectorySearchTest, AnEntryWhoseAttributesCannotBeReadIsWalkedAsAFolder) {
  machine.ini("[fault]\nGetFileAttributes=3,5\n").file("C:\\d\\a.txt").file("C:\\d\\b.txt");
  finder().findfiles("C:\\d", "*.txt");
  EXPECT_EQ(events,
            Names({"> C:\\d\\", "a.txt in C:\\d\\", "b.txt in C:\\d\\", "> C:\\d\\a.txt\\"}));
}

TEST_F(DirectorySearchTest, TheDotsAreNotWalkedWhoseAttributesCannotBeRead) {
  machine.ini("[fault]\nGetFileAttributes=0,5\n").file("C:\\d\\a.txt");
  finder().searching = [this](const std::string& folder) {
    events.push_back("> " + folder);
    if (events.size() > 9) finder().Cancel();  // a walk through "." has no end
  };
  finder().findfiles("C:\\d", "*.txt");
  EXPECT_EQ(events, Names({"> C:\\d\\", "a.txt in C:\\d\\", "> C:\\d\\a.txt\\"}));
}

TEST_F(DirectorySearchTest, SubfoldersCanBeLeftOut) {
  machine.file("C:\\d\\z.txt").file("C:\\d\\a\\b.txt");
  EXPECT_TRUE(finder().searchinsubfolders);
  finder().searchinsubfolders = false;
  finder().findfiles("C:\\d", "*.txt");
  EXPECT_EQ(finder().filesfound(), Names({"C:\\d\\z.txt"}));
}

TEST_F(DirectorySearchTest, AFolderThatDoesNotExistIsSearchedInVain) {
  finder().findfiles("C:\\gone", "*.*");
  EXPECT_EQ(events, Names({"> C:\\gone\\"}));
  EXPECT_TRUE(finder().filesfound().empty());
}

TEST_F(DirectorySearchTest, WithoutMasksOnlyTheFoldersAreWalked) {
  machine.file("C:\\d\\a\\b.txt");
  finder().findfiles("C:\\d", "");
  EXPECT_EQ(events, Names({"> C:\\d\\", "> C:\\d\\a\\"}));
}

TEST_F(DirectorySearchTest, CancelEndsTheSearchAndKeepsWhatWasFound) {
  machine.file("C:\\d\\a.txt").file("C:\\d\\b.txt").file("C:\\d\\sub\\c.txt");
  finder().found = [this](const std::string&, const std::string&) { finder().Cancel(); };
  finder().findfiles("C:\\d", "*.txt");
  EXPECT_EQ(finder().filesfound(), Names({"C:\\d\\a.txt"}));
}

TEST_F(DirectorySearchTest, CancelInADeepFolderEndsTheOuterOnesToo) {
  machine.file("C:\\d\\a\\b\\x.txt").file("C:\\d\\a\\c\\y.txt").file("C:\\d\\z\\w.txt");
  finder().found = [this](const std::string& name, const std::string&) {
    events.push_back(name);
    finder().Cancel();
  };
  finder().findfiles("C:\\d", "*.txt");
  EXPECT_EQ(events, Names({"> C:\\d\\", "> C:\\d\\a\\", "> C:\\d\\a\\b\\", "x.txt"}));
}

TEST_F(DirectorySearchTest, ANewSearchForgetsTheOldOneAndItsFlags) {
  machine.file("C:\\d\\a.txt").file("C:\\e\\b.txt");
  finder().findfiles("C:\\d", "*.txt");
  finder().Cancel();
  finder().pause = true;
  finder().findfiles("C:\\e", "*.txt");
  EXPECT_EQ(finder().filesfound(), Names({"C:\\e\\b.txt"}));
  finder().findfiles("C:\\e", "*.txt");
  EXPECT_EQ(finder().filesfound(), Names({"C:\\e\\b.txt"}));
}

TEST_F(DirectorySearchTest, APausedSearchPumpsUntilItMayGoOn) {
  machine.file("C:\\d\\a.txt").file("C:\\d\\b.txt");
  Machine& running = machine.machine();
  finder().found = [&](const std::string& name, const std::string&) {
    events.push_back(name);
    finder().pause = true;
  };
  const TimerId timer = running.events.startTimer(500, [&] {
    events.emplace_back("tick");
    finder().pause = false;
  });
  const std::uint64_t start = running.clock.ticks();
  finder().findfiles("C:\\d", "*.txt");
  running.events.stopTimer(timer);
  EXPECT_EQ(events, Names({"> C:\\d\\", "a.txt", "tick", "b.txt", "tick"}));
  EXPECT_GE(running.clock.ticks() - start, 1000u);
}

TEST_F(DirectorySearchTest, APausedSearchCanBeCancelled) {
  machine.file("C:\\d\\a.txt").file("C:\\d\\b.txt");
  finder().found = [&](const std::string&, const std::string&) { finder().pause = true; };
  const TimerId timer = machine.machine().events.startTimer(500, [&] { finder().Cancel(); });
  finder().findfiles("C:\\d", "*.txt");
  machine.machine().events.stopTimer(timer);
  EXPECT_EQ(finder().filesfound(), Names({"C:\\d\\a.txt"}));
  EXPECT_TRUE(finder().pause);
}

// Among the entries that are looked at for subfolders, ahead of every file.
TEST_F(DirectorySearchTest, TheLookForSubfoldersCanBeCancelledAndPausedToo) {
  machine.file("C:\\d\\a.txt").file("C:\\d\\sub\\b.txt");
  testing::ObservedEvents observed(machine.machine().events);
  Machine fake = testing::machineWith(machine.machine(), observed);
  clsdirsearch search(fake);
  search.searching = [&](const std::string& folder) { events.push_back("> " + folder); };
  search.found = [&](const std::string& name, const std::string&) { events.push_back(name); };
  observed.onPump = [&] {
    if (observed.pumped == 2) search.pause = true;
  };
  const TimerId timer = observed.startTimer(500, [&] {
    events.emplace_back("tick");
    search.pause = false;
  });
  search.findfiles("C:\\d", "*.txt");
  observed.stopTimer(timer);
  EXPECT_EQ(events, Names({"> C:\\d\\", "tick", "a.txt", "> C:\\d\\sub\\", "b.txt"}));
  events.clear();
  observed.onPump = [&] { search.Cancel(); };
  search.findfiles("C:\\d", "*.txt");
  EXPECT_EQ(events, Names({"> C:\\d\\"}));
}

TEST_F(DirectorySearchTest, EventsArePumpedAtEveryEntryOfBothPasses) {
  machine.file("C:\\d\\a.txt").file("C:\\d\\b.txt").folder("C:\\d\\sub");
  testing::ObservedEvents observed(machine.machine().events);
  Machine fake = testing::machineWith(machine.machine(), observed);
  clsdirsearch search(fake);
  search.searchinsubfolders = false;
  search.findfiles("C:\\d", "*.txt");
  EXPECT_EQ(observed.pumped, 5 + 2);  // ".", "..", a.txt, b.txt, sub; then the matches
}

}  // namespace
}  // namespace tavr
