// What a stop leaves of the search in progress and of those behind it.
#include "tests/unit/tracks/three_logs.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Stop : public ThreeLogs {};

TEST_F(Stop, AListingThatIsStoppedShowsAndSizesOneMoreFileUncounted) {
  stopAtPump(2);
  srch(tracks(), kLogs, "*.log", "label");
  EXPECT_THAT(rows(), ElementsAre("C:\\d\\sub\\c.log label", "C:\\d\\a.log label"));
  EXPECT_EQ(form().trackcount, 1);
  EXPECT_EQ(form().tracksize, 40);
  EXPECT_EQ(count(), "1");
}

TEST_F(Stop, AStopWhileDeletingKeepsTheShownFileAndTheObject) {
  stopAtPump(2);
  srchd(tracks(), kLogs, "*.log", "label");
  EXPECT_THAT(rows(), ElementsAre("C:\\d\\sub\\c.log label", "C:\\d\\a.log label"));
  EXPECT_EQ(form().trackcount, 1);
  EXPECT_EQ(form().tracksize, 40);
  EXPECT_FALSE(remains("sub\\c.log"));
  EXPECT_TRUE(remains("a.log") && remains("b.log"));
  EXPECT_TRUE(form().file_system_object.has_value());
}

TEST_F(Stop, AfterAStopEachSearchStillShowsItsFirstFileOnly) {
  form().stopflag = 1;
  srch(tracks(), kLogs, "*.log", "first");
  srchd(tracks(), kLogs, "*.log", "second");
  EXPECT_THAT(rows(), ElementsAre("C:\\d\\sub\\c.log first", "C:\\d\\sub\\c.log second"));
  EXPECT_EQ(form().trackcount, 0);
  EXPECT_EQ(form().tracksize, 60);
  EXPECT_EQ(count(), "0");
  EXPECT_TRUE(remains("sub\\c.log"));
}

TEST_F(Stop, ASkippingListingThatIsStoppedShowsNothingMore) {
  stopAtPump(2);
  srch2(tracks(), kLogs, "*.log", "label");
  EXPECT_THAT(rows(), ElementsAre("C:\\d\\sub\\c.log label"));
  EXPECT_EQ(form().trackcount, 1);
  EXPECT_EQ(form().tracksize, 30);
  EXPECT_EQ(count(), "0");
}

TEST_F(Stop, ASkippingDeletionThatIsStoppedSavesNothingAndKeepsTheObject) {
  stopAtPump(3);
  srchd2(tracks(), kLogs, "*.log", "label");
  EXPECT_THAT(rows(), ElementsAre("C:\\d\\sub\\c.log label", "C:\\d\\a.log label"));
  EXPECT_EQ(form().trackcount, 2);
  EXPECT_FALSE(remains("sub\\c.log") || remains("a.log"));
  EXPECT_TRUE(remains("b.log"));
  EXPECT_TRUE(form().file_system_object.has_value());
  EXPECT_EQ(form().pending_count, 4);
  EXPECT_EQ(world_.registryText(Root::kLocalMachine,
                                "SYSTEM\\CurrentControlSet\\Control\\Session Manager",
                                "PendingFileRenameOperations"),
            "<none>");
}

TEST_F(Stop, AListingLeavesNoObjectStoppedOrNot) {
  for (const auto listing : {srch, srch2}) {
    form().stopflag = 0;
    listing(tracks(), kLogs, "*.log", "label");
    EXPECT_FALSE(form().file_system_object.has_value());
    form().stopflag = 1;
    listing(tracks(), kLogs, "*.log", "label");
    EXPECT_FALSE(form().file_system_object.has_value());
  }
}

TEST_F(Stop, OnlyTheNumberOneStops) {
  form().stopflag = 2;
  srch(tracks(), kLogs, "*.log", "label");
  EXPECT_EQ(form().trackcount, 3);
}

TEST_F(Stop, ATimerOfTheFormCanStopASearch) {
  const TimerId timer = events().startTimer(10, [this] { form().stopflag = 1; });
  events().wait(10);
  events().stopTimer(timer);
  srch2(tracks(), kLogs, "*.log", "label");
  EXPECT_THAT(rows(), IsEmpty());
}

}  // namespace
}  // namespace tavr::testing
