// The track of the open and save dialogs, whose two sides read different keys.
#include <optional>

#include "tests/support/machine_with.h"
#include "tests/support/observed_events.h"
#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kBase = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ComDlg32\\";
const std::string kOpenSave = kBase + "OpenSaveMRU";
const std::string kVisited = kBase + "LastVisitedPidlMRU";
const std::string kLegacy = kBase + "LastVisitedPidlMRULegacy";
const std::string kPidl = kBase + "OpenSavePidlMRU";
const std::string kOpenSaveNt =
    "Software\\Microsoft\\Windows nt\\CurrentVersion\\Explorer\\ComDlg32\\OpenSaveMRU";
constexpr std::string_view kBinary = "hex:01,02,03,04";

class CleanedDialogs : public TrackTest {};
class TestedDialogs : public TrackTest {};

TEST_F(CleanedDialogs, WithoutKeysOneRowWithTheEmptyNameIsCounted) {
  call("c5");
  EXPECT_THAT(rows(), ElementsAre("  <OK>"));
  EXPECT_TRUE(ghosted(1));
  EXPECT_EQ(registryCount(), "1");
  EXPECT_EQ(form().trackcount, 1);
  EXPECT_EQ(count(), "");  // the total is not 0
}

TEST_F(CleanedDialogs, EmptyKeysLoseTheirDefaultValues) {
  world_.value(hkcu(kOpenSave), "", "default").value(hkcu(kVisited), "", "default");
  call("c5");
  EXPECT_THAT(rows(), ElementsAre("  <OK>"));
  EXPECT_EQ(value(kOpenSave, ""), "<none>");
  EXPECT_EQ(value(kVisited, ""), "<none>");
  EXPECT_EQ(registryCount(), "1");
}

TEST_F(CleanedDialogs, BothKeysAreCleanedByTheNamesOfTheLastVisitedOnes) {
  world_.value(hkcu(kVisited), "a", "x").rawValue(hkcu(kVisited), "MRUListEx", kBinary);
  world_.value(hkcu(kOpenSave), "a", "x").value(hkcu(kOpenSave), "b", "x");
  world_.key(hkcu(kOpenSave + "\\txt"));
  call("c5");
  EXPECT_THAT(rows(), ElementsAre(" a <OK>", " MRUListEx <OK>"));
  EXPECT_EQ(value(kVisited, "a"), "<none>");
  EXPECT_EQ(value(kVisited, "MRUListEx"), "<none>");
  EXPECT_EQ(value(kOpenSave, "a"), "<none>");
  EXPECT_EQ(value(kOpenSave, "b"), "x");
  EXPECT_EQ(form().trackcount, 2);
}

TEST_F(CleanedDialogs, WithoutTheLastVisitedKeyTheNamesComeFromTheOther) {
  world_.value(hkcu(kOpenSave), "a", "x").key(hkcu(kOpenSave + "\\txt"));
  call("c5");
  EXPECT_THAT(rows(), ElementsAre(" a <OK>"));
  EXPECT_EQ(value(kOpenSave, "a"), "<none>");
}

TEST_F(CleanedDialogs, EachNameIsDeletedInOpenSaveFirst) {
  world_.value(hkcu(kVisited), "a", "x").value(hkcu(kOpenSave), "a", "x");
  world_.value(hkcu(kPidl + "\\txt"), "p", "x");
  world_.value(hkcu(kLegacy + "\\exe"), "l", "x");
  world_.key(hkcu(kOpenSave + "\\txt")).key(hkcu(kOpenSave + "\\exe"));
  call("c5");
  EXPECT_THAT(calls({"value "}),
              ElementsAre("value " + kOpenSave + ":a", "value " + kVisited + ":a",
                          "value " + kOpenSave + "\\exe:l", "value " + kLegacy + "\\exe:l",
                          "value " + kOpenSave + "\\txt:p", "value " + kPidl + "\\txt:p"));
  EXPECT_EQ(calls({"grant"}).front(), "grant " + kOpenSave);
}

