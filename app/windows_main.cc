// The Windows program: the whole program on the machine it runs on.
#include <windows.h>

#include <string>

#include "basic/resume_next.h"
#include "engine/start.h"
#include "platform/win32/wide.h"
#include "platform/win32/win32_machine.h"

namespace {

constexpr int kDone = 0;
constexpr int kNotCarriedOut = 2;

// It runs with all rights that the person has: a library that somebody put into
// the program's folder, the current one or the PATH must not come in with it.
void searchLibrariesInSystemFolder() {
  SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  SetDllDirectoryW(L"");
  SetSearchPathMode(BASE_SEARCH_PATH_ENABLE_SAFE_SEARCHMODE | BASE_SEARCH_PATH_PERMANENT);
}

bool quitAsked() {
  MSG message = {};
  return PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE) != 0;
}

// Serves the program until something in it ends the process, which passes
// through here, or the session asks it to go.
void pumpUntilClosed(tavr::Program& program) {
  constexpr std::uint32_t kBetweenLooks = 100;  // ms
  while (!quitAsked()) program.machine.events.wait(kBetweenLooks);
}

// An unattended start ends by ending the process; so does closing the form.
int runOn(tavr::Machine& machine, const std::string& arguments) {
  try {
    tavr::Program program(machine);
    tavr::Form_Initialize(program, arguments);
    tavr::Form_Load(program);
    pumpUntilClosed(program);
  } catch (const tavr::ProcessEnd&) {
    // The usual end: everything has been unwound.
  } catch (const tavr::RuntimeError&) {
    return kNotCarriedOut;
  }
  return kDone;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR arguments, int) {
  searchLibrariesInSystemFolder();
  tavr::win32::Win32Machine machine;
  return runOn(machine.machine(), tavr::win32::narrow(arguments));
}
