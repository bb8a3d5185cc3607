// The start of the process: the command line into the run mode, and the road
// that an unattended start takes to its end.
#pragma once

#include <string_view>

#include "engine/program.h"

namespace tavr {

/// Reads the command line into the mode fields of the form.
void Form_Initialize(Program& program, std::string_view command);

/// Loads the form. An unattended start runs here and ends the process.
void Form_Load(Program& program);

/// The change of Text15, which nothing writes: a run, the wizard's statistics,
/// and the end of the process.
void Text15_Change(Program& program);

}  // namespace tavr
