// The processes of a machine folder (processes.txt: "pid image" a line), seen
// through Tool Help and through WMI. Ending one takes its line out of the file.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/folder/faults.h"
#include "platform/folder/machine_text.h"
#include "platform/processes.h"
#include "platform/wmi.h"

namespace tavr::folder {

class FolderProcesses : public Processes {
 public:
  /// Raises MalformedFile.
  FolderProcesses(const std::string& directory, Faults& faults);

  Status snapshot(std::vector<ProcessEntry>& entries) override;
  Status open(std::uint32_t id, std::uint32_t access, std::unique_ptr<Process>& out) override;

  /// The processes that run now.
  std::vector<ProcessEntry> running() const;

 private:
  class Handle;

  struct Entry {
    std::size_t line = 0;
    ProcessEntry process;
  };

  Status end(std::size_t index);

  LineFile file_;
  std::vector<Entry> entries_;
  Faults::Point& snapshot_fault_;
  Faults::Point& open_fault_;
  Faults::Point& terminate_fault_;
};

/// WMI of the machine: the registry provider, and Win32_Process by name.
class FolderWmi : public Wmi {
 public:
  using MakeProvider = std::function<std::unique_ptr<StdRegProv>()>;

  FolderWmi(FolderProcesses& processes, MakeProvider make_provider, Faults& faults);

  std::unique_ptr<StdRegProv> bindRegistryProvider(std::string_view moniker) override;
  bool queryProcessIds(std::string_view query, std::vector<std::uint32_t>& ids) override;

 private:
  FolderProcesses& processes_;
  MakeProvider make_provider_;
  Faults::Point& bind_fault_;
  Faults::Point& query_fault_;
};

}  // namespace tavr::folder
