// The shell of a machine folder: nothing is ever started; what would be goes to
// shell.log, one line each:
//
//     execute SHOW VERB FILE         VERB is "-" where it is empty
//     run STYLE COMMAND
//     htmlhelp COMMAND DATA FILE
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/environment.h"
#include "platform/files.h"
#include "platform/folder/faults.h"
#include "platform/folder/machine_logs.h"
#include "platform/folder/recycle_bin.h"
#include "platform/shell.h"

namespace tavr::folder {

class FolderShell : public Shell {
 public:
  FolderShell(const std::string& directory, std::string cookies, RecycleBin& recycle_bin,
              Files& files, Environment& environment, Faults& faults);

  Status specialFolder(int id, std::string& buffer) override;
  Status queryRecycleBin(std::int64_t& size, std::int64_t& items) override;
  Status emptyRecycleBin(std::uint32_t flags) override;
  void updateRecycleBinIcon() override {}

  /// 2, 3: a path of the machine that does not exist. An address ("http:...")
  /// opens always.
  Status execute(std::string_view verb, std::string_view file, int show) override;
  /// Success for schtasks and for a program that is a file of the machine.
  Status run(std::string_view command, int window_style) override;
  /// 2, 3: no such help file.
  Status htmlHelp(std::string_view file_and_window, std::uint32_t command,
                  std::uint32_t data) override;

 private:
  bool isFile(std::string_view path);
  bool isProgram(std::string_view name);

  MachineLog log_;
  std::string cookies_;
  RecycleBin& recycle_bin_;
  Files& files_;
  Environment& environment_;
  Faults::Point& folder_fault_;
  Faults::Point& execute_fault_;
  Faults::Point& run_fault_;
  Faults::Point& help_fault_;
};

}  // namespace tavr::folder
