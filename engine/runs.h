// The two runs over the whole catalogue, step for step alike: where Erase
// calls cN, Test calls tN.
#pragma once

#include "engine/program.h"

namespace tavr {

/// The Click of chameleonButton5. Ends the process when a caller waits for its
/// result (resultMode 2 or parentMode above 0).
void eraseRun(Program& program);

/// The Click of chameleonButton6. Never ends the process itself.
void testRun(Program& program);

void cmd_start_Click(Program& program);
void cmd_test_Click(Program& program);
void cmd_stop_Click(Program& program);
/// Value 1 runs Test, value 2, read again, runs Erase.
void Text5_Change(Program& program);

}  // namespace tavr
