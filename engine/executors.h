// The queue executor. The catalogue's tracks act at once; only plug-in items
// are queued, and both runs report and count them. The removing side stands
// ready and is called by nobody: plug-in items stay on the disk.
#pragma once

#include "engine/program.h"

namespace tavr {

/// Lists the plug-ins, restores their selection, and fills the work lists.
/// Without a file of selected names the lists keep what a previous run left.
void Command400(Program& program);

/// Reports and counts every queued item. The one thing it changes on the disk
/// is the attributes of the files.
void command2(Program& program);

/// The same walk, and it deletes.
void Command4(Program& program);

}  // namespace tavr
