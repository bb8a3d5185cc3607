// The tracks of the Windows shell that stand in the registry, and the recycle
// bin.
#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::string_view kRunMru =
    "software\\microsoft\\windows\\currentversion\\explorer\\runmru";
constexpr std::string_view kRunMruNt =
    "software\\microsoft\\windows nt\\currentversion\\explorer\\runmru";
constexpr std::string_view kSearch =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\WordWheelQuery";
constexpr std::string_view kBars = "Software\\Microsoft\\Internet Explorer\\Explorer Bars";
constexpr std::string_view kBarsBelow =
    "Software\\Microsoft\\Internet Explorer\\Explorer Bars\\"
    "{C4EE31F3-4768-11D2-BE5C-00A0C9A83DA1}";
constexpr std::string_view kTray =
    "Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\TrayNotify";

std::string below(std::string_view key, std::string_view name) {
  return std::string(key) + "\\" + std::string(name);
}

class WindowsTracks : public TrackTest {};

TEST_F(WindowsTracks, CleaningRunHistoryDeletesBothKeys) {
  world_.value(hkcu(kRunMru), "a", "cmd\\1").key(hkcu(below(kRunMruNt, "sub")));
  call("c1");
  EXPECT_FALSE(keyExists(kRunMru) || keyExists(kRunMruNt));
  EXPECT_THAT(rows(), ElementsAre("Clean start run history  <OK>"));
  EXPECT_TRUE(ghosted(1));
  EXPECT_EQ(registryCount(), "1");
  EXPECT_EQ(form().trackcount, 0);  // the run writes a fixed "1"
  EXPECT_EQ(events().waited, 2000u);
}

TEST_F(WindowsTracks, CleaningRunHistoryGrantsBothKeysAndThenDeletesTheWindowsOneFirst) {
  world_.value(hkcu(kRunMru), "a", "cmd").value(hkcu(kRunMruNt), "a", "cmd");
  call("c1");
  EXPECT_THAT(calls({"grant", "key "}),
              ElementsAre("grant " + std::string(kRunMru), "grant " + std::string(kRunMruNt),
                          "key " + std::string(kRunMru), "key " + std::string(kRunMruNt)));
}

TEST_F(WindowsTracks, TheRunHistoryRowBeginsWithTheLanguagesText) {
  world_.file("C:\\Program Files\\Tavr Wipe\\lang\\x.ini", "[001]\r\n033=Cleaned: \r\n");
  form().txtlang.setText("x.ini");
  call("c1");
  EXPECT_THAT(rows(), ElementsAre("Cleaned:Clean start run history  <OK>"));
}

TEST_F(WindowsTracks, TheRowsOfTestedRunHistoryAndOfRecentDocumentsBeginWithoutTheLanguagesText) {
  world_.file("C:\\Program Files\\Tavr Wipe\\lang\\x.ini",
              "[001]\r\n031=Documents: \r\n033=Cleaned: \r\n");
  form().txtlang.setText("x.ini");
  for (const char* procedure : {"t1", "c3", "t3"}) call(procedure);
  EXPECT_THAT(rows(),
              ElementsAre("Windows Start Run History  <OK>", "start documents history  <OK>",
                          "start documents history  <OK>"));
}

TEST_F(WindowsTracks, TestingRunHistoryReportsOneTrackWithoutReadingAKey) {
  call("t1");
  EXPECT_THAT(rows(), ElementsAre("Windows Start Run History  <OK>"));
  EXPECT_TRUE(ghosted(1));
  EXPECT_EQ(registryCount(), "1");
  EXPECT_EQ(events().waited, 2000u);
  EXPECT_THAT(calls({""}), IsEmpty());
}

TEST_F(WindowsTracks, CleaningSearchHistoryReportsAndDeletesEachValue) {
  world_.value(hkcu(kSearch), "0", "a").rawValue(hkcu(kSearch), "MRUListEx", "hex:00,01,02,03");
  call("c2");
  EXPECT_THAT(rows(), ElementsAre("Clean start find history 0 <OK>",
                                  "Clean start find history MRUListEx <OK>"));
  EXPECT_TRUE(ghosted(1) && ghosted(2));
  EXPECT_EQ(value(kSearch, "0"), "<none>");
  EXPECT_EQ(value(kSearch, "MRUListEx"), "<none>");
  EXPECT_TRUE(keyExists(kSearch));
  EXPECT_EQ(form().trackcount, 2);
  EXPECT_EQ(registryCount(), "2");
  EXPECT_EQ(count(), "");  // the run's business
  EXPECT_THAT(texts(form().List20), ElementsAre("0", "MRUListEx"));
}

TEST_F(WindowsTracks, ANameWithBracesStandsInItsRowAsItIs) {
  world_.value(hkcu(kSearch), "{name} {0}", "a");
  call("c2");
  EXPECT_THAT(rows(), ElementsAre("Clean start find history {name} {0} <OK>"));
}

TEST_F(WindowsTracks, CleaningSearchHistoryTakesTheSearchCompanionsUncounted) {
  world_.value(hkcu(below(kBarsBelow, "FilesNamedMRU")), "000", "x");
  world_.value(hkcu(below(kBarsBelow, "ContainingTextMRU")), "000", "x");
  world_.key(hkcu(below(kBarsBelow, "Other")));
  call("c2");
  EXPECT_FALSE(keyExists(below(kBarsBelow, "FilesNamedMRU")));
  EXPECT_FALSE(keyExists(below(kBarsBelow, "ContainingTextMRU")));
  EXPECT_TRUE(keyExists(below(kBarsBelow, "Other")));
  EXPECT_THAT(rows(), IsEmpty());
  EXPECT_EQ(registryCount(), "0");
}

