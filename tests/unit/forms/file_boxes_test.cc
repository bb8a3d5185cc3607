#include "forms/file_boxes.h"

#include <gtest/gtest.h>

#include "basic/resume_next.h"
#include "tests/support/test_machine.h"

namespace tavr {
namespace {

template <class Box>
int errorOfPath(Box& box, std::string_view path) {
  try {
    box.setPath(path);
  } catch (const RuntimeError& error) {
    return error.number;
  }
  return 0;
}

class FileBoxesTest : public ::testing::Test {
 protected:
  Files& files() { return machine.machine().files; }
  std::vector<std::string> names(const FileListBox& box) {
    std::vector<std::string> all;
    for (int i = 0; i < box.count(); ++i) all.push_back(box.list(i));
    return all;
  }

  testing::TestMachine machine;
};

using Names = std::vector<std::string>;

TEST_F(FileBoxesTest, FilesAreSortedByNameWithoutCase) {
  machine.file("C:\\d\\b.txt").file("C:\\d\\A.txt").file("C:\\d\\_.txt").file("C:\\d\\C.txt");
  FileListBox box(files());
  box.setPath("C:\\d");
  EXPECT_EQ(names(box), Names({"A.txt", "b.txt", "C.txt", "_.txt"}));
}

TEST_F(FileBoxesTest, HiddenAndSystemFilesAndFoldersAreLeftOut) {
  machine.file("C:\\d\\seen").file("C:\\d\\hidden").file("C:\\d\\system").folder("C:\\d\\folder");
  ASSERT_EQ(files().setAttributes("C:\\d\\hidden", kAttrHidden), kSuccess);
  ASSERT_EQ(files().setAttributes("C:\\d\\system", kAttrSystem), kSuccess);
  FileListBox box(files());
  box.setPath("C:\\d");
  EXPECT_EQ(names(box), Names({"seen"}));
}

TEST_F(FileBoxesTest, ReadOnlyFilesAreListed) {
  machine.file("C:\\d\\kept").readOnly("C:\\d\\kept");
  FileListBox box(files());
  box.setPath("C:\\d");
  EXPECT_EQ(names(box), Names({"kept"}));
}

TEST_F(FileBoxesTest, ThePatternIsTheMachines) {
  machine.file("C:\\d\\History").file("C:\\d\\History-journal").file("C:\\d\\history.bak");
  FileListBox box(files());
  box.setPath("C:\\d");
  box.setPattern("History.*");
  EXPECT_EQ(names(box), Names({"History", "history.bak"}));
}

TEST_F(FileBoxesTest, AnEmptyPatternShowsNothing) {
  machine.file("C:\\d\\a");
  FileListBox box(files());
  box.setPath("C:\\d");
  ASSERT_EQ(box.count(), 1);
  box.setPattern("");
  EXPECT_EQ(box.count(), 0);
}

TEST_F(FileBoxesTest, AFolderThatIsNotThereKeepsTheOldOne) {
  machine.file("C:\\d\\a").file("C:\\file");
  FileListBox box(files());
  box.setPath("C:\\d");
  EXPECT_EQ(errorOfPath(box, "C:\\gone"), kErrPathNotFound);
  EXPECT_EQ(errorOfPath(box, ""), kErrPathNotFound);
  EXPECT_EQ(errorOfPath(box, "C:\\file"), kErrPathNotFound);
  EXPECT_EQ(box.path(), "C:\\d");
  EXPECT_EQ(names(box), Names({"a"}));
}

TEST_F(FileBoxesTest, TheSelectionGivesANameAndIsLostWithANewFolder) {
  machine.file("C:\\d\\a").file("C:\\e\\b");
  FileListBox box(files());
  EXPECT_EQ(box.fileName(), "");
  box.setPath("C:\\d");
  EXPECT_EQ(box.fileName(), "");
  box.list_index = 0;
  EXPECT_EQ(box.fileName(), "a");
  box.setPath("C:\\e");
  EXPECT_EQ(box.fileName(), "");
  box.list_index = 0;
  box.setPattern("*.txt");
  EXPECT_EQ(box.fileName(), "");
}

TEST_F(FileBoxesTest, ARowOutsideReadsAsEmpty) {
  machine.file("C:\\d\\a").folder("C:\\d\\sub");
  FileListBox box(files());
  box.setPath("C:\\d");
  EXPECT_EQ(box.list(-1), "");
  EXPECT_EQ(box.list(1), "");
  DirListBox folders(files());
  folders.setPath("C:\\d");
  EXPECT_EQ(folders.list(-1), "");
  EXPECT_EQ(folders.list(1), "");
}

TEST_F(FileBoxesTest, FoldersAreSortedFullPathsWithoutHiddenOnes) {
  machine.folder("C:\\d\\b").folder("C:\\d\\A").folder("C:\\d\\hidden").file("C:\\d\\file");
  ASSERT_EQ(files().setAttributes("C:\\d\\hidden", kAttrHidden), kSuccess);
  DirListBox box(files());
  box.setPath("C:\\d\\");
  EXPECT_EQ(box.list(0), "C:\\d\\A");
  EXPECT_EQ(box.list(1), "C:\\d\\b");
  EXPECT_EQ(box.list(2), "");
}

TEST_F(FileBoxesTest, AFolderBoxKeepsItsFolderToo) {
  machine.folder("C:\\d\\sub");
  DirListBox box(files());
  box.setPath("C:\\d");
  EXPECT_EQ(errorOfPath(box, "C:\\gone"), kErrPathNotFound);
  EXPECT_EQ(box.path(), "C:\\d");
  EXPECT_EQ(box.list(0), "C:\\d\\sub");
}

}  // namespace
}  // namespace tavr
