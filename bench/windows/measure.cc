// Runs a command to its end and prints "wall cpu memory": microseconds,
// microseconds and KiB, as the tool of the same name does elsewhere.
#include <windows.h>

#include <psapi.h>

#include <cstdio>
#include <string>

namespace {

constexpr DWORD kUntilItRests = 1000;  // ms; the desktop's process starts on meanwhile

// What stands behind the program's own name on the command line.
std::wstring command() {
  const wchar_t* rest = GetCommandLineW();
  const wchar_t until = *rest == L'"' ? L'"' : L' ';
  if (until == L'"') ++rest;
  while (*rest != L'\0' && *rest != until) ++rest;
  if (*rest != L'\0') ++rest;
  while (*rest == L' ') ++rest;
  return rest;
}

long long microseconds(const FILETIME& time) {
  return ((static_cast<long long>(time.dwHighDateTime) << 32) | time.dwLowDateTime) / 10;
}

}  // namespace

int wmain() {
  std::wstring line = command();
  // Where somebody is logged on there is a desktop already. Wine makes it for the
  // first process that asks and ends it with the last one, which would count the
  // start of Wine's own desktop process (50 ms) into every run measured.
  GetDesktopWindow();
  Sleep(kUntilItRests);
  LARGE_INTEGER frequency;
  LARGE_INTEGER start;
  LARGE_INTEGER end;
  QueryPerformanceFrequency(&frequency);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  QueryPerformanceCounter(&start);
  if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                     &process) == FALSE) {
    std::fprintf(stderr, "measure: %ls: %lu\n", line.c_str(), GetLastError());
    return 2;
  }
  WaitForSingleObject(process.hProcess, INFINITE);
  QueryPerformanceCounter(&end);
  DWORD status = 0;
  FILETIME made;
  FILETIME ended;
  FILETIME kernel;
  FILETIME user;
  PROCESS_MEMORY_COUNTERS memory{};
  GetExitCodeProcess(process.hProcess, &status);
  GetProcessTimes(process.hProcess, &made, &ended, &kernel, &user);
  GetProcessMemoryInfo(process.hProcess, &memory, sizeof memory);
  std::printf("%lld %lld %llu\n", (end.QuadPart - start.QuadPart) * 1000000 / frequency.QuadPart,
              microseconds(kernel) + microseconds(user),
              static_cast<unsigned long long>(memory.PeakWorkingSetSize) / 1024);
  return status == 0 ? 0 : 1;
}
