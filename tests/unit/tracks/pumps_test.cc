// The registry loops pump at each element, ahead of what they do with it: this is
// what keeps the window alive and lets a stop be pressed.
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/machine_with.h"
#include "tests/support/observed_events.h"
#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;

using RowCounts = std::vector<std::size_t>;

class Pumps : public TrackTest {
 protected:
  Machine machineBelow(const Machine& m) override {
    watched_.emplace(m.events);
    return testing::machineWith(m, *watched_);
  }
  /// How many rows there were at each pump.
  RowCounts rowsAtPumps(std::string_view procedure) {
    program();
    RowCounts seen;
    watched_->onPump = [&] {
      seen.push_back(rows().size());
      if (onPump) onPump();
    };
    call(procedure);
    watched_->onPump = nullptr;
    return seen;
  }
  std::function<void()> onPump;

 private:
  std::optional<ObservedEvents> watched_;
};

const std::string kOpenSave =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ComDlg32\\OpenSaveMRU";

// A pump for each value, one for each subkey and one for each value in it, the
// one without a value counting as one with an empty name.
TEST_F(Pumps, TestingTheDialogsServesEachValueAndEachSubkey) {
  world_.value(hkcu(kOpenSave), "a", "x").value(hkcu(kOpenSave), "b", "x");
  world_.value(hkcu(kOpenSave + "\\txt"), "c", "x").value(hkcu(kOpenSave + "\\txt"), "d", "x");
  world_.key(hkcu(kOpenSave + "\\zip"));
  EXPECT_EQ(rowsAtPumps("t5"), RowCounts({0, 1, 2, 2, 3, 4, 4}));
  EXPECT_EQ(rows().size(), 4u);
}

const std::string kSearch =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\WordWheelQuery";

class SearchPumps : public Pumps {
 protected:
  SearchPumps() {
    world_.value(hkcu(kSearch), "a", "x").value(hkcu(kSearch), "k", "x");
    world_.value(hkcu(kSearch + "\\one"), "a", "1").value(hkcu(kSearch + "\\one"), "b", "2");
    world_.value(hkcu(kSearch + "\\two"), "c", "3");
  }
};

TEST_F(SearchPumps, TestingServesEachSubkeyAndValueInBothRounds) {
  // In the second round both of the key's names for each of the two subkeys.
  EXPECT_EQ(rowsAtPumps("t95"), RowCounts({0, 0, 1, 2, 2, 3, 3, 4, 4, 4, 4}));
}

TEST_F(SearchPumps, CleaningServesThemAsTestingDoes) {
  // The second subkey finds the key emptied: its one pass has the empty name.
  EXPECT_EQ(rowsAtPumps("c95"), RowCounts({0, 0, 1, 2, 2, 3, 3, 3, 3, 3}));
}

TEST_F(SearchPumps, CleaningServesAValueBeforeItIsDeleted) {
  std::string seen;
  onPump = [&] { seen += value(kSearch + "\\one", "a") + " "; };
  rowsAtPumps("c95");
  EXPECT_EQ(seen.substr(0, 11), "1 1 <none> ");  // the subkey, the value, the one behind it
}

std::string extensible(std::string_view below) {
  return "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\6.0\\Cache\\Extensible "
         "Cache\\" +
         std::string(below);
}

TEST_F(Pumps, TestingTheExtensibleCacheServesEachName) {
  world_.key(hkcu(extensible("one"))).key(hkcu(extensible("two")));
  EXPECT_EQ(rowsAtPumps("t11"), RowCounts({0, 1}));
}

TEST_F(Pumps, CleaningTheExtensibleCacheServesEachNameBeforeItsKeyGoes) {
  world_.key(hkcu(extensible("one"))).key(hkcu(extensible("two")));
  world_.value("HKEY_LOCAL_MACHINE\\Network\\Logon", "username", "ann");
  world_.key("HKEY_USERS\\ann\\" + extensible("three"));
  std::vector<bool> two_is_there;
  onPump = [&] { two_is_there.push_back(keyExists(extensible("two"))); };
  EXPECT_EQ(rowsAtPumps("c11"), RowCounts({0, 1, 2}));
  EXPECT_THAT(two_is_there, ElementsAre(true, true, false));
}

}  // namespace
}  // namespace tavr::testing
