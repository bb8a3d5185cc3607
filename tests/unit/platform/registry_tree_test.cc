#include "platform/folder/registry_tree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tavr::folder {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> subkeyNames(const RegistryNode& key) {
  std::vector<std::string> names;
  for (const RegistryNodePtr& each : key.subkeys()) names.push_back(each->name());
  return names;
}

std::vector<std::string> valueNames(const RegistryNode& key) {
  std::vector<std::string> names;
  for (const auto& each : key.values()) names.push_back(each->name);
  return names;
}

class RegistryTreeTest : public ::testing::Test {
 protected:
  RegistryTree tree_;
  RegistryNodePtr user_ = tree_.root("HKEY_CURRENT_USER");
};

TEST_F(RegistryTreeTest, RootsAreFoundByTheirLongNamesWithoutCase) {
  ASSERT_NE(user_, nullptr);
  EXPECT_EQ(tree_.root("hkey_current_user"), user_);
  for (const char* name :
       {"HKEY_CLASSES_ROOT", "HKEY_LOCAL_MACHINE", "HKEY_USERS", "HKEY_CURRENT_CONFIG"}) {
    ASSERT_NE(tree_.root(name), nullptr) << name;
    EXPECT_NE(tree_.root(name), user_) << name;
  }
  EXPECT_EQ(tree_.root("HKCU"), nullptr);
}

TEST_F(RegistryTreeTest, SubkeysStandInTheOrderOfTheirUpperCasedNamesAndKeepTheirCase) {
  for (const char* name : {"b", "a_c", "AB", "Z", "\xC3\xA4", "aC"}) tree_.makeSubkey(*user_, name);
  EXPECT_THAT(subkeyNames(*user_), ElementsAre("AB", "aC", "a_c", "b", "Z", "\xC3\xA4"));
}

TEST_F(RegistryTreeTest, ASubkeyOfAnotherSpellingIsTheSameKey) {
  const RegistryNodePtr made = tree_.makeSubkey(*user_, "Software");
  EXPECT_EQ(tree_.makeSubkey(*user_, "SOFTWARE"), made);
  EXPECT_EQ(user_->subkey("software"), made);
  EXPECT_EQ(user_->subkey("softwar"), nullptr);
  EXPECT_EQ(user_->subkeys().size(), 1u);
}

TEST_F(RegistryTreeTest, ValuesKeepTheOrderInWhichTheyCameAndAReplacedOneItsPlaceAndName) {
  for (const char* name : {"z", "a", "", "m"}) tree_.setValue(*user_, name, 3, "old");
  tree_.setValue(*user_, "A", 4, "new!");
  EXPECT_THAT(valueNames(*user_), ElementsAre("z", "a", "", "m"));
  ASSERT_NE(user_->value("a"), nullptr);
  EXPECT_EQ(user_->value("a")->type, 4u);
  EXPECT_EQ(user_->value("a")->data, "new!");
}

TEST_F(RegistryTreeTest, ManyValuesAreFoundReplacedAndRemovedLikeFew) {
  for (int i = 0; i < 200; ++i) tree_.setValue(*user_, "Name" + std::to_string(i), 3, "x");
  for (int i = 0; i < 200; i += 2) {
    EXPECT_TRUE(tree_.removeValue(*user_, "NAME" + std::to_string(i))) << i;
  }
  EXPECT_EQ(user_->values().size(), 100u);
  EXPECT_EQ(user_->value("Name2"), nullptr);
  ASSERT_NE(user_->value("nAME3"), nullptr);
  EXPECT_EQ(user_->value("nAME3")->name, "Name3");
  tree_.setValue(*user_, "NAME3", 3, "y");
  EXPECT_EQ(user_->values().size(), 100u);
  EXPECT_EQ(user_->values()[1]->data, "y");
}

TEST_F(RegistryTreeTest, ADeletedKeyIsMarkedForThoseWhoHoldIt) {
  const RegistryNodePtr key = tree_.makeSubkey(*user_, "Key");
  EXPECT_FALSE(key->deleted());
  tree_.removeSubkey(*user_, *key);
  EXPECT_TRUE(key->deleted());
  EXPECT_EQ(user_->subkey("Key"), nullptr);
  EXPECT_FALSE(tree_.makeSubkey(*user_, "Key")->deleted());
}

TEST_F(RegistryTreeTest, OnlyWhatDiffersCountsAsAChange) {
  EXPECT_FALSE(tree_.changed());
  tree_.setValue(*user_, "n", 3, "x");
  EXPECT_TRUE(tree_.changed());
  tree_.setUnchanged();

  tree_.setValue(*user_, "N", 3, "x");
  EXPECT_FALSE(tree_.removeValue(*user_, "missing"));
  EXPECT_FALSE(tree_.changed());

  tree_.setValue(*user_, "n", 4, "x");
  EXPECT_TRUE(tree_.changed());
  tree_.setUnchanged();
  EXPECT_TRUE(tree_.removeValue(*user_, "n"));
  EXPECT_TRUE(tree_.changed());
}

}  // namespace
}  // namespace tavr::folder
