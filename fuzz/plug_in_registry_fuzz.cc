// The registry lines of plug-ins: reporting one changes nothing, carrying it
// out a second time finds nothing more, and no other root is touched.
#include <string_view>

#include "basic/utf.h"
#include "engine/plug_in_registry.h"
#include "fuzz/checks.h"
#include "fuzz/fuzz_machine.h"
#include "platform/folder/folder_registry.h"
#include "platform/folder/machine_folder.h"
#include "platform/folder/registry_reader.h"
#include "platform/folder/registry_writer.h"
#include "tests/support/machine_with.h"

namespace {

using tavr::fuzz::require;

constexpr std::string_view kRegistry = R"(Windows Registry Editor Version 5.00

[HKEY_CLASSES_ROOT\kept]

[HKEY_CURRENT_USER\a]
@="default"
"1"="one"
"b,c"=dword:00000001

[HKEY_CURRENT_USER\a\b]

[HKEY_CURRENT_USER\a\ c]
"x"=hex(7):00,00

[HKEY_LOCAL_MACHINE\SOFTWARE\a\b]
"1"="one"

[HKEY_LOCAL_MACHINE\SOFTWARE\WOW6432Node\a\b]
"1"="one"

[HKEY_USERS\a\b]
"1"="one"
)";

void checkParsed(std::string_view line) {
  const tavr::PlugInRegistryLine parsed = tavr::parsePlugInRegistryLine(line);
  require(!parsed.root.empty() || parsed.path.empty(), "without a root there is no path");
  require(parsed.root.size() <= 4, "a root has its short name");
  require(tavr::utf16Length(parsed.path) <= tavr::utf16Length(line), "a path is of the line");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const tavr::fuzz::FuzzFolder folder;
  static tavr::folder::MachineFolder base(folder.directory());
  const std::string_view line = tavr::fuzz::asText(data, size);
  checkParsed(line);

  tavr::folder::Faults faults;
  tavr::folder::RegistryTree tree;
  tavr::folder::readRegistry("registry.reg", kRegistry, tree);
  tavr::folder::FolderRegistry registry(tree, faults);
  tavr::Machine machine = tavr::testing::machineWith(base.machine(), registry);
  tavr::Program program(machine);

  tavr::plugInRegistryLine(program, line, false);
  require(!tree.changed(), "a report changes nothing");
  const std::size_t reported = program.form.View200.count();
  tavr::plugInRegistryLine(program, line, true);
  require(program.form.View200.count() == 2 * reported, "an erasure reports what a test does");
  const std::string once = tavr::folder::writeRegistry(tree, false);
  tavr::plugInRegistryLine(program, line, true);
  require(tavr::folder::writeRegistry(tree, false) == once, "a second erasure finds nothing more");
  return 0;
}
