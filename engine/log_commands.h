// What a person does with the erase log: open it, clear it.
#pragma once

#include "engine/program.h"

namespace tavr {

/// The Click of chameleonButton1: opens the log with the program that the shell
/// has for it.
void viewLog(Program& program);

/// The Click of chameleonButton2: leaves an empty log and says so.
void clearLog(Program& program);

}  // namespace tavr
