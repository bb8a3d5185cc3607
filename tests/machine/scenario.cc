#include "tests/machine/scenario.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <utility>

#include "basic/text.h"

namespace tavr::testing {

namespace {

constexpr char kDefaultFill = 'x';

std::vector<std::string> linesOf(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) throw std::runtime_error("cannot be read");
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

// Takes `word` off the line's head.
bool take(std::string_view& line, std::string_view word) {
  if (!line.starts_with(word)) return false;
  line.remove_prefix(word.size());
  return true;
}

void addMark(Marks& marks, std::string_view word) {
  if (word == "readonly") {
    marks.read_only = true;
  } else if (word == "hidden") {
    marks.hidden = true;
  } else if (word == "system") {
    marks.system = true;
  } else {
    throw std::runtime_error("unknown mark " + std::string(word));
  }
}

// How the entry being read is to be filled.
struct OpenFile {
  bool crlf = false;
  char fill = kDefaultFill;
  std::optional<std::size_t> size;
};

class Reader {
 public:
  explicit Reader(const std::filesystem::path& file) : lines_(linesOf(file)) {}

  Scenario read() {
    for (const std::string& line : lines_) {
      ++number_;
      try {
        takeLine(line);
      } catch (const std::exception& error) {
        throw std::runtime_error(std::to_string(number_) + ": " + error.what());
      }
    }
    if (section_ != "after") throw std::runtime_error("no == after == section");
    if (scenario_.about.empty()) throw std::runtime_error("no about: line");
    if (scenario_.runs.empty()) throw std::runtime_error("no run: line");
    return std::move(scenario_);
  }

 private:
  void takeLine(std::string_view line) {
    if (line.starts_with("== ")) return takeSection(line);
    if (section_.empty()) return takeHead(line);
    if (section_ == "rows") {
      scenario_.printed += std::string(line) + "\n";
    } else if (line.starts_with("-- ")) {
      takeEntry(line.substr(3));
    } else if (open_) {
      takeText(line);
    } else if (section_ == "after") {
      takeChange(line);
    } else if (!line.empty()) {
      throw std::runtime_error("text before the first entry");
    }
  }

  void takeSection(std::string_view line) {
    open_.reset();
    const std::string_view before = section_.empty()       ? "== before =="
                                    : section_ == "before" ? "== rows =="
                                                           : "== after ==";
    if (line != before) throw std::runtime_error("expected " + std::string(before));
    section_ = line.substr(3, line.size() - 6);
  }

  void takeHead(std::string_view line) {
    if (line.empty() || line.front() == '#') return;
    if (take(line, "about:")) {
      scenario_.about = Trim(line);
    } else if (take(line, "run:")) {
      scenario_.runs.push_back({std::string(Trim(line)), false});
    } else if (take(line, "command:")) {
      scenario_.runs.push_back({std::string(Trim(line)), true});
    } else if (take(line, "options:")) {
      scenario_.options = Trim(line);
    } else if (take(line, "exit:")) {
      scenario_.exit_status = std::stoi(std::string(line));
    } else if (take(line, "stderr:")) {
      scenario_.errors.emplace_back(Trim(line));
    } else if (take(line, "again:")) {
      scenario_.again.emplace_back(Trim(line));
    } else if (line == "no second run") {
      scenario_.second_run = false;
    } else if (line == "unprivileged") {
      scenario_.unprivileged = true;
    } else {
      throw std::runtime_error("unknown line");
    }
  }

  void takeEntry(std::string_view line) {
    std::vector<Entry>& entries = section_ == "before" ? scenario_.before : scenario_.after;
    Entry entry;
    open_.emplace();
    line = takeBrackets(line, entry.marks);
    if (take(line, "dir ")) {
      entry.kind = EntryKind::folder;
    } else if (take(line, "link ")) {
      entry.kind = EntryKind::link;
      const std::size_t arrow = line.find(" -> ");
      if (arrow == std::string_view::npos) throw std::runtime_error("a link without \" -> \"");
      entry.contents = line.substr(arrow + 4);
      line = line.substr(0, arrow);
    } else if (open_->size) {
      entry.contents.assign(*open_->size, open_->fill);
    }
    entry.path = line;
    entries.push_back(std::move(entry));
    entry_ = &entries.back();
  }

