// A parent program: parent.exe TITLE PROGRAM ARGUMENTS. Opens a window of that
// title, "" for none, runs the program and prints each text of totals that it is
// told, then "status N".
#include <windows.h>

#include <cstdio>
#include <exception>
#include <memory>
#include <string>

#include "tests/windows/parent_window.h"

namespace {

constexpr DWORD kLongestRun = 60'000;  // ms

// The program's exit status; it is ended when it takes too long.
unsigned long runProgram(std::wstring command) {
  STARTUPINFOW startup = {};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION process = {};
  if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                     &startup, &process) == 0) {
    return GetLastError();
  }
  if (WaitForSingleObject(process.hProcess, kLongestRun) != WAIT_OBJECT_0) {
    std::printf("too long\n");
    TerminateProcess(process.hProcess, 1);
  }
  DWORD status = 0;
  GetExitCodeProcess(process.hProcess, &status);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return status;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc < 3) return 2;
  const std::wstring title = argv[1];
  std::wstring command = L"\"" + std::wstring(argv[2]) + L"\"";
  for (int i = 3; i < argc; ++i) command += L" " + std::wstring(argv[i]);
  try {
    std::unique_ptr<tavr::windows_test::TotalsWindow> window;
    if (!title.empty()) {
      window = std::make_unique<tavr::windows_test::TotalsWindow>(
          title, [](const std::string& totals) { std::printf("totals %s\n", totals.c_str()); });
    }
    const unsigned long status = runProgram(command);
    window.reset();
    std::printf("status %lu\n", status);
  } catch (const std::exception& error) {
    std::printf("%s\n", error.what());
    return 1;
  }
  return 0;
}
