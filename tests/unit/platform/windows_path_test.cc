#include "platform/folder/windows_path.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tavr::folder {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const PathBase kBase = {.program_drive = 'D', .current = {.drive = 'D', .components = {"App"}}};

WindowsPath parsed(std::string_view text) {
  WindowsPath path;
  EXPECT_EQ(parsePath(text, kBase, path), kSuccess) << text;
  return path;
}

std::string normal(std::string_view text) { return pathText(parsed(text)); }

Status statusOf(std::string_view text) {
  WindowsPath path;
  return parsePath(text, kBase, path);
}

TEST(WindowsPath, AFullPathIsDriveAndComponents) {
  const WindowsPath path = parsed("c:\\Users\\me\\a b.txt");
  EXPECT_EQ(path.drive, 'C');
  EXPECT_THAT(path.components, ElementsAre("Users", "me", "a b.txt"));
  EXPECT_FALSE(path.ends_in_separator);
}

TEST(WindowsPath, ADriveHasNoComponents) {
  EXPECT_THAT(parsed("C:\\").components, IsEmpty());
  EXPECT_TRUE(parsed("C:\\").ends_in_separator);
  EXPECT_EQ(normal("C:\\"), "C:\\");
}

TEST(WindowsPath, SlashesCountAsBackslashesAndRepeatedOnesAsOne) {
  EXPECT_EQ(normal("C:/a\\\\b//c"), "C:\\a\\b\\c");
}

TEST(WindowsPath, ALeadingBackslashIsTheDriveOfTheProgram) {
  EXPECT_EQ(normal("\\x\\y"), "D:\\x\\y");
  EXPECT_EQ(normal("/x"), "D:\\x");
}

TEST(WindowsPath, ARelativePathStartsAtTheCurrentDirectory) {
  EXPECT_EQ(normal("plugins\\a.tv"), "D:\\App\\plugins\\a.tv");
  EXPECT_EQ(normal("d:a"), "D:\\App\\a");
  EXPECT_EQ(normal("C:a"), "C:\\a") << "another drive stands at its root";
}

TEST(WindowsPath, DotsGoByTextAloneAndStopAtTheDrive) {
  EXPECT_EQ(normal("C:\\a\\.\\b\\..\\c"), "C:\\a\\c");
  EXPECT_EQ(normal("C:\\..\\..\\a"), "C:\\a");
  EXPECT_EQ(normal("..\\x"), "D:\\x");
  EXPECT_EQ(normal("C:\\a\\b\\.."), "C:\\a");
  EXPECT_EQ(normal("C:\\a*\\..\\b"), "C:\\b");
}

TEST(WindowsPath, TrailingDotsAndBlanksOfTheLastComponentAreDropped) {
  EXPECT_EQ(normal("C:\\a\\b. . "), "C:\\a\\b");
  EXPECT_EQ(normal("C:\\a\\..."), "C:\\a");
}

TEST(WindowsPath, OtherComponentsLoseASingleTrailingDotOnly) {
  EXPECT_EQ(normal("C:\\a.\\b"), "C:\\a\\b");
  EXPECT_EQ(normal("C:\\a..\\b"), "C:\\a..\\b");
  EXPECT_EQ(normal("C:\\a \\b"), "C:\\a \\b");
}

TEST(WindowsPath, DotsAtTheEndMakeTheComponentBeforeThemTheLastOne) {
  EXPECT_EQ(normal("C:\\a \\."), "C:\\a");
  EXPECT_EQ(normal("C:\\a. \\b\\.."), "C:\\a");
  EXPECT_EQ(normal("C:\\a\\...\\."), "C:\\a");
  EXPECT_EQ(normal("C:\\a \\.\\b"), "C:\\a \\b");
}

TEST(WindowsPath, TheTextEndsAtANul) {
  EXPECT_EQ(normal(std::string_view("C:\\a\0\\b", 8)), "C:\\a");
}

TEST(WindowsPath, EmptyNetworkAndRawPathsAreNotFound) {
  for (const char* text : {"", "\\\\server\\share\\a", "//server/a", "\\\\?\\C:\\a", "\\\\.\\C:"}) {
    EXPECT_EQ(statusOf(text), kPathNotFound) << text;
  }
}

TEST(WindowsPath, ATextOf260UnitsIsTooLong) {
  const std::string start = "C:\\";
  EXPECT_EQ(statusOf(start + std::string(256, 'a')), kSuccess);
  EXPECT_EQ(statusOf(start + std::string(257, 'a')), kPathNotFound);
}

TEST(WindowsPath, LengthIsCountedInUtf16Units) {
  std::string two_bytes_each;
  for (int i = 0; i < 256; ++i) two_bytes_each += "\xC3\xA9";
  EXPECT_EQ(statusOf("C:\\" + two_bytes_each), kSuccess);
  std::string pairs;
  for (int i = 0; i < 129; ++i) pairs += "\xF0\x9F\x98\x80";
  EXPECT_EQ(statusOf("C:\\" + pairs), kPathNotFound);
}

TEST(WindowsPath, AFolderWithAnImpossibleNameIsAnInvalidName) {
  for (const char* text : {"C:\\a*\\b", "C:\\a|\\b", "C:\\a:b\\c", "C:\\\"a\"\\c", " C:\\a"}) {
    EXPECT_EQ(statusOf(text), kInvalidName) << text;
  }
  EXPECT_EQ(statusOf("C:\\a\\b*"), kSuccess) << "the last one may be a pattern";
}

TEST(WindowsPath, MachineNamesAreThoseThatWindowsCanHold) {
  EXPECT_TRUE(isMachineName("a b.c"));
  EXPECT_TRUE(isMachineName(".hidden"));
  EXPECT_TRUE(isMachineName("\xC3\xA9"));
  for (const char* name : {"", "a.", "a ", ".", "..", "a:b", "a\\b", "a/b", "a\tb", "a?", "a<"}) {
    EXPECT_FALSE(isMachineName(name)) << name;
  }
}

}  // namespace
}  // namespace tavr::folder
