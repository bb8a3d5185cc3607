// Lists that change while a procedure works on them: a run that a timer starts
// during a pump fills them anew. What is in hand is finished under its own name: the
// lists may by then hold names of another kind, or none, and nothing but what was
// found may go.
#include <filesystem>
#include <initializer_list>

#include "tests/unit/tracks/cached_pages.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;

void becomes(TextList& list, std::string_view row) {
  list.clear();
  list.add(row);
}

// One cached file, and another that the list names in its place once the first
// block is written: the pumps before it are those of the row, the round and the
// repetition. The first goes from the disk too, so that only a pass that still
// knows its name makes it again.
class ChangedCacheList : public CachedPages {
 protected:
  static constexpr std::string_view kFirst = "C:\\cache\\the page of the morning.htm";
  static constexpr std::string_view kOther = "C:\\cache\\another page altogether.htm";

  ChangedCacheList() {
    world_.file(kFirst, "first").file(kOther, "other");
    world_.machineFile("urlcache.txt", "1\thttp://x/first\t" + std::string(kFirst) + "\n");
  }
  void callAndChange() {
    program();
    events().actAt(4, [this] {
      becomes(form().List20, kOther);
      removed_ = std::filesystem::remove(world_.host(kFirst));
    });
    call("c8");
    EXPECT_TRUE(removed_);
  }

 private:
  bool removed_ = false;
};

TEST_F(ChangedCacheList, LeavesTheFileInHandItsNameToTheKill) {
  keepEntries();
  secure("1", "1", "1");
  callAndChange();
  EXPECT_THAT(rows(), ElementsAre(" = " + std::string(kFirst) + "  <OK>"));
  EXPECT_EQ(left("the page of the morning.htm"), "<gone>");
  EXPECT_EQ(world_.read(kOther), "other");
  EXPECT_THAT(texts(form().List13), ElementsAre("Removing : " + std::string(kFirst)));
}

TEST_F(ChangedCacheList, LeavesTheFileInHandToEveryOverwriting) {
  keepEntriesAndFiles();
  secure("1", "1", "2");
  callAndChange();
  EXPECT_EQ(world_.read(kFirst).substr(0, 8192), std::string(8192, '#'));
  EXPECT_EQ(world_.read(kOther), "other");
}

const std::string kDialogs = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ComDlg32\\";

// What the dialogs keep for the extensions "a" and "b". The empty legacy key has
// a subkey, so that its phase leaves the others alone.
class ChangedDialogs : public TrackTest {
 protected:
  static constexpr int kAmongTheValues = 5;  // the first pump there in the last phase

  ChangedDialogs() { world_.key(hkcu(kDialogs + "LastVisitedPidlMRULegacy\\none")); }
  void callAndChange() {
    program();
    events().actAt(kAmongTheValues, [this] {
      EXPECT_THAT(texts(form().List12), ElementsAre("a", "b"));
      becomes(form().List12, "b");
    });
    call("c5");
  }
  const std::string pidl_ = kDialogs + "OpenSavePidlMRU\\";
  const std::string open_save_ = kDialogs + "OpenSaveMRU\\";
};

TEST_F(ChangedDialogs, AreReadAndCleanedUnderTheNameInHand) {
  for (const char* name : {"a", "b"}) {
    world_.value(hkcu(pidl_ + name), "0", std::string("C:\\of ") + name);
  }
  callAndChange();
  EXPECT_THAT(rows(), ElementsAre("  <OK>", ": C:\\of a  <OK>"));
  EXPECT_EQ(value(pidl_ + "a", "0"), "<none>");
  EXPECT_EQ(value(pidl_ + "b", "0"), "C:\\of b");
  EXPECT_EQ(form().trackcount, 2);
}

TEST_F(ChangedDialogs, AreLookedUpAndCleanedInTheOlderKeyUnderItToo) {
  for (const char* name : {"a", "b"}) {
    world_.rawValue(hkcu(pidl_ + name), "0", "hex:01,02,03,04");
    world_.value(hkcu(open_save_ + name), "0", std::string("C:\\of ") + name);
  }
  callAndChange();
  EXPECT_THAT(rows(), ElementsAre("  <OK>", ": C:\\of a  <OK>"));
  EXPECT_EQ(value(open_save_ + "a", "0"), "<none>");
  EXPECT_EQ(value(open_save_ + "b", "0"), "C:\\of b");
}

