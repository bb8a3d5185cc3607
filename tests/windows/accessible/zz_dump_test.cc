#include <gmock/gmock.h>
#include <iostream>
#include "tests/windows/accessible/asked.h"
#include "tests/windows/accessible/shown_program.h"
#include "ui/win32/accessible_name.h"
namespace tavr::win32::testing {
TEST(Dump, All) {
  for (const auto& p : kFormPanels) {
    ShownProgram shown("de");
    open(shown, p);
    std::cout << "== " << p.form << " " << p.opened_by << "\n";
    for (BoundControl* b : shown.shown(p.form)) {
      Asked a = ask(b->window());
      std::cout << fullName(b->control().design.name, b->control().design.index) << " role "
                << std::hex << a.role << " state " << a.state << std::dec << " [" << a.name << "|"
                << accessibleName(shown.form(p.form), b->control(), "de") << "] " << a.value << " "
                << a.shortcut << " " << a.action << "\n";
    }
  }
}
}  // namespace tavr::win32::testing
