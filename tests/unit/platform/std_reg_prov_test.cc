#include "platform/folder/std_reg_prov.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/folder/folder_registry.h"
#include "platform/folder/registry_reader.h"

namespace tavr::folder {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::uint32_t kMachine = 0x80000002;
constexpr const char* kSession = "SYSTEM\\CurrentControlSet\\Control\\Session Manager";
constexpr const char* kPending = "PendingFileRenameOperations";

constexpr const char* kText = R"(Windows Registry Editor Version 5.00

[HKEY_LOCAL_MACHINE\SOFTWARE\Look]
"color"="64-bit view"

[HKEY_LOCAL_MACHINE\SOFTWARE\WOW6432Node\Look]
"color"="255"
"path"=hex(2):25,00,54,00,25,00,5c,00,78,00,00,00
"number"=dword:00000001

[HKEY_LOCAL_MACHINE\SYSTEM\CurrentControlSet\Control\Session Manager]
"PendingFileRenameOperations"=hex(7):61,00,00,00,00,00,62,00,00,00,00,00,00,00
"unclosed"=hex(7):61,00,00,00,62,00
"one"=hex(7):61,00,00,00
"closed only"=hex(7):00,00
"no bytes"=hex(7):
)";

class StdRegProvTest : public ::testing::Test {
 protected:
  StdRegProvTest() { readRegistry("registry.reg", kText, tree_); }

  std::vector<std::string> strings(std::string_view name) {
    std::vector<std::string> out{"stale"};
    EXPECT_EQ(provider_.getMultiStringValue(kMachine, kSession, name, out), kSuccess) << name;
    return out;
  }
  const RegistryValue* pending() {
    return tree_.root("HKEY_LOCAL_MACHINE")
        ->subkey("SYSTEM")
        ->subkey("CurrentControlSet")
        ->subkey("Control")
        ->subkey("Session Manager")
        ->value(kPending);
  }

  RegistryTree tree_;
  Faults faults_;
  FolderRegistry registry_{tree_, faults_};
  FolderStdRegProv provider_{registry_, faults_,
                             [](std::string_view text) { return "<" + std::string(text) + ">"; }};
};

TEST_F(StdRegProvTest, TextIsReadFromThe32BitViewWithItsReferencesExpanded) {
  std::string out;
  EXPECT_EQ(provider_.getExpandedStringValue(kMachine, "SOFTWARE\\Look", "Color", out), kSuccess);
  EXPECT_EQ(out, "<255>");
  EXPECT_EQ(provider_.getExpandedStringValue(kMachine, "software\\look\\", "path", out), kSuccess);
  EXPECT_EQ(out, "<%T%\\x>");
}

TEST_F(StdRegProvTest, AnythingButATextLeavesTheOutputEmpty) {
  for (const char* name : {"number", "missing"}) {
    std::string out = "stale";
    EXPECT_NE(provider_.getExpandedStringValue(kMachine, "SOFTWARE\\Look", name, out), kSuccess);
    EXPECT_EQ(out, "") << name;
  }
  std::string out = "stale";
  EXPECT_EQ(provider_.getExpandedStringValue(kMachine, "SOFTWARE\\None", "color", out),
            kFileNotFound);
  EXPECT_EQ(out, "");
  EXPECT_NE(provider_.getExpandedStringValue(1, "SOFTWARE\\Look", "color", out), kSuccess);
}

TEST_F(StdRegProvTest, EmptyStringsAmongTheOthersAreStrings) {
  EXPECT_THAT(strings(kPending), ElementsAre("a", "", "b", ""));
}

TEST_F(StdRegProvTest, AListThatIsNotClosedKeepsItsLastString) {
  EXPECT_THAT(strings("unclosed"), ElementsAre("a", "b"));
  EXPECT_THAT(strings("one"), ElementsAre("a"));
}

TEST_F(StdRegProvTest, AListOfNoStringsIsEmpty) {
  EXPECT_THAT(strings("closed only"), IsEmpty());
  EXPECT_THAT(strings("no bytes"), IsEmpty());
}

TEST_F(StdRegProvTest, AnythingButStringsLeavesTheListEmpty) {
  std::vector<std::string> out{"stale"};
  EXPECT_NE(provider_.getMultiStringValue(kMachine, "SOFTWARE\\Look", "color", out), kSuccess);
  EXPECT_THAT(out, IsEmpty());
  out = {"stale"};
  EXPECT_EQ(provider_.getMultiStringValue(kMachine, kSession, "missing", out), kFileNotFound);
  EXPECT_THAT(out, IsEmpty());
}

TEST_F(StdRegProvTest, StringsAreStoredEachWithItsNulAndTheClosingOne) {
  ASSERT_EQ(provider_.setMultiStringValue(kMachine, kSession, kPending, {"\xC3\xA4", ""}),
            kSuccess);
  ASSERT_NE(pending(), nullptr);
  EXPECT_EQ(pending()->type, kRegMultiSz);
  EXPECT_EQ(pending()->data, std::string("\xE4\0\0\0\0\0\0\0", 8));
  EXPECT_THAT(strings(kPending), ElementsAre("\xC3\xA4", ""));
}

TEST_F(StdRegProvTest, EmptyStringsAloneComeBackInTheirNumber) {
  ASSERT_EQ(provider_.setMultiStringValue(kMachine, kSession, kPending, {"", "", ""}), kSuccess);
  EXPECT_EQ(pending()->data, std::string(8, '\0'));
  EXPECT_THAT(strings(kPending), ElementsAre("", "", ""));
  ASSERT_EQ(provider_.setMultiStringValue(kMachine, kSession, kPending, {}), kSuccess);
  EXPECT_EQ(pending()->data, std::string(2, '\0'));
  EXPECT_THAT(strings(kPending), IsEmpty());
}

TEST_F(StdRegProvTest, SettingNeedsTheKeyAndCreatingMakesItWithEveryKeyAbove) {
  EXPECT_EQ(provider_.setMultiStringValue(kMachine, "SYSTEM\\a\\b", "n", {"x"}), kFileNotFound);
  EXPECT_EQ(provider_.createKey(kMachine, "SYSTEM\\a\\b"), kSuccess);
  EXPECT_EQ(provider_.createKey(kMachine, "SYSTEM\\A\\B"), kSuccess);
  EXPECT_EQ(provider_.setMultiStringValue(kMachine, "SYSTEM\\a\\b", "n", {"x"}), kSuccess);
  EXPECT_NE(provider_.createKey(7, "SYSTEM"), kSuccess);
}

TEST_F(StdRegProvTest, AFaultIsAnsweredInsteadOfTheMethod) {
  for (const char* method :
       {"GetExpandedStringValue", "GetMultiStringValue", "SetMultiStringValue", "CreateKey"}) {
    faults_.add(method, 0, kAccessDenied);
  }
  std::string text = "stale";
  std::vector<std::string> list{"stale"};
  EXPECT_EQ(provider_.getExpandedStringValue(kMachine, "SOFTWARE\\Look", "color", text),
            kAccessDenied);
  EXPECT_EQ(text, "");
  EXPECT_EQ(provider_.getMultiStringValue(kMachine, kSession, kPending, list), kAccessDenied);
  EXPECT_THAT(list, IsEmpty());
  EXPECT_EQ(provider_.setMultiStringValue(kMachine, kSession, kPending, {}), kAccessDenied);
  EXPECT_EQ(provider_.createKey(kMachine, "new"), kAccessDenied);
  EXPECT_FALSE(tree_.changed());
}

}  // namespace
}  // namespace tavr::folder
