// services/access.h on keys whose lists Windows itself keeps.
#include <algorithm>
#include <vector>

#include "platform/win32/wide.h"
#include "services/access.h"
#include "tests/contract/registry_contract_test.h"
#include "tests/windows/access_entries.h"

namespace tavr::contract {
namespace {

using ::testing::ElementsAre;
using win32::wide;

constexpr std::uint32_t kMayChangeLists = 0x6003F | k64;  // WRITE_DAC, READ_CONTROL, key rights

std::string wellKnown(WELL_KNOWN_SID_TYPE type) {
  std::string sid(SECURITY_MAX_SID_SIZE, '\0');
  DWORD size = SECURITY_MAX_SID_SIZE;
  EXPECT_TRUE(CreateWellKnownSid(type, nullptr, sid.data(), &size));
  sid.resize(size);
  return sid;
}

class KeyAccess : public RegistryContractTest {
 protected:
  std::string user() { return machine().environment.get("UserName"); }
  std::string userSid() {
    std::string sid;
    EXPECT_EQ(machine().accounts.sidOf(user(), sid), kSuccess) << user();
    return sid;
  }
  bool grant() { return GrantKeyAccess(machine(), Root::kCurrentUser, key(), user()); }
  std::string owner() { return ownerOf(L"CURRENT_USER\\" + wide(key()), SE_REGISTRY_KEY); }

  SecurityDescriptor descriptor() {
    SecurityDescriptor found;
    const OpenedKey opened = open(kMayChangeLists);
    EXPECT_EQ(opened.status, kSuccess);
    if (!opened.key) return found;
    EXPECT_EQ(opened.key->security(found), kSuccess);
    return found;
  }
  std::vector<Entry> list() { return entriesOf(descriptor(), kKeyRights); }

  void plant(const SecurityDescriptor& planted) {
    ASSERT_EQ(create().status, kSuccess);
    ASSERT_EQ(open(kMayChangeLists).key->setSecurity(planted), kSuccess);
  }
  // One entry of the key's own, two that it inherited.
  void plantList(std::uint16_t control) {
    AccessList planted(std::size_t{512});
    planted.add(AccessEntry(kAceAllowed, 0, KEY_ALL_ACCESS, administrators_));
    planted.add(AccessEntry(kAceAllowed, kInherited, KEY_ALL_ACCESS, userSid()));
    planted.add(AccessEntry(kAceAllowed, kInherited, KEY_ALL_ACCESS, system_));
    plant({control, planted.bytes()});
  }
  // What a grant asks for, in the order in which it stands.
  Entry denial() {
    return {kAceDenied, kContainerInherit | kInheritOnly, userSid(), KEY_ALL_ACCESS};
  }
  Entry everyones() { return {kAceAllowed, kContainerInherit, everyoneSid(), KEY_ALL_ACCESS}; }
  Entry users() { return {kAceAllowed, 0, userSid(), mapped(0xE0010000, kKeyRights)}; }

