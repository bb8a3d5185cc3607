// show LANGUAGE FOLDER [large|alone|running|question]
// Opens every form of tavrwipe.exe, which lies beside it, by the mouse, and has
// each photographed by whoever watches FOLDER, which is scripts/screenshots.
//
// LANGUAGE is a row of the language list, 0 for the first. "large": the main
// form alone, for a screen of a finer resolution. "alone": the forms that
// form_alone opens, which stands in the program's place then. "running": the
// main form during a Test, which wants a machine with very many files.
// "question": the box of a start page that is not the one held.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iterator>
#include <string_view>

#include "tests/windows/screenshots/photographs.h"

namespace {

using tavr::testing::Photographs;

struct Way {
  std::string_view name;
  void (Photographs::*photograph)();
};

constexpr Way kWays[] = {
    {"", &Photographs::ofUsual},
    {"large", &Photographs::ofLarge},
    {"alone", &Photographs::ofAlone},
    {"running", &Photographs::ofRunning},
    {"question", &Photographs::ofQuestion},
};

}  // namespace

int main(int argc, char** argv) {
  const std::string_view what = argc == 4 ? argv[3] : "";
  const auto* const way = std::ranges::find(kWays, what, &Way::name);
  if (argc < 3 || argc > 4 || way == std::end(kWays)) {
    std::fputs("usage: show LANGUAGE FOLDER [large|alone|running|question]\n", stderr);
    return 2;
  }
  try {
    Photographs photographs(argv[2], std::atoi(argv[1]));
    (photographs.*way->photograph)();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "show: %s\n", error.what());
    return 1;
  }
  return 0;
}
