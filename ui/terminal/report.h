// What the machine-folder program prints: every results row, or the task table
// and the totals; and a line of progress while it runs on a terminal.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>

#include "engine/program.h"

namespace tavr {

enum class Printed : std::uint8_t { tables, rows, nothing };

/// Watches a program's runs and prints them; the program must outlive it.
class TerminalReport {
 public:
  /// `progress`: also write a progress line to `progress_out`.
  TerminalReport(Program& program, Printed what, std::FILE* out, std::FILE* progress_out);

  /// What the end of the process left unprinted: the rows of a run that was
  /// ended in its middle.
  void finish();

 private:
  void runFinished(RunKind kind);
  void printRows();
  void printTables(RunKind kind);
  void showProgress(int value);
  void clearProgress();

  Program& program_;
  Printed what_;
  std::FILE* out_;
  std::FILE* progress_out_;
  bool progress_shown_ = false;
  int progress_value_ = -1;
  std::size_t progress_found_ = 0;
};

}  // namespace tavr