  const std::string administrators_ = wellKnown(WinBuiltinAdministratorsSid);
  const std::string system_ = wellKnown(WinLocalSystemSid);
};

TEST_F(KeyAccess, DenialsComeFirstAndInheritedEntriesStayBehind) {
  plantList(0);
  EXPECT_TRUE(grant());
  EXPECT_THAT(list(), ElementsAre(denial(), Entry{kAceAllowed, 0, administrators_, KEY_ALL_ACCESS},
                                  everyones(), users(),
                                  Entry{kAceAllowed, kInherited, userSid(), KEY_ALL_ACCESS},
                                  Entry{kAceAllowed, kInherited, system_, KEY_ALL_ACCESS}));
}

TEST_F(KeyAccess, AKeyWithoutAListGetsTheRequestAlone) {
  plant({});
  ASSERT_EQ(descriptor().dacl, std::nullopt);
  EXPECT_TRUE(grant());
  EXPECT_THAT(list(), ElementsAre(denial(), everyones(), users()));
}

TEST_F(KeyAccess, AnEntryWithBytesBehindItsAccountIsTheAccounts) {
  const std::string tail(4, '\0');
  AccessList planted(std::size_t{512});
  planted.add(AccessEntry(kAceAllowed, 0, KEY_READ, userSid() + tail));
  planted.add(AccessEntry(kAceAllowed, 0, KEY_ALL_ACCESS, administrators_ + tail));
  plant({0, planted.bytes()});
  EXPECT_TRUE(grant());
  EXPECT_THAT(list(), ElementsAre(denial(), Entry{kAceAllowed, 0, administrators_, KEY_ALL_ACCESS},
                                  everyones(), users()));
}

TEST_F(KeyAccess, ALongListIsReadAndWrittenWhole) {
  constexpr int kEntries = 60;  // of 36 bytes
  AccessList planted(std::size_t{4096});
  planted.add(AccessEntry(kAceAllowed, 0, KEY_ALL_ACCESS, administrators_));
  for (char i = 0; i < kEntries; ++i) {
    const std::string domain("\1\5\0\0\0\0\0\5\x15\0\0\0\1\0\0\0\2\0\0\0\3\0\0\0", 24);
    planted.add(AccessEntry(kAceAllowed, 0, KEY_READ, domain + i + std::string("\4\0\0", 3)));
  }
  plant({0, planted.bytes()});
  const std::vector<Entry> before = list();
  ASSERT_EQ(before.size(), kEntries + 1U);
  EXPECT_TRUE(grant());
  const std::vector<Entry> after = list();
  ASSERT_EQ(after.size(), before.size() + 3);
  EXPECT_TRUE(std::equal(before.begin(), before.end(), after.begin() + 1)) << "as it stood";
}

TEST_F(KeyAccess, AListThatWasInheritedByItselfKeepsThatMark) {
  plantList(kDaclAutoInheritRequired | kDaclAutoInherited);
  ASSERT_EQ(descriptor().control & kDaclAutoInherited, kDaclAutoInherited);
  EXPECT_TRUE(grant());
  EXPECT_EQ(descriptor().control & kDaclAutoInherited, kDaclAutoInherited);
}

TEST_F(KeyAccess, ALaterGrantLeavesTheListAsItIs) {
  plantList(0);
  EXPECT_TRUE(grant());
  const std::vector<Entry> once = list();
  EXPECT_TRUE(grant());
  EXPECT_TRUE(grant());
  EXPECT_EQ(list(), once);
}

TEST_F(KeyAccess, TheOwnerStays) {
  plantList(0);
  const std::string before = owner();
  EXPECT_NE(before, "");
  EXPECT_TRUE(grant());
  EXPECT_EQ(owner(), before);
}

TEST_F(KeyAccess, AProtectedListStaysProtected) {
  plantList(kDaclProtected);
  ASSERT_EQ(descriptor().control & kDaclProtected, kDaclProtected);
  EXPECT_TRUE(grant());
  EXPECT_EQ(descriptor().control & kDaclProtected, kDaclProtected);
}

TEST_F(KeyAccess, AListThatIsNotProtectedDoesNotBecomeSo) {
  plantList(0);
  EXPECT_TRUE(grant());
  EXPECT_EQ(descriptor().control & kDaclProtected, 0);
}

TEST_F(KeyAccess, TheKeyIsUsedAsBefore) {
  ASSERT_EQ(create().key->setValue("n", kRegSz, "text"), kSuccess);
  EXPECT_TRUE(grant());
  RegistryData data;
  EXPECT_EQ(open(kRead).key->queryValue("n", 64, data), kSuccess);
  EXPECT_EQ(open(kAll).key->setValue("n", kRegSz, "other"), kSuccess);
}

TEST_F(KeyAccess, AMissingKeyFailsAndIsNotMade) {
  EXPECT_FALSE(grant());
  EXPECT_EQ(open(kRead).status, kFileNotFound);
}

TEST_F(KeyAccess, AKeyOfThe32BitViewAloneIsNotFoundAndKeepsItsList) {
  on().plantValue(Root::kLocalMachine, View::k32, key(), "n", kRegDword, "1234");
  const auto read = [this] {
    SecurityDescriptor found;
    const OpenedKey opened =
        machine().registry.open(Root::kLocalMachine, key(), READ_CONTROL | k32);
    EXPECT_EQ(opened.key->security(found), kSuccess);
    return found.dacl;
  };
  const auto before = read();
  EXPECT_FALSE(GrantKeyAccess(machine(), Root::kLocalMachine, key(), user()));
  EXPECT_EQ(read(), before);
}

TEST_F(KeyAccess, AnAccountThatNobodyKnowsChangesNothing) {
  plantList(0);
  const std::vector<Entry> before = list();
  EXPECT_FALSE(GrantKeyAccess(machine(), Root::kCurrentUser, key(), "tavr contract nobody"));
  EXPECT_EQ(list(), before);
}

TEST_F(KeyAccess, AListIsReadAndSetWithTheRightsForItAlone) {
  ASSERT_EQ(create().status, kSuccess);
  SecurityDescriptor found;
  EXPECT_EQ(open(kQuery).key->security(found), kAccessDenied);
  EXPECT_EQ(found.dacl, std::nullopt);
  const SecurityDescriptor own = descriptor();
  EXPECT_EQ(open(kRead).key->setSecurity(own), kAccessDenied);
}

}  // namespace
}  // namespace tavr::contract
