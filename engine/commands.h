// The commands of the main window. Each has one core handler, the Click of a
// chameleonButton; buttons, toolbar and tray menu lead to it.
#pragma once

#include "engine/program.h"

namespace tavr {

/// Puts the handlers of every command in, and the hover texts.
void connectCommands(Program& program);

}  // namespace tavr
