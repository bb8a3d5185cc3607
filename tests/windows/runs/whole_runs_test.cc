// Every scenario of tests/machine that Wine can carry, with the real program:
// it must leave what it leaves on a machine folder.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <regex>
#include <string>
#include <vector>

#include "basic/text.h"
#include "tests/machine/tree_changes.h"
#include "tests/support/scenario_files.h"
#include "tests/windows/runs/machine_files.h"
#include "tests/windows/runs/twin.h"
#include "tests/windows/runs/windows_run.h"

namespace tavr::testing {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kLog = "C/Program Files/Tavr Wipe/eraselog.txt";

bool contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

// The machine's clock is the real one.
std::string withoutTimes(const std::string& text) {
  static const std::regex date("[0-9]{1,2}/[0-9]{1,2}/[0-9]{4}");
  static const std::regex time("[0-9]{1,2}:[0-9]{2}:[0-9]{2} [AP]M");
  return std::regex_replace(std::regex_replace(text, date, "DATE"), time, "TIME");
}

// What Windows itself writes while programs start and end, and the running counts
// that a timer writes during a run that takes its time, as none does on a
// virtual clock.
bool isNoise(const std::string& line) {
  for (const char* part : {"\\Explorer\\Shell Folders", "\\Wine\\", "\\real \"tracks-reg-count\"",
                           "\\real \"tracks-file-count\"", "\\real \"tracks-size-count\""}) {
    if (line.find(part) != std::string::npos) return true;
  }
  return line.starts_with("+ ") && line.ends_with("\\real");
}

// By the names that the drive has.
TreeImage onDrive(const TreeImage& tree, const Pen& pen) {
  TreeImage renamed;
  for (const auto& [path, node] : tree) renamed[pen.entryName(path)] = node;
  return renamed;
}

class ScenarioCheck {
 public:
  explicit ScenarioCheck(Scenario scenario)
      : scenario_(std::move(scenario)), pen_(Pen::instance()), run_(pen_, scenario_) {}

  void carryOut() {
    pen_.restore();
    run_.carryOut();
    ASSERT_TRUE(run_.has("after")) << run_.session().output << run_.session().errors;
    twin_.emplace(run_.asFound());
    EXPECT_EQ(replaced(run_.session().output, "\r\n", "\n"), twin_->statuses())
        << run_.session().errors;
  }

  // All of the scenario stands on the drive before the run.
  void checkPlanting() {
    TreeImage wanted;
    for (const Entry& entry : run_.asFound().before) {
      if (isPlainFile(entry.path)) wanted[entry.path] = {entry.kind, entry.contents, entry.marks};
    }
    TreeImage there = run_.at("before").tree;
    const TreeImage expected = onDrive(wanted, pen_);
    std::erase_if(there, [&](const auto& item) { return !expected.contains(item.first); });
    const std::vector<std::string> lines = differences(expected, there);
    EXPECT_TRUE(lines.empty()) << "planted (- expected, + there):\n" << joined(lines);
    EXPECT_EQ(run_.cacheBefore().size(), linesOf(planted("urlcache.txt")).size());
    EXPECT_EQ(run_.at("before").processes, imagesOf(planted("processes.txt")));
  }

  void checkFiles() {
    TreeImage changed = run_.at("before").tree;
    twin_->changeTree(changed);
    TreeImage expected = onDrive(changed, pen_);
    TreeImage actual = run_.at("after").tree;
    for (TreeImage* tree : {&expected, &actual}) {
      const auto log = tree->find(pen_.entryName(std::string(kLog)));
      if (log == tree->end()) continue;
      log->second.contents = withoutTimes(run_.asPlanted(log->second.contents));
    }
    const std::vector<std::string> lines = differences(expected, actual);
    EXPECT_TRUE(lines.empty()) << "files (- expected, + there):\n" << joined(lines);
  }

  void checkRegistry() {
    RegistryImage expected = run_.at("before").registry;
    twin_->changeRegistry(expected);
    std::vector<std::string> lines = expected.differences(run_.at("after").registry);
    std::erase_if(lines, isNoise);
    EXPECT_TRUE(lines.empty()) << "registry (- expected, + there):\n" << joined(lines);
  }

