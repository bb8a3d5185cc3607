#include "services/access.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "services/access_list.h"
#include "tests/support/access_lists.h"
#include "tests/support/machine_with.h"
#include "tests/support/test_machine.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;

constexpr std::uint32_t kAll = 0x10000000;
constexpr std::uint32_t kUserRights = 0xE0010000;

std::string sid(char account) {
  return std::string("\1\1\0\0\0\0\0\5", 8) + account + std::string(3, char{});
}

const std::string kUser = sid('u');
const std::string kOther = sid('o');
const std::string kSystem = sid('s');

// A list of exactly these entries.
std::string listOf(const std::vector<AccessEntry>& entries) {
  std::size_t size = AccessList::kHeaderSize;
  for (const AccessEntry& entry : entries) size += entry.bytes().size();
  AccessList list(size);
  for (const AccessEntry& entry : entries) EXPECT_TRUE(list.add(entry));
  return list.bytes();
}

// "allow u 0 10000000": type, account, flags, mask.
std::string shown(const AccessEntry& entry) {
  char text[40];
  const char account = entry.sid() == everyoneSid() ? '*' : entry.sid()[8];
  std::snprintf(text, sizeof text, "%s %c %d %X", entry.type() == kAceDenied ? "deny" : "allow",
                account, entry.flags(), entry.mask());
  return text;
}

std::vector<std::string> shown(const SecurityDescriptor& descriptor) {
  std::vector<std::string> lines;
  if (!descriptor.dacl) return {"no list"};
  const AccessList list(*descriptor.dacl);
  for (const AccessEntry& entry : list.entries()) {
    lines.push_back(shown(entry));
  }
  return lines;
}

class AccessTest : public ::testing::Test {
 protected:
  AccessTest() {
    accounts_.sids["User Name"] = kUser;
    machine_.value("HKEY_CURRENT_USER\\Software\\a", "x", "1");
    machine_.file("C:\\d\\a").folder("C:\\d\\sub");
  }

  // Made at the first use, when the machine may start.
  Machine& machine() {
    if (!listed_) {
      Machine& m = machine_.machine();
      registry_.emplace(m.registry);
      files_.emplace(m.files);
      listed_.emplace(testing::machineWith(m, *registry_, *files_, accounts_));
    }
    return *listed_;
  }
  testing::ListedFiles& files() { return machine(), *files_; }
  testing::ListedRegistry& registry() { return machine(), *registry_; }

  bool grantKey(std::string_view key = "Software\\a", std::string_view user = "User Name") {
    return GrantKeyAccess(machine(), Root::kCurrentUser, key, user);
  }
  SecurityDescriptor& keyList() { return registry().lists["software\\a"]; }
  void grantFile(std::string_view path) { GrantFileAccess(machine(), "User Name", path, kAll); }

  testing::TestMachine machine_;
  testing::ListedAccounts accounts_;

 private:
  std::optional<testing::ListedRegistry> registry_;
  std::optional<testing::ListedFiles> files_;
  std::optional<Machine> listed_;
};

TEST(AccessList, AnEntryHasTypeFlagsSizeMaskAndAccount) {
  const AccessEntry entry(kAceDenied, 10, 0x12345678, "SIDBYTES");
  EXPECT_EQ(entry.bytes(), std::string("\x01\x0A\x10\0\x78\x56\x34\x12", 8) + "SIDBYTES");
}

TEST(AccessList, HasItsHeaderAndItsRoomFilledWithZeros) {
  AccessList list(8 + 16 + 4);
  ASSERT_TRUE(list.add(AccessEntry(kAceAllowed, 0, 1, "SIDBYTES")));
  EXPECT_EQ(list.bytes(), std::string("\2\0\x1C\0\1\0\0\0", 8) +
                              std::string("\0\0\x10\0\1\0\0\0SIDBYTES\0\0\0\0", 20));
}

TEST(AccessList, TakesNoMoreThanItsRoom) {
  AccessList list(8 + 16);
  EXPECT_TRUE(list.add(AccessEntry(kAceAllowed, 0, 1, "SIDBYTES")));
  EXPECT_FALSE(list.add(AccessEntry(kAceAllowed, 0, 1, "")));
  EXPECT_EQ(list.entries().size(), 1U);
}

