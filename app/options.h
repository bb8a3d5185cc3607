// The command line of the machine-folder program.
#pragma once

#include <string>

namespace tavr {

struct Options {
  std::string machine;    ///< DIR
  std::string arguments;  ///< what stands behind the options, joined by blanks
  std::string play;       ///< a script to play; "" for none
  bool quiet = false;
  bool rows = false;
  bool help = false;
  bool version = false;
  std::string error;  ///< not empty: the call is wrong, one line
};

/// tavrwipe --machine DIR [--quiet] [--rows] [--play FILE] [ARGUMENTS] | --help | --version
Options parseOptions(int argc, const char* const* argv);

/// The text of --help.
const char* helpText();

}  // namespace tavr
