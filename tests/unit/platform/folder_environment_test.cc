#include "platform/folder/folder_environment.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tavr::folder {
namespace {

class FolderEnvironmentTest : public ::testing::Test {
 protected:
  FolderEnvironment environment{{{"Temp", "C:\\T"}, {"Empty", ""}, {"Percent", "%Temp%"}},
                                "C:\\Program Files\\Tavr Wipe"};
};

TEST_F(FolderEnvironmentTest, NamesCompareWithoutCase) {
  EXPECT_EQ(environment.get("TEMP"), "C:\\T");
  EXPECT_EQ(environment.get("temp"), "C:\\T");
}

TEST_F(FolderEnvironmentTest, AnUnknownVariableIsEmpty) {
  EXPECT_EQ(environment.get("Tem"), "");
  EXPECT_EQ(environment.get(""), "");
}

TEST_F(FolderEnvironmentTest, TheHostsVariablesAreNotSeen) {
  ASSERT_NE(std::getenv("PATH"), nullptr);
  EXPECT_EQ(environment.get("PATH"), "");
}

TEST_F(FolderEnvironmentTest, ReferencesAreExpandedOnce) {
  EXPECT_EQ(environment.expand("%TEMP%\\a %temp%"), "C:\\T\\a C:\\T");
  EXPECT_EQ(environment.expand("%Percent%"), "%Temp%");
  EXPECT_EQ(environment.expand("[%Empty%]"), "[]");
}

TEST_F(FolderEnvironmentTest, WhatIsNoReferenceStays) {
  EXPECT_EQ(environment.expand("%nothing%\\a"), "%nothing%\\a");
  EXPECT_EQ(environment.expand("100% %Temp"), "100% %Temp");
  EXPECT_EQ(environment.expand("%%"), "%%");
  EXPECT_EQ(environment.expand("%nothing%Temp%"), "%nothingC:\\T");
  EXPECT_EQ(environment.expand(""), "");
}

TEST_F(FolderEnvironmentTest, TheTextEndsAtItsNul) {
  EXPECT_EQ(environment.expand(std::string_view("%Temp%\0x", 8)), "C:\\T");
}

TEST_F(FolderEnvironmentTest, ItKnowsTheProgram) {
  EXPECT_EQ(environment.appPath(), "C:\\Program Files\\Tavr Wipe");
  EXPECT_EQ(environment.exeName(), "tavrwipe");
}

}  // namespace
}  // namespace tavr::folder
