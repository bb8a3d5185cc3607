// Writes a sample machine folder, for trying the program and for measuring it.
// It is no part of the program and shares no code with it.
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <exception>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "app/sample_traces.h"

namespace {

constexpr std::string_view kUsage =
    "sample-machine DIR [--files N] [--seed S] [--language DIR] [--only chrome-cache]\n"
    "\n"
    "Writes a machine folder into DIR, which must be empty or missing.\n"
    "  --files N            how many files in all (default 60, never fewer); what goes beyond\n"
    "                       the fixed traces fills the browsers' caches\n"
    "  --seed S             another machine of the same kind (default 1)\n"
    "  --language DIR       a folder with the program's language files; copied to the machine,\n"
    "                       where they come on top of the N files\n"
    "  --only chrome-cache  nothing but N files in Chrome's session folder, for measuring\n";

constexpr std::size_t kFewestFiles = 60;

struct Options {
  std::string directory;
  std::size_t files = kFewestFiles;
  std::uint64_t seed = 1;
  std::string language;
  bool only_chrome_cache = false;
  bool help = false;
};

std::uint64_t numberOf(std::string_view option, std::string_view text) {
  std::uint64_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) {
    throw std::runtime_error(std::string(option) + ": \"" + std::string(text) +
                             "\" is not a number");
  }
  return value;
}

Options parse(std::span<char*> words) {
  Options options;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string_view word = words[i];
    if (word == "--help") {
      options.help = true;
      continue;
    }
    if (!word.starts_with("--")) {
      if (!options.directory.empty()) throw std::runtime_error("more than one folder");
      options.directory = word;
      continue;
    }
    if (i + 1 == words.size()) throw std::runtime_error(std::string(word) + ": no value");
    const std::string_view value = words[++i];
    if (word == "--files") {
      options.files = numberOf(word, value);
    } else if (word == "--seed") {
      options.seed = numberOf(word, value);
    } else if (word == "--language") {
      options.language = value;
    } else if (word == "--only" && value == "chrome-cache") {
      options.only_chrome_cache = true;
    } else {
      throw std::runtime_error(std::string(word) + " " + std::string(value) + ": unknown option");
    }
  }
  if (options.directory.empty() && !options.help) throw std::runtime_error("no folder given");
  return options;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const Options options = parse(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
    if (options.help) {
      std::fputs(kUsage.data(), stdout);
      return 0;
    }
    tavr::sample::SampleTree tree(options.directory, options.seed);
    if (options.only_chrome_cache) {
      tavr::sample::writeChromeCacheMachine(tree, options.files);
    } else {
      if (!options.language.empty()) tavr::sample::copyLanguages(tree, options.language);
      tavr::sample::writeMachine(tree, std::max(options.files, kFewestFiles));
    }
    std::printf("%s: %zu files\n", options.directory.c_str(), tree.files());
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "sample-machine: %s\n", error.what());
    return 2;
  }
}
