#include "tests/machine/tree_changes.h"

#include <algorithm>

namespace tavr::testing {

namespace {

constexpr std::size_t kMostLines = 60;
constexpr std::size_t kMostColumns = 300;

bool removeTree(const std::string& path, TreeImage& tree) {
  return std::erase_if(tree, [&path](const auto& item) {
           return item.first == path || item.first.starts_with(path + "/");
         }) > 0;
}

void makeFolders(const std::string& path, TreeImage& tree) {
  for (std::size_t at = 0; (at = path.find('/', at)) != std::string::npos; ++at) {
    tree.try_emplace(path.substr(0, at));
  }
}

void put(const Ground& ground, const Entry& entry, TreeImage& tree) {
  makeFolders(entry.path, tree);
  Node& node = tree[entry.path];  // a file that stood there keeps its marks
  node.kind = entry.kind;
  node.contents = entry.kind == EntryKind::link ? ground.filled(entry.contents) : entry.contents;
  if (entry.marks != Marks{}) node.marks = entry.marks;
}

std::string kindName(EntryKind kind) {
  return kind == EntryKind::file ? "file" : kind == EntryKind::folder ? "folder" : "link";
}

std::string markNames(const Marks& marks) {
  const std::string names = std::string(marks.read_only ? " readonly" : "") +
                            (marks.hidden ? " hidden" : "") + (marks.system ? " system" : "");
  return names.empty() ? " none" : names;
}

std::vector<std::string> linesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size() - 1);
    lines.emplace_back(text.substr(0, end + 1));
    text.remove_prefix(end + 1);
  }
  return lines;
}

// Line ends and blanks at the end made visible, long lines cut.
std::string shown(std::string line) {
  const bool ended = line.ends_with('\n');
  if (ended) line.pop_back();
  const bool carriage = line.ends_with('\r');
  if (carriage) line.pop_back();
  if (line.size() > kMostColumns) line = line.substr(0, kMostColumns) + "...";
  for (char& c : line) {
    if (static_cast<unsigned char>(c) < ' ' && c != '\t') c = '?';
  }
  return "\"" + line + "\"" + (carriage ? " CR" : "") + (ended ? "" : " (no line end)");
}

void addDifference(const std::string& path, const Node& expected, const Node& actual,
                   std::vector<std::string>& lines) {
  if (expected.kind != actual.kind) {
    lines.push_back(path + ": expected a " + kindName(expected.kind) + ", is a " +
                    kindName(actual.kind));
    return;
  }
  if (expected.marks != actual.marks) {
    lines.push_back(path + ": expected marks" + markNames(expected.marks) + ", has" +
                    markNames(actual.marks));
  }
  if (expected.contents == actual.contents) return;
  lines.push_back(path + ": contents differ (" + std::to_string(expected.contents.size()) +
                  " bytes expected, " + std::to_string(actual.contents.size()) + " there)");
  for (const std::string& line : lineDifferences(expected.contents, actual.contents)) {
    lines.push_back("    " + line);
  }
}

}  // namespace

std::vector<std::string> applyChanges(const Ground& ground, const Scenario& scenario,
                                      TreeImage& tree) {
  std::vector<std::string> complaints;
  for (const std::string& path : scenario.removed) {
    if (tree.erase(path) == 0) complaints.push_back("removed: " + path + " was not there");
  }
  for (const std::string& path : scenario.removed_trees) {
    if (!removeTree(path, tree)) complaints.push_back("removed-tree: " + path + " was not there");
  }
  for (const Entry& entry : scenario.after) {
    const auto before = tree.find(entry.path);
    const Node old = before == tree.end() ? Node{} : before->second;
    const bool was_there = before != tree.end();
    put(ground, entry, tree);
    if (was_there && tree[entry.path] == old) {
      complaints.push_back("-- " + entry.path + " changes nothing");
    }
  }
  for (const AttributesLine& line : scenario.attributes) {
    const auto found = tree.find(line.path);
    if (found == tree.end() || found->second.marks == line.marks) {
      complaints.push_back("attributes: " + line.path + " changes nothing");
    } else {
      found->second.marks = line.marks;
    }
  }
  return complaints;
}

std::vector<std::string> differences(const TreeImage& expected, const TreeImage& actual) {
  std::vector<std::string> lines;
  for (const auto& [path, node] : expected) {
    const auto found = actual.find(path);
    if (found == actual.end()) {
      lines.push_back(path + ": expected a " + kindName(node.kind) + ", is gone");
    } else {
      addDifference(path, node, found->second, lines);
    }
  }
  for (const auto& [path, node] : actual) {
    if (expected.contains(path)) continue;
    lines.push_back(path + ": unexpected " + kindName(node.kind));
    if (node.kind != EntryKind::file) continue;
    for (const std::string& line : lineDifferences("", node.contents)) {
      lines.push_back("    " + line);
    }
  }
  return lines;
}

std::vector<std::string> lineDifferences(std::string_view expected, std::string_view actual) {
  const std::vector<std::string> left = linesOf(expected);
  const std::vector<std::string> right = linesOf(actual);
  const std::size_t shorter = std::min(left.size(), right.size());
  std::size_t head = 0;
  while (head < shorter && left[head] == right[head]) ++head;
  std::size_t tail = 0;
  while (tail < shorter - head && left[left.size() - 1 - tail] == right[right.size() - 1 - tail]) {
    ++tail;
  }
  std::vector<std::string> lines;
  if (head > 0) lines.push_back("  (" + std::to_string(head) + " equal lines)");
  for (std::size_t i = head; i < left.size() - tail; ++i) lines.push_back("- " + shown(left[i]));
  for (std::size_t i = head; i < right.size() - tail; ++i) lines.push_back("+ " + shown(right[i]));
  if (tail > 0) lines.push_back("  (" + std::to_string(tail) + " equal lines)");
  if (lines.size() > kMostLines) {
    lines.resize(kMostLines);
    lines.push_back("  ...");
  }
  return lines;
}

std::string joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += "  " + line + "\n";
  return text;
}

}  // namespace tavr::testing
