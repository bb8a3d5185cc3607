#include "platform/folder/machine_text.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "platform/folder/file_descriptor.h"
#include "platform/folder/malformed_file.h"

namespace tavr::folder {

namespace {

[[noreturn]] void refuseFile(const std::string& name, std::string_view what) {
  throw MalformedFile(name + ": " + std::string(what));
}

bool writeAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = ::write(descriptor, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

// The rename lasts through a loss of power only once the folder is on the disk.
void flushFolder(const std::string& directory) {
  const FileDescriptor folder(::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder.valid()) ::fsync(folder.get());
}

}  // namespace

void refuseLine(std::string_view file, std::size_t line, std::string_view what) {
  throw MalformedFile(std::string(file) + ":" + std::to_string(line) + ": " + std::string(what));
}

std::optional<std::string> readMachineFile(const std::string& directory, const std::string& name) {
  const std::string path = directory + "/" + name;
  // Without waiting: a named pipe of this name must not hang the program.
  const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
  if (!file.valid()) {
    if (errno == ENOENT) return std::nullopt;
    refuseFile(name, errno == ELOOP ? "is a link" : std::strerror(errno));
  }
  struct stat status {};
  if (::fstat(file.get(), &status) != 0) refuseFile(name, std::strerror(errno));
  if (!S_ISREG(status.st_mode)) refuseFile(name, "is not a file");

  std::string text;
  text.reserve(static_cast<std::size_t>(status.st_size));
  char block[65536];
  for (;;) {
    const ssize_t got = ::read(file.get(), block, sizeof block);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) refuseFile(name, std::strerror(errno));
    if (got == 0) return text;
    text.append(block, static_cast<std::size_t>(got));
  }
}

bool replaceMachineFile(const std::string& directory, const std::string& name,
                        std::string_view text, Flush flush) {
  const std::string path = directory + "/" + name;
  struct stat status {};
  const bool exists = ::lstat(path.c_str(), &status) == 0;
  std::string beside = directory + "/." + name + ".XXXXXX";
  const FileDescriptor file(::mkostemp(beside.data(), O_CLOEXEC));
  if (!file.valid()) return false;
  const mode_t mode = exists ? status.st_mode & 07777 : 0644;
  if (!writeAll(file.get(), text) || ::fchmod(file.get(), mode) != 0 ||
      (flush == Flush::kToDisk && ::fsync(file.get()) != 0) ||
      std::rename(beside.c_str(), path.c_str()) != 0) {
    ::unlink(beside.c_str());
    return false;
  }
  if (flush == Flush::kToDisk) flushFolder(directory);
  return true;
}

std::string_view trimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::optional<std::uint32_t> decimal(std::string_view text) {
  std::uint32_t number = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (text.empty() || error != std::errc() || stop != end) return std::nullopt;
  return number;
}

bool isFullWindowsPath(std::string_view path) {
  if (path.size() < 3 || path[1] != ':' || path[2] != '\\') return false;
  const char drive = path[0];
  return (drive >= 'A' && drive <= 'Z') || (drive >= 'a' && drive <= 'z');
}

LineFile::LineFile(const std::string& directory, std::string name)
    : directory_(directory),
      name_(std::move(name)),
      text_(readMachineFile(directory_, name_).value_or("")) {
  const bool marked = text_.starts_with("\xEF\xBB\xBF");
  for (std::size_t begin = marked ? 3 : 0; begin < text_.size();) {
    const std::size_t newline = text_.find('\n', begin);
    const std::size_t next = newline == std::string::npos ? text_.size() : newline + 1;
    std::size_t end = newline == std::string::npos ? text_.size() : newline;
    if (end > begin && text_[end - 1] == '\r') --end;
    lines_.push_back({begin, end - begin, next - begin, false});
    begin = next;
    if (line(lines_.size() - 1).find('\0') != std::string_view::npos) {
      refuse(lines_.size() - 1, "holds a NUL");
    }
  }
}

std::string_view LineFile::line(std::size_t index) const {
  return std::string_view(text_).substr(lines_[index].begin, lines_[index].length);
}

void LineFile::refuse(std::size_t index, std::string_view what) const {
  refuseLine(name_, index + 1, what);
}

bool LineFile::write() const {
  std::string kept;
  kept.reserve(text_.size());
  for (const Line& line : lines_) {
    if (!line.removed) kept.append(text_, line.begin, line.total);
  }
  // Not to the disk: such a file changes with every step of a run.
  return replaceMachineFile(directory_, name_, kept, Flush::kNone);
}

}  // namespace tavr::folder
