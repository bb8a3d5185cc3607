// The counters of a run: what a person sees while it goes on, the registry
// values that a sister product reads, and the totals for a parent program.
#pragma once

#include <string>

#include "engine/program.h"

namespace tavr {

/// A size in bytes as the labels show it: below 1000 times 1024 in KB, from
/// there on in MB, three decimals.
std::string displaySize(double bytes, char decimal);

/// The labels take the run's totals.
void showTotals(Program& program);

/// The tick of Timer2: labels and the live figures in the registry.
void Timer2_Timer(Program& program);

/// Adds an Erase run's totals to the life-long statistics. `size` ends as the
/// new total of `count` plus this run's kilobytes: that is how the value is
/// defined.
void updateStatistics(Program& program);

/// eresst.txt: one line, count "|" size.
void writeResultFile(Program& program);
/// eresetmp.txt: a line per result for as many rows as the plug-in list has,
/// which is none at that moment of a run.
void writeResultRows(Program& program);

/// The change of txtfilecount: reports the totals to the parent program, and
/// ends the process when that has no window.
void txtfilecount_Change(Program& program);

}  // namespace tavr
