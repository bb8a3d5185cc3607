// The report that a run leaves in eraselog.txt. The log only grows.
#pragma once

#include "engine/program.h"

namespace tavr {

/// Appends the report of the run. A log that cannot be opened loses it.
void appendEraseLog(Program& program);

}  // namespace tavr