TEST_F(WindowsTracks, CleaningSearchHistoryWorksInItsOrder) {
  world_.value(hkcu(kSearch), "0", "a").key(hkcu(below(kBarsBelow, "FilesNamedMRU")));
  call("c2");
  EXPECT_THAT(
      calls({"grant", "values", "value ", "key "}),
      ElementsAre("grant software\\microsoft\\windows\\currentversion\\explorer\\WordWheelQuery",
                  "values " + std::string(kSearch), "value " + std::string(kSearch) + ":0",
                  "grant " + std::string(kBars), "key " + below(kBarsBelow, "FilesNamedMRU"),
                  "key " + below(kBarsBelow, "ContainingTextMRU")));
}

TEST_F(WindowsTracks, AnEmptySearchHistoryShowsZeroOnlyWhileNoTaskHasCounted) {
  call("c2");
  EXPECT_EQ(count(), "0");
  countCell().text = "";
  form().txtregcount.setText("3");  // of earlier tasks
  call("c2");
  EXPECT_EQ(count(), "");
  call("t2");
  EXPECT_EQ(count(), "");
  form().txtregcount.setText("0");
  call("t2");
  EXPECT_EQ(count(), "0");
}

TEST_F(WindowsTracks, TestingSearchHistoryNamesNoValueAndDeletesNone) {
  world_.value(hkcu(kSearch), "0", "a").value(hkcu(kSearch), "1", "b");
  form().txtregcount.setText("5");
  call("t2");
  EXPECT_THAT(rows(),
              ElementsAre("Clean start find history <OK>", "Clean start find history <OK>"));
  EXPECT_FALSE(ghosted(1) || ghosted(2));
  EXPECT_EQ(count(), "2");
  EXPECT_EQ(form().trackcount, 2);
  EXPECT_EQ(registryCount(), "7");
  EXPECT_EQ(value(kSearch, "0"), "a");
  EXPECT_THAT(calls({"grant", "value "}), IsEmpty());
  EXPECT_EQ(form().View200.ensuredRow(), 2u);
}

TEST_F(WindowsTracks, TheRecycleBinIsCountedInFilesAndEmptied) {
  world_.file("C:\\$Recycle.Bin\\S-1\\$R1.txt", std::string(100, 'x'));
  world_.file("C:\\$Recycle.Bin\\S-1\\$I1.txt");
  world_.file("C:\\$Recycle.Bin\\S-1\\$Rfolder\\in.txt", std::string(50, 'x'));
  form().txtfilecount.setText("4");
  call("c4");
  EXPECT_THAT(rows(), ElementsAre("Windows RecycleBin Files  <OK>"));
  EXPECT_TRUE(ghosted(1));
  EXPECT_EQ(fileCount(), "6");
  EXPECT_EQ(fileSize(), "150");
  EXPECT_EQ(form().trackcount, 0);  // the row will show "0" beside growing totals
  EXPECT_EQ(registryCount(), "0");
  EXPECT_EQ(form().recycled_items, 2);
  EXPECT_FALSE(world_.exists("C:\\$Recycle.Bin\\S-1\\$R1.txt"));
  EXPECT_FALSE(world_.exists("C:\\$Recycle.Bin\\S-1\\$Rfolder"));
}

TEST_F(WindowsTracks, TestingTheRecycleBinTwiceReportsTheSameAndChangesNothing) {
  world_.file("C:\\$Recycle.Bin\\S-1\\$R1.txt", std::string(100, 'x'));
  call("t4");
  EXPECT_EQ(fileCount(), "1");
  EXPECT_EQ(fileSize(), "100");
  call("t4");
  EXPECT_EQ(fileCount(), "2");
  EXPECT_EQ(fileSize(), "200");
  EXPECT_EQ(form().recycled_items, 1);
  EXPECT_EQ(form().trackcount, 0);
  EXPECT_TRUE(world_.exists("C:\\$Recycle.Bin\\S-1\\$R1.txt"));
  EXPECT_EQ(form().View200.ensuredRow(), 2u);
}

TEST_F(WindowsTracks, CleaningTheIconCacheDeletesTwoValues) {
  world_.rawValue(hkcu(kTray), "IconStreams", "hex:01,02,03,04").value(hkcu(kTray), "Other", "x");
  world_.rawValue(hkcu(kTray), "PastIconsStream", "hex:01,02,03,04");
  call("c96");
  EXPECT_EQ(value(kTray, "IconStreams"), "<none>");
  EXPECT_EQ(value(kTray, "PastIconsStream"), "<none>");
  EXPECT_EQ(value(kTray, "Other"), "x");
  EXPECT_THAT(
      calls({"grant", "value "}),
      ElementsAre("grant " + std::string(kTray), "value " + std::string(kTray) + ":PastIconsStream",
                  "value " + std::string(kTray) + ":IconStreams"));
}

TEST_F(WindowsTracks, TheIconCacheIsTwoTracksWhetherOrNotItIsThere) {
  for (const std::string_view procedure : {"t96", "c96"}) {
    form().View200.clear();
    form().txtregcount.setText("1");
    call(procedure);
    EXPECT_THAT(rows(),
                ElementsAre("Notification Area: " + std::string(kTray) + "\\PastIconsStream  <OK>",
                            "Notification Area: " + std::string(kTray) + "\\IconStreams  <OK>"))
        << procedure;
    EXPECT_TRUE(ghosted(1) && ghosted(2));
    EXPECT_EQ(registryCount(), "3");
    EXPECT_EQ(form().trackcount, 0);
  }
}

TEST_F(WindowsTracks, TestingTheIconCacheTouchesNoKey) {
  call("t96");
  EXPECT_THAT(calls({""}), IsEmpty());
}

}  // namespace
}  // namespace tavr::testing
