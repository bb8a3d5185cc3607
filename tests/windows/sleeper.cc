// A program that does nothing for a minute: the contract suites start copies of
// it under the names they ask for. Its argument is an event that says it runs.
#include <windows.h>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR command_line, int) {
  constexpr DWORD kLongerThanAnyTest = 60'000;  // ms; what a crashed test leaves behind ends, too
  if (const HANDLE running = OpenEventA(EVENT_MODIFY_STATE, FALSE, command_line)) {
    SetEvent(running);
    CloseHandle(running);
  }
  Sleep(kLongerThanAnyTest);
  return 0;
}
