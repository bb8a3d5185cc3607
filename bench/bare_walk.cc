// The least that any program can do with a tree of files: walk it and ask each
// file's size, or walk it and remove each file. What other programs take is
// judged beside this.
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <string_view>

namespace {

struct Totals {
  long long files = 0;
  long long bytes = 0;
};

void walk(int folder, bool remove, Totals& totals) {
  DIR* entries = fdopendir(folder);
  if (entries == nullptr) return;
  while (const dirent* entry = readdir(entries)) {
    if (entry->d_type == DT_DIR) {
      if (std::strcmp(entry->d_name, ".") == 0 || std::strcmp(entry->d_name, "..") == 0) continue;
      const int below =
          openat(folder, entry->d_name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
      if (below >= 0) walk(below, remove, totals);
      continue;
    }
    struct stat found {};
    if (remove) {
      if (unlinkat(folder, entry->d_name, 0) != 0) continue;
    } else if (fstatat(folder, entry->d_name, &found, AT_SYMLINK_NOFOLLOW) != 0) {
      continue;
    }
    ++totals.files;
    totals.bytes += found.st_size;
  }
  closedir(entries);  // closes `folder`, too
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view mode = argc == 3 ? argv[1] : "";
  if (mode != "list" && mode != "delete") {
    std::fputs("usage: bare_walk list|delete FOLDER\n", stderr);
    return 2;
  }
  const int folder = open(argv[2], O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) {
    std::perror(argv[2]);
    return 2;
  }
  Totals totals;
  walk(folder, mode == "delete", totals);
  std::printf("%lld files, %lld bytes\n", totals.files, totals.bytes);
  return 0;
}
