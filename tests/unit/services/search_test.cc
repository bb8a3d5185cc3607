#include "services/search.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>

#include "basic/resume_next.h"
#include "services/event_log.h"
#include "tests/support/forwarding_files.h"
#include "tests/support/machine_with.h"
#include "tests/support/test_machine.h"

namespace tavr {
namespace {

constexpr std::uintmax_t kGiB = std::uintmax_t{1} << 30;
constexpr std::uint64_t kSecond = 10'000'000;  // of a file time

// Lists one file that no folder of the host can hold.
class OneFile : public testing::ForwardingFiles {
 public:
  OneFile(Files& inner, FoundFile file) : ForwardingFiles(inner), file_(std::move(file)) {}
  void listFolder(std::string_view, std::string_view, FolderListing& listing) override {
    listing.subfolders.clear();
    listing.files = {file_};
  }

 private:
  FoundFile file_;
};

// Removes a folder once its parent has been listed.
class VanishingFolder : public testing::ForwardingFiles {
 public:
  VanishingFolder(Files& inner, std::string name, std::filesystem::path place)
      : ForwardingFiles(inner), name_(std::move(name)), place_(std::move(place)) {}
  void listFolder(std::string_view folder, std::string_view mask, FolderListing& listing) override {
    ForwardingFiles::listFolder(folder, mask, listing);
    const std::vector<std::string>& names = listing.subfolders;
    if (std::find(names.begin(), names.end(), name_) == names.end()) return;
    removed += std::filesystem::remove_all(place_);
  }

  std::uintmax_t removed = 0;

 private:
  std::string name_;
  std::filesystem::path place_;
};

class SearchTest : public ::testing::Test {
 protected:
  Search& search() {
    if (!search_) search_.emplace(machine.machine(), stack);
    return *search_;
  }
  std::vector<std::string> names() {
    std::vector<std::string> all;
    for (std::size_t i = 1; i <= search().found().count(); ++i) {
      all.push_back(search().found().item(i).FileNameFull);
    }
    return all;
  }
  std::vector<std::string> found(std::string_view folder, std::string_view mask, bool deep = true) {
    search_.reset();
    search().SearchFiles(folder, mask, deep);
    return names();
  }
  double sizeOf(std::uintmax_t bytes) {
    machine.file("C:\\big\\file");
    std::filesystem::resize_file(machine.host("C:\\big\\file"), bytes);
    found("C:\\big", "*.*");
    return search().found().item(1).FileSize;
  }

  testing::TestMachine machine;
  CallStack stack;

