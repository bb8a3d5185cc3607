// Prints the catalogue: the page docs/catalogue.md, or with --lines one line an
// item.
#include <cstdio>
#include <string_view>

#include "engine/catalogue_dump.h"

int main(int argc, char** argv) {
  const bool lines = argc == 2 && std::string_view(argv[1]) == "--lines";
  if (argc > 1 && !lines) {
    std::fputs("usage: tavrwipe-catalogue [--lines]\n", stderr);
    return 2;
  }
  const std::string text = lines ? tavr::catalogueLines() : tavr::cataloguePage();
  std::fwrite(text.data(), 1, text.size(), stdout);
  return 0;
}
