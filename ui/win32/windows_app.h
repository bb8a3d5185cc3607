// The program with its windows: an interactive start.
#pragma once

#include "engine/program.h"
#include "platform/win32/win32_machine.h"

namespace tavr::win32 {

/// Loads the main form as a person's start does, and serves its windows until
/// the process is to end. False: an error that no handler caught ended it.
/// Form_Initialize has been called.
bool runWindows(Program& program, Win32Machine& machine);

}  // namespace tavr::win32
