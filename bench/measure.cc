// Starts a program and prints what it cost: wall clock and processor time in
// microseconds, peak memory in KiB. The program's standard output goes nowhere;
// its exit status is handed on. Written small, because what this process holds
// at the start counts towards the peak of the program it becomes.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <cstdio>

namespace {

long long microseconds(const timeval& time) { return time.tv_sec * 1000000LL + time.tv_usec; }

long long now() {
  timespec time{};
  clock_gettime(CLOCK_MONOTONIC, &time);
  return time.tv_sec * 1000000LL + time.tv_nsec / 1000;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fputs("usage: measure PROGRAM [ARGUMENTS]\n", stderr);
    return 2;
  }
  const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
  const long long start = now();
  const pid_t child = fork();
  if (child < 0) return 2;
  if (child == 0) {
    dup2(nowhere, STDOUT_FILENO);
    execvp(argv[1], argv + 1);
    std::perror(argv[1]);
    _exit(127);
  }
  int status = 0;
  rusage used{};
  if (wait4(child, &status, 0, &used) != child) return 2;
  std::printf("%lld %lld %ld\n", now() - start,
              microseconds(used.ru_utime) + microseconds(used.ru_stime), used.ru_maxrss);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}