TEST_F(CleanedDialogs, BinaryValuesOfSubkeysGoWithoutARow) {
  world_.rawValue(hkcu(kPidl + "\\txt"), "0", kBinary).value(hkcu(kPidl + "\\txt"), "1", "C:\\f");
  world_.rawValue(hkcu(kPidl + "\\txt"), "2", kBinary).value(hkcu(kPidl + "\\zip"), "0", "  ");
  call("c5");
  EXPECT_THAT(rows(), ElementsAre("  <OK>", ": C:\\f  <OK>"));
  EXPECT_TRUE(ghosted(2));
  for (const std::string_view name : {"0", "1", "2"}) {
    EXPECT_EQ(value(kPidl + "\\txt", name), "<none>") << name;
  }
  EXPECT_EQ(value(kPidl + "\\zip", "0"), "<none>");
  EXPECT_TRUE(keyExists(kPidl + "\\txt"));
  EXPECT_EQ(registryCount(), "2");
  EXPECT_EQ(form().trackcount, 2);
  EXPECT_THAT(texts(form().List12), ElementsAre("txt", "zip"));
}

TEST_F(CleanedDialogs, AValueWithoutTextIsLookedUpInOpenSave) {
  world_.key(hkcu(kLegacy + "\\zip"));  // so that the legacy round leaves txt alone
  world_.rawValue(hkcu(kPidl + "\\txt"), "0", kBinary);
  world_.value(hkcu(kOpenSave + "\\txt"), "0", "C:\\g");
  call("c5");
  EXPECT_THAT(rows(), Contains(": C:\\g  <OK>"));
  EXPECT_EQ(value(kOpenSave + "\\txt", "0"), "<none>");
  EXPECT_EQ(value(kPidl + "\\txt", "0"), "<none>");
}

TEST_F(CleanedDialogs, AKeyWithoutSubkeysIsWorkedAsItsOwnSubkey) {
  world_.value(hkcu(kLegacy), "0", "direct").rawValue(hkcu(kPidl), "0", kBinary);
  call("c5");
  EXPECT_THAT(rows(), ElementsAre("  <OK>", ": direct  <OK>"));
  EXPECT_EQ(value(kLegacy, "0"), "<none>");
  EXPECT_EQ(value(kPidl, "0"), "<none>");
}

TEST_F(CleanedDialogs, TheTwoLanguageTextsStandInFront) {
  world_.file("C:\\Program Files\\Tavr Wipe\\lang\\x.ini", "[001]\r\n035=MRU\r\n175=File\r\n");
  world_.value(hkcu(kPidl + "\\txt"), "0", "C:\\f");
  program().form.txtlang.setText("x.ini");
  call("c5");
  EXPECT_THAT(rows(), ElementsAre("MRU  <OK>", "File: C:\\f  <OK>"));
}

TEST_F(CleanedDialogs, AStopIsNotAskedFor) {
  world_.value(hkcu(kVisited), "a", "x").value(hkcu(kVisited), "b", "x");
  stopAtPump(1);
  call("c5");
  EXPECT_EQ(rows().size(), 2u);
  EXPECT_EQ(value(kVisited, "b"), "<none>");
}

// The events are watched below the wraps: something is done at every pump.
class WatchedDialogs : public TrackTest {
 protected:
  Machine machineBelow(const Machine& m) override {
    watched_.emplace(m.events);
    return testing::machineWith(m, *watched_);
  }
  std::string rowAtThePumpsOf(std::string_view procedure) {
    program();
    std::string seen;
    watched_->onPump = [&] {
      const bool closed = countCell().bold && countCell().fore_color == kDarkRed;
      seen += closed ? "closed " : "open ";
      countCell().bold = false;  // to see who closes it again
    };
    call(procedure);
    watched_->onPump = nullptr;
    return seen;
  }
  std::optional<ObservedEvents> watched_;
};

// Without keys each phase goes round once: a pump in the first, and in the
// others one for the subkey and one for its value.
TEST_F(WatchedDialogs, CleaningClosesItsTaskRowAfterTheFirstAndTheLastPhaseAlone) {
  EXPECT_EQ(rowAtThePumpsOf("c5"), "open closed open open open ");
  EXPECT_TRUE(countCell().bold);
}

