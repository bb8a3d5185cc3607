// What somebody else removes while a track is cleaned, at whatever moment: the
// rest goes, nothing raises, and nothing outside the track changes.
#include <filesystem>

#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {
namespace {

constexpr const char* kTemp = "C:\\Users\\user\\AppData\\Local\\Temp\\";
constexpr int kPumps = 5;  // while the files below are searched and deleted

// The parameter is the pump at which it happens.
class Vanishing : public TrackTest, public ::testing::WithParamInterface<int> {
 protected:
  Vanishing() {
    for (const char* file : {"a.tmp", "b.tmp", "c.tmp", "sub\\d.tmp", "sub\\deep\\e.tmp"}) {
      world_.file(temp(file));
    }
    world_.file("C:\\Users\\user\\Documents\\keep.txt", "kept");
  }

  static std::string temp(std::string_view name) { return kTemp + std::string(name); }
  void vanishes(std::string_view name) {
    const std::filesystem::path path = world_.host(temp(name));
    program();
    events().actAt(GetParam(), [this, path] {
      vanished_ = true;
      std::filesystem::remove_all(path);
    });
  }
  void expectTheRestToBeGone() {
    call("c10");
    EXPECT_TRUE(vanished_);
    for (const char* file : {"a.tmp", "b.tmp", "c.tmp", "sub\\d.tmp", "sub\\deep\\e.tmp"}) {
      EXPECT_FALSE(world_.exists(temp(file))) << file;
    }
    EXPECT_EQ(world_.read("C:\\Users\\user\\Documents\\keep.txt"), "kept");
    EXPECT_THAT(rows(), ::testing::Contains(temp("a.tmp") + " windows temp folder "));
    EXPECT_THAT(rows(), ::testing::Contains(temp("c.tmp") + " windows temp folder "));
  }

 private:
  bool vanished_ = false;
};

TEST_P(Vanishing, AFileLeavesTheOthersToGo) {
  vanishes("b.tmp");
  expectTheRestToBeGone();
  // It was found, so it is shown and counted as the others are.
  EXPECT_THAT(rows(), ::testing::Contains(temp("b.tmp") + " windows temp folder "));
  EXPECT_EQ(rows().size(), 5u);
  EXPECT_EQ(form().trackcount, 5);
  EXPECT_EQ(form().tracksize, 5);
}

TEST_P(Vanishing, AFolderLeavesTheRestOfTheWalk) {
  vanishes("sub");
  expectTheRestToBeGone();
}

TEST_P(Vanishing, AFolderBelowTheOneBeingWalkedToo) {
  vanishes("sub\\deep");
  expectTheRestToBeGone();
}

INSTANTIATE_TEST_SUITE_P(AtEachPump, Vanishing, ::testing::Range(1, kPumps + 1));

}  // namespace
}  // namespace tavr::testing