TEST(AccessList, ReadAndWrittenAgainIsTheSame) {
  const std::string bytes = listOf(
      {AccessEntry(kAceAllowed, 3, kAll, kOther), AccessEntry(kAceDenied, 16, 5, everyoneSid())});
  EXPECT_EQ(AccessList(bytes).bytes(), bytes);
  EXPECT_EQ(AccessList(bytes).bytesInUse(), bytes.size());
}

TEST(AccessList, ThatEndsWithinAnEntryLosesItAndWhatIsBehind) {
  const std::string bytes = listOf(
      {AccessEntry(kAceAllowed, 0, kAll, kOther), AccessEntry(kAceAllowed, 0, kAll, kSystem)});
  for (std::size_t cut = 1; cut < 20; ++cut) {
    EXPECT_EQ(AccessList(bytes.substr(0, bytes.size() - cut)).entries().size(), 1U) << cut;
  }
  EXPECT_TRUE(AccessList(bytes.substr(0, 7)).entries().empty());
}

// A condition, or what a careless program left, stands behind the account.
TEST(AccessList, AnAccountEndsWhereItSaysSo) {
  const AccessEntry entry(kAceAllowed, 0, kAll, kUser + "a condition ");
  EXPECT_EQ(entry.sid(), kUser);
  EXPECT_EQ(entry.bytes().size(), 8 + kUser.size() + 12);
  EXPECT_EQ(AccessEntry(kAceAllowed, 0, kAll, kUser.substr(0, 10)).sid(), kUser.substr(0, 10))
      << "one that ends too early";
}

TEST(AccessList, EveryoneIsOneAccountOfTheWorldsAuthority) {
  EXPECT_EQ(everyoneSid(), std::string("\1\1\0\0\0\0\0\1\0\0\0\0", 12));
}

// 4 is the revision of lists with entries for parts of an object.
TEST_F(AccessTest, ANewListHasRevisionTwoWhateverTheOldOneHad) {
  std::string old = listOf({AccessEntry(kAceAllowed, 0, 3, kSystem)});
  old[0] = 4;
  keyList().dacl = old;
  ASSERT_TRUE(grantKey());
  EXPECT_EQ(keyList().dacl->at(0), 2);
  EXPECT_EQ(shown(keyList()).size(), 4u);
  SecurityDescriptor& file = files().lists["C:\\d\\a"];
  file.dacl = old;
  grantFile("C:\\d\\a");
  EXPECT_EQ(files().written, 1);
  EXPECT_EQ(file.dacl->at(0), 2);
  EXPECT_EQ(shown(file).size(), 2u);
}

TEST_F(AccessTest, AKeyGetsTheDenialFirstThenTheTwoThatAllow) {
  ASSERT_TRUE(grantKey());
  EXPECT_THAT(shown(keyList()),
              ElementsAre("deny u 10 10000000", "allow * 2 10000000", "allow u 0 E0010000"));
}

TEST_F(AccessTest, TheKeysOwnEntriesStandBehindTheDenialAndInheritedOnesLast) {
  keyList().dacl =
      listOf({AccessEntry(kAceDenied, 0, 1, kOther), AccessEntry(kAceAllowed, 2, 0xF003F, kSystem),
              AccessEntry(kAceAllowed, kInherited, 0x20019, kOther),
              AccessEntry(kAceAllowed, kInherited | 2, 0xF003F, kSystem)});
  ASSERT_TRUE(grantKey());
  EXPECT_THAT(shown(keyList()), ElementsAre("deny u 10 10000000", "deny o 0 1", "allow s 2 F003F",
                                            "allow * 2 10000000", "allow u 0 E0010000",
                                            "allow o 16 20019", "allow s 18 F003F"));
}

