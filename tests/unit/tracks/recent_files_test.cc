// The Windows tracks that search folders: recent documents with the typed
// paths, the temporary folder, and the search index logs with the search key.
#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::string_view kDocs =
    "software\\microsoft\\windows\\currentversion\\explorer\\RecentDocs";
constexpr std::string_view kDocsNt =
    "software\\microsoft\\windows nt\\currentversion\\explorer\\RecentDocs";
constexpr std::string_view kTyped =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\TypedPaths";
constexpr std::string_view kSearch =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\WordWheelQuery";
constexpr std::string_view kLogs =
    "C:\\ProgramData\\Microsoft\\Search\\Data\\Applications\\Windows";

class RecentFiles : public TrackTest {
 protected:
  std::string recent(std::string_view name) {
    return user("\\AppData\\Roaming\\Microsoft\\Windows\\Recent\\") + std::string(name);
  }
  static std::string logs(std::string_view name) {
    return std::string(kLogs) + "\\" + std::string(name);
  }
};

TEST_F(RecentFiles, CleaningTakesTheKeysTheFilesAndTheTypedPaths) {
  world_.value(hkcu(kDocs), "0", "x").key(hkcu(std::string(kDocs) + "\\.txt")).key(hkcu(kDocsNt));
  world_.file(recent("a.lnk"), "12345").file(recent("CustomDestinations\\b"), "123");
  world_.value(hkcu(kTyped), "url1", "C:\\one").value(hkcu(kTyped), "url2", "D:\\two");
  call("c3");
  EXPECT_THAT(rows(), ElementsAre("start documents history  <OK>",
                                  recent("CustomDestinations\\b") + " start documents history ",
                                  recent("a.lnk") + " start documents history ",
                                  "Typed URL C:\\one", "Typed URL D:\\two"));
  EXPECT_TRUE(ghosted(1));
  EXPECT_FALSE(ghosted(2) || ghosted(4) || ghosted(5));
  EXPECT_EQ(form().View200.ensuredRow(), 1u);  // no row tail
  EXPECT_FALSE(keyExists(kDocs) || keyExists(kDocsNt) || keyExists(kTyped));
  EXPECT_FALSE(world_.exists(recent("a.lnk")));
  EXPECT_TRUE(world_.exists(recent("CustomDestinations")));
  EXPECT_EQ(registryCount(), "3");  // the key row and two paths
  EXPECT_EQ(form().tracksize, 8);
  EXPECT_EQ(fileCount(), "0");  // the files reach no total
  EXPECT_EQ(fileSize(), "0");
  EXPECT_THAT(texts(form().List20), ElementsAre("url1", "url2"));
}

TEST_F(RecentFiles, TypedPathsOverwriteTheCountOfTheFiles) {
  for (int i = 0; i < 10; ++i) world_.file(recent("f" + std::to_string(i) + ".lnk"));
  for (const std::string_view name : {"url1", "url2", "url3"}) {
    world_.value(hkcu(kTyped), name, "C:\\x");
  }
  call("t3");
  EXPECT_EQ(form().trackcount, 3);
  EXPECT_EQ(form().tracksize, 10);
  call("c3");
  EXPECT_EQ(form().trackcount, 3);
  EXPECT_EQ(count(), "9");  // left by the search, until the run writes
}

TEST_F(RecentFiles, CleaningWorksInItsOrder) {
  world_.key(hkcu(kDocs)).key(hkcu(kDocsNt)).value(hkcu(kTyped), "url1", "C:\\one");
  call("c3");
  const std::string docs(kDocs), nt(kDocsNt), typed(kTyped);
  EXPECT_THAT(calls({"grant", "key ", "values", "read"}),
              ElementsAre("grant " + docs, "grant " + nt, "key " + docs, "key " + nt,
                          "grant " + typed, "values " + typed, "read " + typed + ":url1",
                          "grant " + typed, "read " + typed + ":url1", "key " + typed));
}

TEST_F(RecentFiles, TestingReportsTheKeyRowWithoutAKeyAndDeletesNothing) {
  world_.file(recent("a.lnk")).key(hkcu(kDocs)).value(hkcu(kTyped), "url1", "C:\\one");
  call("t3");
  EXPECT_THAT(rows(),
              ElementsAre("start documents history  <OK>",
                          recent("a.lnk") + " start documents history ", "Typed URL C:\\one"));
  EXPECT_EQ(registryCount(), "2");
  EXPECT_TRUE(keyExists(kDocs) && keyExists(kTyped) && world_.exists(recent("a.lnk")));
  EXPECT_THAT(calls({"key ", "value "}), IsEmpty());
}

TEST_F(RecentFiles, TestingAnEmptyMachineStillReportsTheKeyRow) {
  call("t3");
  EXPECT_THAT(rows(), ElementsAre("start documents history  <OK>"));
  EXPECT_EQ(registryCount(), "1");
  EXPECT_EQ(form().trackcount, 0);
}

TEST_F(RecentFiles, ATypedPathOfAnotherTypeRepeatsTheTextBeforeAndANumberAppends) {
  world_.value(hkcu(kTyped), "1", "12").rawValue(hkcu(kTyped), "2", "hex:01,02,03");
  world_.rawValue(hkcu(kTyped), "3", "dword:00000005");
  call("t3");
  EXPECT_THAT(rows(), ElementsAre("start documents history  <OK>", "Typed URL 12", "Typed URL 12",
                                  "Typed URL 73733"));  // 12, and the bytes 0 0 5: &h12005
}

