// The searching primitives: what they show, count, size and delete.
#include "tests/unit/tracks/three_logs.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Primitives : public ThreeLogs {};

TEST_F(Primitives, ListingShowsEveryMatchSubfoldersFirst) {
  srch(tracks(), kLogs, "*.log", "label ");
  EXPECT_THAT(rows(), ElementsAre("C:\\d\\sub\\c.log label ", "C:\\d\\a.log label ",
                                  "C:\\d\\b.log label "));
  EXPECT_FALSE(ghosted(1) || ghosted(2) || ghosted(3));
  EXPECT_EQ(form().View200.ensuredRow(), 0u);
  EXPECT_EQ(form().trackcount, 3);
  EXPECT_EQ(form().tracksize, 60);
  EXPECT_TRUE(remains("a.log") && remains("b.log") && remains("sub\\c.log"));
  EXPECT_EQ(fileCount(), "0");  // the run's business
}

TEST_F(Primitives, TheRowShowsTheCountBeforeTheFileAtHand) {
  srch(tracks(), kLogs, "*.log", "label");
  EXPECT_EQ(count(), "2");
}

TEST_F(Primitives, NothingFoundLeavesTheRowAsTheRunLeftIt) {
  countCell().text = "as before";
  srch(tracks(), kLogs, "*.none", "label");
  srchd(tracks(), "C:\\missing", "*.*", "label");
  EXPECT_EQ(count(), "as before");
  EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(Primitives, CountAndSizeRunOnOverSeveralSearches) {
  srch(tracks(), kLogs, "*.log", "first");
  srch(tracks(), kLogs, "keep.txt", "second");
  EXPECT_EQ(form().trackcount, 4);
  EXPECT_EQ(form().tracksize, 61);
  EXPECT_EQ(count(), "3");
}

TEST_F(Primitives, EachFileIsPumpedFor) {
  srch(tracks(), kLogs, "*.log", "label");
  EXPECT_EQ(events().pumps, 3);
}

TEST_F(Primitives, FoldersAreNeverListed) {
  srchd(tracks(), "C:\\d", "sub*", "label");
  EXPECT_THAT(rows(), IsEmpty());
  EXPECT_TRUE(remains("sub"));
}

TEST_F(Primitives, DeletingTakesTheFilesAndLeavesTheFolders) {
  srchd(tracks(), kLogs, "*.log", "label");
  EXPECT_THAT(rows(),
              ElementsAre("C:\\d\\sub\\c.log label", "C:\\d\\a.log label", "C:\\d\\b.log label"));
  EXPECT_EQ(form().trackcount, 3);
  EXPECT_EQ(count(), "2");
  EXPECT_FALSE(remains("a.log") || remains("b.log") || remains("sub\\c.log"));
  EXPECT_TRUE(remains("sub") && remains("keep.txt"));
  EXPECT_FALSE(form().file_system_object.has_value());
}

TEST_F(Primitives, AFileThatCannotGoIsReportedAllTheSame) {
  world_.readOnly("C:\\d\\a.log");
  world_.machineFile("locked.txt", "C:\\d\\sub\\c.log\n");
  srchd(tracks(), kLogs, "*.log", "label");
  EXPECT_EQ(form().trackcount, 3);
  EXPECT_EQ(form().tracksize, 60);
  EXPECT_TRUE(remains("a.log") && remains("sub\\c.log"));
  EXPECT_FALSE(remains("b.log"));
}

// The keep list is the person's note; no search looks at it.
TEST_F(Primitives, ANameOnTheKeepListIsFoundAndDeletedAllTheSame) {
  const std::string list = std::string(kProgramFolder) + "\\cookies.tvr";
  world_.file(list, "a.log\r\nC:\\d\\b.log\r\nc.log\r\n");
  srch(tracks(), kLogs, "*.log", "listed");
  srch2(tracks(), kLogs, "*.log", "listed");
  EXPECT_EQ(rows().size(), 6u);
  srchd(tracks(), kLogs, "a.log", "deleted");
  srchd(tracks(), kLogs, "b.log", "deleted");
  srchd2(tracks(), kLogs, "c.log", "deleted");
  EXPECT_EQ(rows().size(), 9u);
  EXPECT_EQ(form().trackcount, 9);
  EXPECT_FALSE(remains("a.log") || remains("b.log") || remains("sub\\c.log"));
  EXPECT_EQ(world_.read(list), "a.log\r\nC:\\d\\b.log\r\nc.log\r\n");
}

TEST_F(Primitives, SecureOverwritingDoesNotReachWhatASearchDeletes) {
  world_.setting("tavr wipe\\option\\option", "3", "1").setting("tavr wipe", "secure_value", "3");
  world_.ini("[fault]\nDeleteFile=0,5\n");
  srchd(tracks(), kLogs, "a.log", "label");
  EXPECT_EQ(world_.read("C:\\d\\a.log"), std::string(10, 'a'));
}

TEST_F(Primitives, AnEmptyFolderTextFindsNothing) {
  world_.file("C:\\top.log");
  srchd(tracks(), "", "*.*", "label");
  srchd(tracks(), "\\", "*.*", "label");
  EXPECT_THAT(rows(), IsEmpty());
  EXPECT_TRUE(world_.exists("C:\\top.log") && remains("a.log"));
}

TEST_F(Primitives, AnExpandedPathEndsInTheNulOfThePlatform) {
  EXPECT_EQ(GetPath(program().machine, "plain"), std::string("plain\0", 6));
  EXPECT_EQ(GetPath(program().machine, "%USERPROFILE%\\x"), user("\\x") + std::string(1, '\0'));
}

}  // namespace
}  // namespace tavr::testing
