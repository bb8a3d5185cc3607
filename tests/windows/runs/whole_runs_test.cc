// Every scenario of tests/machine that Wine can carry, with the real program:
// it must leave what it leaves on a machine folder.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <string>
#include <vector>

#include "basic/text.h"
#include "tests/machine/tree_changes.h"
#include "tests/windows/runs/machine_files.h"
#include "tests/windows/runs/windows_run.h"

namespace tavr::testing {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kLog = "C/Program Files/Tavr Wipe/eraselog.txt";

std::string joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += "  " + line + "\n";
  return text;
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

// The scenario with the files alone, named as they are named on the drive.
Scenario onDrive(const Scenario& scenario, const Pen& pen) {
  Scenario out = scenario;
  const auto rename = [&pen](std::vector<std::string>& paths) {
    std::erase_if(paths, [](const std::string& path) { return !isPlainFile(path); });
    for (std::string& path : paths) path = pen.entryName(path);
  };
  rename(out.removed);
  rename(out.removed_trees);
  rename(out.again);
  std::erase_if(out.after, [](const Entry& entry) { return !isPlainFile(entry.path); });
  for (Entry& entry : out.after) entry.path = pen.entryName(entry.path);
  for (AttributesLine& line : out.attributes) line.path = pen.entryName(line.path);
  return out;
}

class ScenarioCheck {
 public:
  explicit ScenarioCheck(const fs::path& file)
      : scenario_(readScenario(file)), pen_(Pen::instance()), run_(pen_, scenario_) {}

  void carryOut() {
    pen_.restore();
    run_.carryOut();
    std::string expected;
    const std::size_t runs =
        scenario_.runs.size() + (scenario_.second_run ? 1 + (endsWithTest(scenario_) ? 1 : 0) : 0);
    for (std::size_t i = 0; i < runs; ++i) expected += "status 0\n";
    ASSERT_EQ(replaced(run_.session().output, "\r\n", "\n"), expected) << run_.session().errors;
    ASSERT_TRUE(run_.has("after"));
  }

  void checkFiles() {
    const Scenario on_drive = onDrive(scenario_, pen_);
    TreeImage expected = run_.at("before").tree;
    const std::vector<std::string> complaints = applyChanges(ground_, on_drive, expected);
    EXPECT_TRUE(complaints.empty()) << "== after == of the scenario:\n" << joined(complaints);
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
    const std::vector<std::string> complaints = expected.apply(scenario_.registry);
    EXPECT_TRUE(complaints.empty()) << "== after == of the scenario:\n" << joined(complaints);
    std::vector<std::string> lines = expected.differences(run_.at("after").registry);
    std::erase_if(lines, isNoise);
    EXPECT_TRUE(lines.empty()) << "registry (- expected, + there):\n" << joined(lines);
  }

  // Processes, URL cache, recycle bin, and what the parent was told.
  void checkTheRest() {
    const auto left = [this](std::string_view name) {
      return contentsOf(hasEntry(scenario_.after, name) ? scenario_.after : scenario_.before, name);
    };
    EXPECT_EQ(run_.at("after").processes, imagesOf(left("processes.txt")));
    std::vector<std::string> cache = linesOf(left("urlcache.txt"));
    std::sort(cache.begin(), cache.end());
    EXPECT_EQ(run_.at("after").url_cache, cache);
    std::vector<std::string> recycled;
    for (const Entry& entry : scenario_.before) {
      const std::string item = recycledItem(entry.path);
      if (item.empty() || std::count(recycled.begin(), recycled.end(), item) > 0) continue;
      recycled.push_back(item);
    }
    std::sort(recycled.begin(), recycled.end());
    EXPECT_EQ(run_.at("before").recycled, recycled);
    for (const std::vector<std::string>* gone : {&scenario_.removed, &scenario_.removed_trees}) {
      for (const std::string& path : *gone) std::erase(recycled, recycledItem(path));
    }
    EXPECT_EQ(run_.at("after").recycled, recycled);
    EXPECT_EQ(run_.parentLog(), contentsOf(scenario_.after, "parent.log"));
  }

  void checkSecondErase() {
    if (!scenario_.second_run) return;
    ASSERT_TRUE(run_.has("second"));
    std::vector<std::string> removed;
    for (const auto& [path, node] : run_.at("first").tree) {
      if (!run_.at("second").tree.contains(path)) removed.push_back(path);
    }
    std::vector<std::string> expected = onDrive(scenario_, pen_).again;
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(removed, expected) << "files that a second Erase removed";
    std::vector<std::string> lines =
        run_.at("first").registry.missingIn(run_.at("second").registry);
    std::erase_if(lines, isNoise);
    EXPECT_TRUE(lines.empty()) << "a second Erase removed from the registry:\n" << joined(lines);
  }

 private:
  const Scenario scenario_;
  const Ground ground_;  // for what a scenario's text may hold, nothing is unpacked in it
  Pen& pen_;
  WindowsRun run_;
};

// "NAME: reason" a line.
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

std::vector<fs::path> scenarioFiles() {
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(TAVR_SOURCE_DIR "/tests/machine")) {
    if (entry.path().extension() == ".scenario") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

std::vector<fs::path> carriedScenarios() {
  std::vector<fs::path> files = scenarioFiles();
  const auto left_out = notUnderWine();
  std::erase_if(files, [&](const fs::path& file) { return left_out.contains(file.stem()); });
  return files;
}

std::string testName(const ::testing::TestParamInfo<fs::path>& file) {
  std::string name = file.param.stem().string();
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

class WindowsScenario : public ::testing::TestWithParam<fs::path> {};

TEST_P(WindowsScenario, LeavesWhatItLeavesOnAMachineFolder) {
  ScenarioCheck check(GetParam());
  ASSERT_NO_FATAL_FAILURE(check.carryOut());
  check.checkFiles();
  check.checkRegistry();
  check.checkTheRest();
  check.checkSecondErase();
}

INSTANTIATE_TEST_SUITE_P(Whole, WindowsScenario, ::testing::ValuesIn(carriedScenarios()), testName);

TEST(WindowsScenarios, AreLeftOutWithAReasonAndOnlyThen) {
  std::map<std::string, std::string> reasons = notUnderWine();
  for (const auto& [name, reason] : reasons) EXPECT_GT(reason.size(), 10U) << name;
  for (const fs::path& file : scenarioFiles()) reasons.erase(file.stem());
  for (const auto& [name, reason] : reasons) ADD_FAILURE() << name << " is no scenario";
}

}  // namespace

}  // namespace tavr::testing
