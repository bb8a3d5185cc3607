// Deleting a key with everything below it.
#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class KeyTree : public TrackTest {
 protected:
  KeyTree() {
    world_.value(hkcu("Software\\a\\tree"), "v", "1");
    world_.key(hkcu("Software\\a\\tree\\two\\deep\\deeper"));
    world_.value(hkcu("Software\\a\\tree\\one"), "w", "2");
    world_.key(hkcu("Software\\a\\treeline"));
  }
};

TEST_F(KeyTree, GoesWithEverythingBelowIt) {
  fDeleteKeyTree(tracks(), Root::kCurrentUser, "Software\\A\\Tree");
  EXPECT_FALSE(keyExists("Software\\a\\tree"));
  EXPECT_TRUE(keyExists("Software\\a"));
  EXPECT_TRUE(keyExists("Software\\a\\treeline"));
}

TEST_F(KeyTree, GoesWithATrailingBackslashToo) {
  fDeleteKeyTree(tracks(), Root::kCurrentUser, "Software\\a\\tree\\");
  EXPECT_FALSE(keyExists("Software\\a\\tree"));
  EXPECT_TRUE(keyExists("Software\\a\\treeline"));
}

TEST_F(KeyTree, ChildrenGoBeforeTheirParentsInTheOrderOfTheirNames) {
  fDeleteKeyTree(tracks(), Root::kCurrentUser, "Software\\a\\tree");
  EXPECT_THAT(calls({"key "}),
              ElementsAre("key Software\\a\\tree\\one", "key Software\\a\\tree\\two\\deep\\deeper",
                          "key Software\\a\\tree\\two\\deep", "key Software\\a\\tree\\two",
                          "key Software\\a\\tree"));
}

TEST_F(KeyTree, AMissingKeyIsLeftAlone) {
  fDeleteKeyTree(tracks(), Root::kCurrentUser, "Software\\a\\none");
  fDeleteKeyTree(tracks(), Root::kCurrentUser, "Software\\none\\none");
  EXPECT_TRUE(keyExists("Software\\a\\tree\\two\\deep\\deeper"));
  // Without the parent no deletion is tried.
  EXPECT_THAT(calls({"key "}), ElementsAre("key Software\\a\\none"));
}

TEST_F(KeyTree, AKeyDirectlyBelowTheRootGoesToo) {
  world_.key(hkcu("top\\below"));
  fDeleteKeyTree(tracks(), Root::kCurrentUser, "top");
  EXPECT_FALSE(keyExists("top"));
  EXPECT_TRUE(keyExists("Software\\a"));
}

TEST_F(KeyTree, GrantsNothingAndReportsNothing) {
  fDeleteKeyTree(tracks(), Root::kCurrentUser, "Software\\a\\tree");
  EXPECT_THAT(calls({"grant"}), IsEmpty());
  EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(KeyTree, WorksInThe64BitView) {
  world_.key("HKEY_LOCAL_MACHINE\\SOFTWARE\\both");
  world_.key("HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\both");
  fDeleteKeyTree(tracks(), Root::kLocalMachine, "SOFTWARE\\both");
  EXPECT_TRUE(world_.keyExists(Root::kLocalMachine, "SOFTWARE\\both"));  // the 32-bit one
  constexpr std::uint32_t kView64 = 0x2013F;
  EXPECT_EQ(world_.machine().registry.open(Root::kLocalMachine, "SOFTWARE\\both", kView64).status,
            kFileNotFound);
}

}  // namespace
}  // namespace tavr::testing
