// The program: the main form and what its handlers work with, put together
// over one machine. It lives as long as the process.
#pragma once

#include <cstdint>
#include <functional>

#include "config/language.h"
#include "config/plug_ins.h"
#include "engine/form_desk.h"
#include "forms/form1.h"
#include "forms/frmmsg.h"
#include "platform/machine.h"
#include "services/cache_entries.h"
#include "services/call_stack.h"
#include "services/deletion.h"
#include "services/directory_search.h"
#include "services/file_statements.h"
#include "services/parent_totals.h"
#include "services/registry_layer.h"
#include "tracks/track_context.h"

namespace tavr {

enum class RunKind : std::uint8_t { erase, test };

struct Program {
  /// Builds the form and puts its handlers in; starts nothing.
  explicit Program(Machine& machine);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  Machine& machine;
  Form1 form;
  frmmsg message;
  FileNumbers numbers;
  CallStack call_stack;
  RegistryLayer registry;
  Deletion deletion;
  CacheEntries cache;
  TrackContext tracks;
  PlugIns plug_ins;
  ParentTotals parent_totals;
  clsdirsearch directory_search;
  Language language;
  FormDesk desk;

  // The hot keys: how many were registered, and whether their window procedure
  // stands before the form's own.
  int hot_key_count = 0;
  bool hot_key_installed = false;
  // Where the settings button stood on the screen at load, in twips.
  int settings_button_left = 0;
  int settings_button_top = 0;

  /// Told when a run has finished, with its tables still in place. A view's
  /// notice: nothing of the program depends on it.
  std::function<void(RunKind kind)> onRunFinished;
};

}  // namespace tavr
