// platform/registry.h: keys, masks, views and enumeration. Values are in
// registry_value_contract_test.cc.
#include "tests/contract/registry_contract_test.h"

namespace tavr::contract {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class RegistryContract : public RegistryContractTest {};

TEST_F(RegistryContract, OpeningAMissingKeyIsNotFoundAndGivesNoKey) {
  const OpenedKey opened = open(kRead);
  EXPECT_EQ(opened.status, kFileNotFound);
  EXPECT_EQ(opened.key, nullptr);
}

TEST_F(RegistryContract, ANumberThatIsNoRootIsAnInvalidHandle) {
  const auto none = static_cast<Root>(0);
  const OpenedKey opened = machine().registry.open(none, "Software", kRead);
  EXPECT_EQ(opened.status, kInvalidHandle);
  EXPECT_EQ(opened.key, nullptr);
  EXPECT_EQ(machine().registry.create(none, "Software", "", kAll).status, kInvalidHandle);
  EXPECT_EQ(machine().registry.deleteKey(none, "Software"), kInvalidHandle);
}

TEST_F(RegistryContract, CreatingMakesEveryKeyOnTheWay) {
  ASSERT_EQ(create("\\a\\b").status, kSuccess);
  EXPECT_EQ(open(kRead, "\\a").status, kSuccess);
  EXPECT_EQ(open(kRead, "\\a\\b").status, kSuccess);
}

TEST_F(RegistryContract, CreatingAnExistingKeyOpensItWithItsValues) {
  ASSERT_EQ(create().key->setValue("n", kRegSz, "text"), kSuccess);
  const OpenedKey again = create();
  ASSERT_EQ(again.status, kSuccess);
  RegistryData data;
  EXPECT_EQ(again.key->queryValue("n", 64, data), kSuccess);
}

TEST_F(RegistryContract, KeysAreFoundWithoutCase) {
  ASSERT_EQ(create("\\Sub Key").status, kSuccess);
  EXPECT_EQ(open(kRead, "\\sUB kEY").status, kSuccess);
}

TEST_F(RegistryContract, ATrailingBackslashNamesTheSameKey) {
  ASSERT_EQ(create("\\a\\").status, kSuccess);
  EXPECT_EQ(open(kRead, "\\a").status, kSuccess);
  EXPECT_EQ(open(kRead, "\\a\\").status, kSuccess);
  EXPECT_EQ(open(kRead, "\\a\\b\\").status, kFileNotFound);
}

TEST_F(RegistryContract, ALeadingBackslashIsRefusedExceptBelowClassesRoot) {
  ASSERT_EQ(create().status, kSuccess);
  EXPECT_EQ(machine().registry.open(Root::kCurrentUser, "\\" + key(), kRead).status, kBadPathname);
  EXPECT_EQ(machine().registry.open(Root::kClassesRoot, "\\tavr contract none", kRead).status,
            kFileNotFound);
}

TEST_F(RegistryContract, ARootIsOpenedByAnEmptyPath) {
  ASSERT_EQ(create("\\a").status, kSuccess);
  const OpenedKey root = machine().registry.open(Root::kCurrentUser, "", kRead);
  ASSERT_EQ(root.status, kSuccess);
  EXPECT_EQ(root.key->deleteKey(key("\\a")), kSuccess);
  EXPECT_EQ(open(kRead, "\\a").status, kFileNotFound);
}

TEST_F(RegistryContract, SubkeysEnumerateInUpperCasedOrder) {
  for (const char* name : {"\\b", "\\_", "\\C", "\\a"}) ASSERT_EQ(create(name).status, kSuccess);
  EXPECT_THAT(subkeys(), ElementsAre("a", "b", "C", "_"));
}

TEST_F(RegistryContract, BehindTheLastSubkeyThereAreNoMore) {
  ASSERT_EQ(create("\\a").status, kSuccess);
  const OpenedKey opened = open(kRead);
  std::string name;
  EXPECT_EQ(opened.key->enumKey(0, name), kSuccess);
  EXPECT_EQ(opened.key->enumKey(1, name), kNoMoreItems);
  EXPECT_EQ(opened.key->enumKey(1000, name), kNoMoreItems);
}

TEST_F(RegistryContract, DeletingASubkeyTakesItOutOfTheEnumeration) {
  for (const char* name : {"\\a", "\\b", "\\c"}) ASSERT_EQ(create(name).status, kSuccess);
  EXPECT_EQ(open(kRead).key->deleteKey("B"), kSuccess);
  EXPECT_THAT(subkeys(), ElementsAre("a", "c"));
}

TEST_F(RegistryContract, AKeyWithSubkeysIsNotDeleted) {
  ASSERT_EQ(create("\\a\\b").status, kSuccess);
  EXPECT_EQ(open(kRead).key->deleteKey("a"), kAccessDenied);
  EXPECT_EQ(machine().registry.deleteKey(Root::kCurrentUser, key("\\a")), kAccessDenied);
  EXPECT_EQ(open(kRead, "\\a\\b").status, kSuccess);
}

TEST_F(RegistryContract, DeletingTakesASubkeyPath) {
  ASSERT_EQ(create("\\a\\b").status, kSuccess);
  EXPECT_EQ(open(kRead).key->deleteKey("a\\b"), kSuccess);
  EXPECT_EQ(open(kRead, "\\a\\b").status, kFileNotFound);
  EXPECT_EQ(open(kRead, "\\a").status, kSuccess);
}

TEST_F(RegistryContract, AKeyWithValuesIsDeletedWithThem) {
  ASSERT_EQ(create("\\a").key->setValue("n", kRegSz, "text"), kSuccess);
  EXPECT_EQ(machine().registry.deleteKey(Root::kCurrentUser, key("\\a")), kSuccess);
  ASSERT_EQ(create("\\a").status, kSuccess);
  EXPECT_THAT(values("\\a"), IsEmpty());
}

TEST_F(RegistryContract, DeletingAMissingKeyIsNotFound) {
  ASSERT_EQ(create().status, kSuccess);
  EXPECT_EQ(open(kRead).key->deleteKey("a"), kFileNotFound);
  EXPECT_EQ(machine().registry.deleteKey(Root::kCurrentUser, key("\\a")), kFileNotFound);
}

TEST_F(RegistryContract, ADeletedKeyAnswersEverythingWith1018) {
  const OpenedKey opened = create("\\a");
  ASSERT_EQ(opened.key->setValue("n", kRegSz, "text"), kSuccess);
  ASSERT_EQ(open(kRead).key->deleteKey("a"), kSuccess);
  std::string name;
  std::uint32_t number = 0;
  RegistryData data;
  EXPECT_EQ(opened.key->enumKey(0, name), kKeyDeleted);
  EXPECT_EQ(opened.key->enumValue(0, name, number, number), kKeyDeleted);
  EXPECT_EQ(opened.key->queryValue("n", 64, data), kKeyDeleted);
  EXPECT_EQ(opened.key->setValue("n", kRegSz, "text"), kKeyDeleted);
  EXPECT_EQ(opened.key->deleteValue("n"), kKeyDeleted);
  EXPECT_EQ(opened.key->deleteKey("b"), kKeyDeleted);
}

TEST_F(RegistryContract, AHandleOfADeletedKeyDoesNotSeeTheOneMadeAnew) {
  const OpenedKey old = create("\\a");
  ASSERT_EQ(open(kRead).key->deleteKey("a"), kSuccess);
  ASSERT_EQ(create("\\a").status, kSuccess);
  EXPECT_EQ(old.key->setValue("n", kRegSz, "text"), kKeyDeleted);
  EXPECT_THAT(values("\\a"), IsEmpty());
}

TEST_F(RegistryContract, ARightThatTheMaskLacksIsRefused) {
  ASSERT_EQ(create("\\a").key->setValue("n", kRegSz, "text"), kSuccess);
  std::string name;
  std::uint32_t number = 0;
  RegistryData data;
  const OpenedKey enumerates = open(kEnumerate, "\\a");
  EXPECT_EQ(enumerates.key->enumKey(0, name), kNoMoreItems);
  EXPECT_EQ(enumerates.key->queryValue("n", 64, data), kAccessDenied);
  EXPECT_EQ(enumerates.key->enumValue(0, name, number, number), kAccessDenied);
  const OpenedKey queries = open(kQuery, "\\a");
  EXPECT_EQ(queries.key->queryValue("n", 64, data), kSuccess);
  EXPECT_EQ(queries.key->enumValue(0, name, number, number), kSuccess);
  EXPECT_EQ(queries.key->enumKey(0, name), kAccessDenied);
  EXPECT_EQ(queries.key->setValue("n", kRegSz, "other"), kAccessDenied);
  EXPECT_EQ(queries.key->deleteValue("n"), kAccessDenied);
  const OpenedKey sets = open(kSet, "\\a");
  EXPECT_EQ(sets.key->setValue("n", kRegSz, "other"), kSuccess);
  EXPECT_EQ(sets.key->queryValue("n", 64, data), kAccessDenied);
  EXPECT_EQ(sets.key->deleteValue("n"), kSuccess);
}

TEST_F(RegistryContract, ANameOfMoreThan255UnitsIsNoKeyName) {
  const std::string longest = "\\" + std::string(255, 'k');
  EXPECT_EQ(create(longest).status, kSuccess);
  EXPECT_EQ(open(kRead, longest).status, kSuccess);
  EXPECT_EQ(create(longest + "k").status, kInvalidParameter);
}

TEST_F(RegistryContract, ALongNameIsNoneToBeOpenedOrDeletedEither) {
  const std::string long_name(256, 'n');
  const OpenedKey key = create();
  ASSERT_EQ(key.status, kSuccess);
  EXPECT_EQ(open(kRead, "\\" + long_name).status, kInvalidParameter);
  EXPECT_EQ(key.key->deleteKey(long_name), kInvalidParameter);
  EXPECT_EQ(machine().registry.deleteKey(Root::kCurrentUser, this->key("\\" + long_name)),
            kInvalidParameter);
}

TEST_F(RegistryContract, AnEmptyNameDeletesTheKeyItself) {
  ASSERT_EQ(create("\\a").status, kSuccess);
  const OpenedKey key = open(kAll, "\\a");
  ASSERT_EQ(key.key->deleteKey(""), kSuccess);
  EXPECT_EQ(open(kRead, "\\a").status, kFileNotFound);
  EXPECT_EQ(open(kRead).key->deleteKey("none"), kFileNotFound);
}

TEST_F(RegistryContract, AMaskCannotNameBothViews) {
  ASSERT_EQ(create().status, kSuccess);
  EXPECT_EQ(open(kRead | k64 | k32).status, kInvalidParameter);
}

// HKEY_LOCAL_MACHINE\SOFTWARE has two views --------------------------------------

class RegistryViewContract : public RegistryContractTest {
 protected:
  Status openMachineKey(std::uint32_t access) {
    return machine().registry.open(Root::kLocalMachine, key(), access).status;
  }
  void plantIn(View view) {
    on().plantValue(Root::kLocalMachine, view, key(), "n", kRegDword, "1234");
  }
};

TEST_F(RegistryViewContract, AMaskWithoutAViewMeansThe32BitOne) {
  plantIn(View::k32);
  EXPECT_EQ(openMachineKey(kRead), kSuccess);
  EXPECT_EQ(openMachineKey(kRead | k32), kSuccess);
  EXPECT_EQ(openMachineKey(kRead | k64), kFileNotFound);
}

TEST_F(RegistryViewContract, The64BitViewIsSeenWithItsMaskAlone) {
  plantIn(View::k64);
  EXPECT_EQ(openMachineKey(kRead), kFileNotFound);
  EXPECT_EQ(openMachineKey(kRead | k32), kFileNotFound);
  EXPECT_EQ(openMachineKey(kRead | k64), kSuccess);
}

TEST_F(RegistryViewContract, The32BitViewIsBelowWow6432NodeOfTheOther) {
  plantIn(View::k32);
  const std::string through =
      "Software\\WOW6432Node" + key().substr(std::string("Software").size());
  EXPECT_EQ(machine().registry.open(Root::kLocalMachine, through, kRead | k64).status, kSuccess);
}

TEST_F(RegistryViewContract, TheUsersKeysHaveOneView) {
  ASSERT_EQ(create().status, kSuccess);
  EXPECT_EQ(open(kRead | k64).status, kSuccess);
  EXPECT_EQ(open(kRead | k32).status, kSuccess);
}

TEST_F(RegistryViewContract, DeletingBelowARootIsInThe64BitView) {
  plantIn(View::k32);
  EXPECT_EQ(machine().registry.deleteKey(Root::kLocalMachine, key()), kFileNotFound);
  EXPECT_EQ(openMachineKey(kRead | k32), kSuccess);
}

TEST_F(RegistryViewContract, DeletingBelowAKeyIsInTheViewOfItsMask) {
  plantIn(View::k32);
  plantIn(View::k64);
  const std::string above = key().substr(0, key().rfind('\\'));
  const std::string name = key().substr(above.size() + 1);
  const OpenedKey parent = machine().registry.open(Root::kLocalMachine, above, kRead | k32);
  ASSERT_EQ(parent.status, kSuccess);
  EXPECT_EQ(parent.key->deleteKey(name), kSuccess);
  EXPECT_EQ(openMachineKey(kRead | k32), kFileNotFound);
  EXPECT_EQ(openMachineKey(kRead | k64), kSuccess);
}

}  // namespace
}  // namespace tavr::contract
