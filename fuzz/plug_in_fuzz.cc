// Plug-in files, parted by NULs: a definition, the selection, and the three
// work files. Nothing of them may raise, and the folder lists stay in step.
#include <string>
#include <string_view>

#include "engine/program.h"
#include "fuzz/checks.h"
#include "fuzz/fuzz_machine.h"
#include "platform/folder/machine_folder.h"

namespace {

using tavr::fuzz::FuzzFolder;
using tavr::fuzz::require;
using tavr::fuzz::takePart;

void checkLists(const tavr::Form1& form) {
  require(form.List8.count() == form.List9.count(), "every folder has a mask");
  require(form.List8.count() == form.List10.count(), "every folder has a flag");
}

void selectAndRead(tavr::Program& program) {
  program.plug_ins.listDefinitions();
  require(program.form.View1.count() == 1, "the definition is listed");
  program.plug_ins.restoreTicks([](const std::string&) {});
  program.form.View1.item(1).checked = true;
  program.plug_ins.Command1();
  require(program.plug_ins.hasSelection(), "the selection is written");
  program.plug_ins.Command3();
  checkLists(program.form);
  require(program.form.List7.count() <= program.form.List4.count(), "no file comes from nowhere");
  require(program.form.List11.count() <= program.form.List6.count(), "no key comes from nowhere");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const FuzzFolder folder;
  static tavr::folder::MachineFolder machine(folder.directory());
  static tavr::Program program(machine.machine());

  std::string_view input = tavr::fuzz::asText(data, size);
  folder.write("C/App/plugins/a plug-in.tv", takePart(input));
  folder.write("C/App/slectplg.cln", takePart(input));
  selectAndRead(program);

  for (const char* name : {"plgfile.cln", "plgfoldr.cln", "plgreg.cln"}) {
    folder.write("C/App/" + std::string(name), takePart(input));
  }
  program.plug_ins.Command3();
  checkLists(program.form);
  return 0;
}
