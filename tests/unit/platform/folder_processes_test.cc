#include "platform/folder/folder_processes.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/folder/malformed_file.h"
#include "tests/unit/platform/scratch_folder.h"

namespace tavr::folder {
namespace {

constexpr std::uint32_t kAllAccess = 0x1F0FFF;
constexpr std::string_view kMoniker =
    "winmgmts:{impersonationLevel=impersonate}!\\\\.\\root\\default:StdRegProv";

std::string queryFor(const std::string& name) {
  return "Select * from Win32_Process WHERE Name = '" + name + "'";
}

class NoProvider : public StdRegProv {
 public:
  Status getExpandedStringValue(std::uint32_t, std::string_view, std::string_view,
                                std::string&) override {
    return kNotSupported;
  }
  Status getMultiStringValue(std::uint32_t, std::string_view, std::string_view,
                             std::vector<std::string>&) override {
    return kNotSupported;
  }
  Status setMultiStringValue(std::uint32_t, std::string_view, std::string_view,
                             const std::vector<std::string>&) override {
    return kNotSupported;
  }
  Status createKey(std::uint32_t, std::string_view) override { return kNotSupported; }
};

class FolderProcessesTest : public ::testing::Test {
 protected:
  testing::ScratchFolder folder;
  Faults faults;

  FolderProcesses with(std::string_view text) {
    folder.write("processes.txt", text);
    return FolderProcesses(folder.path(), faults);
  }

  static std::string list(FolderProcesses& processes) {
    std::vector<ProcessEntry> entries;
    EXPECT_EQ(processes.snapshot(entries), kSuccess);
    std::string text;
    for (const ProcessEntry& entry : entries) text += std::to_string(entry.id) + entry.image + ";";
    return text;
  }

  static Status end(FolderProcesses& processes, std::uint32_t id) {
    std::unique_ptr<Process> process;
    const Status status = processes.open(id, kAllAccess, process);
    return status != kSuccess ? status : process->terminate(0);
  }

