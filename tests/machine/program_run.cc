#include "tests/machine/program_run.h"

#include <fcntl.h>
#include <grp.h>
#include <stdlib.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>

#include "platform/folder/file_descriptor.h"

namespace tavr::testing {

namespace {

using folder::FileDescriptor;

constexpr unsigned kSecondsAtMost = 60;
constexpr int kNotStarted = 127;

FileDescriptor require(int descriptor, const std::string& what) {
  if (descriptor < 0) throw std::system_error(errno, std::generic_category(), what);
  return FileDescriptor(descriptor);
}

std::string contentsOf(const FileDescriptor& file) {
  std::string text;
  std::array<char, 65536> buffer;
  for (off_t at = 0;;) {
    const ssize_t got = ::pread(file.get(), buffer.data(), buffer.size(), at);
    if (got <= 0) return text;
    text.append(buffer.data(), static_cast<std::size_t>(got));
    at += got;
  }
}

}  // namespace

Outcome runProgram(const std::string& program, const std::vector<std::string>& arguments,
                   const std::filesystem::path& home, std::optional<unsigned> user) {
  // Opened here: another user may not reach the folder where it was built.
  const FileDescriptor file = require(::open(program.c_str(), O_PATH | O_CLOEXEC), program);
  const FileDescriptor input = require(::open("/dev/null", O_RDONLY | O_CLOEXEC), "/dev/null");
  const FileDescriptor output = require(::memfd_create("stdout", MFD_CLOEXEC), "stdout");
  const FileDescriptor errors = require(::memfd_create("stderr", MFD_CLOEXEC), "stderr");

  std::vector<std::string> words = {program};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<char*> argv;
  argv.reserve(words.size() + 1);
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);

  const pid_t child = ::fork();
  if (child < 0) throw std::system_error(errno, std::generic_category(), "fork");
  if (child == 0) {
    ::dup2(input.get(), STDIN_FILENO);
    ::dup2(output.get(), STDOUT_FILENO);
    ::dup2(errors.get(), STDERR_FILENO);
    ::setenv("HOME", home.c_str(), 1);
    ::alarm(kSecondsAtMost);
    const bool changed =
        !user || (::setgroups(0, nullptr) == 0 && ::setgid(*user) == 0 && ::setuid(*user) == 0);
    if (changed) ::fexecve(file.get(), argv.data(), environ);
    ::_exit(kNotStarted);
  }

  int status = 0;
  while (::waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) throw std::system_error(errno, std::generic_category(), "waitpid");
  }
  const int exit_status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  return {contentsOf(output), contentsOf(errors), exit_status};
}

}  // namespace tavr::testing
