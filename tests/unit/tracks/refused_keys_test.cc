// A registry that lets nobody into the user's keys: every procedure that opens
// them comes to its end, reports as it always does, and leaves the keys alone.
#include <optional>

#include "tests/support/machine_with.h"
#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {
namespace {

using ::testing::IsEmpty;

// Refuses, below HKCU, the two masks with which tracks and grants open a key.
class RefusingRegistry : public Registry {
 public:
  explicit RefusingRegistry(Registry& inner) : inner_(inner) {}

  OpenedKey open(Root root, std::string_view path, std::uint32_t access) override {
    constexpr std::uint32_t kToTrack = 0x2013F;
    constexpr std::uint32_t kToGrant = 0x6013F;
    const bool refused = access == kToTrack || access == kToGrant;
    if (root == Root::kCurrentUser && refused) return {kAccessDenied, nullptr};
    return inner_.open(root, path, access);
  }
  OpenedKey create(Root root, std::string_view path, std::string_view key_class,
                   std::uint32_t access) override {
    return inner_.create(root, path, key_class, access);
  }
  Status deleteKey(Root root, std::string_view path) override {
    return inner_.deleteKey(root, path);
  }

 private:
  Registry& inner_;
};

const std::string kExplorer = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";
const std::string kDialogs = kExplorer + "ComDlg32\\";
const std::string kIe = "Software\\Microsoft\\Internet Explorer\\";
const std::string kExtensible =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\5.0\\Cache\\Extensible Cache";
const std::string kTray =
    "Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\TrayNotify";

struct Refused {
  std::string_view procedure;
  std::vector<std::string> rows;
  int tracks;  ///< trackcount at the end
  std::string_view registry_count;
  bool grants;
};

const Refused kRefused[] = {
    {"c1", {"Clean start run history  <OK>"}, 0, "1", true},
    {"c2", {}, 0, "0", true},
    {"t2", {}, 0, "0", false},
    {"c3", {"start documents history  <OK>"}, 0, "1", true},
    {"t3", {"start documents history  <OK>"}, 0, "1", true},
    {"c4", {"Windows RecycleBin Files  <OK>"}, 0, "0", false},
    // Settings are read with another mask: default values still have their rows.
    {"c5", {"  <OK>", ": legacy  <OK>", ": pidl  <OK>"}, 3, "3", true},
    {"t5", {"clean open save dialogs  <OK>"}, 1, "1", false},
    {"c6", {}, 0, "0", true},
    {"t6", {}, 0, "0", true},
    {"c7", {}, 0, "0", true},
    {"t7", {}, 0, "0", true},
    // The empty name twice: the user's own keys and those that the logged-on user's
    // name leads to. That name's key is open to all, and the last to be granted.
    {"c11",
     {"Cleaning Internet History value:   <OK>", "Cleaning Internet History value:   <OK>"},
     2,
     "2",
     false},
    {"t11", {"Cleaning Internet History value:   <OK>"}, 1, "1", false},
    {"c95", {": search  <OK>", ": search  <OK>"}, 2, "0", true},
    {"t95", {": search  <OK>", ": search  <OK>"}, 2, "0", true},
    {"c96",
     {"Notification Area: " + kTray + "\\PastIconsStream  <OK>",
      "Notification Area: " + kTray + "\\IconStreams  <OK>"},
     0,
     "2",
     true},
};

class RefusedKeys : public TrackTest, public ::testing::WithParamInterface<Refused> {
 protected:
  RefusedKeys() {
    world_.value(hkcu(kExplorer + "RunMRU"), "a", "cmd\\1");
    world_.value(hkcu(kExplorer + "WordWheelQuery"), "", "search");
    world_.value(hkcu(kExplorer + "WordWheelQuery"), "0", "x");
    world_.value(hkcu(kExplorer + "RecentDocs\\.txt"), "0", "x");
    world_.value(hkcu(kExplorer + "TypedPaths"), "url1", "C:\\One");
    world_.value(hkcu(kDialogs + "OpenSaveMRU\\txt"), "a", "x");
    world_.value(hkcu(kDialogs + "LastVisitedPidlMRU"), "a", "x");
    world_.value(hkcu(kDialogs + "LastVisitedPidlMRULegacy"), "", "legacy");
    world_.value(hkcu(kDialogs + "OpenSavePidlMRU"), "", "pidl");
    world_.value(hkcu(kTray), "IconStreams", "x").value(hkcu(kTray), "PastIconsStream", "x");
    world_.value(hkcu(kIe + "TypedURLs"), "url1", "http://a.example/");
    world_.value(hkcu(kIe + "LowRegistry\\DOMStorage\\a.example"), "v", "x");
    world_.value(hkcu(kIe + "DOMStorage\\b.example"), "v", "x");
    world_.value(hkcu(kExtensible + "\\one"), "v", "x");
    world_.value("HKEY_LOCAL_MACHINE\\Network\\Logon", "username", "ann");
    world_.value(hkcu("ann\\" + kExtensible + "\\one"), "v", "x");
    world_.file("C:\\$Recycle.Bin\\S-1\\$R1.txt");
    world_.machine();
    planted_ = world_.readMachineFile("registry.reg");
  }
  Machine machineBelow(const Machine& m) override {
    refusing_.emplace(m.registry);
    return testing::machineWith(m, *refusing_);
  }
  // The registry's file, written anew if a key or value has changed.
  std::string kept() {
    world_.machine().events.wait(0);
    return world_.readMachineFile("registry.reg");
  }

  std::string planted_;

 private:
  std::optional<RefusingRegistry> refusing_;
};

TEST_P(RefusedKeys, LetTheProcedureComeToItsEndAndStayAsTheyAre) {
  const Refused& expected = GetParam();
  form().grant_failed = false;
  call(expected.procedure);
  EXPECT_EQ(rows(), expected.rows);
  EXPECT_EQ(form().trackcount, expected.tracks);
  EXPECT_EQ(registryCount(), expected.registry_count);
  EXPECT_EQ(form().grant_failed, expected.grants);
  EXPECT_THAT(calls({"keys", "values", "value ", "key "}), IsEmpty());
  EXPECT_EQ(kept(), planted_);
  // A change would have been seen.
  world_.machine().registry.create(Root::kCurrentUser, "Software\\seen", "", 0x2003F);
  EXPECT_NE(kept(), planted_);
}

INSTANTIATE_TEST_SUITE_P(Catalogue, RefusedKeys, ::testing::ValuesIn(kRefused),
                         [](const auto& test) { return std::string(test.param.procedure); });

}  // namespace
}  // namespace tavr::testing