  // Takes the "[...]" off the line's end, one or several, and tells what is left.
  std::string_view takeBrackets(std::string_view line, Marks& marks) {
    while (line.ends_with(']')) {
      const std::size_t start = line.rfind(" [");
      if (start == std::string_view::npos) break;
      const std::string_view words = line.substr(start + 2, line.size() - start - 3);
      for (const std::string& word : Split(words, ' ')) takeBracketWord(word, marks);
      line = RTrim(line.substr(0, start));
    }
    return line;
  }

  void takeBracketWord(std::string_view word, Marks& marks) {
    if (word == "crlf") {
      open_->crlf = true;
    } else if (take(word, "size=")) {
      open_->size = std::stoul(std::string(word));
    } else if (take(word, "fill=")) {
      if (word.size() != 1) throw std::runtime_error("fill takes one character");
      open_->fill = word[0];
    } else {
      addMark(marks, word);
    }
  }

  void takeText(std::string_view line) {
    if (entry_->kind != EntryKind::file || open_->size) {
      if (line.empty()) return;
      throw std::runtime_error("text in an entry that has none");
    }
    entry_->contents += line;
    entry_->contents += open_->crlf ? "\r\n" : "\n";
  }

  void takeChange(std::string_view line) {
    if (line.empty() || line.front() == '#') return;
    if (take(line, "removed: ")) {
      scenario_.removed.emplace_back(line);
    } else if (take(line, "removed-tree: ")) {
      scenario_.removed_trees.emplace_back(line);
    } else if (take(line, "attributes: ")) {
      takeAttributes(line);
    } else if (take(line, "reg+ ")) {
      takeRegistry(line, false);
    } else if (take(line, "reg- ")) {
      takeRegistry(line, true);
    } else {
      throw std::runtime_error("unknown line");
    }
  }

  // "PATH none" or "PATH mark mark"; the marks are the words at the end.
  void takeAttributes(std::string_view line) {
    AttributesLine attributes;
    for (bool more = true; more;) {
      const std::size_t blank = line.rfind(' ');
      const std::string_view word = line.substr(blank + 1);
      more = blank != std::string_view::npos &&
             (word == "none" || word == "readonly" || word == "hidden" || word == "system");
      if (!more) break;
      if (word != "none") addMark(attributes.marks, word);
      line = line.substr(0, blank);
    }
    attributes.path = line;
    scenario_.attributes.push_back(attributes);
  }

  // "KEY", "KEY "name"...", "KEY @..."; no key name holds ` "` or ` @`.
  void takeRegistry(std::string_view line, bool removes) {
    const std::size_t end = std::min(
        {line.find(" \""), line.find(" @="),
         removes && line.ends_with(" @") ? line.size() - 2 : std::string_view::npos, line.size()});
    const std::string_view value = line.substr(std::min(end + 1, line.size()));
    scenario_.registry.push_back({removes, std::string(line.substr(0, end)), std::string(value)});
  }

  std::vector<std::string> lines_;
  std::size_t number_ = 0;
  std::string section_;
  Scenario scenario_;
  std::optional<OpenFile> open_;
  Entry* entry_ = nullptr;
};

}  // namespace

Scenario readScenario(const std::filesystem::path& file) { return Reader(file).read(); }

bool endsWithTest(const Scenario& scenario) {
  const std::vector<std::string> words = Split(LCase(scenario.runs.back().arguments), '-');
  if (words.empty()) return false;
  const std::string second = words.size() > 1 ? words[1] : "";
  if (words[0] == "w4") return words.size() > 1 && second != "c4";
  if (words[0] == "w2") return words.size() == 1 || second == "c2";
  if (words[0] == "w3") return words.size() == 1 || second == "c3";
  return false;
}

}  // namespace tavr::testing
