#include "platform/folder/folder_tree.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/folder/machine_folder.h"
#include "tests/unit/platform/folder_fixture.h"

namespace tavr::folder {
namespace {

class FolderTreeTest : public FolderFixture {
 protected:
  Status locate(std::string_view path) {
    Node node;
    return tree_.locate(path, node);
  }
  std::string shown(std::string_view path) {
    Node node;
    return tree_.locate(path, node) == kSuccess ? node.shownName() : "-";
  }

  FolderTree tree_{machine().string(), "C:\\App"};
};

TEST_F(FolderTreeTest, KnowsItsOwnRealPath) {
  std::filesystem::create_symlink(machine(), outside() / "alias");
  const FolderTree other((outside() / "alias").string(), "C:\\App");
  EXPECT_EQ(other.realPath(), machine().string());
}

TEST_F(FolderTreeTest, AMissingMachineFolderIsRefused) {
  EXPECT_THROW(FolderTree((machine() / "none").string(), "C:\\App"), UnusableMachine);
}

TEST_F(FolderTreeTest, FindsNamesWithoutCaseAndShowsTheirOwn) {
  file("C/Users/Me/Note.TXT");
  EXPECT_EQ(shown("c:\\USERS\\me\\note.txt"), "Note.TXT");
}

TEST_F(FolderTreeTest, FindsNamesBeyondAsciiWithoutCase) {
  file("C/\xC3\x89t\xC3\xA9/\xD0\x96.txt");
  EXPECT_EQ(shown("C:\\\xC3\xA9T\xC3\x89\\\xD0\xB6.TXT"), "\xD0\x96.txt");
}

TEST_F(FolderTreeTest, OfCaseTwinsTheExactOneIsTakenElseTheFirst) {
  file("C/t/abc");
  file("C/t/Abc");
  EXPECT_EQ(shown("C:\\t\\abc"), "abc");
  EXPECT_EQ(shown("C:\\t\\Abc"), "Abc");
  EXPECT_EQ(shown("C:\\t\\ABC"), "Abc");
}

TEST_F(FolderTreeTest, AMissingFileAndAMissingFolderAreToldApart) {
  file("C/a/f");
  EXPECT_EQ(locate("C:\\a\\none"), kFileNotFound);
  EXPECT_EQ(locate("C:\\none\\f"), kPathNotFound);
  EXPECT_EQ(locate("C:\\a\\f\\g"), kPathNotFound);
  EXPECT_EQ(locate("E:\\"), kPathNotFound);
  EXPECT_EQ(locate("E:\\a"), kPathNotFound);
}

TEST_F(FolderTreeTest, NamesThatWindowsCannotHoldAreNotOnTheMachine) {
  for (const char* name : {"C/a:b", "C/tail.", "C/tail ", "C/back\\slash", "C/q?"}) file(name);
  EXPECT_NE(locate("C:\\a:b"), kSuccess);
  EXPECT_NE(locate("C:\\tail."), kSuccess);
  EXPECT_NE(locate("C:\\tail "), kSuccess);
  EXPECT_NE(locate("C:\\back\\slash"), kSuccess);
  EXPECT_EQ(locate("C:\\q?"), kInvalidName);
}

TEST_F(FolderTreeTest, TheMachinesOwnFilesAreOnNoDrive) {
  link("C/up", "..");
  link("C/reg", "../registry.reg");
  link("C/root", machine());
  for (const char* path : {"C:\\up", "C:\\up\\registry.reg", "C:\\reg", "C:\\root",
                           "C:\\root\\registry.reg", "C:\\..\\registry.reg"}) {
    EXPECT_NE(locate(path), kSuccess) << path;
  }
}

TEST_F(FolderTreeTest, LinksInsideTheMachineAreFollowed) {
  file("D/data/f.txt");
  link("C/relative", "../D/data");
  link("C/absolute", machine() / "D/data");
  link("C/deep/one", "../relative");
  link("C/file", "relative/f.txt");
  for (const char* path : {"C:\\relative\\f.txt", "C:\\ABSOLUTE\\F.TXT", "C:\\deep\\one\\f.txt",
                           "C:\\file", "C:\\deep\\one\\..\\..\\relative\\f.txt"}) {
    EXPECT_EQ(locate(path), kSuccess) << path;
  }
  Node node;
  ASSERT_EQ(tree_.locate("C:\\FILE", node), kSuccess);
  EXPECT_TRUE(node.isLink());
  EXPECT_EQ(node.shownName(), "file");
  EXPECT_EQ(node.name, "f.txt");
}

TEST_F(FolderTreeTest, ALinkTargetMayClimbAsLongAsItStaysBeneath) {
  file("C/a/b/f");
  link("C/a/b/self", "..");
  EXPECT_EQ(locate("C:\\a\\b\\self\\b\\self\\b\\f"), kSuccess);
  link("C/a/b/out", "../../../../machine/C/a");
  EXPECT_EQ(locate("C:\\a\\b\\out"), kFileNotFound);
}

TEST_F(FolderTreeTest, LinksThatLeadOutDoNotExist) {
  link("C/abs", outside());
  link("C/rel", "../../outside");
  link("C/file", outside() / "secret.txt");
  link("C/chain", "rel");
  link("C/through", machine() / "../outside");
  link("C/prefix", machine().string() + "2");
  link("C/slash", "/");
  link("C/empty", "none");
  for (const char* path : {"C:\\abs", "C:\\rel", "C:\\file", "C:\\chain", "C:\\through",
                           "C:\\prefix", "C:\\slash", "C:\\empty", "C:\\ABS", "C:\\Rel"}) {
    EXPECT_EQ(locate(path), kFileNotFound) << path;
  }
  for (const char* path : {"C:\\abs\\secret.txt", "C:\\rel\\sub\\deep.txt", "C:\\chain\\secret.txt",
                           "C:\\through\\secret.txt"}) {
    EXPECT_EQ(locate(path), kPathNotFound) << path;
  }
}

TEST_F(FolderTreeTest, ALinkThatLeadsOutHidesNoOtherCaseOfItsName) {
  link("C/Data", outside());
  file("C/data/f");
  EXPECT_EQ(locate("C:\\Data\\f"), kSuccess);
  EXPECT_NE(locate("C:\\Data\\secret.txt"), kSuccess);
}

TEST_F(FolderTreeTest, LoopsAndMoreThanFortyLinksDoNotExist) {
  link("C/a", "b");
  link("C/b", "a");
  EXPECT_EQ(locate("C:\\a"), kFileNotFound);
  file("C/l0");
  for (int i = 1; i <= 41; ++i) link("C/l" + std::to_string(i), "l" + std::to_string(i - 1));
  EXPECT_EQ(locate("C:\\l40"), kSuccess);
  EXPECT_EQ(locate("C:\\l41"), kFileNotFound);
}

TEST_F(FolderTreeTest, LinksThatMultiplyEndSoon) {
  folder("C/x0");
  for (int i = 1; i < 30; ++i) {
    const std::string below = "x" + std::to_string(i - 1);
    link("C/x" + std::to_string(i), below + "/../" + below);
  }
  EXPECT_EQ(locate("C:\\x3"), kSuccess);
  EXPECT_EQ(locate("C:\\x29"), kFileNotFound);
}

TEST_F(FolderTreeTest, ADriveThatIsALinkOutDoesNotExist) {
  link("E", outside());
  link("F", "D");
  file("D/f");
  EXPECT_EQ(locate("E:\\secret.txt"), kPathNotFound);
  EXPECT_EQ(locate("F:\\f"), kSuccess);
  EXPECT_EQ(tree_.drives(), "CDF");
}

TEST_F(FolderTreeTest, ADriveLetterIsFoundInEitherCase) {
  file("g/f");
  EXPECT_EQ(locate("G:\\f"), kSuccess);
  EXPECT_EQ(tree_.drives(), "CG");
}

TEST_F(FolderTreeTest, PipesAreNotOnTheMachine) {
  ASSERT_EQ(::mkfifo(host("C/pipe").c_str(), 0600), 0);
  EXPECT_EQ(locate("C:\\pipe"), kFileNotFound);
}

TEST_F(FolderTreeTest, AFolderReplacedByALinkOutIsNotEntered) {
  file("C/a/b/f");
  EXPECT_EQ(locate("C:\\a\\b\\f"), kSuccess);
  std::filesystem::rename(host("C/a"), host("C/a.old"));
  std::filesystem::create_directories(outside() / "b");
  std::ofstream(outside() / "b/g") << "g";
  link("C/a", outside());
  EXPECT_NE(locate("C:\\a\\b\\g"), kSuccess) << "kept open or not";
  tree_.forget();
  EXPECT_EQ(locate("C:\\a\\b\\f"), kPathNotFound);
}

TEST_F(FolderTreeTest, AFolderMadeAgainIsSeen) {
  file("C/a/b/f");
  EXPECT_EQ(locate("C:\\a\\b\\f"), kSuccess);
  std::filesystem::remove_all(host("C/a"));
  EXPECT_EQ(locate("C:\\a\\b\\f"), kPathNotFound);
  file("C/a/b/g");
  EXPECT_EQ(locate("C:\\a\\b\\g"), kSuccess);
  FolderRef opened;
  EXPECT_EQ(tree_.openFolder("C:\\a\\b\\", opened), kSuccess);
}

TEST_F(FolderTreeTest, ATextWithANulInItNamesWhatStandsBeforeIt) {
  file("C/a/b");
  const std::string text = std::string("C:\\a\\b") + '\0' + "\\b";
  EXPECT_EQ(shown(text), "b");
  EXPECT_EQ(shown(text), "b");
}

TEST_F(FolderTreeTest, TheCurrentDirectoryBeginsAtTheProgram) {
  file("C/App/here.txt");
  file("C/other/there.txt");
  EXPECT_EQ(locate("here.txt"), kSuccess);
  EXPECT_EQ(tree_.setCurrentDirectory("..\\OTHER"), kSuccess);
  EXPECT_EQ(locate("there.txt"), kSuccess);
  EXPECT_EQ(locate("here.txt"), kFileNotFound);
  EXPECT_EQ(tree_.setCurrentDirectory("C:\\none"), kFileNotFound);
  EXPECT_EQ(tree_.setCurrentDirectory("C:\\none\\x"), kPathNotFound);
  EXPECT_EQ(tree_.setCurrentDirectory("there.txt"), kDirectory);
  EXPECT_EQ(tree_.setCurrentDirectory(""), kPathNotFound);
  EXPECT_EQ(locate("there.txt"), kSuccess) << "a failed change keeps the directory";
}

}  // namespace
}  // namespace tavr::folder
