#include "services/file_properties.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <utility>

#include "basic/number.h"
#include "tests/support/forwarding_files.h"
#include "tests/support/machine_with.h"
#include "tests/support/test_machine.h"

namespace tavr {
namespace {

constexpr std::uintmax_t kGiB = std::uintmax_t{1} << 30;

// Answers every look with the same entry.
class FixedEntry : public testing::ForwardingFiles {
 public:
  FixedEntry(Files& inner, FoundFile entry) : ForwardingFiles(inner), entry_(std::move(entry)) {}
  Status findFirst(std::string_view, FoundFile& found) override {
    found = entry_;
    return kSuccess;
  }

 private:
  FoundFile entry_;
};

class FilePropertiesTest : public ::testing::Test {
 protected:
  std::string sizeOf(std::uintmax_t bytes) {
    machine.file("C:\\d\\big");
    std::filesystem::resize_file(machine.host("C:\\d\\big"), bytes);
    clsFileProp properties(machine.machine());
    EXPECT_EQ(properties.FindFileInfo("C:\\d\\big"), 1);
    return properties.ByteSize();
  }

  testing::TestMachine machine;
};

TEST_F(FilePropertiesTest, AnEmptyPathIsZeroAndChangesNothing) {
  machine.file("C:\\d\\a", "12345");
  clsFileProp properties(machine.machine());
  ASSERT_EQ(properties.FindFileInfo("C:\\d\\a"), 1);
  EXPECT_EQ(properties.FindFileInfo(""), 0);
  EXPECT_EQ(properties.ByteSize(), "5");
  EXPECT_EQ(properties.FileName(), "C:\\D\\A");
}

TEST_F(FilePropertiesTest, AFileThatIsGoneIsOneWithTheFirstDatesAndNoFlags) {
  machine.file("C:\\d\\a", "12345").readOnly("C:\\d\\a");
  clsFileProp properties(machine.machine());
  properties.FindFileInfo("C:\\d\\a");
  ASSERT_TRUE(properties.ReadOnly());
  EXPECT_EQ(properties.FindFileInfo("C:\\d\\gone"), 1);
  EXPECT_EQ(properties.CreationTime(), "1/1/1601 0:0:0");
  EXPECT_EQ(properties.LastWriteTime(), "1/1/1601 0:0:0");
  EXPECT_EQ(properties.LastAccessTime(), "1/1/1601");
  EXPECT_EQ(properties.ByteSize(), "");
  EXPECT_EQ(properties.FileName(), "C:\\D\\GONE");
  EXPECT_FALSE(properties.ReadOnly() || properties.Archive() || properties.Normal());
}

TEST_F(FilePropertiesTest, DatesAreUnpaddedDayMonthYearAndTheAccessIsADateAlone) {
  machine.file("C:\\d\\a");
  const timespec times[2] = {{1772600767, 0}, {1772600767, 0}};  // 2026-03-04 05:06:07
  ASSERT_EQ(::utimensat(AT_FDCWD, machine.host("C:\\d\\a").c_str(), times, 0), 0);
  clsFileProp properties(machine.machine());
  properties.FindFileInfo("C:\\d\\a");
  EXPECT_EQ(properties.LastWriteTime(), "4/3/2026 5:6:7");
  EXPECT_EQ(properties.LastAccessTime(), "4/3/2026");
}

TEST_F(FilePropertiesTest, TheCreationIsATimeOfItsOwnBesideTheOtherTwo) {
  constexpr std::uint64_t kSecond = 10'000'000;
  constexpr std::uint64_t kDay = 86400 * kSecond;
  FoundFile entry;
  entry.created = 155227 * kDay + (3 * 3600 + 4 * 60 + 5) * kSecond;  // 2025-12-31
  entry.accessed = entry.created + kDay;
  entry.written = entry.created + 2 * kDay + kSecond;
  FixedEntry files(machine.machine().files, entry);
  Machine fake = testing::machineWith(machine.machine(), files);
  clsFileProp properties(fake);
  ASSERT_EQ(properties.FindFileInfo("C:\\a"), 1);
  EXPECT_EQ(properties.CreationTime(), "31/12/2025 3:4:5");
  EXPECT_EQ(properties.LastAccessTime(), "1/1/2026");
  EXPECT_EQ(properties.LastWriteTime(), "2/1/2026 3:4:6");
}

TEST_F(FilePropertiesTest, AnEmptyFileHasNoSizeTextWhichCountsAsZero) {
  EXPECT_EQ(sizeOf(0), "");
  EXPECT_EQ(Val(sizeOf(0)), 0);
}

TEST_F(FilePropertiesTest, TheLowWordIsSigned) {
  EXPECT_EQ(sizeOf(1), "1");
  EXPECT_EQ(sizeOf(2 * kGiB - 1), "2147483647");
  EXPECT_EQ(sizeOf(2 * kGiB), "-2147483648");
  EXPECT_EQ(sizeOf(4 * kGiB - 1), "-1");
}

TEST_F(FilePropertiesTest, AFileFromFourGibibytesReportsItsHighWord) {
  EXPECT_EQ(sizeOf(4 * kGiB), "1");
  EXPECT_EQ(sizeOf(4 * kGiB + 12345), "1");
  EXPECT_EQ(sizeOf(9 * kGiB), "2");
}

TEST_F(FilePropertiesTest, EachFlagIsOneAttribute) {
  const struct {
    std::uint32_t attribute;
    bool (clsFileProp::*flag)() const;
  } kFlags[] = {{1, &clsFileProp::ReadOnly},    {2, &clsFileProp::Hidden},
                {4, &clsFileProp::System},      {32, &clsFileProp::Archive},
                {128, &clsFileProp::Normal},    {0x100, &clsFileProp::Temporary},
                {0x800, &clsFileProp::Compress}};
  for (const auto& set : kFlags) {
    FoundFile entry;
    entry.attributes = set.attribute;
    FixedEntry files(machine.machine().files, entry);
    Machine fake = testing::machineWith(machine.machine(), files);
    clsFileProp properties(fake);
    properties.FindFileInfo("C:\\a");
    for (const auto& asked : kFlags) {
      EXPECT_EQ((properties.*asked.flag)(), set.attribute == asked.attribute)
          << set.attribute << " " << asked.attribute;
    }
  }
}

TEST_F(FilePropertiesTest, AFolderHasNoSizeAndIsNotSaidToBeOne) {
  machine.folder("C:\\d\\sub");
  clsFileProp properties(machine.machine());
  EXPECT_EQ(properties.FindFileInfo("C:\\d\\sub"), 1);
  EXPECT_EQ(properties.ByteSize(), "");
  EXPECT_FALSE(properties.Directory());
}

TEST_F(FilePropertiesTest, AWildcardGivesTheFirstMatch) {
  machine.file("C:\\d\\b", "22").file("C:\\d\\a.txt", "333").file("C:\\d\\b.txt", "4444");
  clsFileProp properties(machine.machine());
  properties.FindFileInfo("C:\\d\\*.txt");
  EXPECT_EQ(properties.ByteSize(), "3");
  EXPECT_EQ(properties.FileName(), "C:\\D\\*.TXT");
}

TEST_F(FilePropertiesTest, TheOtherPropertiesKeepTheirDefaults) {
  machine.file("C:\\d\\a");
  clsFileProp properties(machine.machine());
  properties.FindFileInfo("C:\\d\\a");
  EXPECT_EQ(properties.IconIndex(), 0);
  EXPECT_EQ(properties.FileType() + properties.ProductVersion() + properties.ProductName() +
                properties.OriginalFileName() + properties.LegalCopyright() +
                properties.InternalName() + properties.FileVersion() +
                properties.FileDescription() + properties.CompanyName(),
            "");
}

TEST_F(FilePropertiesTest, AFileThatIsHeldOpenIsReadAllTheSame) {
  machine.file("C:\\d\\held", "12345").machineFile("locked.txt", "C:\\d\\held\n");
  clsFileProp properties(machine.machine());
  properties.FindFileInfo("C:\\d\\held");
  EXPECT_EQ(properties.ByteSize(), "5");
}

}  // namespace
}  // namespace tavr
