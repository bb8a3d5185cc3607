#include "app/options.h"

#include <string_view>

namespace tavr {

Options parseOptions(int argc, const char* const* argv) {
  Options options;
  int i = 1;
  for (; i < argc && std::string_view(argv[i]).starts_with("--"); ++i) {
    const std::string_view option = argv[i];
    if (option == "--machine") {
      if (i + 1 == argc) {
        options.error = "--machine needs a folder";
        return options;
      }
      options.machine = argv[++i];
      if (options.machine.empty()) {
        options.error = "--machine needs a folder";
        return options;
      }
    } else if (option == "--play") {
      if (i + 1 == argc) {
        options.error = "--play needs a file";
        return options;
      }
      options.play = argv[++i];
    } else if (option == "--quiet") {
      options.quiet = true;
    } else if (option == "--rows") {
      options.rows = true;
    } else if (option == "--help") {
      options.help = true;
    } else if (option == "--version") {
      options.version = true;
    } else {
      options.error = "unknown option " + std::string(option);
      return options;
    }
  }
  for (; i < argc; ++i) {
    const std::string_view word = argv[i];
    // An option behind the arguments would be taken for one of them.
    if (word.starts_with("--")) {
      options.error = "option " + std::string(word) + " stands behind the arguments";
      return options;
    }
    if (!options.arguments.empty()) options.arguments += ' ';
    options.arguments += word;
  }
  if (options.machine.empty() && !options.help && !options.version) {
    options.error = "no machine: --machine DIR is missing";
  }
  return options;
}

const char* helpText() {
  return R"(usage: tavrwipe --machine DIR [--quiet] [--rows] [--play FILE] ARGUMENTS

Tests or erases the traces on a Windows machine that is kept in the folder DIR.

  --machine DIR  the machine folder
  --quiet        print no tables
  --rows         print every results row to standard output instead of the tables
  --play FILE    drives the interactive program by a script (docs/play.md)
  --help         this text
  --version      the program's version

ARGUMENTS, as the Windows program takes them:
  t, t-c         one Erase run
  w2, w2-c2      one Test run, result in eresst.txt
  w3, w3-c3      the same, hidden from the start
  w4, w4-c4      one Erase run for a parent program
  w4-x           one Test run for a parent program (any other second word)
  t-x, w2-x, w3-x  a Test run and then an Erase run (any other second word)

An interrupt stops the run's searches, as the Stop button does; a run that follows
still starts. A second one ends the process.

Exit status: 0 when the run has been carried out, 1 when a script expected something
else, 2 for a wrong call or a folder that cannot be used.
)";
}

}  // namespace tavr
