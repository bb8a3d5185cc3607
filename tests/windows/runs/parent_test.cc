// The real program beside a parent program in another process.
#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "basic/text.h"
#include "tests/windows/runs/machine_files.h"
#include "tests/windows/runs/pen.h"

namespace tavr::testing {

namespace fs = std::filesystem;

namespace {

constexpr const char* kTitle = "Tavrwork Brightbox";
constexpr const char* kTemp = "C/Users/user/Temp/";  // where %TEMP% leads in a pen
constexpr std::size_t kFileSize = 1000;

// The temporary files of the selection stand ready: two of 1000 bytes.
class WindowsParent : public ::testing::Test {
 protected:
  void SetUp() override {
    pen_.restore();
    for (const char* name : {"a.tmp", "b.tmp"}) {
      const fs::path file = pen_.place(kTemp + std::string(name));
      fs::create_directories(file.parent_path());
      std::ofstream(file) << std::string(kFileSize, 'x');
    }
    std::ofstream(pen_.desk() / "select.reg")
        << "REGEDIT4\r\n\r\n"
           "[HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\tavrwork\\Tavr wipe\\option\\win]\r\n"
           "\"10\"=\"1\"\r\n";
    ASSERT_EQ(pen_.run("regedit.exe", {"/S", "C:\\pen\\select.reg"}).status, 0);
  }
  void TearDown() override { pen_.stop(); }

  std::vector<std::string> told(const std::string& title, const std::string& arguments) {
    const Outcome outcome = pen_.run(
        "C:\\pen\\parent.exe", {title, "C:\\Program Files\\Tavr Wipe\\tavrwipe.exe", arguments});
    return linesOf(outcome.output);
  }
  bool there(const std::string& name) { return fs::exists(pen_.place(kTemp + name)); }
  bool resultThere() { return fs::exists(pen_.place("C/Program Files/Tavr Wipe/eresst.txt")); }

  Pen& pen_ = Pen::instance();
};

using Lines = std::vector<std::string>;

// A message carries the size from before the step's own bytes are added.
TEST_F(WindowsParent, IsToldTheTotalsOfAnErase) {
  EXPECT_EQ(told(kTitle, "w4"), (Lines{"totals t|0|", "totals t|2|0", "status 0"}));
  EXPECT_FALSE(there("a.tmp"));
  EXPECT_FALSE(there("b.tmp"));
  EXPECT_TRUE(resultThere());
}

TEST_F(WindowsParent, IsToldTheTotalsOfAnEraseAskedForByItsSecondWord) {
  EXPECT_EQ(told(kTitle, "w4-c4"), (Lines{"totals t|0|", "totals t|2|0", "status 0"}));
  EXPECT_FALSE(there("a.tmp"));
}

TEST_F(WindowsParent, IsToldTheTotalsOfATestThatLeavesTheFiles) {
  EXPECT_EQ(told(kTitle, "w4-x"), (Lines{"totals t|0|", "totals t|2|0", "status 0"}));
  EXPECT_TRUE(there("a.tmp"));
  EXPECT_TRUE(there("b.tmp"));
  EXPECT_TRUE(resultThere());
}

TEST_F(WindowsParent, IsToldNothingByAnEraseOfItsOwnKind) {
  EXPECT_EQ(told(kTitle, "t"), (Lines{"status 0"}));
  EXPECT_FALSE(there("a.tmp"));
}

TEST_F(WindowsParent, ThatHasNoWindowEndsTheRunBeforeItRemovesAnything) {
  EXPECT_EQ(told("", "w4"), (Lines{"status 0"}));
  EXPECT_TRUE(there("a.tmp"));
  EXPECT_TRUE(there("b.tmp"));
  EXPECT_FALSE(resultThere());
}

TEST_F(WindowsParent, IsFoundByExactlyItsTitle) {
  EXPECT_EQ(told("Tavrwork Brightbox 2", "w4"), (Lines{"status 0"}));
  EXPECT_TRUE(there("a.tmp"));
}

}  // namespace

}  // namespace tavr::testing