  std::vector<std::uint32_t> ids(FolderProcesses& processes, std::string_view query) {
    FolderWmi wmi(processes, nullptr, faults);
    std::vector<std::uint32_t> found = {1234};
    EXPECT_TRUE(wmi.queryProcessIds(query, found));
    return found;
  }
};

TEST_F(FolderProcessesTest, WithoutAFileNothingRuns) {
  FolderProcesses processes(folder.path(), faults);
  EXPECT_EQ(list(processes), "");
  EXPECT_FALSE(folder.has("processes.txt"));
}

TEST_F(FolderProcessesTest, ASnapshotHasTheFilesOrder) {
  FolderProcesses processes = with("40 chrome.exe\r\n\n  4\tSystem Idle.exe \n5 x");
  EXPECT_EQ(list(processes), "40chrome.exe;4System Idle.exe;5x;");
}

TEST_F(FolderProcessesTest, EndingAProcessTakesItsLineOutAtOnceAndLeavesTheOthersAsTheyAre) {
  FolderProcesses processes = with("  40   chrome.exe\r\n41 chrome.exe\n\n42 x.exe");
  EXPECT_EQ(end(processes, 41), kSuccess);
  EXPECT_EQ(folder.read("processes.txt"), "  40   chrome.exe\r\n\n42 x.exe");
  EXPECT_EQ(list(processes), "40chrome.exe;42x.exe;");
  EXPECT_EQ(end(processes, 40), kSuccess);
  EXPECT_EQ(end(processes, 42), kSuccess);
  EXPECT_EQ(folder.read("processes.txt"), "\n");
}

TEST_F(FolderProcessesTest, TheRewrittenFileKeepsItsModeAndLeavesNothingBeside) {
  with("40 a.exe\n41 b.exe\n");
  std::filesystem::permissions(folder.at("processes.txt"), std::filesystem::perms(0640));
  FolderProcesses processes(folder.path(), faults);
  EXPECT_EQ(end(processes, 40), kSuccess);
  EXPECT_EQ(std::filesystem::status(folder.at("processes.txt")).permissions(),
            std::filesystem::perms(0640));
  int files = 0;
  for ([[maybe_unused]] const auto& file : std::filesystem::directory_iterator(folder.path())) {
    ++files;
  }
  EXPECT_EQ(files, 1);
}

TEST_F(FolderProcessesTest, AProcessThatIsNotThereCannotBeOpened) {
  FolderProcesses processes = with("40 chrome.exe\n0 Idle\n");
  EXPECT_EQ(end(processes, 41), kInvalidParameter);
  EXPECT_EQ(end(processes, 0), kInvalidParameter);
  EXPECT_EQ(end(processes, 40), kSuccess);
  EXPECT_EQ(end(processes, 40), kInvalidParameter);
}

TEST_F(FolderProcessesTest, EndingNeedsItsRightAndWorksOnce) {
  FolderProcesses processes = with("40 chrome.exe\n");
  std::unique_ptr<Process> process;
  ASSERT_EQ(processes.open(40, 0x400, process), kSuccess);
  EXPECT_EQ(process->terminate(0), kAccessDenied);
  ASSERT_EQ(processes.open(40, 1, process), kSuccess);
  EXPECT_EQ(process->terminate(0), kSuccess);
  EXPECT_EQ(process->terminate(0), kAccessDenied);
}

TEST_F(FolderProcessesTest, AMalformedLineIsRefusedWithItsNumber) {
  for (const std::string line :
       {"chrome.exe", "40", "40 ", "-1 x.exe", "4294967296 x.exe", "0x10 x.exe", "40chrome.exe"}) {
    try {
      with("1 a.exe\n\n" + line + "\n");
      ADD_FAILURE() << line << " was taken";
    } catch (const MalformedFile& error) {
      EXPECT_STREQ(error.what(), "processes.txt:3: no \"pid image\"") << line;
    }
  }
}

TEST_F(FolderProcessesTest, ALinkInPlaceOfTheFileIsRefused) {
  folder.write("elsewhere", "40 chrome.exe\n");
  std::filesystem::create_symlink(folder.at("elsewhere"), folder.at("processes.txt"));
  EXPECT_THROW(FolderProcesses(folder.path(), faults), MalformedFile);
}

TEST_F(FolderProcessesTest, FaultsFailTheirOperation) {
  faults.add("Process32First", 1, kAccessDenied);
  faults.add("OpenProcess", 2, kAccessDenied);
  faults.add("TerminateProcess", 1, kAccessDenied);
  FolderProcesses processes = with("40 chrome.exe\n");
  std::vector<ProcessEntry> entries = {{1, "x"}};
  EXPECT_EQ(processes.snapshot(entries), kAccessDenied);
  EXPECT_TRUE(entries.empty());
  EXPECT_EQ(list(processes), "40chrome.exe;");
  EXPECT_EQ(end(processes, 40), kAccessDenied);  // ended not
  EXPECT_EQ(end(processes, 40), kAccessDenied);  // opened not
  EXPECT_EQ(folder.read("processes.txt"), "40 chrome.exe\n");
  EXPECT_EQ(end(processes, 40), kSuccess);
}

TEST_F(FolderProcessesTest, AQueryFindsTheWholeNameWithoutCase) {
  FolderProcesses processes =
      with("40 chrome.exe\n41 mychrome.exe\n42 CHROME.EXE\n43 chrome.exe.exe\n");
  EXPECT_EQ(ids(processes, queryFor("Chrome.exe")), (std::vector<std::uint32_t>{40, 42}));
  EXPECT_EQ(end(processes, 40), kSuccess);
  EXPECT_EQ(ids(processes, queryFor("Chrome.exe")), std::vector<std::uint32_t>{42});
  EXPECT_TRUE(ids(processes, queryFor("opera.exe")).empty());
}

TEST_F(FolderProcessesTest, AQueryIsReadWithItsBlanksCaseAndEscapes) {
  FolderProcesses processes = with("40 o'brien.exe\n");
  for (const std::string_view query : {"SELECT  *  FROM win32_process\twhere name='O''BRIEN.EXE' ",
                                       "select*from Win32_Process where Name ='o\\'brien.exe'"}) {
    EXPECT_EQ(ids(processes, query), std::vector<std::uint32_t>{40}) << query;
  }
}

TEST_F(FolderProcessesTest, AnyOtherQueryIsRefused) {
  FolderProcesses processes = with("40 a.exe\n");
  FolderWmi wmi(processes, nullptr, faults);
  for (const std::string_view query :
       {"", "Select * from Win32_Process", "Select * from Win32_Service WHERE Name = 'a.exe'",
        "Select Name from Win32_Process WHERE Name = 'a.exe'",
        "Select * from Win32_Process WHERE Name = a.exe",
        "Select * from Win32_Process WHERE Name = 'a.exe",
        "Select * from Win32_Process WHERE Name = 'a.exe' or Name = 'b.exe'",
        "Select * from Win32_Process WHERE Name = 'o'brien.exe'",
        "Select * from Win32_Process WHERE Name = 'a.exe\\'",
        "Select * from Win32_Process WHERE Name = '"}) {
    std::vector<std::uint32_t> found = {1};
    EXPECT_FALSE(wmi.queryProcessIds(query, found)) << query;
    EXPECT_TRUE(found.empty()) << query;
  }
}

TEST_F(FolderProcessesTest, TheRegistryProviderAnswersToItsMonikerAlone) {
  FolderProcesses processes(folder.path(), faults);
  FolderWmi wmi(
      processes, [] { return std::make_unique<NoProvider>(); }, faults);
  EXPECT_NE(wmi.bindRegistryProvider(kMoniker), nullptr);
  EXPECT_NE(wmi.bindRegistryProvider(LCase(kMoniker)), nullptr);
  EXPECT_EQ(wmi.bindRegistryProvider("winmgmts:"), nullptr);
}

TEST_F(FolderProcessesTest, AFaultTakesAwayEitherBindingOrTheQuery) {
  faults.add("GetObject", 0, kAccessDenied);
  FolderProcesses processes = with("40 a.exe\n");
  std::vector<std::uint32_t> found;
  {
    FolderWmi wmi(
        processes, [] { return std::make_unique<NoProvider>(); }, faults);
    EXPECT_EQ(wmi.bindRegistryProvider(kMoniker), nullptr);
    EXPECT_FALSE(wmi.queryProcessIds(queryFor("a.exe"), found));
  }
  Faults query_fault;
  query_fault.add("ExecQuery", 1, kAccessDenied);
  FolderWmi wmi(processes, nullptr, query_fault);
  EXPECT_FALSE(wmi.queryProcessIds(queryFor("a.exe"), found));
  EXPECT_TRUE(wmi.queryProcessIds(queryFor("a.exe"), found));
}

}  // namespace
}  // namespace tavr::folder
