#include "ui/win32/windows_app.h"

#include "basic/resume_next.h"
#include "engine/start.h"
#include "ui/win32/common_controls.h"
#include "ui/win32/main_loop.h"

namespace tavr::win32 {

bool runWindows(Program& program, Win32Machine& machine) {
  loadCommonControls();
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
