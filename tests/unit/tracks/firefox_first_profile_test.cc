// The older procedures that take one file of the first profile. No run calls
// them.
#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FirstProfile : public TrackTest {
 protected:
  static std::string profile(std::string_view below) {
    return user("\\AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\") + std::string(below);
  }
};

TEST_F(FirstProfile, OnlyTheFirstProfilesFileIsTaken) {
  world_.file(profile("b\\downloads.sqlite")).file(profile("A\\downloads.sqlite"), "123");
  world_.file(profile("A\\formhistory.sqlite"), "12345");
  call("c20");
  EXPECT_THAT(rows(), ElementsAre("Firefox Download history   <OK>"));
  EXPECT_TRUE(ghosted(1));
  EXPECT_EQ(fileCount(), "1");
  EXPECT_EQ(fileSize(), "3");
  EXPECT_EQ(count(), "1");
  EXPECT_EQ(form().trackcount, 0);
  EXPECT_FALSE(world_.exists(profile("A\\downloads.sqlite")));
  EXPECT_TRUE(world_.exists(profile("b\\downloads.sqlite")));
  EXPECT_TRUE(world_.exists(profile("A\\formhistory.sqlite")));
  call("c19");
  EXPECT_EQ(rows().back(), "Firefox Stored form data   <OK>");
  EXPECT_EQ(fileSize(), "8");
  EXPECT_FALSE(world_.exists(profile("A\\formhistory.sqlite")));
}

TEST_F(FirstProfile, TestingTakesNothing) {
  world_.file(profile("A\\downloads.sqlite"), "123").file(profile("A\\formhistory.sqlite"), "1");
  call("t19");
  call("t20");
  EXPECT_THAT(rows(),
              ElementsAre("Firefox Stored form data   <OK>", "Firefox Download history   <OK>"));
  EXPECT_EQ(fileCount(), "2");
  EXPECT_EQ(fileSize(), "4");
  EXPECT_TRUE(world_.exists(profile("A\\downloads.sqlite")));
  EXPECT_TRUE(world_.exists(profile("A\\formhistory.sqlite")));
}

TEST_F(FirstProfile, AMissingFileIsClaimedAllTheSame) {
  world_.folder(profile("A"));
  for (const std::string_view procedure : {"c19", "t19", "c20", "t20"}) {
    form().View200.clear();
    form().txtfilecount.setText("0");
    countCell().text = "";
    call(procedure);
    EXPECT_EQ(rows().size(), 1u) << procedure;
    EXPECT_EQ(fileCount(), "1") << procedure;
    EXPECT_EQ(count(), "1") << procedure;
  }
  EXPECT_EQ(fileSize(), "0");
}

TEST_F(FirstProfile, WithoutAProfileNothingIsClaimed) {
  for (const std::string_view procedure : {"c19", "t19", "c20", "t20"}) call(procedure);
  EXPECT_THAT(rows(), IsEmpty());
  EXPECT_EQ(fileCount(), "0");
  EXPECT_FALSE(countCell().bold);
}

TEST_F(FirstProfile, AReadOnlyFileStaysAndIsClaimed) {
  world_.file(profile("A\\downloads.sqlite")).readOnly(profile("A\\downloads.sqlite"));
  call("c20");
  EXPECT_TRUE(world_.exists(profile("A\\downloads.sqlite")));
  EXPECT_EQ(count(), "1");
  EXPECT_TRUE(countCell().bold);
}

}  // namespace
}  // namespace tavr::testing
