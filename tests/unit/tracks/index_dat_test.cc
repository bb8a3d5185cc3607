// The index.dat files: the one in the cookie folder, overwritten in place, and
// those that are searched for.
#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::string_view kShellFolders =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
// Pumps of one overwrite of a file up to one block: one for the block and one
// for the pass, eleven times.
constexpr int kPumpsOfOne = 22;

class IndexDat : public TrackTest {
 protected:
  IndexDat() { world_.file(direct, "0123456789"); }
  void cookiesAt(std::string_view folder) { world_.value(hkcu(kShellFolders), "Cookies", folder); }
  void option(std::string_view text) { world_.setting("tavr wipe\\option\\option", "3", text); }
  // What a file holds; overwritten, in short: "8192 x #".
  std::string contents(const std::string& path) {
    const std::string text = world_.read(path);
    if (text.empty() || text.find_first_not_of('#') != std::string::npos) return text;
    return std::to_string(text.size()) + " x #";
  }
  const std::string direct = "C:\\home\\Cookies\\index.dat";
};

TEST_F(IndexDat, CleaningOverwritesTheFileAndLeavesIt) {
  cookiesAt("C:\\home\\Cookies");
  call("c9");
  EXPECT_THAT(rows(), ElementsAre("Index.dat  <OK>"));
  EXPECT_TRUE(ghosted(1));
  EXPECT_EQ(contents(direct), "8192 x #");
  EXPECT_EQ(fileSize(), "10");  // measured before
  EXPECT_EQ(fileCount(), "0");
  EXPECT_EQ(form().trackcount, 0);
  EXPECT_EQ(events().pumps, kPumpsOfOne);
}

TEST_F(IndexDat, AnObjectLeftByAStopLetsTheFileGo) {
  cookiesAt("C:\\home\\Cookies");
  form().file_system_object.emplace();
  call("c9");
  EXPECT_FALSE(world_.exists(direct));
}

TEST_F(IndexDat, TheSecureOptionRepeatsTheOverwriting) {
  cookiesAt("C:\\home\\Cookies");
  option("1.0");
  world_.setting("tavr wipe", "secure_value", "3");
  call("c9");
  // Each time over the whole file, which grows by one more block.
  EXPECT_EQ(contents(direct), "24576 x #");
  EXPECT_EQ(events().pumps, 3 + 11 * (2 + 3 + 4));
}

// The options form offers 1 to 10; what is stored counts.
TEST_F(IndexDat, ANumberBeyondTheOfferedOnesIsUsedAsStored) {
  cookiesAt("C:\\home\\Cookies");
  option("1");
  world_.setting("tavr wipe", "secure_value", "12");
  call("c9");
  EXPECT_EQ(contents(direct), std::to_string(12 * 8192) + " x #");
}

TEST_F(IndexDat, WithoutANumberTheSecureOptionOverwritesOnce) {
  cookiesAt("C:\\home\\Cookies");
  option("1");
  call("c9");
  EXPECT_EQ(events().pumps, kPumpsOfOne + 1);
}

TEST_F(IndexDat, AnOptionThatIsNoNumberCountsAsOff) {
  cookiesAt("C:\\home\\Cookies");
  option("abc");
  call("c9");
  EXPECT_EQ(contents(direct), "8192 x #");
  EXPECT_EQ(events().pumps, kPumpsOfOne);
}

TEST_F(IndexDat, AnyOtherOptionOverwritesNothing) {
  cookiesAt("C:\\home\\Cookies");
  option("2");
  form().file_system_object.emplace();
  call("c9");
  EXPECT_EQ(contents(direct), "0123456789");
  EXPECT_EQ(events().pumps, 0);
}

TEST_F(IndexDat, AMissingFileHasItsRowAndIsMade) {
  cookiesAt("C:\\home\\Empty");
  world_.folder("C:\\home\\Empty");
  call("c9");
  EXPECT_THAT(rows(), ElementsAre("Index.dat  <OK>"));
  EXPECT_EQ(contents("C:\\home\\Empty\\index.dat"), "8192 x #");
  EXPECT_EQ(fileSize(), "0");
}

TEST_F(IndexDat, AMissingFileHasItsRowInTheTestAndIsNotMade) {
  cookiesAt("C:\\home\\Empty");
  world_.folder("C:\\home\\Empty");
  call("t9");
  EXPECT_THAT(rows(), ElementsAre("Index.dat  <OK>"));
  EXPECT_FALSE(world_.exists("C:\\home\\Empty\\index.dat"));
  EXPECT_EQ(fileSize(), "0");
}

TEST_F(IndexDat, AFolderThatCannotBeEnteredGivesWayToTheShells) {
  cookiesAt("C:\\nowhere");
  world_.ini("[folders]\ncookies=C:\\home\\Cookies\n");
  call("c9");
  EXPECT_EQ(contents(direct), "8192 x #");
}

