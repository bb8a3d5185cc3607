// What a track procedure works with: the machine, the main form through whose
// members and controls it reports, and the services that do its work.
#pragma once

#include "forms/form1.h"
#include "platform/machine.h"
#include "services/cache_entries.h"
#include "services/call_stack.h"
#include "services/deletion.h"
#include "services/registry_layer.h"

namespace tavr {

struct TrackContext {
  Machine& machine;
  Form1& form;
  RegistryLayer& registry;
  Deletion& deletion;
  CacheEntries& cache;
  CallStack& call_stack;
};

}  // namespace tavr
