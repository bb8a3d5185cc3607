// Deleting a key with everything below it.
#include <optional>

#include "tests/support/machine_with.h"
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

// A key that answers "ab", and more behind a NUL, for its subkey "ab", and a name
// that begins with a NUL for its subkey "nul".
class TailedNames : public RecordingKey {
 public:
  TailedNames(std::unique_ptr<RegistryKey> inner, RegistryCalls& calls)
      : RecordingKey(std::move(inner), "", calls) {}
  Status enumKey(std::uint32_t index, std::string& name) override {
    const Status status = RecordingKey::enumKey(index, name);
    if (status == kSuccess && name == "ab") name.append("\0z", 2);
    if (status == kSuccess && name == "nul") name.insert(0, 1, '\0');
    return status;
  }
};

class TailedRegistry : public RecordingRegistry {
 public:
  using RecordingRegistry::RecordingRegistry;
  OpenedKey open(Root root, std::string_view path, std::uint32_t access) override {
    if (++opens_ > kEnough) return {kAccessDenied, nullptr};
    OpenedKey opened = RecordingRegistry::open(root, path, access);
    if (opened.key) opened.key = std::make_unique<TailedNames>(std::move(opened.key), calls);
    return opened;
  }

 private:
  // A path that is cut at a NUL leads back to where it was: such a walk has no end.
  static constexpr int kEnough = 100;
  int opens_ = 0;
};

class TailedKeyTree : public TrackTest {
 protected:
  Machine machineBelow(const Machine& m) override {
    tailed_.emplace(m.registry);
    return testing::machineWith(m, *tailed_);
  }

 private:
  std::optional<TailedRegistry> tailed_;
};

TEST_F(TailedKeyTree, ASubkeysNameEndsAtItsFirstNul) {
  world_.key(hkcu("Software\\tree\\ab\\below")).key(hkcu("Software\\tree\\one"));
  fDeleteKeyTree(tracks(), Root::kCurrentUser, "Software\\tree");
  EXPECT_THAT(calls({"key ", "missing "}),
              ElementsAre("key Software\\tree\\ab\\below", "key Software\\tree\\ab",
                          "key Software\\tree\\one", "key Software\\tree"));
  EXPECT_FALSE(keyExists("Software\\tree"));
  EXPECT_TRUE(keyExists("Software"));
}

// Such a name is no name of a subkey: what follows it is the key itself once more.
TEST_F(TailedKeyTree, ASubkeyWhoseNameBeginsWithANulIsNotFollowedAndTheOthersGo) {
  world_.key(hkcu("Software\\tree\\nul\\below")).key(hkcu("Software\\tree\\one\\deep"));
  fDeleteKeyTree(tracks(), Root::kCurrentUser, "Software\\tree");
  EXPECT_THAT(calls({"key ", "missing "}),
              ElementsAre("key Software\\tree\\", "key Software\\tree\\one\\deep",
                          "key Software\\tree\\one", "key Software\\tree"));
  EXPECT_FALSE(keyExists("Software\\tree\\one"));
  EXPECT_TRUE(keyExists("Software\\tree\\nul\\below"));
}

}  // namespace
}  // namespace tavr::testing