TEST_F(AccessTest, OwnEntriesOfTheNamedAccountsAreDropped) {
  keyList().dacl =
      listOf({AccessEntry(kAceAllowed, 0, 0x20019, kUser), AccessEntry(kAceAllowed, 0, 1, kOther),
              AccessEntry(kAceDenied, 0, 1, everyoneSid())});
  ASSERT_TRUE(grantKey());
  EXPECT_THAT(shown(keyList()), ElementsAre("deny u 10 10000000", "allow o 0 1",
                                            "allow * 2 10000000", "allow u 0 E0010000"));
}

TEST_F(AccessTest, InheritedEntriesOfTheNamedAccountsStay) {
  keyList().dacl = listOf({AccessEntry(kAceAllowed, kInherited, 0x20019, kUser)});
  ASSERT_TRUE(grantKey());
  EXPECT_THAT(shown(keyList()), ElementsAre("deny u 10 10000000", "allow * 2 10000000",
                                            "allow u 0 E0010000", "allow u 16 20019"));
}

// What stands behind the first inherited entry counts as inherited.
TEST_F(AccessTest, AnOwnEntryBehindAnInheritedOneIsNotTestedForItsAccount) {
  keyList().dacl = listOf({AccessEntry(kAceAllowed, kInherited, 1, kOther),
                           AccessEntry(kAceAllowed, 0, 0x20019, kUser)});
  ASSERT_TRUE(grantKey());
  EXPECT_THAT(shown(keyList()),
              ElementsAre("deny u 10 10000000", "allow * 2 10000000", "allow u 0 E0010000",
                          "allow o 16 1", "allow u 0 20019"));
}

TEST_F(AccessTest, RepeatedGrantsLeaveAListOfTheSameEntries) {
  keyList().dacl = listOf({AccessEntry(kAceAllowed, 0, 1, kOther)});
  ASSERT_TRUE(grantKey());
  const auto once = shown(keyList());
  ASSERT_TRUE(grantKey());
  const auto twice = keyList().dacl;
  ASSERT_TRUE(grantKey());
  EXPECT_EQ(shown(keyList()), once);
  EXPECT_EQ(keyList().dacl, twice) << "its room does not grow either";
}

TEST_F(AccessTest, TheRoomIsThatOfTheOldListAndOfTheWholeRequest) {
  keyList().dacl = listOf({AccessEntry(kAceAllowed, 0, 1, kUser)});
  ASSERT_TRUE(grantKey());
  // The old 28 bytes, and 20 for each of three entries: the dropped one leaves its room.
  EXPECT_EQ(keyList().dacl->size(), 28U + 3 * 20);
  EXPECT_EQ(AccessList(*keyList().dacl).bytesInUse(), 8U + 3 * 20);
}

TEST_F(AccessTest, AListThatWasInheritedByItselfKeepsThatMark) {
  keyList().control = 0x8004 | kDaclAutoInherited | kDaclProtected;
  ASSERT_TRUE(grantKey());
  EXPECT_EQ(keyList().control, 0x500);
}

TEST_F(AccessTest, AProtectedListStaysProtected) {
  keyList().control = 0x8004 | kDaclProtected;
  ASSERT_TRUE(grantKey());
  EXPECT_EQ(keyList().control, kDaclProtected);
}

TEST_F(AccessTest, APlainListGetsNoMark) {
  keyList().control = 0x8004;
  ASSERT_TRUE(grantKey());
  EXPECT_EQ(keyList().control, 0);
}

TEST_F(AccessTest, AMissingKeyFailsAndIsNotMade) {
  EXPECT_FALSE(grantKey("Software\\gone"));
  EXPECT_EQ(machine().registry.open(Root::kCurrentUser, "Software\\gone", 1).status, kFileNotFound);
  EXPECT_TRUE(registry().lists.empty());
}

TEST_F(AccessTest, AnUnknownAccountLeavesTheKeyAsItIs) {
  keyList().dacl = listOf({AccessEntry(kAceAllowed, 0, 1, kOther)});
  EXPECT_FALSE(grantKey("Software\\a", "nobody"));
  EXPECT_THAT(shown(keyList()), ElementsAre("allow o 0 1"));
}

