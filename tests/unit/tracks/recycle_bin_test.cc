// The track of the recycle bin: in which order it asks the shell, and what it
// shows where the shell refuses.
#include <optional>

#include "tests/support/machine_with.h"
#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;

// Notes what is done to the recycle bin and hands everything on.
class RecordingShell : public Shell {
 public:
  explicit RecordingShell(Shell& inner) : inner_(inner) {}

  Status specialFolder(int id, std::string& buffer) override {
    return inner_.specialFolder(id, buffer);
  }
  Status queryRecycleBin(std::int64_t& size, std::int64_t& items) override {
    calls.emplace_back("query");
    return inner_.queryRecycleBin(size, items);
  }
  Status emptyRecycleBin(std::uint32_t flags) override {
    calls.push_back("empty " + std::to_string(flags));
    return inner_.emptyRecycleBin(flags);
  }
  void updateRecycleBinIcon() override {
    calls.emplace_back("icon");
    inner_.updateRecycleBinIcon();
  }
  Status execute(std::string_view verb, std::string_view file, int show) override {
    return inner_.execute(verb, file, show);
  }
  Status run(std::string_view command, int window_style) override {
    return inner_.run(command, window_style);
  }
  Status htmlHelp(std::string_view file_and_window, std::uint32_t command,
                  std::uint32_t data) override {
    return inner_.htmlHelp(file_and_window, command, data);
  }

  std::vector<std::string> calls;

 private:
  Shell& inner_;
};

class BinTrack : public TrackTest {
 protected:
  BinTrack() {
    world_.file(item, std::string(100, 'x'));
    world_.file("C:\\$Recycle.Bin\\S-1\\$I1.txt");
  }
  Machine machineBelow(const Machine& m) override {
    shell_.emplace(m.shell);
    return testing::machineWith(m, *shell_);
  }
  // Earlier tasks have counted already, and an earlier run has filled the member.
  void callWithTotals(std::string_view procedure) {
    form().txtfilecount.setText("4");
    form().txtfilesize.setText("1000");
    form().recycled_items = 9;
    call(procedure);
  }
  void expectTheRowAlone() {
    EXPECT_THAT(rows(), ElementsAre("Windows RecycleBin Files  <OK>"));
    EXPECT_TRUE(ghosted(1));
    EXPECT_TRUE(countCell().bold);
    EXPECT_EQ(registryCount(), "0");
    EXPECT_EQ(form().trackcount, 0);
    EXPECT_EQ(form().tracksize, 0);
  }

  const std::string item = "C:\\$Recycle.Bin\\S-1\\$R1.txt";
  std::optional<RecordingShell> shell_;
};

TEST_F(BinTrack, CleaningCountsThenEmptiesSilentlyAndThenUpdatesTheIcon) {
  call("c4");
  EXPECT_THAT(shell_->calls, ElementsAre("query", "empty 7", "icon"));
}

TEST_F(BinTrack, TestingOnlyCounts) {
  call("t4");
  EXPECT_THAT(shell_->calls, ElementsAre("query"));
}

TEST_F(BinTrack, ABinThatDoesNotTellItsContentsAddsNothingAndIsEmptied) {
  world_.ini("[fault]\nSHQueryRecycleBin=0,5\n");
  callWithTotals("c4");
  expectTheRowAlone();
  EXPECT_EQ(fileCount(), "4");
  EXPECT_EQ(fileSize(), "1000");
  EXPECT_EQ(form().recycled_items, 0);
  EXPECT_THAT(shell_->calls, ElementsAre("query", "empty 7", "icon"));
  EXPECT_FALSE(world_.exists(item));
}

TEST_F(BinTrack, TestingABinThatDoesNotTellItsContentsShowsTheRowAlone) {
  world_.ini("[fault]\nSHQueryRecycleBin=0,5\n");
  callWithTotals("t4");
  expectTheRowAlone();
  EXPECT_EQ(fileCount(), "4");
  EXPECT_EQ(fileSize(), "1000");
  EXPECT_EQ(form().recycled_items, 0);
  EXPECT_TRUE(world_.exists(item));
}

TEST_F(BinTrack, ABinThatCannotBeEmptiedIsReportedAndCountedAllTheSame) {
  world_.ini("[fault]\nSHEmptyRecycleBin=0,5\n");
  callWithTotals("c4");
  expectTheRowAlone();
  EXPECT_EQ(fileCount(), "5");
  EXPECT_EQ(fileSize(), "1100");
  EXPECT_EQ(form().recycled_items, 1);
  EXPECT_THAT(shell_->calls, ElementsAre("query", "empty 7", "icon"));
  EXPECT_TRUE(world_.exists(item));
}

}  // namespace
}  // namespace tavr::testing
