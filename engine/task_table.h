// The task table: what stands in View100 before a run.
#pragma once

#include "engine/program.h"

namespace tavr {

/// The change of Text4: rebuilds the table when its value is 1. That is why
/// callers set "" first.
void Text4_Change(Program& program);

}  // namespace tavr
