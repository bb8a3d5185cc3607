#include "tests/windows/runs/machine_files.h"

#include <algorithm>

#include "basic/text.h"

namespace tavr::testing {

namespace {

constexpr std::string_view kRecycleBin = "C/$Recycle.Bin/";

}  // namespace

std::string contentsOf(const std::vector<Entry>& entries, std::string_view path) {
  for (const Entry& entry : entries) {
    if (entry.path == path) return entry.contents;
  }
  return "";
}

bool hasEntry(const std::vector<Entry>& entries, std::string_view path) {
  return std::any_of(entries.begin(), entries.end(),
                     [path](const Entry& entry) { return entry.path == path; });
}

bool isPlainFile(std::string_view path) {
  return path.starts_with("C/") && !path.starts_with(kRecycleBin);
}

std::string recycledItem(std::string_view path) {
  if (!path.starts_with(kRecycleBin)) return "";
  const std::vector<std::string> names = Split(path, '/');
  return names.size() > 3 && names[3].starts_with("$R") ? names[3] : "";
}

std::string replaced(std::string text, std::string_view what, std::string_view with) {
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size()) {
    text.replace(at, what.size(), with);
  }
  return text;
}

std::vector<std::string> linesOf(std::string_view text) {
  std::vector<std::string> lines = Split(text, '\n');
  for (std::string& line : lines) {
    if (line.ends_with('\r')) line.pop_back();
  }
  std::erase(lines, "");
  return lines;
}

std::vector<std::string> imagesOf(std::string_view processes) {
  std::vector<std::string> images;
  for (const std::string& line : linesOf(processes))
    images.push_back(line.substr(line.find(' ') + 1));
  std::sort(images.begin(), images.end());
  return images;
}

std::vector<std::pair<std::string, std::string>> section(std::string_view ini,
                                                         std::string_view name) {
  std::vector<std::pair<std::string, std::string>> found;
  bool inside = false;
  for (const std::string& line : linesOf(ini)) {
    if (line.front() == ';') continue;
    if (line.front() == '[') {
      inside = LCase(line) == "[" + std::string(name) + "]";
    } else if (const std::size_t sign = line.find('='); inside && sign != std::string::npos) {
      found.emplace_back(Trim(line.substr(0, sign)), Trim(line.substr(sign + 1)));
    }
  }
  return found;
}

}  // namespace tavr::testing