  // Processes, URL cache, recycle bin, and what the parent was told.
  void checkTheRest() {
    EXPECT_EQ(run_.at("after").processes, imagesOf(twin_->fileAfter("processes.txt")));
    std::vector<std::string> cache = linesOf(twin_->fileAfter("urlcache.txt"));
    if (twin_->changes(cookiesIndex())) {
      std::erase_if(cache, [](const std::string& line) { return contains(line, "\tCookie:"); });
    }
    EXPECT_EQ(run_.cacheAfter(), cache);
    EXPECT_EQ(run_.at("after").recycled, twin_->recycled());
    EXPECT_EQ(run_.parentLog(), twin_->fileAfter("parent.log"));
  }

  void checkSecondErase() {
    if (!scenario_.second_run) return;
    ASSERT_TRUE(run_.has("second"));
    std::vector<std::string> removed;
    for (const auto& [path, node] : run_.at("first").tree) {
      if (!run_.at("second").tree.contains(path)) removed.push_back(path);
    }
    std::vector<std::string> expected;
    for (const std::string& path : twin_->removedAgain()) expected.push_back(pen_.entryName(path));
    std::sort(expected.begin(), expected.end());
    if (twin_->changesFirst(cookiesIndex())) {
      const std::string folder = run_.cookiesFolder() + "/";
      std::erase_if(removed, [&](const std::string& path) { return path.starts_with(folder); });
    }
    EXPECT_EQ(removed, expected) << "files that a second Erase removed";
    std::vector<std::string> lines =
        run_.at("first").registry.missingIn(run_.at("second").registry);
    std::erase_if(lines, isNoise);
    EXPECT_TRUE(lines.empty()) << "a second Erase removed from the registry:\n" << joined(lines);
  }

 private:
  // WinINet's index of the cookies is the very file that is overwritten: the next
  // time that it looks, it finds the index broken and empties the folder.
  std::string cookiesIndex() const { return run_.cookiesFolder() + "/index.dat"; }

  std::string planted(std::string_view name) const { return contentsOf(scenario_.before, name); }

  const Scenario scenario_;
  Pen& pen_;
  WindowsRun run_;
  std::optional<Twin> twin_;
};

constexpr std::string_view kOnlyWithoutMarks = ", read-only files";

// "NAME: reason" or "NAME, read-only files: reason" a line.
std::map<std::string, std::string> notUnderWine() {
  std::map<std::string, std::string> reasons;
  std::ifstream in(TAVR_SOURCE_DIR "/tests/windows/not-under-wine.txt");
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line.front() == '#') continue;
    const std::size_t colon = line.find(": ");
    reasons[line.substr(0, colon)] = line.substr(std::min(colon + 2, line.size()));
  }
  return reasons;
}

std::vector<fs::path> allScenarios() { return scenarioFiles(TAVR_SOURCE_DIR "/tests/machine"); }

Scenario carriedScenario(const fs::path& file) {
  Scenario scenario = readScenario(file);
  if (notUnderWine().contains(file.stem().string() + std::string(kOnlyWithoutMarks))) {
    for (Entry& entry : scenario.before) entry.marks.read_only = false;
  }
  return scenario;
}

class WindowsScenario : public ::testing::TestWithParam<fs::path> {};

TEST_P(WindowsScenario, LeavesWhatItLeavesOnAMachineFolder) {
  const auto reasons = notUnderWine();
  const auto reason = reasons.find(GetParam().stem());
  if (reason != reasons.end()) GTEST_SKIP() << reason->second;
  ScenarioCheck check(carriedScenario(GetParam()));
  ASSERT_NO_FATAL_FAILURE(check.carryOut());
  check.checkPlanting();
  check.checkFiles();
  check.checkRegistry();
  check.checkTheRest();
  check.checkSecondErase();
}

INSTANTIATE_TEST_SUITE_P(Whole, WindowsScenario, ::testing::ValuesIn(allScenarios()),
                         scenarioTestName);

TEST(WindowsScenarios, AreLeftOutWithAReasonAndOnlyThen) {
  std::map<std::string, std::string> reasons = notUnderWine();
  for (const auto& [name, reason] : reasons) EXPECT_GT(reason.size(), 10U) << name;
  for (const fs::path& file : allScenarios()) {
    reasons.erase(file.stem());
    reasons.erase(file.stem().string() + std::string(kOnlyWithoutMarks));
  }
  for (const auto& [name, reason] : reasons) ADD_FAILURE() << name << " is no scenario";
}

}  // namespace

}  // namespace tavr::testing
