// Whole runs: every scenario of this folder is unpacked, the real program is
// started on it, and everything it printed and left behind is compared.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "basic/text.h"
#include "tests/machine/program_run.h"
#include "tests/machine/registry_image.h"
#include "tests/machine/scenario.h"
#include "tests/machine/tree_changes.h"
#include "tests/machine/tree_image.h"
#include "tests/support/scenario_files.h"

namespace tavr::testing {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kRegistry = "registry.reg";
constexpr unsigned kNobody = 65534;
constexpr std::size_t kScenariosAtLeast = 40;

std::vector<std::string> words(std::string_view text) {
  std::vector<std::string> found;
  for (const std::string& word : Split(text, ' ')) {
    if (!word.empty()) found.push_back(word);
  }
  return found;
}

std::string registryOf(const TreeImage& tree) {
  const auto found = tree.find(std::string(kRegistry));
  return found == tree.end() ? "" : found->second.contents;
}

// One scenario on its way; the checks are its member functions in their order.
class WholeRun {
 public:
  explicit WholeRun(Scenario scenario) : scenario_(std::move(scenario)) {
    ground_.unpack(scenario_.before);
    if (scenario_.unprivileged && ::geteuid() == 0) {
      user_ = kNobody;
      ground_.giveTo(kNobody);
    }
  }

  void checkRuns() {
    std::string output;
    std::string errors;
    before_ = readTree(ground_);
    for (const Run& run : scenario_.runs) {
      const Outcome outcome = start(run);
      output += outcome.output;
      errors += outcome.errors;
      EXPECT_EQ(outcome.status, scenario_.exit_status) << run.arguments << "\n" << outcome.errors;
    }
    after_ = readTree(ground_);
    EXPECT_TRUE(output == scenario_.printed) << "standard output (- expected, + printed):\n"
                                             << joined(lineDifferences(scenario_.printed, output));
    checkErrors(errors);
  }

  // Everything but the registry, which may be written anew when it changed.
  void checkTree() {
    TreeImage expected = before_;
    const std::vector<std::string> complaints = applyChanges(ground_, scenario_, expected);
    EXPECT_TRUE(complaints.empty()) << "== after == of the scenario:\n" << joined(complaints);
    TreeImage actual = after_;
    if (!scenario_.registry.empty()) {
      expected.erase(std::string(kRegistry));
      actual.erase(std::string(kRegistry));
    }
    const std::vector<std::string> lines = differences(expected, actual);
    EXPECT_TRUE(lines.empty()) << "files (- expected, + there):\n" << joined(lines);
  }

  void checkRegistry() {
    if (scenario_.registry.empty()) return;
    RegistryImage expected = RegistryImage::of(registryOf(before_));
    const std::vector<std::string> complaints = expected.apply(scenario_.registry);
    EXPECT_TRUE(complaints.empty()) << "== after == of the scenario:\n" << joined(complaints);
    const std::vector<std::string> lines =
        expected.differences(RegistryImage::of(registryOf(after_)));
    EXPECT_TRUE(lines.empty()) << "registry (- expected, + there):\n" << joined(lines);
  }

  // One more Erase finds nothing that the Erase before it left, but for what the
  // scenario names, and that it does find.
  void checkSecondErase() {
    if (!scenario_.second_run) return;
    if (endsWithTest(scenario_)) erase();
    const TreeImage first = readTree(ground_);
    erase();
    const TreeImage second = readTree(ground_);

    std::vector<std::string> removed;
    for (const auto& [path, node] : first) {
      if (!second.contains(path)) removed.push_back(path);
    }
    std::vector<std::string> expected = scenario_.again;
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(removed, expected) << "files that a second Erase removed";
    const std::vector<std::string> lines =
        RegistryImage::of(registryOf(first)).missingIn(RegistryImage::of(registryOf(second)));
    EXPECT_TRUE(lines.empty()) << "a second Erase removed from the registry:\n" << joined(lines);
  }

 private:
  Outcome start(const Run& run) const {
    std::vector<std::string> arguments;
    if (!run.whole_command) {
      arguments = {"--machine", ground_.machine().string()};
      for (const std::string& option : words(scenario_.options)) arguments.push_back(option);
    }
    for (const std::string& word : words(run.arguments)) {
      arguments.push_back(ground_.filled(word));
    }
    return runProgram(TAVR_PROGRAM, arguments, ground_.top(), user_);
  }

  void erase() const {
    const Outcome outcome = start({"t-c", false});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
  }

  // As many lines as the scenario has texts, and each text in one of them.
  void checkErrors(const std::string& errors) const {
    const auto lines = std::count(errors.begin(), errors.end(), '\n');
    bool found = static_cast<std::size_t>(lines) == scenario_.errors.size();
    std::vector<std::string> texts;
    for (const std::string& text : scenario_.errors) {
      texts.push_back("- " + ground_.filled(text));
      found = found && errors.find(ground_.filled(text)) != std::string::npos;
    }
    EXPECT_TRUE(found) << "standard error, a line for each:\n" << joined(texts) << errors;
  }

  Scenario scenario_;
  Ground ground_;
  std::optional<unsigned> user_;
  TreeImage before_;
  TreeImage after_;
};

std::vector<fs::path> allScenarios() { return scenarioFiles(TAVR_SOURCE_DIR "/tests/machine"); }

class MachineScenario : public ::testing::TestWithParam<fs::path> {};

TEST_P(MachineScenario, LeavesWhatItSays) {
  WholeRun run(readScenario(GetParam()));
  run.checkRuns();
  run.checkTree();
  run.checkRegistry();
  run.checkSecondErase();
}

INSTANTIATE_TEST_SUITE_P(Whole, MachineScenario, ::testing::ValuesIn(allScenarios()),
                         scenarioTestName);

TEST(MachineScenarios, AreAtLeastForty) { EXPECT_GE(allScenarios().size(), kScenariosAtLeast); }

}  // namespace

}  // namespace tavr::testing