TEST_F(AccessTest, AKeyThatRefusesToShowOrTakeItsListFailsSilently) {
  registry().read_status = kAccessDenied;
  EXPECT_FALSE(grantKey());
  registry().read_status = kSuccess;
  registry().write_status = kAccessDenied;
  EXPECT_FALSE(grantKey());
  EXPECT_THAT(shown(keyList()), ElementsAre("no list"));
}

TEST_F(AccessTest, AKeyWithoutListsOnTheMachineCountsAsGranted) {
  Machine& plain = machine_.machine();
  EXPECT_TRUE(GrantKeyAccess(plain, Root::kCurrentUser, "Software\\a", "User Name"));
}

TEST_F(AccessTest, WithoutAnOldDescriptorTheListHoldsTheRequestAlone) {
  const auto merged = MergeAccessEntries(
      accounts_, nullptr,
      {{"User Name", kUserRights, 0, kAceAllowed, ""}, {"", kAll, 2, kAceDenied, kOther}});
  ASSERT_TRUE(merged);
  EXPECT_THAT(shown(*merged), ElementsAre("deny o 2 10000000", "allow u 0 E0010000"));
  EXPECT_EQ(merged->dacl->size(), 8U + 2 * 20);
  EXPECT_EQ(merged->control, 0);
}

TEST_F(AccessTest, AFileGetsOneEntryBehindTheOldOnes) {
  files().lists["C:\\d\\a"].dacl =
      listOf({AccessEntry(kAceDenied, kInherited, 1, kOther), AccessEntry(kAceAllowed, 0, 2, kUser),
              AccessEntry(kAceAllowed, 0, 3, kSystem)});
  grantFile("C:\\d\\a");
  EXPECT_THAT(shown(files().lists["C:\\d\\a"]),
              ElementsAre("deny o 16 1", "allow s 0 3", "allow u 0 10000000"));
}

TEST_F(AccessTest, AFolderGetsTwoEntries) {
  files().lists["C:\\d\\sub"].dacl = listOf({AccessEntry(kAceAllowed, 0, 3, kSystem)});
  grantFile("C:\\d\\sub");
  EXPECT_THAT(shown(files().lists["C:\\d\\sub"]),
              ElementsAre("allow s 0 3", "allow u 9 10000000", "allow u 2 10000000"));
}

TEST_F(AccessTest, AFilesListHasRoomForTwoEntriesAndFourBytesMore) {
  files().lists["C:\\d\\a"].dacl = listOf({AccessEntry(kAceAllowed, 0, 3, kSystem)});
  grantFile("C:\\d\\a");
  EXPECT_EQ(files().lists["C:\\d\\a"].dacl->size(), 8U + 20 + 2 * (12 + 12) - 4);
}

TEST_F(AccessTest, AFilesListIsSetWithoutTheMarksOfTheOldOne) {
  SecurityDescriptor& list = files().lists["C:\\d\\a"];
  list.control = 0x8004 | kDaclAutoInherited | kDaclProtected;
  list.dacl = listOf({AccessEntry(kAceAllowed, 0, 3, kSystem)});
  grantFile("C:\\d\\a");
  EXPECT_EQ(files().written, 1);
  EXPECT_EQ(files().lists["C:\\d\\a"].control, 0);
}

TEST_F(AccessTest, AFileWithoutAListOrWithAnEmptyOneStaysAsItIs) {
  grantFile("C:\\d\\a");
  files().lists["C:\\d\\sub"].dacl = listOf({});
  grantFile("C:\\d\\sub");
  EXPECT_EQ(files().written, 0);
}

TEST_F(AccessTest, AFileThatDoesNotShowItsListStaysAsItIs) {
  files().lists["C:\\d\\a"].dacl = listOf({AccessEntry(kAceAllowed, 0, 3, kSystem)});
  files().read_status = kAccessDenied;
  grantFile("C:\\d\\a");
  EXPECT_EQ(files().written, 0);
}

TEST_F(AccessTest, AFileThatRefusesANewListStaysAsItIs) {
  files().lists["C:\\d\\a"].dacl = listOf({AccessEntry(kAceAllowed, 0, 3, kSystem)});
  files().refuses = true;
  grantFile("C:\\d\\a");
  EXPECT_EQ(files().written, 1);
  EXPECT_THAT(shown(files().lists["C:\\d\\a"]), ElementsAre("allow s 0 3"));
}

