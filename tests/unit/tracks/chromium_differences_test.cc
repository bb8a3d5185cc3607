// Where a browser of the Chromium family, or one side of a pair, goes its own
// way.
#include "tests/unit/tracks/track_fixture.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Chrome : public TrackTest {
 protected:
  static std::string data(std::string_view below) {
    return user("\\AppData\\Local\\Google\\Chrome\\User Data\\") + std::string(below);
  }
  void profile(std::string_view name) {
    world_.key(hkcu("Software\\Google\\Chrome\\PreferenceMACs\\") + std::string(name));
  }
};

TEST_F(Chrome, JournalsGoInAllFoldersWhetherOrNotTheKeyNamesThem) {
  profile("Default");
  for (const std::string_view file :
       {"Default\\History-journal", "Profile 9\\Cookies-journal", "Crashpad\\x-journal.bak",
        "root-journal", "Profile 9\\History", "Profile 9\\journal"}) {
    world_.file(data(file));
  }
  call("c24");
  EXPECT_EQ(form().trackcount, 4);
  EXPECT_FALSE(world_.exists(data("Profile 9\\Cookies-journal")));
  EXPECT_FALSE(world_.exists(data("Crashpad\\x-journal.bak")));
  EXPECT_FALSE(world_.exists(data("root-journal")));
  EXPECT_TRUE(world_.exists(data("Profile 9\\History")));
  EXPECT_TRUE(world_.exists(data("Profile 9\\journal")));
}

TEST_F(Chrome, WithoutTheKeyTheJournalsAreSearchedAllTheSame) {
  world_.file(data("Default\\History-journal")).file(data("Default\\History"));
  form().List12.add("left over");
  call("t24");
  EXPECT_THAT(rows(), ElementsAre(data("Default\\History-journal Google chrome History =")));
  EXPECT_TRUE(world_.exists(data("Default\\History")));
  EXPECT_TRUE(countCell().bold);
  EXPECT_EQ(form().View200.ensuredRow(), 1u);
}

TEST_F(Chrome, TheCountIsBoldAlreadyBehindTheJournals) {
  profile("Default");
  world_.file(data("Default\\History-journal")).file(data("Default\\Visited Links"));
  for (const char* procedure : {"t24", "c24"}) {
    form().View200.clear();
    countCell().bold = false;
    bool bold = false;
    std::size_t scrolled_to = 0;
    events().actAt(2, [&] {
      bold = countCell().bold;
      scrolled_to = form().View200.ensuredRow();
    });
    call(procedure);
    EXPECT_TRUE(bold) << procedure;
    EXPECT_EQ(scrolled_to, 1u) << procedure;
    EXPECT_EQ(form().View200.ensuredRow(), 2u) << procedure;  // and once more at the end
  }
}

TEST_F(Chrome, TheJournalsComeBeforeTheKeyIsGranted) {
  world_.file(data("Default\\History-journal"));
  RegistryCalls at_the_journal = {"not asked"};
  program();
  events().actAt(1, [&] { at_the_journal = calls({""}); });
  call("c24");
  EXPECT_THAT(at_the_journal, IsEmpty());
  EXPECT_EQ(calls({"grant"}).size(), 1u);
}

TEST_F(Chrome, TestingDeletesTheHistoryAndReportsIt) {
  profile("Default");
  world_.file(data("Default\\History")).file(data("Default\\Top Sites"));
  world_.file(data("Default\\Shortcuts"));
  call("t24");
  EXPECT_THAT(rows(), ElementsAre(data("Default\\Top Sites Google history "),
                                  data("Default\\History Google history "),
                                  data("Default\\Shortcuts Google history ")));
  EXPECT_FALSE(world_.exists(data("Default\\History")));
  EXPECT_FALSE(world_.exists(data("Default\\Top Sites")));
  EXPECT_TRUE(world_.exists(data("Default\\Shortcuts")));
}

TEST_F(Chrome, TheSessionStorageOfEachExtensionIsSearchedInsideTheProfileLoop) {
  profile("A");
  profile("B");
  for (const std::string_view file :
       {"A\\Storage\\ext\\two\\def\\Session Storage\\1",
        "A\\Storage\\ext\\one\\def\\Session Storage\\2",
        "A\\Storage\\ext\\one\\def\\Local Storage\\3", "A\\Storage\\ext\\file",
        "B\\Session Storage\\4", "A\\Session Storage\\5"}) {
    world_.file(data(file));
  }
  const std::string label = " Google session =";
  for (const std::string_view procedure : {"t27", "c27"}) {
    form().View200.clear();
    call(procedure);
    EXPECT_THAT(rows(), ElementsAre(data("A\\Session Storage\\5") + label,
                                    data("A\\Storage\\ext\\one\\def\\Session Storage\\2") + label,
                                    data("A\\Storage\\ext\\two\\def\\Session Storage\\1") + label,
                                    data("B\\Session Storage\\4") + label))
        << procedure;
  }
  EXPECT_FALSE(world_.exists(data("A\\Storage\\ext\\two\\def\\Session Storage\\1")));
  EXPECT_TRUE(world_.exists(data("A\\Storage\\ext\\one\\def\\Local Storage\\3")));
  EXPECT_TRUE(world_.exists(data("A\\Storage\\ext\\file")));
  EXPECT_FALSE(form().file_system_object.has_value());
}