TEST_F(IndexDat, AnEmptyFolderTextGivesWayToTheShells) {
  world_.ini("[folders]\ncookies=C:\\home\\Cookies\n");
  call("c9");
  EXPECT_EQ(contents(direct), "8192 x #");
}

TEST_F(IndexDat, ThreeFoldersAreSearchedBesidesAndBelow) {
  cookiesAt("C:\\home\\Cookies");
  world_.value(hkcu(kShellFolders), "Local Settings", "C:\\LS");
  world_.value(hkcu(kShellFolders), "Cache", "C:\\TIF");
  world_.file("C:\\home\\Local Settings\\history\\deep\\index.dat", "1");
  world_.file("C:\\LS\\history\\Index.DAT", "22").file("C:\\LS\\index.dat");
  world_.file("C:\\TIF\\Content.IE5\\index.dat", "333").file("C:\\TIF\\index.data");
  call("c9");
  EXPECT_THAT(rows(), ElementsAre("Index.dat  <OK>",
                                  "C:\\home\\Local Settings\\history\\deep\\index.dat index.dat ",
                                  "C:\\LS\\history\\Index.DAT index.dat ",
                                  "C:\\TIF\\Content.IE5\\index.dat index.dat "));
  EXPECT_FALSE(ghosted(2) || ghosted(4));
  EXPECT_EQ(form().View200.ensuredRow(), 1u);
  EXPECT_FALSE(countCell().bold);
  EXPECT_EQ(form().trackcount, 3);
  EXPECT_EQ(form().tracksize, 6);
  EXPECT_FALSE(world_.exists("C:\\home\\Local Settings\\history\\deep\\index.dat"));
  EXPECT_FALSE(world_.exists("C:\\LS\\history\\Index.DAT"));
  EXPECT_FALSE(world_.exists("C:\\TIF\\Content.IE5\\index.dat"));
  EXPECT_TRUE(world_.exists("C:\\LS\\index.dat") && world_.exists("C:\\TIF\\index.data"));
  EXPECT_TRUE(world_.exists(direct));
}

TEST_F(IndexDat, WithoutACacheFolderNoDriveIsSearched) {
  cookiesAt("C:\\home\\Cookies");
  world_.file("C:\\other\\index.dat");
  call("c9");
  EXPECT_TRUE(world_.exists("C:\\other\\index.dat"));
  EXPECT_EQ(rows().size(), 1u);
}

TEST_F(IndexDat, TestingListsTheSameAndShowsOne) {
  cookiesAt("C:\\home\\Cookies");
  world_.value(hkcu(kShellFolders), "Cache", "C:\\TIF");
  world_.file("C:\\TIF\\1\\index.dat").file("C:\\TIF\\2\\index.dat");
  option("1");
  call("t9");
  EXPECT_THAT(rows(), ElementsAre("Index.dat  <OK>", "C:\\TIF\\1\\index.dat index.dat ",
                                  "C:\\TIF\\2\\index.dat index.dat "));
  EXPECT_EQ(contents(direct), "0123456789");
  EXPECT_TRUE(world_.exists("C:\\TIF\\1\\index.dat"));
  EXPECT_EQ(count(), "1");
  EXPECT_EQ(form().trackcount, 2);
  EXPECT_EQ(fileSize(), "10");
  EXPECT_TRUE(countCell().bold);
  EXPECT_EQ(form().View200.ensuredRow(), 3u);
  EXPECT_THAT(calls({"read HKLM:"}), IsEmpty());
}

TEST_F(IndexDat, BothSidesLeaveTheCookieFolderAsTheCurrentOne) {
  for (const char* procedure : {"c9", "t9"}) {
    TestMachine machine;
    machine.file(direct).value(hkcu(kShellFolders), "Cookies", "C:\\home\\Cookies");
    Program own(machine.machine());
    callProcedure(own.tracks, procedure);
    std::uint32_t attributes = 0;
    EXPECT_EQ(machine.machine().files.attributes("index.dat", attributes), kSuccess) << procedure;
  }
}

TEST_F(IndexDat, TheReadOnlyMarkIsTakenOffInTheTestToo) {
  cookiesAt("C:\\home\\Cookies");
  world_.readOnly(direct);
  call("t9");
  std::uint32_t attributes = 0;
  world_.machine().files.attributes(direct, attributes);
  EXPECT_EQ(attributes & kAttrReadOnly, 0u);
}

TEST_F(IndexDat, AFileHeldBySomebodyElseKeepsItsRowAndItsContents) {
  cookiesAt("C:\\home\\Cookies");
  world_.machineFile("locked.txt", direct + "\n");
  call("c9");
  EXPECT_THAT(rows(), ElementsAre("Index.dat  <OK>"));
  EXPECT_EQ(contents(direct), "0123456789");
  EXPECT_EQ(fileSize(), "10");
}

}  // namespace
}  // namespace tavr::testing
