#include "tests/windows/runs/twin.h"

#include <unistd.h>

#include <optional>
#include <set>

#include "basic/text.h"
#include "tests/machine/program_run.h"
#include "tests/windows/runs/machine_files.h"

namespace tavr::testing {

namespace {

constexpr unsigned kNobody = 65534;
constexpr const char* kRegistry = "registry.reg";

std::string contentsIn(const TreeImage& tree, const std::string& path) {
  const auto found = tree.find(path);
  return found == tree.end() ? "" : found->second.contents;
}

}  // namespace

Twin::Twin(const Scenario& scenario) {
  const Ground ground;
  ground.unpack(scenario.before);
  std::optional<unsigned> user;
  if (scenario.unprivileged && ::geteuid() == 0) {
    user = kNobody;
    ground.giveTo(kNobody);
  }
  const auto run = [&](const std::string& arguments) {
    std::vector<std::string> words = {"--machine", ground.machine().string(), "--rows"};
    for (const std::string& word : Split(arguments, ' ')) {
      if (!word.empty()) words.push_back(word);
    }
    const Outcome outcome = runProgram(TAVR_PROGRAM, words, ground.top(), user);
    statuses_ += "status " + std::to_string(outcome.status) + "\n";
  };
  before_ = readTree(ground);
  for (const Run& one : scenario.runs) run(one.arguments);
  after_ = readTree(ground);
  if (!scenario.second_run) return;
  if (endsWithTest(scenario)) run("t-c");
  first_ = readTree(ground);
  run("t-c");
  second_ = readTree(ground);
}

void Twin::changeTree(TreeImage& tree) const {
  for (const auto& [path, node] : before_) {
    if (isPlainFile(path) && !after_.contains(path)) tree.erase(path);
  }
  for (const auto& [path, node] : after_) {
    if (!isPlainFile(path)) continue;
    const auto found = before_.find(path);
    if (found == before_.end() || found->second != node) tree[path] = node;
  }
}

void Twin::changeRegistry(RegistryImage& registry) const {
  registry.changeAs(RegistryImage::of(contentsIn(before_, kRegistry)),
                    RegistryImage::of(contentsIn(after_, kRegistry)));
}

std::string Twin::fileAfter(const std::string& path) const { return contentsIn(after_, path); }

bool Twin::changes(const std::string& path) const {
  return contentsIn(after_, path) != contentsIn(before_, path);
}

bool Twin::changesFirst(const std::string& path) const {
  return contentsIn(first_, path) != contentsIn(before_, path);
}

std::vector<std::string> Twin::removedAgain() const {
  std::vector<std::string> removed;
  for (const auto& [path, node] : first_) {
    if (isPlainFile(path) && !second_.contains(path)) removed.push_back(path);
  }
  return removed;
}

std::vector<std::string> Twin::recycled() const {
  std::set<std::string> items;
  for (const auto& [path, node] : after_) items.insert(recycledItem(path));
  items.erase("");
  return {items.begin(), items.end()};
}

}  // namespace tavr::testing
