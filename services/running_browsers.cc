#include "services/running_browsers.h"

#include <string>
#include <vector>

#include "basic/text.h"

namespace tavr {

namespace {

// PROCESS_ALL_ACCESS as it was when this list was written.
constexpr std::uint32_t kAllAccess = 0x1F0FFF;
constexpr std::uint32_t kTerminate = 0x1;

void end(Machine& machine, std::uint32_t id, std::uint32_t access) {
  std::unique_ptr<Process> process;
  if (machine.processes.open(id, access, process) == kSuccess) process->terminate(0);
}

bool queryByName(Machine& machine, std::string_view name, std::vector<std::uint32_t>& ids) {
  return machine.wmi.queryProcessIds(
      "Select * from Win32_Process WHERE Name = '" + std::string(name) + "'", ids);
}

}  // namespace

std::optional<std::uint32_t> pid(Machine& machine, std::string_view name) {
  std::vector<std::uint32_t> ids;
  if (!queryByName(machine, name, ids) || ids.empty()) return std::nullopt;
  return ids.front();
}

bool fCloseByList(Machine& machine, std::string_view name) {
  const std::string wanted = LCase(name);
  std::vector<ProcessEntry> entries;
  if (machine.processes.snapshot(entries) != kSuccess) return false;
  bool matched = false;
  for (const ProcessEntry& entry : entries) {
    if (!LCase(untilNul(entry.image)).ends_with(wanted)) continue;
    matched = true;
    end(machine, entry.id, kAllAccess);
  }
  return matched;
}

bool fCloseByWmi(Machine& machine, std::string_view name) {
  std::vector<std::uint32_t> ids;
  queryByName(machine, name, ids);
  for (const std::uint32_t id : ids) {
    if (id != 0) end(machine, id, kTerminate);
  }
  return true;
}

}  // namespace tavr
