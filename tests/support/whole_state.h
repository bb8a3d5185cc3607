// Everything that a press can change: the files and the registry of the machine,
// what was asked of its shell, and all that the open forms show. Two of them
// compare to the list of what happened in between.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/support/started_program.h"

namespace tavr::testing {

/// A thing by its name, and what there is to tell of it: "C:\a.txt" and the
/// contents, "Form2.Check1(44)" and "1", "Form2.Check1(44).visible" and "yes".
using WholeState = std::map<std::string, std::string>;

WholeState wholeState(TestMachine& machine, StartedProgram& program);

/// "+name=text" for what came, "-name" for what went, "name=text" for what
/// changed. A form comes and goes as one, a key with its values.
std::vector<std::string> changes(const WholeState& before, const WholeState& after);

/// The forms by their names, those included that the program lets nobody see.
inline constexpr const char* kForms[] = {"Form1",  "Form2",  "Form3",   "Form4",
                                         "Form52", "frmmsg", "frmabout"};

}  // namespace tavr::testing
