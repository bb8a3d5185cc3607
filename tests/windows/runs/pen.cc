#include "tests/windows/runs/pen.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

#include "basic/text.h"

namespace tavr::testing {

namespace fs = std::filesystem;

namespace {

constexpr const char* kProgramFolder = "C/Program Files/Tavr Wipe";
constexpr const char* kProgram = "C/Program Files/Tavr Wipe/tavrwipe.exe";

Outcome prefixScript(std::vector<std::string> arguments, const fs::path& home) {
  arguments.insert(arguments.begin(), TAVR_SOURCE_DIR "/scripts/prefix");
  return runProgram("/bin/bash", arguments, home);
}

fs::path folderFromEnvironment(const char* name) {
  const char* const folder = std::getenv(name);
  if (folder == nullptr) throw std::runtime_error(std::string(name) + " is not set");
  return fs::absolute(folder);
}

std::string stampOf(const fs::path& path) {
  struct stat found = {};
  if (::lstat(path.c_str(), &found) != 0) return "";
  if (S_ISDIR(found.st_mode)) return "folder";
  return std::to_string(found.st_size) + " bytes of " + std::to_string(found.st_mtim.tv_sec) + "." +
         std::to_string(found.st_mtim.tv_nsec) + (found.st_mode & S_IWUSR ? "" : " readonly");
}

void copyStamped(const fs::path& from, const fs::path& to) {
  fs::remove_all(to);
  if (fs::is_symlink(from)) {
    fs::copy_symlink(from, to);
  } else if (fs::is_directory(from)) {
    fs::create_directory(to);
  } else {
    fs::copy_file(from, to);
    fs::last_write_time(to, fs::last_write_time(from));
  }
}

// Makes `to` what `from` is: what is more there goes, what differs is copied.
void mirror(const fs::path& from, const fs::path& to) {
  std::vector<fs::path> more;
  for (const auto& entry : fs::directory_iterator(to)) {
    if (!fs::exists(fs::symlink_status(from / entry.path().filename()))) {
      more.push_back(entry.path());
    }
  }
  for (const fs::path& path : more) fs::remove_all(path);
  for (const auto& entry : fs::directory_iterator(from)) {
    const fs::path twin = to / entry.path().filename();
    if (stampOf(entry.path()) != stampOf(twin)) copyStamped(entry.path(), twin);
    if (entry.is_directory() && !entry.is_symlink()) mirror(entry.path(), twin);
  }
}

}  // namespace

Pen& Pen::instance() {
  static Pen pen;
  return pen;
}

Pen::Pen()
    : template_(folderFromEnvironment("TAVR_PENS") / "template"),
      folder_(template_.parent_path() / std::to_string(::getpid())) {
  const Outcome outcome = prefixScript({template_.string()}, template_.parent_path());
  if (outcome.status != 0) throw std::runtime_error("no prefix: " + outcome.errors);
  fs::remove_all(folder_);
  fs::create_directories(folder_);
}

Pen::~Pen() {
  std::error_code ignored;
  stop();
  fs::remove_all(folder_, ignored);
}

fs::path Pen::place(const std::string& path) const {
  fs::path found = drive();
  for (const std::string& name : Split(path.substr(2), '/')) {
    std::string kept = name;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(found, none)) {
      if (UCase(entry.path().filename().string()) == UCase(name)) kept = entry.path().filename();
    }
    found /= kept;
  }
  return found;
}

std::string Pen::entryName(const std::string& path) const {
  if (path.find('/') == std::string::npos) return path;  // the drive itself
  return "C/" + place(path).lexically_relative(drive()).string();
}

void Pen::restore() {
  stop();
  mirror(template_, folder_);
  // The name of the template's server: two prefixes with one would share it.
  fs::remove(folder_ / "prefix" / "wineserver");
  const fs::path build = folderFromEnvironment("TAVR_WINDOWS_BUILD");
  fs::create_directories(place(kProgramFolder));
  fs::copy_file(build / "tavrwipe.exe", place(kProgram));
  fs::create_directory(desk());
  for (const char* name : {"planter.exe", "parent.exe", "sleeper.exe"}) {
    fs::copy_file(build / "tests" / name, desk() / name);
  }
}

Outcome Pen::run(const std::string& program, const std::vector<std::string>& arguments) {
  std::vector<std::string> words = {"--run", folder_.string(), program};
  words.insert(words.end(), arguments.begin(), arguments.end());
  return prefixScript(words, home());
}

void Pen::stop() {
  if (fs::exists(folder_ / ".pen")) prefixScript({"--stop", folder_.string()}, home());
}

TreeImage Pen::readTree() const {
  TreeImage tree = {{"C", {}}};
  const fs::path plain = template_ / "prefix" / "drive_c";
  for (auto at = fs::recursive_directory_iterator(drive()); at != fs::end(at); ++at) {
    const fs::path path = at->path().lexically_relative(drive());
    if (at->path() == desk()) {
      at.disable_recursion_pending();
      continue;
    }
    const std::string name = "C/" + path.string();
    if (name == kProgram) continue;
    if (at->is_regular_file() && fs::exists(plain / path)) {
      tree[name] = {EntryKind::file, stampOf(at->path()), {}};
    } else {
      tree[name] = readNode(*at);
    }
  }
  return tree;
}

}  // namespace tavr::testing