TEST_F(WatchedDialogs, TestingClosesItsTaskRowAfterEachOfItsTwoPhases) {
  EXPECT_EQ(rowAtThePumpsOf("t5"), "open closed open ");
  EXPECT_TRUE(countCell().bold);
}

TEST_F(TestedDialogs, AStopIsNotAskedFor) {
  world_.value(hkcu(kOpenSave), "a", "x").value(hkcu(kOpenSave), "b", "x");
  world_.value(hkcu(kOpenSave + "\\txt"), "c", "x").value(hkcu(kOpenSave + "\\txt"), "d", "x");
  world_.value(hkcu(kOpenSave + "\\zip"), "e", "x");
  form().stopflag = 1;
  call("t5");
  EXPECT_THAT(rows(),
              ElementsAre("clean open save dialogs a <OK>", "clean open save dialogs b <OK>",
                          "clean open save dialogs: c  <OK>", "clean open save dialogs: d  <OK>",
                          "clean open save dialogs: e  <OK>"));
  EXPECT_EQ(form().trackcount, 5);
}

TEST_F(TestedDialogs, ReportValuesAndValuesOfSubkeys) {
  world_.value(hkcu(kOpenSave), "a", "x").rawValue(hkcu(kOpenSave), "MRUList", kBinary);
  world_.value(hkcu(kOpenSave + "\\txt"), "b", "x").key(hkcu(kOpenSave + "\\zip"));
  form().txtregcount.setText("10");
  call("t5");
  EXPECT_THAT(rows(),
              ElementsAre("clean open save dialogs a <OK>", "clean open save dialogs MRUList <OK>",
                          "clean open save dialogs: b  <OK>"));
  EXPECT_TRUE(ghosted(1) && ghosted(2) && ghosted(3));
  EXPECT_EQ(count(), "3");
  EXPECT_EQ(form().trackcount, 3);
  EXPECT_EQ(registryCount(), "13");
}

TEST_F(TestedDialogs, DeleteNothingAndGrantNothing) {
  world_.value(hkcu(kOpenSave), "a", "x").value(hkcu(kOpenSave + "\\txt"), "b", "x");
  call("t5");
  EXPECT_THAT(calls({"grant", "value ", "key "}), IsEmpty());
  EXPECT_EQ(value(kOpenSave, "a"), "x");
}

TEST_F(TestedDialogs, DoNotLookAtTheKeysThatCleaningTakes) {
  world_.value(hkcu(kVisited), "v", "x").value(hkcu(kLegacy + "\\exe"), "l", "x");
  world_.value(hkcu(kPidl + "\\txt"), "p", "x");
  call("t5");
  EXPECT_THAT(rows(), ElementsAre("clean open save dialogs  <OK>"));
}

TEST_F(TestedDialogs, WithoutTheKeyOneRowWithTheEmptyNameIsCounted) {
  world_.key(hkcu(kPidl + "\\txt"));
  form().List20.add("left over");
  call("t5");
  // The newer key's names go to the other list; this one was emptied.
  EXPECT_THAT(rows(), ElementsAre("clean open save dialogs  <OK>"));
  EXPECT_EQ(calls({"keys"}), RegistryCalls{"keys " + kPidl});
  EXPECT_EQ(count(), "1");
  EXPECT_EQ(registryCount(), "1");
}

TEST_F(TestedDialogs, SubkeysOfTheNtKeyAreLookedUpTwiceInVain) {
  world_.value(hkcu(kOpenSaveNt + "\\txt"), "a", "x");
  call("t5");
  EXPECT_THAT(rows(), ElementsAre("clean open save dialogs  <OK>"));
  EXPECT_THAT(calls({"missing " + kOpenSave + "\\"}),
              ElementsAre("missing " + kOpenSave + "\\txt", "missing " + kOpenSave + "\\txt"));
  EXPECT_THAT(texts(form().List12), ElementsAre("txt"));
}

}  // namespace
}  // namespace tavr::testing
