// Files that wait for the next start of Windows: which searches skip them, and
// what the deletion that skips them queues.
#include <functional>
#include <optional>

#include "tests/support/forwarding_files.h"
#include "tests/unit/tracks/three_logs.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;

constexpr std::string_view kSession =
    "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager";
constexpr std::string_view kPending = "PendingFileRenameOperations";

class PendingList : public ThreeLogs {
 protected:
  void pending(const std::vector<std::string>& entries) {
    std::string raw = "hex(7):";
    for (const std::string& entry : entries) {
      for (const char c : entry) raw += hex(c) + ",00,";
      raw += "00,00,";
    }
    world_.rawValue(kSession, kPending, raw + "00,00");
  }
  static std::string hex(char c) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    const auto byte = static_cast<unsigned char>(c);
    return {kDigits[byte >> 4], kDigits[byte & 15]};
  }
  // Entries of the pending value as it now stands.
  std::vector<std::string> pendingNow() {
    const auto provider = world_.machine().wmi.bindRegistryProvider(
        "winmgmts:{impersonationLevel=impersonate}!\\\\.\\root\\default:StdRegProv");
    std::vector<std::string> entries = {"<none>"};
    std::vector<std::string> read;
    if (provider->getMultiStringValue(0x80000002,
                                      "SYSTEM\\CurrentControlSet\\Control\\Session Manager",
                                      kPending, read) == kSuccess) {
      entries = read;
    }
    return entries;
  }
};

TEST_F(PendingList, PendingFilesAreSkippedWithoutCaseAndBehindTheirPrefix) {
  pending({"\\??\\C:\\D\\A.LOG", ""});
  srch2(tracks(), kLogs, "*.log", "label");
  EXPECT_EQ(form().Text16.text(), "|\\??\\c:\\d\\a.log|");
  EXPECT_THAT(rows(), ElementsAre("C:\\d\\sub\\c.log label", "C:\\d\\b.log label"));
  EXPECT_EQ(form().trackcount, 2);
  EXPECT_EQ(form().tracksize, 50);
}

TEST_F(PendingList, AFileWhoseNameOnlyBeginsAPendingNameIsSkippedToo) {
  pending({"\\??\\C:\\d\\a.log.old", "", "\\??\\C:\\d\\b.logs", ""});
  srchd2(tracks(), kLogs, "*.log", "label");
  EXPECT_THAT(rows(), ElementsAre("C:\\d\\sub\\c.log label"));
  EXPECT_TRUE(remains("a.log") && remains("b.log"));
}

TEST_F(PendingList, ThePendingListIsRebuiltByEachSearch) {
  pending({"\\??\\C:\\x", "", "\\??\\C:\\Y", ""});
  form().Text16.setText("left over");
  srch2(tracks(), "C:\\missing", "*.*", "label");
  EXPECT_EQ(form().Text16.text(), "|\\??\\c:\\x||\\??\\c:\\y|");
}

TEST_F(PendingList, APendingListThatCannotBeReadSkipsNothing) {
  world_.value(kSession, kPending, "C:\\d\\a.log");  // a text, no list
  form().Text16.setText("c:\\d\\b.log");
  srch2(tracks(), kLogs, "*.log", "label");
  EXPECT_EQ(form().Text16.text(), "");
  EXPECT_EQ(form().trackcount, 3);
}

// Does something whenever a folder is listed.
class ListedFolders : public ForwardingFiles {
 public:
  using ForwardingFiles::ForwardingFiles;
  void listFolder(std::string_view folder, std::string_view mask, FolderListing& listing) override {
    if (onList) onList();
    ForwardingFiles::listFolder(folder, mask, listing);
  }
  std::function<void()> onList;
};

// What the text of the pending list holds while a folder is listed.
class PendingListAtTheSearch : public PendingList {
 protected:
  Machine machineBelow(const Machine& m) override {
    listed_.emplace(m.files);
    return testing::machineWith(m, *listed_);
  }
  using Primitive = decltype(&srch2);
  std::string textAtTheSearchOf(Primitive primitive) {
    form().Text16.setText("left over");
    std::string text = "<nothing listed>";
    listed_->onList = [&] { text = form().Text16.text(); };
    primitive(tracks(), "C:\\d\\sub", "*.log", "label");
    listed_->onList = nullptr;
    return text;
  }
  std::optional<ListedFolders> listed_;
};

TEST_F(PendingListAtTheSearch, IsReadByTheListingBeforeItAndByTheDeletionBehindIt) {
  pending({"\\??\\C:\\x", ""});
  EXPECT_EQ(textAtTheSearchOf(srch2), "|\\??\\c:\\x|");
  EXPECT_EQ(textAtTheSearchOf(srchd2), "left over");
  EXPECT_EQ(form().Text16.text(), "|\\??\\c:\\x|");
}

TEST_F(PendingList, PlainSearchesDoNotLookAtThePendingList) {
  pending({"\\??\\C:\\d\\a.log", ""});
  srchd(tracks(), kLogs, "*.log", "label");
  EXPECT_EQ(form().trackcount, 3);
  EXPECT_FALSE(remains("a.log"));
}

TEST_F(PendingList, EachDeletedFileQueuesTwoEmptyEntriesAndTheWholeQueueReplacesTheValue) {
  pending({"\\??\\C:\\other", ""});
  srchd2(tracks(), "C:\\d", "?.log", "label");  // all three
  EXPECT_EQ(form().pending_count, 6);
  srchd2(tracks(), "C:\\d", "keep.txt", "label");
  EXPECT_EQ(form().pending_count, 8);
  EXPECT_EQ(form().pendingpairs, std::vector<std::string>(9));
  EXPECT_EQ(pendingNow(), std::vector<std::string>(9));
  EXPECT_FALSE(form().file_system_object.has_value());
}

TEST_F(PendingList, TwoFilesGiveFiveEmptyStrings) {
  world_.file("C:\\e\\1.log").file("C:\\e\\2.log");
  srchd2(tracks(), "C:\\e", "*.log", "label");
  EXPECT_EQ(form().pending_count, 4);
  EXPECT_EQ(form().pendingpairs, std::vector<std::string>(5));
  // Access is granted for the reading before and for the one saving after.
  EXPECT_EQ(calls({"grant HKLM:"}).size(), 2u);
  EXPECT_EQ(pendingNow(), std::vector<std::string>(5));
}

TEST_F(PendingList, AReadOnlyFileIsQueuedEmptyAndStays) {
  world_.file("C:\\e\\1.log").readOnly("C:\\e\\1.log");
  srchd2(tracks(), "C:\\e", "*.log", "label");
  EXPECT_TRUE(world_.exists("C:\\e\\1.log"));
  EXPECT_EQ(pendingNow(), std::vector<std::string>(3));
}

TEST_F(PendingList, NothingDeletedLeavesThePendingValueAlone) {
  pending({"\\??\\C:\\d\\a.log", ""});
  srchd2(tracks(), kLogs, "a.log", "label");
  EXPECT_THAT(pendingNow(), ElementsAre("\\??\\C:\\d\\a.log", ""));
  EXPECT_FALSE(form().file_system_object.has_value());
}

}  // namespace
}  // namespace tavr::testing
