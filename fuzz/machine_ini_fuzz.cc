// machine.ini: taken or refused with its line; what is taken is complete.
#include <string_view>

#include "basic/text.h"
#include "fuzz/checks.h"
#include "platform/folder/machine_ini.h"
#include "platform/folder/machine_text.h"
#include "platform/folder/malformed_file.h"
#include "platform/folder/virtual_clock.h"

namespace {

using tavr::fuzz::require;

bool hasVariable(const tavr::folder::MachineIni& ini, std::string_view name) {
  int found = 0;
  for (const auto& [key, value] : ini.environment) found += tavr::sameText(key, name) ? 1 : 0;
  return found == 1;
}

void check(const tavr::folder::MachineIni& ini) {
  for (const char* name : {"UserName", "USERPROFILE", "Temp", "PROGRAMDATA"}) {
    require(hasVariable(ini, name), "every machine has the four variables, each once");
  }
  require(tavr::folder::isFullWindowsPath(ini.program_path + "\\"), "the program has a full path");
  require(!tavr::endsInBackslash(ini.program_path), "no \\ stands behind the program's path");
  if (ini.clock_start) {
    require(tavr::folder::validTime(*ini.clock_start), "the clock starts at a time");
    tavr::folder::VirtualClock clock(*ini.clock_start);
    require(clock.now().minute == ini.clock_start->minute, "the clock shows its start");
  }
  for (const auto& fault : ini.faults) require(fault.error != 0, "a fault is an error");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    check(tavr::folder::parseMachineIni(tavr::fuzz::asText(data, size)));
  } catch (const tavr::folder::MalformedFile& refused) {
    require(std::string_view(refused.what()).starts_with("machine.ini:"), "a line is named");
  }
  return 0;
}
