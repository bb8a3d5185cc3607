// A Wine prefix of scripts/prefix for one test program: made by copying one that
// stands ready, and set back to it before each test.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tests/machine/program_run.h"
#include "tests/machine/tree_image.h"

namespace tavr::testing {

class Pen {
 public:
  /// The pen of this process, which goes with it. The folder of the pens and the
  /// prefix to copy, "template", are told by TAVR_PENS. Raises std::runtime_error.
  static Pen& instance();

  ~Pen();
  Pen(const Pen&) = delete;
  Pen& operator=(const Pen&) = delete;

  /// Drive C:.
  std::filesystem::path drive() const { return folder_ / "prefix" / "drive_c"; }
  /// Where the tests keep their own on it; no part of the machine.
  std::filesystem::path desk() const { return drive() / "pen"; }
  std::filesystem::path home() const { return folder_ / "home"; }
  /// Where drive C: keeps what is in this place of a machine folder ("C/..."), in
  /// the case that is there.
  std::filesystem::path place(const std::string& path) const;
  /// The same as an entry's path.
  std::string entryName(const std::string& path) const;

  /// Ends what runs and puts everything back as it is in the template, with the
  /// program in its folder and what the tests need on the desk.
  void restore();
  Outcome run(const std::string& program, const std::vector<std::string>& arguments);
  void stop();

  /// Drive C: as it is in a machine folder. What stands in the template, too, has
  /// its size and time for contents.
  TreeImage readTree() const;

 private:
  Pen();

  std::filesystem::path template_;
  std::filesystem::path folder_;
};

}  // namespace tavr::testing
