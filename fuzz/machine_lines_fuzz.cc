// processes.txt, urlcache.txt and locked.txt, parted by NULs: the machine is
// taken or refused; what it takes can be ended and removed to the last entry.
#include <string>
#include <vector>

#include "fuzz/checks.h"
#include "fuzz/fuzz_machine.h"
#include "platform/folder/machine_folder.h"

namespace {

using tavr::fuzz::FuzzFolder;
using tavr::fuzz::require;

void endProcesses(tavr::Processes& processes) {
  std::vector<tavr::ProcessEntry> entries;
  require(processes.snapshot(entries) == tavr::kSuccess, "there is a snapshot");
  for (const tavr::ProcessEntry& entry : entries) {
    std::unique_ptr<tavr::Process> process;
    const tavr::Status status = processes.open(entry.id, 1, process);
    require(status == tavr::kSuccess || entry.id == 0, "a process of the snapshot opens");
    if (process) require(process->terminate(0) == tavr::kSuccess, "it can be ended");
  }
  require(processes.snapshot(entries) == tavr::kSuccess, "there is a second snapshot");
  for (const auto& entry : entries) require(entry.id == 0, "only the idle process is left");
}

std::vector<std::string> urls(tavr::UrlCache& cache) {
  std::vector<std::string> all;
  tavr::CacheEntry entry;
  const auto walk = cache.findFirst(entry);
  if (!walk) return all;
  do {
    all.push_back(entry.url.value_or(""));
  } while (walk->next(entry));
  return all;
}

void emptyCache(tavr::UrlCache& cache) {
  for (const std::string& url : urls(cache)) {
    require(cache.remove(url) == tavr::kSuccess, "an entry of the walk can be removed");
  }
  require(urls(cache).empty(), "nothing is left of the cache");
}

bool runOn(const std::string& directory) {
  try {
    tavr::folder::MachineFolder folder(directory);
    tavr::Machine& machine = folder.machine();
    const tavr::Status opened = machine.files.open("C:\\kept.txt", tavr::OpenMode::kInput).status;
    require(opened == tavr::kSuccess || opened == tavr::kSharingViolation, "held or free");
    endProcesses(machine.processes);
    emptyCache(machine.url_cache);
    require(folder.save(), "the machine can be saved");
    return true;
  } catch (const tavr::folder::UnusableMachine&) {
    return false;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const FuzzFolder folder;
  std::string_view input = tavr::fuzz::asText(data, size);
  folder.write("processes.txt", tavr::fuzz::takePart(input));
  folder.write("urlcache.txt", tavr::fuzz::takePart(input));
  folder.write("locked.txt", input);
  folder.write("C/kept.txt", "kept");
  if (!runOn(folder.directory())) return 0;
  folder.write("C/kept.txt", "kept");  // a cache entry may have been for it
  require(runOn(folder.directory()), "what was written back can be read");
  return 0;
}