 private:
  std::optional<Search> search_;
};

using Names = std::vector<std::string>;

TEST_F(SearchTest, EverySubfoldersFilesStandAheadOfTheFoldersOwn) {
  machine.file("C:\\d\\a.txt").file("C:\\d\\m\\b.txt").file("C:\\d\\m\\z\\c.txt");
  machine.file("C:\\d\\k\\d.txt").file("C:\\d\\y.txt");
  EXPECT_EQ(found("C:\\d", "*.*"), Names({"C:\\d\\k\\d.txt", "C:\\d\\m\\z\\c.txt",
                                          "C:\\d\\m\\b.txt", "C:\\d\\a.txt", "C:\\d\\y.txt"}));
}

TEST_F(SearchTest, WithoutRecursionOnlyTheFoldersOwnFilesAreFound) {
  machine.file("C:\\d\\a.txt").file("C:\\d\\m\\b.txt");
  EXPECT_EQ(found("C:\\d", "*.*", false), Names({"C:\\d\\a.txt"}));
}

TEST_F(SearchTest, AFolderThatDoesNotExistGivesNothingAndNoError) {
  EXPECT_EQ(found("C:\\gone", "*.*"), Names());
  EXPECT_EQ(machine.readMachineFile("events.log"), "");
}

TEST_F(SearchTest, AFolderThatGoesDuringTheWalkLeavesItsSiblingsAndTheParentsFiles) {
  machine.file("C:\\d\\a.txt").file("C:\\d\\k\\b.txt").file("C:\\d\\z\\c.txt");
  machine.file("C:\\d\\m\\gone.txt").file("C:\\d\\m\\deep\\gone.txt");
  VanishingFolder files(machine.machine().files, "m", machine.host("C:\\d\\m"));
  Machine fake = testing::machineWith(machine.machine(), files);
  Search walk(fake, stack);
  EXPECT_NO_THROW(walk.SearchFiles("C:\\d", "*.*", true));
  EXPECT_EQ(files.removed, 4u) << "two folders, two files";
  Names all;
  for (std::size_t i = 1; i <= walk.found().count(); ++i) {
    all.push_back(walk.found().item(i).FileNameFull);
  }
  EXPECT_EQ(all, Names({"C:\\d\\k\\b.txt", "C:\\d\\z\\c.txt", "C:\\d\\a.txt"}));
  EXPECT_EQ(machine.readMachineFile("events.log"), "");
  EXPECT_EQ(stack.depth(), 0u);
}

TEST_F(SearchTest, AMaskWithoutAMatchAddsNothing) {
  machine.file("C:\\d\\a.txt");
  EXPECT_EQ(found("C:\\d", "*.dat"), Names());
}

TEST_F(SearchTest, AFolderNamedLikeTheMaskIsWalkedAndNeverListed) {
  machine.file("C:\\d\\Cache\\Cache").file("C:\\d\\Cache\\other");
  EXPECT_EQ(found("C:\\d", "Cache"), Names({"C:\\d\\Cache\\Cache"}));
}

TEST_F(SearchTest, StarDotStarIsEveryFileAndNameDotStarANameWithoutExtension) {
  machine.file("C:\\d\\History").file("C:\\d\\History.bak").file("C:\\d\\History-journal");
  EXPECT_EQ(found("C:\\d", "*.*").size(), 3u);
  EXPECT_EQ(found("C:\\d", "history.*"), Names({"C:\\d\\History", "C:\\d\\History.bak"}));
}

TEST_F(SearchTest, TwoCallsAddUpAndAFileMatchedTwiceStandsTwice) {
  machine.file("C:\\d\\a.txt").file("C:\\d\\b.txt");
  search().SearchFiles("C:\\d", "a.*", true);
  search().SearchFiles("C:\\d", "*.txt", true);
  EXPECT_EQ(names(), Names({"C:\\d\\a.txt", "C:\\d\\a.txt", "C:\\d\\b.txt"}));
}

TEST_F(SearchTest, TheFolderMayEndInABackslash) {
  machine.file("C:\\d\\m\\a.txt");
  for (const char* folder : {"C:\\d", "C:\\d\\"}) {
    ASSERT_EQ(found(folder, "*.*"), Names({"C:\\d\\m\\a.txt"}));
    const File file = search().found().item(1);
    EXPECT_EQ(file.FilePath, "C:\\d\\m\\");
    EXPECT_EQ(file.FileName, "a.txt");
  }
}

TEST_F(SearchTest, AnEmptyFolderTextIsNotTheWholeDrive) {
  machine.file("C:\\a.txt").file("C:\\d\\b.txt");
  EXPECT_EQ(found("", "*.*"), Names());
  EXPECT_EQ(found("\\", "*.*"), Names());
}

TEST_F(SearchTest, HiddenAndSystemFoldersAreWalkedAndTheirFilesFound) {
  machine.file("C:\\d\\h\\a").file("C:\\d\\s\\b");
  Files& files = machine.machine().files;
  ASSERT_EQ(files.setAttributes("C:\\d\\h", kAttrHidden), kSuccess);
  ASSERT_EQ(files.setAttributes("C:\\d\\s\\b", kAttrSystem | kAttrHidden), kSuccess);
  EXPECT_EQ(found("C:\\d", "*.*"), Names({"C:\\d\\h\\a", "C:\\d\\s\\b"}));
  const std::uint32_t attributes = search().found().item(2).FileAttributes;
  EXPECT_EQ(attributes & (kAttrHidden | kAttrSystem), kAttrHidden | kAttrSystem);
}

TEST_F(SearchTest, DatesAreUniversalTimeInWholeSeconds) {
  machine.file("C:\\d\\a");
  const timespec times[2] = {{1795132800, 0}, {1795168800, 900'000'000}};  // 2026-11-20, 10:00
  ASSERT_EQ(::utimensat(AT_FDCWD, machine.host("C:\\d\\a").c_str(), times, 0), 0);
  found("C:\\d", "*.*");
  const File file = search().found().item(1);
  EXPECT_DOUBLE_EQ(file.Accessed, 46346);
  EXPECT_DOUBLE_EQ(file.Modified, 46346 + 10.0 / 24);
}

TEST_F(SearchTest, CreatedAccessedAndModifiedAreThreeTimesOfOneFile) {
  constexpr std::uint64_t kDay = 86400 * kSecond;
  FoundFile file;
  file.name = "a";
  file.created = (109205 + 40'000) * kDay;
  file.accessed = (109205 + 42'000) * kDay + 18 * 3600 * kSecond;
  file.written = (109205 + 41'000) * kDay + 6 * 3600 * kSecond;
  OneFile files(machine.machine().files, file);
  Machine fake = testing::machineWith(machine.machine(), files);
  Search one(fake, stack);
  one.SearchFiles("C:\\d", "*.*", false);
  ASSERT_EQ(one.found().count(), 1u);
  EXPECT_EQ(one.found().item(1).Created, 40'000);
  EXPECT_EQ(one.found().item(1).Accessed, 42'000.75);
  EXPECT_EQ(one.found().item(1).Modified, 41'000.25);
}

TEST_F(SearchTest, ADateBeforeTheFirstDayCountsDownWhileItsTimeCountsUp) {
  EXPECT_EQ(fileTimeToDate(0), -109205);
  EXPECT_EQ(fileTimeToDate(6 * 3600 * kSecond), -109205.25);
}

TEST_F(SearchTest, ATimeThatNoDateHoldsIsReportedAndReadsAsZero) {
  FoundFile file;
  file.name = "a";
  file.written = 400'000 * std::uint64_t{365} * 86400 * kSecond;
  OneFile files(machine.machine().files, file);
  Machine fake = testing::machineWith(machine.machine(), files);
  Search one(fake, stack);
  one.SearchFiles("C:\\d", "*.*", false);
  ASSERT_EQ(one.found().count(), 1u);
  EXPECT_EQ(one.found().item(1).Modified, 0);
  EXPECT_EQ(machine.readMachineFile("events.log"),
            "5000 1 Spoorwipe\n"
            "\tRunTime Error: 13 - Type mismatch\n"
            "\t\tModule: Search\n"
            "\t\tMethod: FileTimeToDate\n"
            "\t\tLine Number: 0\n"
            "\t\tDescription: :Type mismatch\n"
            "\tCall Stack:\n"
            "\tSearch.FileTimeToDate \n"
            "\tSearch.SearchFiles FilePath: C:\\d, FileName: *.*, Recursive: False\n");
}

TEST_F(SearchTest, SizesFromTwoGibibytesAreNegative) {
  EXPECT_EQ(sizeOf(0), 0);
  EXPECT_EQ(sizeOf(2 * kGiB - 1), 2147483647.0);
  EXPECT_EQ(sizeOf(2 * kGiB), -2147483648.0);
  EXPECT_EQ(sizeOf(3 * kGiB), -1073741824.0);
  EXPECT_EQ(sizeOf(4 * kGiB - 1), -1);
}

TEST_F(SearchTest, TheHighWordWeighsOneLessThanItShould) {
  EXPECT_EQ(sizeOf(4 * kGiB), 2147483647.0);
  EXPECT_EQ(sizeOf(6 * kGiB), -1);
  EXPECT_EQ(machine.readMachineFile("events.log"), "");
}

TEST_F(SearchTest, ASizeThatOverflowsIsReportedStaysZeroAndTheSearchGoesOn) {
  machine.file("C:\\d\\sub\\big").file("C:\\d\\sub\\next", "12345");
  std::filesystem::resize_file(machine.host("C:\\d\\sub\\big"), 4 * kGiB + 1);
  ASSERT_EQ(found("C:\\d\\", "*.*"), Names({"C:\\d\\sub\\big", "C:\\d\\sub\\next"}));
  EXPECT_EQ(search().found().item(1).FileSize, 0);
  EXPECT_EQ(search().found().item(2).FileSize, 5);
  EXPECT_EQ(machine.readMachineFile("events.log"),
            "5000 1 Spoorwipe\n"
            "\tRunTime Error: 6 - Overflow\n"
            "\t\tModule: Search\n"
            "\t\tMethod: FileSizeToDouble\n"
            "\t\tLine Number: 0\n"
            "\t\tDescription: :Overflow\n"
            "\tCall Stack:\n"
            "\tSearch.FileSizeToDouble \n"
            "\tSearch.SearchFiles FilePath: C:\\d\\sub, FileName: *.*, Recursive: True\n"
            "\tSearch.SearchFiles FilePath: C:\\d\\, FileName: *.*, Recursive: True\n");
  EXPECT_EQ(stack.depth(), 0u);
}

TEST_F(SearchTest, AnItemOutsideRaises) {
  machine.file("C:\\d\\a");
  found("C:\\d", "*.*");
  EXPECT_THROW(search().found().item(0), RuntimeError);
  EXPECT_THROW(search().found().item(2), RuntimeError);
}

TEST_F(SearchTest, ThousandsOfFilesKeepTheirNames) {
  Names expected;
  for (int i = 10'000; i < 14'500; ++i) {  // more than one block of records
    machine.file("C:\\d\\f" + std::to_string(i), "");
    expected.push_back("C:\\d\\f" + std::to_string(i));
  }
  EXPECT_EQ(found("C:\\d", "*.*"), expected);
}

}  // namespace
}  // namespace tavr