TEST_F(AccessTest, AnUnknownAccountLeavesTheFileAsItIs) {
  files().lists["C:\\d\\a"].dacl = listOf({AccessEntry(kAceAllowed, 0, 3, kSystem)});
  GrantFileAccess(machine(), "nobody", "C:\\d\\a", kAll);
  EXPECT_EQ(files().written, 0);
}

TEST_F(AccessTest, AnEntryIsItsAccountsWhateverStandsBehindTheAccount) {
  const AccessEntry with_tail(9, 0, 0x20019, kUser + "tail");
  keyList().dacl = listOf({with_tail, AccessEntry(9, 0, 1, kOther + "tail")});
  ASSERT_TRUE(grantKey());
  EXPECT_THAT(shown(keyList()), ElementsAre("deny u 10 10000000", "allow o 0 1",
                                            "allow * 2 10000000", "allow u 0 E0010000"));
  EXPECT_EQ(AccessList(*keyList().dacl).entries()[1].bytes().substr(20), "tail");
  files().lists["C:\\d\\a"].dacl = listOf({with_tail, AccessEntry(kAceAllowed, 0, 3, kSystem)});
  grantFile("C:\\d\\a");
  EXPECT_THAT(shown(files().lists["C:\\d\\a"]), ElementsAre("allow s 0 3", "allow u 0 10000000"));
}

// Unlike a key's, a file's entries of the user go whether inherited or not, and
// those of everyone stay.
TEST_F(AccessTest, AFileLosesInheritedEntriesOfTheUserAndKeepsThoseOfEveryone) {
  files().lists["C:\\d\\a"].dacl = listOf({AccessEntry(kAceAllowed, 0, 1, everyoneSid()),
                                           AccessEntry(kAceAllowed, kInherited, 2, kUser),
                                           AccessEntry(kAceAllowed, kInherited, 3, kSystem)});
  grantFile("C:\\d\\a");
  EXPECT_THAT(shown(files().lists["C:\\d\\a"]),
              ElementsAre("allow * 0 1", "allow s 16 3", "allow u 0 10000000"));
}

TEST_F(AccessTest, AFolderLosesItsOldEntriesOfTheUser) {
  files().lists["C:\\d\\sub"].dacl =
      listOf({AccessEntry(kAceAllowed, 9, 5, kUser), AccessEntry(kAceAllowed, 0, 3, kSystem),
              AccessEntry(kAceAllowed, 2, 5, kUser)});
  grantFile("C:\\d\\sub");
  EXPECT_THAT(shown(files().lists["C:\\d\\sub"]),
              ElementsAre("allow s 0 3", "allow u 9 10000000", "allow u 2 10000000"));
}

// 16 bits say how long a list is.
TEST_F(AccessTest, AListWithoutRoomForTheRequestStaysAsItIs) {
  const auto longList = [](std::size_t entries) {
    return listOf(std::vector<AccessEntry>(entries, AccessEntry(kAceAllowed, 0, 1, kOther)));
  };
  const std::string longest = longList((0xFFFF - 8 - 3 * 20) / 20);
  keyList().dacl = longest;
  EXPECT_TRUE(grantKey());
  const std::string longer = longList((0xFFFF - 8 - 3 * 20) / 20 + 1);
  keyList().dacl = longer;
  EXPECT_FALSE(grantKey());
  EXPECT_EQ(keyList().dacl, longer);
  files().lists["C:\\d\\a"].dacl = longList((0xFFFF - 8) / 20);
  grantFile("C:\\d\\a");
  EXPECT_EQ(files().written, 0);
}

TEST_F(AccessTest, AKeyWithoutAListGetsTheRequestAlone) {
  keyList().dacl = std::nullopt;
  ASSERT_TRUE(grantKey());
  EXPECT_EQ(keyList().dacl->size(), 8U + 3 * 20);
}

}  // namespace
}  // namespace tavr
