// The searching history's keys: in which order it works on them, what its second
// round takes, and that nobody can stop it there.
#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;

const std::string kSearch =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\WordWheelQuery";

class SearchingHistory : public TrackTest {};

// Each read of a value grants anew, on the subkey that it reads.
TEST_F(SearchingHistory, CleaningGrantsTheKeyBeforeItLooksIntoIt) {
  world_.value(hkcu(kSearch), "0", "x").value(hkcu(kSearch + "\\sub"), "0", "words");
  call("c95");
  EXPECT_THAT(
      calls({"grant Software", "keys ", "values ", "value "}),
      ElementsAre("grant " + kSearch, "keys " + kSearch, "values " + kSearch + "\\sub",
                  "grant " + kSearch + "\\sub", "value " + kSearch + "\\sub:0", "values " + kSearch,
                  "grant " + kSearch + "\\sub", "value " + kSearch + ":0"));
}

// The first round leaves the default values of subkeys that have others. The
// second lists the key anew for each subkey: for "one" the name "k", which only
// the key has, and for "two", the key being empty by then, the empty name.
TEST_F(SearchingHistory, TheSecondRoundNamesTheKeysValuesAndReadsThoseOfEachSubkey) {
  world_.value(hkcu(kSearch), "", "own").value(hkcu(kSearch), "k", "x");
  world_.value(hkcu(kSearch + "\\one"), "", "first").value(hkcu(kSearch + "\\one"), "a", "1");
  world_.value(hkcu(kSearch + "\\two"), "", "second").value(hkcu(kSearch + "\\two"), "b", "2");
  call("c95");
  EXPECT_THAT(rows(), ElementsAre(": 1  <OK>", ": 2  <OK>", ": second  <OK>"));
  EXPECT_TRUE(ghosted(1) && ghosted(2) && ghosted(3));
  EXPECT_EQ(form().trackcount, 3);
  EXPECT_THAT(calls({"values ", "value "}),
              ElementsAre("values " + kSearch + "\\one", "value " + kSearch + "\\one:a",
                          "values " + kSearch + "\\two", "value " + kSearch + "\\two:b",
                          "values " + kSearch, "value " + kSearch + ":k", "values " + kSearch,
                          "value " + kSearch + ":"));
  EXPECT_EQ(value(kSearch, "k"), "<none>");
  EXPECT_EQ(value(kSearch, ""), "<none>");
  EXPECT_EQ(value(kSearch + "\\one", ""), "first");
  EXPECT_EQ(value(kSearch + "\\two", ""), "second");
}

TEST_F(SearchingHistory, AStopIsNotAskedForWhileTheKeysAreCleaned) {
  world_.value(hkcu(kSearch), "k", "x").value(hkcu(kSearch), "l", "x");
  world_.value(hkcu(kSearch + "\\one"), "a", "1").value(hkcu(kSearch + "\\one"), "b", "2");
  world_.value(hkcu(kSearch + "\\two"), "c", "3");
  form().stopflag = 1;
  call("c95");
  EXPECT_THAT(rows(), ElementsAre(": 1  <OK>", ": 2  <OK>", ": 3  <OK>"));
  for (const char* name : {"k", "l"}) EXPECT_EQ(value(kSearch, name), "<none>") << name;
  EXPECT_EQ(value(kSearch + "\\two", "c"), "<none>");
  EXPECT_EQ(form().trackcount, 3);
}

}  // namespace
}  // namespace tavr::testing
