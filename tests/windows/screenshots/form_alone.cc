// form_alone FORM
// The program with a form open that no control leads to any more: "Form52", the
// list of what is kept, or "Form4", the note of a running browser.
#include <windows.h>

#include "basic/resume_next.h"
#include "engine/start.h"
#include "platform/win32/wide.h"
#include "platform/win32/win32_machine.h"
#include "ui/win32/common_controls.h"
#include "ui/win32/main_loop.h"

namespace tavr::win32 {

namespace {

constexpr std::string_view kAddresses = "2";

void runWith(std::string_view form, Win32Machine& machine) {
  loadCommonControls();
  Program program(machine.machine());
  MainLoop loop(program, machine.events(), machine.desktop());
  try {
    Form_Load(program);
    if (form == "Form52")
      program.desk.openKeepList("Current Location bar history List", kAddresses);
    if (form == "Form4") program.desk.openBrowserNote("Firefox");
    loop.run();
  } catch (const ProcessEnd&) {
  }
}

}  // namespace

}  // namespace tavr::win32

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR form, int) {
  tavr::win32::Win32Machine machine;
  tavr::win32::runWith(tavr::win32::narrow(form), machine);
  return 0;
}
