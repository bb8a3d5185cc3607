// The value that Windows works off at its next start: queued, written, shown.
#include <gtest/gtest.h>

#include "basic/resume_next.h"
#include "services/deletion.h"
#include "tests/support/machine_with.h"
#include "tests/support/test_machine.h"
#include "tracks/primitives.h"

namespace tavr {
namespace {

using Texts = std::vector<std::string>;

constexpr std::string_view kSessionManager = "SYSTEM\\CurrentControlSet\\Control\\Session Manager";
constexpr std::string_view kLongKey =
    "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager";
constexpr std::string_view kValue = "PendingFileRenameOperations";
constexpr auto kRoot = static_cast<std::uint32_t>(Root::kLocalMachine);

// A provider that notes the methods that are called.
class RecordingWmi : public Wmi {
 public:
  std::unique_ptr<StdRegProv> bindRegistryProvider(std::string_view moniker) override {
    calls.push_back("bind " + std::string(moniker));
    return std::make_unique<Provider>(calls);
  }
  bool queryProcessIds(std::string_view, std::vector<std::uint32_t>&) override { return false; }

  Texts calls;

 private:
  class Provider : public StdRegProv {
   public:
    explicit Provider(Texts& calls) : calls_(calls) {}
    Status getExpandedStringValue(std::uint32_t, std::string_view, std::string_view,
                                  std::string&) override {
      return kNotSupported;
    }
    Status getMultiStringValue(std::uint32_t, std::string_view, std::string_view name,
                               Texts&) override {
      calls_.push_back("get " + std::string(name));
      return kSuccess;
    }
    Status setMultiStringValue(std::uint32_t, std::string_view, std::string_view name,
                               const Texts& texts) override {
      calls_.push_back("set " + std::string(name) + " " + std::to_string(texts.size()));
      return kSuccess;
    }
    Status createKey(std::uint32_t, std::string_view key) override {
      calls_.push_back("create " + std::string(key));
      return kSuccess;
    }

   private:
    Texts& calls_;
  };
};

class PendingRenamesTest : public ::testing::Test {
 protected:
  Form1& form() { return machine.program().form; }
  Deletion& deletion() { return machine.program().deletion; }
  std::unique_ptr<StdRegProv> provider() {
    return machine.machine().wmi.bindRegistryProvider(
        "winmgmts:{impersonationLevel=impersonate}!\\\\.\\root\\default:StdRegProv");
  }
  void store(const Texts& texts) {
    ASSERT_EQ(provider()->createKey(kRoot, kSessionManager), kSuccess);
    ASSERT_EQ(provider()->setMultiStringValue(kRoot, kSessionManager, kValue, texts), kSuccess);
  }
  Texts stored() {
    Texts texts;
    if (provider()->getMultiStringValue(kRoot, kSessionManager, kValue, texts) != kSuccess) {
      return {"<none>"};
    }
    return texts;
  }
  void queue(std::string_view text) {
    deletion().queuePending([&] { return std::string(text); });
  }
  void queueFailing() {
    deletion().queuePending([]() -> std::string { throw RuntimeError{kErrNoElement, ""}; });
  }