TEST_F(Chrome, TheExtensionWalkLeavesTheFormsObjectAlone) {
  profile("A");
  world_.folder(data("A\\Storage\\ext\\one"));
  call("t27");
  EXPECT_FALSE(form().file_system_object.has_value());
  form().file_system_object.emplace();
  call("t27");
  EXPECT_TRUE(form().file_system_object.has_value());
}

class Family : public TrackTest {
 protected:
  std::string profile(std::string_view vendor, std::string_view folder) {
    world_.key(hkcu("Software\\") + std::string(vendor) + "\\PreferenceMACs\\Default");
    return user("\\AppData\\Local\\") + std::string(folder) + "\\User Data\\Default\\";
  }
};

TEST_F(Family, OperaDependsOnNoKeyAndEmptiesTheScratchList) {
  const std::string opera = user("\\AppData\\Roaming\\Opera Software\\Opera Stable\\");
  world_.file(opera + "Default\\History").file(opera + "Top Sites").file(opera + "Shortcuts");
  form().List12.add("left over");
  call("c31");
  EXPECT_THAT(rows(), ElementsAre(opera + "Default\\History Opera History "));
  EXPECT_THAT(calls({""}), IsEmpty());
  EXPECT_THAT(texts(form().List12), IsEmpty());
}

TEST_F(Family, EdgeKeepsItsMainHistory) {
  const std::string edge = profile("Microsoft\\Edge", "Microsoft\\Edge");
  world_.file(edge + "History").file(edge + "Shortcuts").file(edge + "Top Sites");
  for (const std::string_view procedure : {"c40", "c41", "c42", "c43", "c44"}) call(procedure);
  EXPECT_TRUE(world_.exists(edge + "History") && world_.exists(edge + "Shortcuts"));
  EXPECT_FALSE(world_.exists(edge + "Top Sites"));
}

TEST_F(Family, TestingTorchDeletesItsHistoryAndNoTabs) {
  const std::string torch = profile("Torch", "Torch");
  world_.file(torch + "History").file(torch + "Current Tabs").file(torch + "Shortcuts");
  call("t80");
  EXPECT_FALSE(world_.exists(torch + "History"));
  EXPECT_TRUE(world_.exists(torch + "Current Tabs") && world_.exists(torch + "Shortcuts"));
  EXPECT_THAT(rows(), ElementsAre(torch + "Shortcuts Torch Browser Localstorage",
                                  torch + "History Torch Browser Localstorage"));
}

TEST_F(Family, TorchsHistoryPatternRunsTwiceAndAHeldFileShowsIt) {
  const std::string torch = profile("Torch", "Torch");
  world_.file(torch + "History").machineFile("locked.txt", torch + "History\n");
  call("c80");
  EXPECT_EQ(rows(), std::vector<std::string>(2, torch + "History Torch Browser Localstorage"));
  EXPECT_EQ(form().trackcount, 2);
}

TEST_F(Family, TestingMaxthonSkipsCookiesThatWaitAndCleaningDoesNot) {
  const std::string maxthon = profile("Maxthon", "Maxthon\\Application");
  world_.file(maxthon + "Cookies").file(maxthon + "Network\\Cookies");
  std::string raw = "hex(7):";
  for (const char c : "\\??\\" + maxthon + "Cookies") {
    constexpr std::string_view kDigits = "0123456789abcdef";
    raw += {kDigits[static_cast<std::size_t>(c >> 4)], kDigits[static_cast<std::size_t>(c & 15)]};
    raw += ",00,";
  }
  world_.rawValue("HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager",
                  "PendingFileRenameOperations", raw + "00,00,00,00,00,00");
  call("t94");
  EXPECT_THAT(rows(), ElementsAre(maxthon + "Network\\Cookies Maxthon Browser Cookies"));
  EXPECT_EQ(form().trackcount, 1);
  call("c94");
  EXPECT_EQ(form().trackcount, 2);
  EXPECT_FALSE(world_.exists(maxthon + "Cookies"));
}

TEST_F(Family, VivaldiAndBraveCloseTheirRowsInTheTestOnly) {
  const std::string vivaldi = profile("Vivaldi", "Vivaldi");
  world_.file(vivaldi + "Login Data");
  const std::string brave = profile("BraveSoftware\\Brave-Browser", "BraveSoftware\\Brave-Browser");
  world_.file(brave + "Login Data");
  for (const std::string_view number : {"62", "72"}) {
    countCell() = {};
    form().View200.clear();
    const std::string test = "t" + std::string(number);
    const std::string clean = "c" + std::string(number);
    call(clean);
    EXPECT_EQ(rows().size(), 1u);
    EXPECT_FALSE(countCell().bold) << clean;
    EXPECT_EQ(form().View200.ensuredRow(), 0u) << clean;
    call(test);
    EXPECT_TRUE(countCell().bold) << test;
    EXPECT_EQ(countCell().fore_color, kDarkRed) << test;
    EXPECT_EQ(form().View200.ensuredRow(), 1u) << test;
  }
}

}  // namespace
}  // namespace tavr::testing
