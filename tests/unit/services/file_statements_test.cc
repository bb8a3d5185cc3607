#include "services/file_statements.h"

#include <gtest/gtest.h>

#include "basic/resume_next.h"
#include "tests/support/test_machine.h"

namespace tavr {
namespace {

template <class Statement>
int errorOf(Statement statement) {
  try {
    statement();
  } catch (const RuntimeError& error) {
    return error.number;
  }
  return 0;
}

class FileStatementsTest : public ::testing::Test {
 protected:
  Machine& m() { return machine.machine(); }
  FileNumbers& numbers() {
    if (!numbers_) numbers_.emplace(m());
    return *numbers_;
  }

  testing::TestMachine machine;

 private:
  std::optional<FileNumbers> numbers_;
};

TEST_F(FileStatementsTest, KillDeletesOneFile) {
  machine.file("C:\\d\\a").file("C:\\d\\b");
  Kill(m(), "C:\\d\\a");
  EXPECT_FALSE(machine.exists("C:\\d\\a"));
  EXPECT_TRUE(machine.exists("C:\\d\\b"));
}

TEST_F(FileStatementsTest, KillRaisesWhatStandsInItsWay) {
  machine.file("C:\\d\\kept").readOnly("C:\\d\\kept").file("C:\\d\\held").folder("C:\\d\\sub");
  machine.machineFile("locked.txt", "C:\\d\\held\n");
  EXPECT_EQ(errorOf([&] { Kill(m(), "C:\\d\\gone"); }), kErrFileNotFound);
  EXPECT_EQ(errorOf([&] { Kill(m(), "C:\\gone\\a"); }), kErrPathNotFound);
  EXPECT_EQ(errorOf([&] { Kill(m(), "C:\\d\\kept"); }), kErrFileAccess);
  EXPECT_EQ(errorOf([&] { Kill(m(), "C:\\d\\held"); }), kErrPermission);
  EXPECT_EQ(errorOf([&] { Kill(m(), "C:\\d\\sub"); }), kErrFileAccess);
  EXPECT_EQ(errorOf([&] { Kill(m(), ""); }), kErrFileNotFound);
}

TEST_F(FileStatementsTest, KillWithAWildcardDeletesNothing) {
  machine.file("C:\\d\\a").file("C:\\d\\b");
  EXPECT_EQ(errorOf([&] { Kill(m(), "C:\\d\\*"); }), kErrFileNotFound);
  EXPECT_EQ(errorOf([&] { Kill(m(), "C:\\d\\?"); }), kErrFileNotFound);
  EXPECT_TRUE(machine.exists("C:\\d\\a"));
  EXPECT_TRUE(machine.exists("C:\\d\\b"));
}

TEST_F(FileStatementsTest, SetAttrSetsAndClears) {
  machine.file("C:\\d\\a").readOnly("C:\\d\\a");
  SetAttr(m(), "C:\\d\\a", 32);
  std::uint32_t attributes = 0;
  ASSERT_EQ(m().files.attributes("C:\\d\\a", attributes), kSuccess);
  EXPECT_FALSE(attributes & kAttrReadOnly);
  EXPECT_EQ(errorOf([&] { SetAttr(m(), "C:\\d\\gone", 32); }), kErrFileNotFound);
  EXPECT_EQ(errorOf([&] { SetAttr(m(), "", 32); }), kErrFileNotFound);
}

TEST_F(FileStatementsTest, SetAttrLeavesTheContentAlone) {
  machine.file("C:\\d\\a", "content");
  SetAttr(m(), "C:\\d\\a", 32);
  EXPECT_EQ(machine.read("C:\\d\\a"), "content");
}

TEST_F(FileStatementsTest, ChDirRaises76ForAnyFolderThatIsNone) {
  machine.folder("C:\\d").file("C:\\d\\a");
  EXPECT_EQ(errorOf([&] { ChDir(m(), "C:\\gone"); }), kErrPathNotFound);
  EXPECT_EQ(errorOf([&] { ChDir(m(), "C:\\d\\a"); }), kErrPathNotFound);
  EXPECT_EQ(errorOf([&] { ChDir(m(), ""); }), kErrPathNotFound);
  ChDir(m(), "C:\\d");
  EXPECT_EQ(Dir(m(), "a"), "a");
}

TEST_F(FileStatementsTest, DirGivesTheFirstVisibleFile) {
  machine.folder("C:\\d\\0").file("C:\\d\\1").file("C:\\d\\2").file("C:\\d\\3");
  ASSERT_EQ(m().files.setAttributes("C:\\d\\1", kAttrHidden), kSuccess);
  ASSERT_EQ(m().files.setAttributes("C:\\d\\2", kAttrSystem), kSuccess);
  EXPECT_EQ(Dir(m(), "C:\\d\\*"), "3");
  EXPECT_EQ(Dir(m(), "C:\\d\\1"), "");
  EXPECT_EQ(Dir(m(), "C:\\d\\0"), "");
  EXPECT_EQ(Dir(m(), "C:\\d\\gone"), "");
  EXPECT_EQ(Dir(m(), ""), "");
}

TEST_F(FileStatementsTest, FileLenGivesTheLengthOfOneNamedFile) {
  machine.file("C:\\d\\a", "12345");
  EXPECT_EQ(FileLen(m(), "C:\\d\\a"), 5);
  EXPECT_EQ(errorOf([&] { FileLen(m(), "C:\\d\\gone"); }), kErrFileNotFound);
  EXPECT_EQ(errorOf([&] { FileLen(m(), "C:\\d\\*"); }), kErrFileNotFound);
  EXPECT_EQ(errorOf([&] { FileLen(m(), ""); }), kErrFileNotFound);
}

TEST_F(FileStatementsTest, PrintedLinesEndInCarriageReturnAndLineFeed) {
  machine.folder("C:\\d");
  numbers().open(1, "C:\\d\\a.txt", OpenMode::kOutput);
  numbers().print(1, "one");
  numbers().print(1, "");
  numbers().close(1);
  EXPECT_EQ(machine.read("C:\\d\\a.txt"), "one\r\n\r\n");
}

TEST_F(FileStatementsTest, OutputEmptiesAndAppendGoesOn) {
  machine.file("C:\\d\\a.txt", "old\r\n");
  numbers().open(1, "C:\\d\\a.txt", OpenMode::kAppend);
  numbers().print(1, "new");
  numbers().close(1);
  EXPECT_EQ(machine.read("C:\\d\\a.txt"), "old\r\nnew\r\n");
  numbers().open(1, "C:\\d\\a.txt", OpenMode::kOutput);
  numbers().close(1);
  EXPECT_EQ(machine.read("C:\\d\\a.txt"), "");
}

TEST_F(FileStatementsTest, ManyPrintedLinesArriveInOrder) {
  machine.folder("C:\\d");
  numbers().open(1, "C:\\d\\a.txt", OpenMode::kOutput);
  std::string expected;
  for (int i = 0; i < 20'000; ++i) {
    numbers().print(1, "line " + std::to_string(i));
    expected += "line " + std::to_string(i) + "\r\n";
  }
  numbers().close(1);
  EXPECT_EQ(machine.read("C:\\d\\a.txt"), expected);
}

TEST_F(FileStatementsTest, LinesAreReadWithoutTheirEnds) {
  machine.file("C:\\d\\a.txt", "one\r\n\r\ntwo\nthree");
  numbers().open(1, "C:\\d\\a.txt", OpenMode::kInput);
  std::vector<std::string> lines;
  while (!numbers().eof(1)) lines.push_back(numbers().lineInput(1));
  EXPECT_EQ(lines, std::vector<std::string>({"one", "", "two", "three"}));
  EXPECT_EQ(errorOf([&] { numbers().lineInput(1); }), kErrPastEnd);
}

TEST_F(FileStatementsTest, EveryLineOfAFileIsHandedOverAndTheNumberIsFreeAgain) {
  machine.file("C:\\d\\a.txt", "one\r\n\r\ntwo");
  numbers().open(1, "C:\\d\\a.txt", OpenMode::kInput);
  std::vector<std::string> lines;
  forEachLine(numbers(), "C:\\d\\a.txt", [&](const std::string& line) {
    EXPECT_EQ(numbers().freeFile(), 3);
    lines.push_back(line);
  });
  EXPECT_EQ(lines, std::vector<std::string>({"one", "", "two"}));
  EXPECT_EQ(numbers().freeFile(), 2);
}

TEST_F(FileStatementsTest, AFileThatCannotBeOpenedHasNoLines) {
  forEachLine(numbers(), "C:\\d\\missing.txt",
              [](const std::string& line) { FAIL() << "a line: " << line; });
  EXPECT_EQ(numbers().freeFile(), 1);
}

TEST_F(FileStatementsTest, AnErrorOnALineEndsTheReadingAndClosesTheFile) {
  machine.file("C:\\d\\a.txt", "one\ntwo\nthree");
  std::vector<std::string> lines;
  forEachLine(numbers(), "C:\\d\\a.txt", [&](const std::string& line) {
    lines.push_back(line);
    if (line == "two") throw RuntimeError{kErrTypeMismatch, "Type mismatch"};
  });
  EXPECT_EQ(lines, std::vector<std::string>({"one", "two"}));
  EXPECT_EQ(numbers().freeFile(), 1);
}

TEST_F(FileStatementsTest, AnEmptyFileIsAtItsEnd) {
  machine.file("C:\\d\\a.txt", "");
  numbers().open(1, "C:\\d\\a.txt", OpenMode::kInput);
  EXPECT_TRUE(numbers().eof(1));
}

TEST_F(FileStatementsTest, BytesArePutAtAPositionCountedFromOne) {
  machine.file("C:\\d\\a", "abcdef");
  numbers().open(1, "C:\\d\\a", OpenMode::kBinary);
  EXPECT_EQ(numbers().length(1), 6);
  numbers().put(1, 1, "X");
  numbers().put(1, 6, "YZ");
  numbers().close(1);
  EXPECT_EQ(machine.read("C:\\d\\a"), "XbcdeYZ");
}

TEST_F(FileStatementsTest, OpeningRaisesWhatStandsInItsWay) {
  machine.file("C:\\d\\kept").readOnly("C:\\d\\kept").file("C:\\d\\held");
  machine.machineFile("locked.txt", "C:\\d\\held\n");
  const auto open = [&](std::string_view path, OpenMode mode) {
    return errorOf([&] { numbers().open(1, path, mode); });
  };
  EXPECT_EQ(open("C:\\d\\gone", OpenMode::kInput), kErrFileNotFound);
  EXPECT_EQ(open("C:\\gone\\a", OpenMode::kOutput), kErrPathNotFound);
  EXPECT_EQ(open("C:\\d\\kept", OpenMode::kAppend), kErrFileAccess);
  EXPECT_EQ(open("C:\\d\\held", OpenMode::kInput), kErrPermission);
  EXPECT_EQ(open("C:\\d\\kept", OpenMode::kInput), 0);
}

TEST_F(FileStatementsTest, ANumberInUseCannotBeOpenedAgain) {
  machine.file("C:\\d\\a").file("C:\\d\\b");
  numbers().open(1, "C:\\d\\a", OpenMode::kInput);
  EXPECT_EQ(errorOf([&] { numbers().open(1, "C:\\d\\b", OpenMode::kInput); }), kErrFileAlreadyOpen);
  EXPECT_EQ(numbers().freeFile(), 2);
  numbers().close(1);
  EXPECT_EQ(numbers().freeFile(), 1);
}

TEST_F(FileStatementsTest, ANumberThatIsNotOpenRaises52AndClosesInSilence) {
  EXPECT_EQ(errorOf([&] { numbers().print(7, "x"); }), kErrBadFileNumber);
  EXPECT_EQ(errorOf([&] { numbers().lineInput(7); }), kErrBadFileNumber);
  EXPECT_EQ(errorOf([&] { numbers().put(7, 1, "x"); }), kErrBadFileNumber);
  EXPECT_EQ(errorOf([&] { numbers().length(7); }), kErrBadFileNumber);
  EXPECT_EQ(errorOf([&] { numbers().eof(7); }), kErrBadFileNumber);
  EXPECT_EQ(errorOf([&] { numbers().close(7); }), 0);
}

TEST_F(FileStatementsTest, ResetClosesEveryNumberWhoeverOpenedIt) {
  machine.folder("C:\\d");
  numbers().open(1, "C:\\d\\a.txt", OpenMode::kOutput);
  numbers().open(2, "C:\\d\\b.txt", OpenMode::kOutput);
  numbers().print(1, "one");
  numbers().print(2, "two");
  numbers().Reset();
  EXPECT_EQ(machine.read("C:\\d\\a.txt"), "one\r\n");
  EXPECT_EQ(machine.read("C:\\d\\b.txt"), "two\r\n");
  EXPECT_EQ(errorOf([&] { numbers().print(1, "x"); }), kErrBadFileNumber);
  EXPECT_EQ(numbers().freeFile(), 1);
}

TEST_F(FileStatementsTest, WhatWasPrintedIsWrittenWhenTheProcessEnds) {
  machine.folder("C:\\d");
  {
    FileNumbers ending(m());
    ending.open(1, "C:\\d\\a.txt", OpenMode::kOutput);
    ending.print(1, "line");
  }
  EXPECT_EQ(machine.read("C:\\d\\a.txt"), "line\r\n");
}

TEST_F(FileStatementsTest, ADiskThatIsFullRaisesAndTheNumberIsClosedAllTheSame) {
  machine.ini("[fault]\nWriteFile=0,112\n").folder("C:\\d");
  numbers().open(1, "C:\\d\\a.txt", OpenMode::kOutput);
  numbers().print(1, "lost");
  EXPECT_EQ(errorOf([&] { numbers().close(1); }), kErrDiskFull);
  EXPECT_EQ(numbers().freeFile(), 1);
}

}  // namespace
}  // namespace tavr