  testing::TestMachine machine;
};

TEST_F(PendingRenamesTest, EachFileAddsTwoEntriesAndOneIsSpare) {
  queue("\\??\\C:\\a");
  EXPECT_EQ(form().pending_count, 2);
  EXPECT_EQ(form().pendingpairs, Texts({"\\??\\C:\\a", "", ""}));
  queue("\\??\\C:\\b");
  EXPECT_EQ(form().pending_count, 4);
  EXPECT_EQ(form().pendingpairs, Texts({"\\??\\C:\\a", "", "\\??\\C:\\b", "", ""}));
}

TEST_F(PendingRenamesTest, AnEntryThatFailsStaysEmptyAndCountsAllTheSame) {
  queueFailing();
  queueFailing();
  EXPECT_EQ(form().pending_count, 4);
  EXPECT_EQ(form().pendingpairs, Texts({"", "", "", "", ""}));
}

TEST_F(PendingRenamesTest, SavingReplacesWhatOtherProgramsQueued) {
  store({"\\??\\C:\\theirs", ""});
  queueFailing();
  queueFailing();
  deletion().savepending();
  EXPECT_EQ(stored(), Texts({"", "", "", "", ""}));
}

TEST_F(PendingRenamesTest, SavingMakesTheKeyAndWritesAMultiString) {
  queue("\\??\\C:\\a");
  deletion().savepending();
  EXPECT_EQ(stored(), Texts({"\\??\\C:\\a", "", ""}));
}

TEST_F(PendingRenamesTest, SavingBindsCreatesWritesAndReadsBack) {
  RecordingWmi wmi;
  Machine& real = machine.machine();
  Machine fake = testing::machineWith(real, wmi);
  Form1 own_form(fake);
  FileNumbers numbers(fake);
  Deletion own(fake, own_form, numbers);
  own.queuePending([] { return std::string("x"); });
  own.savepending();
  EXPECT_EQ(wmi.calls,
            Texts({"bind winmgmts:{impersonationLevel=impersonate}!\\\\.\\root\\default:StdRegProv",
                   "create " + std::string(kSessionManager), "set " + std::string(kValue) + " 3",
                   "get " + std::string(kValue)}));
}

TEST_F(PendingRenamesTest, AFailureToWriteGoesUnnoticed) {
  machine.ini("[fault]\nSetMultiStringValue=1,5\nGetObject=2,5\n");
  queue("x");
  deletion().savepending();  // the write fails
  deletion().savepending();  // the binding fails
  EXPECT_EQ(form().pending_count, 2);
}

TEST_F(PendingRenamesTest, TwoFilesThroughTheDeletingSearchLeaveFiveEmptyStrings) {
  store({"\\??\\C:\\theirs", ""});
  machine.file("C:\\d\\a.dat").file("C:\\d\\b.dat");
  srchd2(machine.program().tracks, "C:\\d", "*.dat", " <OK>");
  EXPECT_EQ(stored(), Texts({"", "", "", "", ""}));
  EXPECT_FALSE(machine.exists("C:\\d\\a.dat"));
}

TEST_F(PendingRenamesTest, AReadOnlyFileStaysAndItsEntryNamesNothing) {
  machine.file("C:\\d\\a.dat").readOnly("C:\\d\\a.dat");
  srchd2(machine.program().tracks, "C:\\d", "*.dat", " <OK>");
  EXPECT_TRUE(machine.exists("C:\\d\\a.dat"));
  EXPECT_EQ(stored(), Texts({"", "", ""}));
}

TEST_F(PendingRenamesTest, ALaterSearchWritesTheEarlierEntriesAgain) {
  machine.file("C:\\d\\a.dat").file("C:\\e\\b.dat");
  srchd2(machine.program().tracks, "C:\\d", "*.dat", " <OK>");
  srchd2(machine.program().tracks, "C:\\e", "*.dat", " <OK>");
  EXPECT_EQ(stored().size(), 5u);
}

TEST_F(PendingRenamesTest, ASearchThatFindsNothingWritesNothing) {
  store({"\\??\\C:\\theirs", ""});
  machine.folder("C:\\d");
  srchd2(machine.program().tracks, "C:\\d", "*.dat", " <OK>");
  EXPECT_EQ(stored(), Texts({"\\??\\C:\\theirs", ""}));
}

TEST_F(PendingRenamesTest, AFileThatWaitsAlreadyIsNeitherDeletedNorCounted) {
  store({"\\??\\C:\\D\\A.DAT", ""});
  machine.file("C:\\d\\a.dat").file("C:\\d\\b.dat");
  srchd2(machine.program().tracks, "C:\\d", "*.dat", " <OK>");
  EXPECT_TRUE(machine.exists("C:\\d\\a.dat"));
  EXPECT_FALSE(machine.exists("C:\\d\\b.dat"));
  EXPECT_EQ(form().trackcount, 1);
}

TEST_F(PendingRenamesTest, TheListIsShownLowerCasedWithASignBeforeEachEntry) {
  store({"\\??\\C:\\Users\\ÄB.dat", ""});
  form().Text16.setText("old");
  deletion().pndtxt();
  EXPECT_EQ(form().Text16.text(), "|\\??\\c:\\users\\äb.dat|");
}

TEST_F(PendingRenamesTest, TwoEmptyEntriesShowAsTwoSigns) {
  store({"", ""});
  deletion().pndtxt();
  EXPECT_EQ(form().Text16.text(), "||");
}

TEST_F(PendingRenamesTest, AMissingValueOrAnotherTypeShowsNothing) {
  form().Text16.setText("old");
  deletion().pndtxt();
  EXPECT_EQ(form().Text16.text(), "");
  machine.stop();
  machine.value(kLongKey, kValue, "\\??\\C:\\a");
  deletion().pndtxt();
  EXPECT_EQ(form().Text16.text(), "");
}

TEST_F(PendingRenamesTest, WithoutWmiNothingIsShown) {
  machine.rawValue(kLongKey, kValue, "hex(7):61,00,00,00,00,00").ini("[fault]\nGetObject=1,5\n");
  form().Text16.setText("old");
  deletion().pndtxt();
  EXPECT_EQ(form().Text16.text(), "");
  deletion().pndtxt();
  EXPECT_EQ(form().Text16.text(), "|a");
}

TEST_F(PendingRenamesTest, ShowingAndSavingTellHowTheirGrantWent) {
  deletion().pndtxt();
  EXPECT_TRUE(form().grant_failed) << "there is no such key";
  store({});
  deletion().pndtxt();
  EXPECT_FALSE(form().grant_failed);
  form().grant_failed = true;
  deletion().savepending();
  EXPECT_FALSE(form().grant_failed);
}

}  // namespace
}  // namespace tavr
