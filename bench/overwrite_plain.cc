// Writes what overwriting a cache file writes, by the plainest means: eleven
// passes of 8 KiB blocks of "#" over the file and one block more.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cmath>
#include <cstdio>

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: overwrite_plain FILE\n", stderr);
    return 2;
  }
  struct stat found {};
  if (stat(argv[1], &found) != 0) {
    std::perror(argv[1]);
    return 2;
  }
  std::array<char, 8192> block{};
  block.fill('#');
  // To the nearest block, halves to even.
  const auto last = static_cast<off_t>(
      std::nearbyint(static_cast<double>(found.st_size) / static_cast<double>(block.size())));
  for (int pass = 0; pass < 11; ++pass) {
    const int file = open(argv[1], O_RDWR | O_CLOEXEC);
    if (file < 0) return 2;
    for (off_t index = 0; index <= last; ++index) {
      const auto offset = index * static_cast<off_t>(block.size());
      if (pwrite(file, block.data(), block.size(), offset) != static_cast<ssize_t>(block.size())) {
        std::perror(argv[1]);
        close(file);
        return 2;
      }
    }
    close(file);
  }
  return 0;
}
