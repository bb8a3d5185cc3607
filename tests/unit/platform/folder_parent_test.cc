#include "platform/folder/folder_parent.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "tests/unit/platform/scratch_folder.h"

namespace tavr::folder {
namespace {

constexpr std::uint32_t kMessage = 1025;
constexpr std::uint32_t kAllAccess = 0xF001F;

class FolderParentTest : public ::testing::Test {
 protected:
  testing::ScratchFolder folder;
  Faults faults;
  FolderParent parent{folder.path(), "Tavrwork Brightbox", faults};

  void put(MappingView& view, std::string_view text) {
    std::copy(text.begin(), text.end(), view.bytes().begin());
  }
};

TEST_F(FolderParentTest, ItsWindowIsFoundByItsExactTitle) {
  EXPECT_NE(parent.findWindow("Tavrwork Brightbox"), 0U);
  EXPECT_EQ(parent.findWindow("tavrwork brightbox"), 0U);
  EXPECT_EQ(parent.findWindow("Tavrwork Brightbox "), 0U);
  EXPECT_EQ(parent.findWindow(""), 0U);
}

TEST_F(FolderParentTest, WithoutATitleThereIsNoWindow) {
  FolderParent none(folder.path(), "", faults);
  EXPECT_EQ(none.findWindow(""), 0U);
  EXPECT_EQ(none.findWindow("Tavrwork Brightbox"), 0U);
}

TEST_F(FolderParentTest, AMessageWithAViewsAddressWritesItsText) {
  const WindowHandle window = parent.findWindow("Tavrwork Brightbox");
  const auto mapping = parent.createMapping("MyFileMappingObject", 256);
  ASSERT_NE(mapping, nullptr);
  const auto view = mapping->map(kAllAccess, 256);
  ASSERT_NE(view, nullptr);
  ASSERT_EQ(view->bytes().size(), 256U);
  put(*view, "t|5|100");
  EXPECT_EQ(view->flush(), kSuccess);
  parent.sendMessage(window, kMessage, view->address(), 0);
  put(*view, "u|\r\n|");
  parent.sendMessage(window, kMessage, view->address(), 0);
  EXPECT_EQ(folder.read("parent.log"), "t|5|100\nu|  |00\n");
}

TEST_F(FolderParentTest, ATextThatFillsTheViewEndsWithIt) {
  const auto mapping = parent.createMapping("M", 8);
  const auto view = mapping->map(kAllAccess, 4);
  put(*view, "abcd");
  parent.sendMessage(parent.findWindow("Tavrwork Brightbox"), kMessage, view->address(), 0);
  EXPECT_EQ(folder.read("parent.log"), "abcd\n");
}

TEST_F(FolderParentTest, AnAddressOfNoViewIsWrittenAsNumbers) {
  const WindowHandle window = parent.findWindow("Tavrwork Brightbox");
  parent.sendMessage(window, kMessage, 7, -1);
  std::uintptr_t gone = 0;
  {
    const auto view = parent.createMapping("M", 256)->map(kAllAccess, 256);
    gone = view->address();
  }
  parent.sendMessage(window, kMessage, gone, 0);
  EXPECT_EQ(folder.read("parent.log"),
            "message 1025 7 -1\nmessage 1025 " + std::to_string(gone) + " 0\n");
}

TEST_F(FolderParentTest, AMessageToNoWindowIsLost) {
  parent.sendMessage(0, kMessage, 7, 0);
  EXPECT_FALSE(folder.has("parent.log"));
}

TEST_F(FolderParentTest, AMappingIsSharedByNameWhileSomebodyHoldsIt) {
  auto first = parent.createMapping("M", 16);
  auto view = first->map(kAllAccess, 16);
  put(*view, "x");
  EXPECT_EQ(parent.createMapping("M", 16)->map(kAllAccess, 16)->bytes()[0], 'x');
  EXPECT_EQ(parent.createMapping("N", 16)->map(kAllAccess, 16)->bytes()[0], '\0');
  first.reset();  // the view holds it
  EXPECT_EQ(parent.createMapping("M", 16)->map(kAllAccess, 16)->bytes()[0], 'x');
  view.reset();
  EXPECT_EQ(parent.createMapping("M", 16)->map(kAllAccess, 16)->bytes()[0], '\0');
}

TEST_F(FolderParentTest, AViewLargerThanItsMappingIsRefused) {
  const auto mapping = parent.createMapping("M", 16);
  EXPECT_EQ(mapping->map(kAllAccess, 17), nullptr);
  EXPECT_EQ(mapping->map(kAllAccess, 0)->bytes().size(), 16U);
  EXPECT_EQ(parent.createMapping("N", 0), nullptr);
}

TEST_F(FolderParentTest, FaultsFailTheirOperation) {
  faults.add("CreateFileMapping", 1, kAccessDenied);
  faults.add("MapViewOfFile", 1, kAccessDenied);
  faults.add("FindWindow", 1, kAccessDenied);
  EXPECT_EQ(parent.createMapping("M", 16), nullptr);
  const auto mapping = parent.createMapping("M", 16);
  ASSERT_NE(mapping, nullptr);
  EXPECT_EQ(mapping->map(kAllAccess, 16), nullptr);
  EXPECT_NE(mapping->map(kAllAccess, 16), nullptr);
  EXPECT_EQ(parent.findWindow("Tavrwork Brightbox"), 0U);
  EXPECT_NE(parent.findWindow("Tavrwork Brightbox"), 0U);
}

TEST(FolderEventLog, AnEventIsALineAndItsTextBehindTabs) {
  const testing::ScratchFolder folder;
  Faults faults;
  FolderEventLog log(folder.path(), faults);
  EXPECT_EQ(log.report("", "Spoorwipe", 1, 5000, "RunTime Error: 53\r\n\tModule: a\r\n\r\nEnd"),
            kSuccess);
  EXPECT_EQ(log.report("", "Other\nname", 4, 7, "x"), kSuccess);
  EXPECT_EQ(folder.read("events.log"),
            "5000 1 Spoorwipe\n\tRunTime Error: 53\n\t\tModule: a\n\t\n\tEnd\n"
            "7 4 Other name\n\tx\n");
}

TEST(FolderEventLog, AnotherServerIsNotThereAndAFaultWritesNothing) {
  const testing::ScratchFolder folder;
  Faults faults;
  faults.add("ReportEvent", 1, 1502);
  FolderEventLog log(folder.path(), faults);
  EXPECT_EQ(log.report("", "Spoorwipe", 1, 5000, "x"), 1502U);
  EXPECT_EQ(log.report("\\\\OTHER", "Spoorwipe", 1, 5000, "x"), 1722U);
  EXPECT_FALSE(folder.has("events.log"));
}

TEST(MachineLog, ALinkThatAppearsLaterIsNotFollowed) {
  const testing::ScratchFolder folder;
  folder.write("elsewhere", "kept\n");
  const MachineLog log(folder.path(), "shell.log");
  std::filesystem::create_symlink(folder.at("elsewhere"), folder.at("shell.log"));
  EXPECT_FALSE(log.addLine("x"));
  std::filesystem::remove(folder.at("shell.log"));
  std::filesystem::create_hard_link(folder.at("elsewhere"), folder.at("shell.log"));
  EXPECT_FALSE(log.addLine("x"));
  EXPECT_EQ(folder.read("elsewhere"), "kept\n");
}

}  // namespace
}  // namespace tavr::folder
