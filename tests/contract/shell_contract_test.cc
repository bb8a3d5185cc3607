// platform/shell.h, as far as it can be asked without a window opening.
#include <string>

#include "tests/contract/contract_test.h"

namespace tavr::contract {
namespace {

using namespace std::string_literals;

constexpr std::uint32_t kNoWindow = 0x7;  // no confirmation, no progress, no sound

class ShellContract : public ContractTest {
 protected:
  struct Bin {
    std::int64_t size = -1;
    std::int64_t items = -1;
    bool operator==(const Bin&) const = default;
  };

  Bin bin() {
    Bin found;
    EXPECT_EQ(machine().shell.queryRecycleBin(found.size, found.items), kSuccess);
    return found;
  }
};

TEST_F(ShellContract, TheCookiesFolderIsAPathAndANul) {
  std::string buffer;
  ASSERT_EQ(machine().shell.specialFolder(kFolderCookies, buffer), kSuccess);
  ASSERT_GT(buffer.size(), 4U);
  EXPECT_EQ(buffer.find('\0'), buffer.size() - 1);
  EXPECT_EQ(buffer.substr(1, 2), ":\\");
}

TEST_F(ShellContract, AnEmptyRecycleBinHoldsNothing) { EXPECT_EQ(bin(), (Bin{0, 0})); }

TEST_F(ShellContract, TheRecycleBinCountsItemsAndTheirBytes) {
  on().plantRecycled("12345", false);
  on().plantRecycled("", false);
  on().plantRecycled("123", true);
  EXPECT_EQ(bin(), (Bin{8, 3}));
}

TEST_F(ShellContract, AskingChangesNothing) {
  on().plantRecycled("12345", false);
  bin();
  EXPECT_EQ(bin(), (Bin{5, 1}));
}

TEST_F(ShellContract, EmptyingTakesEveryItemReadOnlyOnesToo) {
  on().plantRecycled("12345", false);
  on().plantRecycled("123", true);
  EXPECT_EQ(machine().shell.emptyRecycleBin(kNoWindow), kSuccess);
  EXPECT_EQ(bin(), (Bin{0, 0}));
  machine().shell.updateRecycleBinIcon();
}

TEST_F(ShellContract, EmptyingLeavesOtherFilesAlone) {
  const std::string kept = file("$Rkept.txt");
  on().plantRecycled("12345", false);
  EXPECT_EQ(machine().shell.emptyRecycleBin(kNoWindow), kSuccess);
  EXPECT_TRUE(on().exists(kept));
}

TEST_F(ShellContract, WhatIsNoProgramDoesNotStart) {
  EXPECT_EQ(machine().shell.run(at("none.exe"), 0), kFileNotFound);
  EXPECT_EQ(machine().shell.run("\"" + at("no such program.exe") + "\" with arguments", 0),
            kFileNotFound);
  EXPECT_EQ(machine().shell.run("Start http://example.org", 1), kFileNotFound)
      << "a command of the command prompt is no program";
}

TEST_F(ShellContract, AFileThatIsNotThereDoesNotOpen) {
  EXPECT_EQ(machine().shell.execute("open", at("none.txt"), 1), kFileNotFound);
}

}  // namespace
}  // namespace tavr::contract
