#include "platform/folder/machine_folder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/folder/english_locale.h"
#include "platform/folder/faults.h"
#include "platform/folder/file_descriptor.h"
#include "platform/folder/folder_accounts.h"
#include "platform/folder/folder_desktop.h"
#include "platform/folder/folder_dialogs.h"
#include "platform/folder/folder_environment.h"
#include "platform/folder/folder_events.h"
#include "platform/folder/folder_files.h"
#include "platform/folder/folder_parent.h"
#include "platform/folder/folder_processes.h"
#include "platform/folder/folder_registry.h"
#include "platform/folder/folder_shell.h"
#include "platform/folder/folder_tree.h"
#include "platform/folder/folder_url_cache.h"
#include "platform/folder/ini_files.h"
#include "platform/folder/machine_ini.h"
#include "platform/folder/machine_logs.h"
#include "platform/folder/machine_text.h"
#include "platform/folder/malformed_file.h"
#include "platform/folder/recycle_bin.h"
#include "platform/folder/registry_file.h"
#include "platform/folder/std_reg_prov.h"
#include "platform/folder/virtual_clock.h"

namespace tavr::folder {

namespace {

std::string withoutSlash(std::string directory) {
  while (directory.size() > 1 && directory.ends_with('/')) directory.pop_back();
  return directory;
}

// Can a file be made here? Asked without leaving a trace where Linux can.
bool takesFiles(const std::string& directory) {
  if (::access(directory.c_str(), W_OK | X_OK) != 0) return false;
  if (FileDescriptor(::open(directory.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600)).valid()) {
    return true;
  }
  if (errno != EOPNOTSUPP && errno != EISDIR && errno != EINVAL) return false;
  std::string probe = directory + "/.probe.XXXXXX";
  if (!FileDescriptor(::mkostemp(probe.data(), O_CLOEXEC)).valid()) return false;
  ::unlink(probe.c_str());
  return true;
}

void requireUsable(const std::string& directory) {
  struct stat status {};
  if (::stat(directory.c_str(), &status) != 0) {
    const std::string what = errno == ENOENT ? "no such folder" : std::strerror(errno);
    throw UnusableMachine(directory + ": " + what);
  }
  if (!S_ISDIR(status.st_mode)) throw UnusableMachine(directory + ": is not a folder");
  if (!takesFiles(directory)) throw UnusableMachine(directory + ": cannot be written to");
}

// Links resolved once: the machine's files are all those of one folder, whatever
// becomes of the way to it.
std::string realPath(const std::string& directory) {
  const std::unique_ptr<char, decltype(&std::free)> path(::realpath(directory.c_str(), nullptr),
                                                         &std::free);
  if (!path) throw UnusableMachine(directory + ": " + std::strerror(errno));
  return path.get();
}

MachineIni readIni(const std::string& directory) {
  return parseMachineIni(readMachineFile(directory, "machine.ini").value_or(""));
}

std::vector<std::string> readLocked(const std::string& directory) {
  const LineFile file(directory, "locked.txt");
  std::vector<std::string> paths;
  for (std::size_t i = 0; i < file.size(); ++i) {
    const std::string_view path = trimBlanks(file.line(i));
    if (path.empty()) continue;
    if (!isFullWindowsPath(path)) file.refuse(i, "no full path such as C:\\a\\b");
    paths.emplace_back(path);
  }
  return paths;
}

std::unique_ptr<MachineClock> makeClock(const MachineIni& ini) {
  if (ini.clock_start) return std::make_unique<VirtualClock>(*ini.clock_start);
  return std::make_unique<RealClock>();
}

}  // namespace

// In the order of their building: what stands below uses what stands above.
struct MachineFolder::Parts {
  Parts(std::string real_path, AskPerson ask)
      : directory(std::move(real_path)), ask_person(std::move(ask)) {}

  std::string directory;
  AskPerson ask_person;
  MachineIni ini = readIni(directory);
  Faults faults = faultsOf(ini);
  RegistryFile registry_file = RegistryFile::load(directory + "/registry.reg");
  FolderTree tree{directory, ini.program_path};
  std::vector<std::string> locked = readLocked(directory);
  FolderFiles files{tree, locked, faults};
  RecycleBin recycle_bin{tree, locked, faults};
  FolderProcesses processes{directory, faults};
  // What the system's own services do with files and keys is no call of the
  // program's: [fault] neither counts it nor fails it.
  Faults no_faults;
  FolderFiles system_files{tree, locked, no_faults};
  FolderUrlCache url_cache{directory, system_files, faults};

  std::unique_ptr<MachineClock> clock = makeClock(ini);
  EnglishLocale locale;
  FolderEvents events{*clock, [this] { save(); }};
  FolderDialogs dialogs{ini.answers, ask_person, events};
  FolderEnvironment environment{ini.environment, ini.program_path};
  FolderRegistry registry{registry_file.tree(), faults};
  FolderRegistry provider_registry{registry_file.tree(), no_faults};
  FolderWmi wmi{processes, [this] { return makeProvider(); }, faults};
  FolderIniFiles ini_files{files};
  FolderShell shell{directory, ini.cookies, recycle_bin, system_files, environment, faults};
  FolderEventLog event_log{directory, faults};
  FolderDesktop desktop{faults};
  FolderAccounts accounts;
  FolderParent parent{directory, ini.parent_window, faults};

  Machine machine{registry, wmi,    ini_files, files,  processes, url_cache,   shell,   event_log,
                  parent,   *clock, locale,    events, dialogs,   environment, desktop, accounts};

  static Faults faultsOf(const MachineIni& ini) {
    Faults faults;
    for (const FaultLine& fault : ini.faults) faults.add(fault.operation, fault.nth, fault.error);
    return faults;
  }

  std::unique_ptr<StdRegProv> makeProvider() {
    return std::make_unique<FolderStdRegProv>(
        provider_registry, faults,
        [this](std::string_view text) { return environment.expand(text); });
  }

  bool save() {
    const bool cache_saved = url_cache.save();
    return registry_file.save(directory + "/registry.reg") && cache_saved;
  }
};

MachineFolder::MachineFolder(const std::string& directory, AskPerson ask) {
  const std::string folder = withoutSlash(directory);
  requireUsable(folder);
  try {
    parts_ = std::make_unique<Parts>(realPath(folder), std::move(ask));
  } catch (const MalformedFile& error) {
    throw UnusableMachine(folder + "/" + error.what());
  } catch (const std::system_error& error) {
    throw UnusableMachine(folder + ": " + error.code().message());
  }
}

MachineFolder::~MachineFolder() = default;

Machine& MachineFolder::machine() { return parts_->machine; }

bool MachineFolder::save() { return parts_->save(); }

void MachineFolder::setInterruptHandler(std::function<void()> handler) {
  parts_->events.setInterruptHandler(std::move(handler));
}

FolderDesktop& MachineFolder::desktop() { return parts_->desktop; }

void MachineFolder::interrupt() { parts_->events.interrupt(); }

}  // namespace tavr::folder
