// fOverwriteFile: what it leaves of a file, and how it goes about it.
#include <gtest/gtest.h>

#include "basic/resume_next.h"
#include "services/deletion.h"
#include "tests/support/forwarding_files.h"
#include "tests/support/machine_with.h"
#include "tests/support/observed_events.h"
#include "tests/support/test_machine.h"

namespace tavr {
namespace {

// Counts in which way files are opened.
class OpenCounts : public testing::ForwardingFiles {
 public:
  using ForwardingFiles::ForwardingFiles;
  OpenedFile open(std::string_view path, OpenMode mode) override {
    if (mode == OpenMode::kInput) ++input;
    if (mode == OpenMode::kBinary) ++binary;
    return ForwardingFiles::open(path, mode);
  }

  int input = 0;
  int binary = 0;
};

class OverwritingTest : public ::testing::Test {
 protected:
  /// Overwrites a file of that size; its content afterwards.
  std::string overwritten(std::size_t size) {
    machine.file("C:\\d\\a", std::string(size, 'x'));
    machine.program().deletion.fOverwriteFile("C:\\d\\a");
    return machine.read("C:\\d\\a");
  }
  static std::string blocks(std::size_t count) { return std::string(count * 8192, '#'); }

  testing::TestMachine machine;
};

TEST_F(OverwritingTest, AnEmptyFileGrowsToOneBlock) { EXPECT_EQ(overwritten(0), blocks(1)); }

TEST_F(OverwritingTest, HalfABlockRoundsToNoneSoTheFileIsOneBlock) {
  EXPECT_EQ(overwritten(4096), blocks(1));
}

TEST_F(OverwritingTest, MoreThanHalfABlockRoundsUp) { EXPECT_EQ(overwritten(4097), blocks(2)); }

TEST_F(OverwritingTest, AWholeBlockGrowsByOne) { EXPECT_EQ(overwritten(8192), blocks(2)); }

TEST_F(OverwritingTest, OneAndAHalfBlocksRoundToTwo) { EXPECT_EQ(overwritten(12288), blocks(3)); }

TEST_F(OverwritingTest, TwoAndAHalfBlocksRoundToTwo) { EXPECT_EQ(overwritten(20480), blocks(3)); }

TEST_F(OverwritingTest, AMissingFileIsMade) {
  machine.folder("C:\\d");
  machine.program().deletion.fOverwriteFile("C:\\d\\index.dat");
  EXPECT_EQ(machine.read("C:\\d\\index.dat"), blocks(1));
}

TEST_F(OverwritingTest, AFolderThatIsMissingIsNotMade) {
  machine.program().deletion.fOverwriteFile("C:\\gone\\index.dat");
  EXPECT_FALSE(machine.exists("C:\\gone"));
}

TEST_F(OverwritingTest, AFileThatIsHeldStaysAsItIs) {
  machine.file("C:\\d\\held", "secret").machineFile("locked.txt", "C:\\d\\held\n");
  machine.program().deletion.fOverwriteFile("C:\\d\\held");
  EXPECT_EQ(machine.read("C:\\d\\held"), "secret");
}

TEST_F(OverwritingTest, AReadOnlyHiddenFileIsFreedAndOverwritten) {
  machine.file("C:\\d\\a", "secret");
  Files& files = machine.machine().files;
  ASSERT_EQ(files.setAttributes("C:\\d\\a", kAttrReadOnly | kAttrHidden | kAttrSystem), kSuccess);
  machine.program().deletion.fOverwriteFile("C:\\d\\a");
  EXPECT_EQ(machine.read("C:\\d\\a"), blocks(1));
  std::uint32_t attributes = 0;
  ASSERT_EQ(files.attributes("C:\\d\\a", attributes), kSuccess);
  EXPECT_EQ(attributes & (kAttrReadOnly | kAttrHidden | kAttrSystem), 0u);
}

TEST_F(OverwritingTest, ElevenPassesAreMadeEachWithTheFileOpenedAnew) {
  machine.file("C:\\d\\a", "secret");
  OpenCounts files(machine.machine().files);
  Machine fake = testing::machineWith(machine.machine(), files);
  Form1 form(fake);
  FileNumbers numbers(fake);
  Deletion(fake, form, numbers).fOverwriteFile("C:\\d\\a");
  EXPECT_EQ(files.input, 1);
  EXPECT_EQ(files.binary, 11);
}

TEST_F(OverwritingTest, EventsArePumpedAfterEveryBlockAndEveryPass) {
  machine.file("C:\\d\\a", std::string(12288, 'x'));
  testing::ObservedEvents events(machine.machine().events);
  Machine fake = testing::machineWith(machine.machine(), events);
  Form1 form(fake);
  FileNumbers numbers(fake);
  Deletion(fake, form, numbers).fOverwriteFile("C:\\d\\a");
  EXPECT_EQ(events.pumped, 11 * (3 + 1));
}

TEST_F(OverwritingTest, TheProgramsOtherFilesAreClosedFirst) {
  machine.file("C:\\d\\a", "secret").folder("C:\\d");
  FileNumbers& numbers = machine.program().numbers;
  numbers.open(1, "C:\\d\\log.txt", OpenMode::kOutput);
  numbers.print(1, "a line");
  machine.program().deletion.fOverwriteFile("C:\\d\\a");
  EXPECT_EQ(machine.read("C:\\d\\log.txt"), "a line\r\n");
  EXPECT_EQ(machine.read("C:\\d\\a"), blocks(1));
  EXPECT_THROW(numbers.print(1, "another"), RuntimeError);
}

TEST_F(OverwritingTest, APassThatCannotWriteIsFollowedByOnesThatCan) {
  machine.ini("[fault]\nWriteFile=1,112\n").file("C:\\d\\a", "secret");
  machine.program().deletion.fOverwriteFile("C:\\d\\a");
  EXPECT_EQ(machine.read("C:\\d\\a"), blocks(1));
}

TEST_F(OverwritingTest, AFileThatIsTakenAwayBetweenTwoBlocksIsMadeAgain) {
  machine.file("C:\\d\\a", "secret");
  testing::ObservedEvents events(machine.machine().events);
  Machine fake = testing::machineWith(machine.machine(), events);
  events.onPump = [&] {
    if (events.pumped == 2) machine.machine().files.remove("C:\\d\\a");
  };
  Form1 form(fake);
  FileNumbers numbers(fake);
  Deletion(fake, form, numbers).fOverwriteFile("C:\\d\\a");
  EXPECT_EQ(machine.read("C:\\d\\a"), blocks(1));
}

}  // namespace
}  // namespace tavr
