// The real program, started once as a process of its own.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tavr::testing {

struct Outcome {
  std::string output;  ///< standard output
  std::string errors;  ///< standard error
  int status = -1;     ///< exit status; 128 + signal number when a signal ended it
};

/// Starts `program` with these arguments, standard input empty and HOME set to
/// `home`, and waits for its end; a minute is the most it gets. As `user` where
/// one is given. Raises std::system_error.
Outcome runProgram(const std::string& program, const std::vector<std::string>& arguments,
                   const std::filesystem::path& home, std::optional<unsigned> user = {});

}  // namespace tavr::testing