TEST_F(RecentFiles, TheTemporaryFolderIsEmptiedOfFilesAtEveryDepth) {
  world_.ini("[environment]\nTemp=C:\\T\n");
  world_.file("C:\\T\\a.tmp", "12").file("C:\\T\\deep\\er\\b", "345").folder("C:\\T\\empty");
  call("t10");
  EXPECT_THAT(rows(), ElementsAre("C:\\T\\deep\\er\\b windows temp folder ",
                                  "C:\\T\\a.tmp windows temp folder "));
  EXPECT_TRUE(world_.exists("C:\\T\\a.tmp"));
  call("c10");
  EXPECT_EQ(rows().size(), 4u);
  EXPECT_EQ(form().trackcount, 2);
  EXPECT_EQ(form().tracksize, 5);
  EXPECT_EQ(fileCount(), "0");  // added by the run
  EXPECT_FALSE(world_.exists("C:\\T\\a.tmp") || world_.exists("C:\\T\\deep\\er\\b"));
  EXPECT_TRUE(world_.exists("C:\\T\\deep\\er") && world_.exists("C:\\T\\empty"));
  EXPECT_EQ(form().View200.ensuredRow(), 0u);
}

TEST_F(RecentFiles, WithoutATemporaryFolderNoDriveIsSearched) {
  world_.ini("[environment]\nTemp=\n").file("C:\\precious.txt");
  call("c10");
  EXPECT_THAT(rows(), IsEmpty());
  EXPECT_TRUE(world_.exists("C:\\precious.txt"));
}

TEST_F(RecentFiles, SearchingHistoryTakesLogsAndNamedValues) {
  world_.file(logs("a.log"), "1234").file(logs("GatherLogs\\b.LOG")).file(logs("Windows.edb"));
  world_.value(hkcu(std::string(kSearch) + "\\sub"), "0", "words").value(hkcu(kSearch), "0", "x");
  world_.rawValue(hkcu(std::string(kSearch) + "\\sub"), "bin", "hex:01,02,03");
  call("c95");
  EXPECT_THAT(rows(),
              ElementsAre(logs("GatherLogs\\b.LOG") + " Windows Searching History : ",
                          logs("a.log") + " Windows Searching History : ", ": words  <OK>"));
  EXPECT_TRUE(ghosted(3));
  EXPECT_FALSE(world_.exists(logs("a.log")) || world_.exists(logs("GatherLogs\\b.LOG")));
  EXPECT_TRUE(world_.exists(logs("Windows.edb")));
  EXPECT_EQ(value(std::string(kSearch) + "\\sub", "0"), "<none>");
  EXPECT_EQ(value(std::string(kSearch) + "\\sub", "bin"), "<none>");
  EXPECT_EQ(value(kSearch, "0"), "<none>");
  EXPECT_TRUE(keyExists(std::string(kSearch) + "\\sub"));
  EXPECT_EQ(form().trackcount, 3);
  EXPECT_EQ(registryCount(), "0");
  EXPECT_EQ(form().tracksize, 5);
  EXPECT_EQ(form().pending_count, 4);
  EXPECT_THAT(texts(form().List12), ElementsAre("sub"));
}

TEST_F(RecentFiles, TestingSearchingHistoryShowsAValueOfTheSameNameTwice) {
  world_.value(hkcu(std::string(kSearch) + "\\sub"), "0", "words").value(hkcu(kSearch), "0", "x");
  world_.value(hkcu(kSearch), "only here", "y").file(logs("a.log"));
  call("t95");
  // The second round names the values of the key and reads those of the subkey.
  EXPECT_THAT(rows(), ElementsAre(logs("a.log") + " Windows Searching History : ", ": words  <OK>",
                                  ": words  <OK>"));
  EXPECT_EQ(form().trackcount, 3);
  EXPECT_TRUE(world_.exists(logs("a.log")));
  EXPECT_EQ(value(kSearch, "only here"), "y");
  EXPECT_EQ(calls({"grant " + std::string(kSearch)}).front(), "grant " + std::string(kSearch));
  EXPECT_THAT(calls({"value "}), IsEmpty());
}

TEST_F(RecentFiles, WithoutSubkeysSearchingHistoryWorksOnceWithAnEmptyName) {
  world_.value(hkcu(kSearch), "0", "words").value(hkcu(kSearch), "1", "more");
  call("c95");
  EXPECT_THAT(rows(), ElementsAre(": words  <OK>", ": more  <OK>"));
  const std::string key(kSearch);
  // Both names are deleted through the path that ends in "\", then the emptied
  // key is gone through once more with the empty name.
  EXPECT_THAT(calls({"value"}),
              ElementsAre("values " + key + "\\", "value " + key + "\\:0", "value " + key + "\\:1",
                          "values " + key, "value " + key + ":"));
}

TEST_F(RecentFiles, SearchingHistoryPumpsAtEachElementAndIsNotStopped) {
  world_.value(hkcu(kSearch), "0", "words").value(hkcu(kSearch), "1", "more");
  stopAtPump(1);
  call("t95");
  EXPECT_EQ(rows().size(), 4u);  // two values, seen in both rounds
  EXPECT_EQ(events().pumps, 6);
}

}  // namespace
}  // namespace tavr::testing
