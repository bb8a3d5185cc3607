#include "ui/win32/windows_app.h"

#include <windows.h>
// Behind windows.h.
#include <commctrl.h>

#include "basic/resume_next.h"
#include "engine/start.h"
#include "ui/win32/main_loop.h"

namespace tavr::win32 {

namespace {

void loadControls() {
  INITCOMMONCONTROLSEX controls{};
  controls.dwSize = sizeof(controls);
  controls.dwICC = ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES;
  InitCommonControlsEx(&controls);
}

}  // namespace

bool runWindows(Program& program, Win32Machine& machine) {
  loadControls();
  MainLoop loop(program, machine.events(), machine.desktop());
  try {
    Form_Load(program);
    loop.run();
  } catch (const ProcessEnd&) {
    // However a handler ends the process, it unwinds to here.
  } catch (const RuntimeError&) {
    return false;
  }
  return true;
}

}  // namespace tavr::win32
