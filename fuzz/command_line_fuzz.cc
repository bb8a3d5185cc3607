// The command line: words parted by NULs, and the same bytes as one argument
// text, which is how Windows hands it over.
#include <string>
#include <string_view>
#include <vector>

#include "app/options.h"
#include "engine/start.h"
#include "fuzz/checks.h"
#include "fuzz/fuzz_machine.h"
#include "platform/folder/machine_folder.h"

namespace {

using tavr::fuzz::require;

void checkModes(tavr::Machine& machine, std::string_view arguments) {
  tavr::Program program(machine);
  tavr::Form_Initialize(program, arguments);
  const tavr::Form1& form = program.form;
  require(form.unattended == 0 || form.unattended == 1 || form.unattended == 5, "three starts");
  require(form.resultMode >= 0 && form.resultMode <= 2, "three result modes");
  require(form.parentMode >= 0 && form.parentMode <= 2, "three parent modes");
  require(form.resultMode == 0 || form.unattended == 1, "a result needs an unattended start");
  require(form.parentMode == 0 || form.unattended == 1, "a parent needs an unattended start");
  require(form.parentMode == 0 || form.resultMode == 0, "a parent takes no result file");
  require(form.hideOnLoad == 0 || form.resultMode == 2, "only a result run is hidden");
  require(form.hasArguments || form.unattended == 0, "no arguments, no unattended start");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const tavr::fuzz::FuzzFolder folder;
  static tavr::folder::MachineFolder machine(folder.directory());

  std::string_view input = tavr::fuzz::asText(data, size);
  checkModes(machine.machine(), input);

  std::vector<std::string> words{"tavrwipe"};
  while (!input.empty()) words.emplace_back(tavr::fuzz::takePart(input));
  std::vector<const char*> argv;
  for (const std::string& word : words) argv.push_back(word.c_str());
  argv.push_back(nullptr);
  const tavr::Options options = tavr::parseOptions(static_cast<int>(words.size()), argv.data());
  if (!options.error.empty()) return 0;
  require(!options.machine.empty() || options.help || options.version, "a call names its machine");
  checkModes(machine.machine(), options.arguments);
  return 0;
}
