// The Windows program: the whole program on the machine it runs on.
#include <windows.h>

#include <string>

#include "basic/resume_next.h"
#include "engine/start.h"
#include "platform/win32/wide.h"
#include "platform/win32/win32_machine.h"
#include "ui/win32/windows_app.h"

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

// An unattended start makes no window and ends by ending the process. False: by
// an error that no statement caught.
bool runToItsEnd(tavr::Program& program) {
  try {
    tavr::Form_Load(program);
  } catch (const tavr::ProcessEnd&) {
    return true;
  } catch (const tavr::RuntimeError&) {
  }
  return false;
}

bool runOn(tavr::win32::Win32Machine& machine, const std::string& arguments) {
  tavr::Program program(machine.machine());
  tavr::Form_Initialize(program, arguments);
  if (program.form.unattended == 1) return runToItsEnd(program);
  return tavr::win32::runWindows(program, machine);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR arguments, int) {
  searchLibrariesInSystemFolder();
  tavr::win32::Win32Machine machine;
  return runOn(machine, tavr::win32::narrow(arguments)) ? kDone : kNotCarriedOut;
}