const std::string kSearch =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\WordWheelQuery";

class ChangedSearches : public TrackTest {
 protected:
  void callAndChange(std::string_view procedure, int pump) {
    program();
    events().actAt(pump, [this] { becomes(form().List12, "two"); });
    call(procedure);
  }
};

TEST_F(ChangedSearches, AreReadAndCleanedUnderTheNameInHand) {
  world_.value(hkcu(kSearch + "\\one"), "a", "1").value(hkcu(kSearch + "\\two"), "a", "2");
  callAndChange("c95", 2);  // the subkey's pump before
  EXPECT_THAT(rows(), ElementsAre(": 1  <OK>"));
  EXPECT_EQ(value(kSearch + "\\one", "a"), "<none>");
  EXPECT_EQ(value(kSearch + "\\two", "a"), "2");
}

// Two profiles with the same files. The key names "Default" alone; the other
// name comes at the pump of the first file that is found.
class ChangedProfiles : public TrackTest {
 protected:
  ChangedProfiles() { world_.key(hkcu("Software\\Google\\Chrome\\PreferenceMACs\\Default")); }
  static std::string data(std::string_view below) {
    return user("\\AppData\\Local\\Google\\Chrome\\User Data\\") + std::string(below);
  }
  void inBoth(std::initializer_list<std::string_view> files) {
    for (const std::string_view file : files) {
      world_.file(data("Default\\") + std::string(file)).file(data("Guest\\") + std::string(file));
    }
  }
  void callAndChange(std::string_view procedure) {
    program();
    events().actAt(1, [this] {
      EXPECT_THAT(texts(form().List12), ElementsAre("Default"));
      becomes(form().List12, "Guest");
    });
    call(procedure);
  }
  bool remains(std::string_view below) { return world_.exists(data(below)); }
};

TEST_F(ChangedProfiles, AreLookedForUnderTheNameInHandByEveryEntry) {
  inBoth({"Cookies", "IndexedDB\\d", "QuotaManager"});
  callAndChange("c28");
  EXPECT_THAT(rows(), ElementsAre(data("Default\\Cookies") + " Google cookies ",
                                  data("Default\\IndexedDB\\d") + " Google cookies ",
                                  data("Default\\QuotaManager") + " Google cookies "));
  EXPECT_TRUE(remains("Guest\\Cookies") && remains("Guest\\IndexedDB\\d") &&
              remains("Guest\\QuotaManager"));
}

// A list that was emptied would make a search of everybody's profiles of it.
TEST_F(ChangedProfiles, AreLookedForUnderTheNameInHandAlsoWhenNoneIsLeft) {
  inBoth({"Visited Links", "History"});
  program();
  events().actAt(1, [this] { form().List12.clear(); });
  call("c24");
  EXPECT_THAT(rows(), ElementsAre(data("Default\\Visited Links") + " Google Visited Links =",
                                  data("Default\\History") + " Google history "));
  EXPECT_TRUE(remains("Guest\\History") && remains("Guest\\Visited Links"));
}

TEST_F(ChangedProfiles, AreLookedForUnderTheNameInHandByTheSessionsAndTheirExtensions) {
  inBoth({"Extension State\\e", "Session Storage\\s", "Storage\\ext\\x\\def\\Session Storage\\y"});
  callAndChange("c27");
  EXPECT_THAT(rows(), ElementsAre(data("Default\\Extension State\\e") + " Google session =",
                                  data("Default\\Session Storage\\s") + " Google session =",
                                  data("Default\\Storage\\ext\\x\\def\\Session Storage\\y") +
                                      " Google session ="));
  EXPECT_TRUE(remains("Guest\\Session Storage\\s") &&
              remains("Guest\\Storage\\ext\\x\\def\\Session Storage\\y"));
}

}  // namespace
}  // namespace tavr::testing
