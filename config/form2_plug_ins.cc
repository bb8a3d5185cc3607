// The plug-in panel of Form2.
#include "basic/number.h"
#include "basic/resume_next.h"
#include "basic/text.h"
#include "config/form2_code.h"
#include "config/maker_site.h"
#include "services/event_log.h"
#include "services/program_folder.h"
#include "tracks/primitives.h"

namespace tavr {

namespace {

constexpr std::uint32_t kArchive = 32;
constexpr std::uint32_t kYesNoQuestion = 36;
constexpr int kShowNormal = 1;
constexpr std::uint32_t kHelpContext = 15;
constexpr std::uint32_t kHelpOfSettings = 22;
constexpr std::string_view kDefinitions = "*.tv";

}  // namespace

void Form2Code::connectPlugIns() {
  auto& button = form.chameleonButton;
  button[5].onClick = [this] { tickAll(true); };
  button[14].onClick = [this] { tickAll(false); };
  button[8].onClick = [this] { listPlugIns(); };
  button[9].onClick = [this] { deletePlugIn(); };
  button[10].onClick = [this] { showPlugInInfo(); };
  button[11].onClick = [this] { importPlugIn(); };
  button[12].onClick = [this] { downloadPlugIns(); };
  button[13].onClick = [this] { runPlugInMaker(); };
  form.View1.onItemCheck = [this](int) { makeWorkFiles(); };
  form.View1.onItemClick = [this](int row) { form.Text4.setText(numberText(row)); };
}

void Form2Code::makeWorkFiles() {
  plug_ins_.Command1();
  plug_ins_.Command3();
}

void Form2Code::listPlugIns() {
  plug_ins_.listDefinitions();
  if (plug_ins_.hasSelection()) plug_ins_.restoreTicks([](const std::string&) {});
  makeWorkFiles();
}

void Form2Code::tickAll(bool on) {
  for (int row = 1; row <= form.View1.count(); ++row) form.View1.item(row).checked = on;
  makeWorkFiles();
}

// Raises 13 or 35600 while no row has been clicked.
std::string Form2Code::definitionOfSelectedRow() {
  return form.View1.item(toInteger(form.Text4.text())).text;
}

// Without a selected row every statement that needs its name fails, the
// question included, and nothing happens. The list is not rebuilt.
void Form2Code::deletePlugIn() {
  ResumeNext on;
  Machine& machine = context_.machine;
  const std::string before = LangText(context_.tracks, "049");
  const std::string behind = LangText(context_.tracks, "050");
  const bool confirmed = on.met([&] {
    const std::string question = before + definitionOfSelectedRow() + behind + "   ?";
    return machine.dialogs.messageBox(question, kYesNoQuestion, "") != kAnswerNo;
  });
  if (!confirmed) return;
  const auto path = [&] {
    return programFile(machine, "plugins\\" + definitionOfSelectedRow() + ".tv");
  };
  on.next([&] { SetAttr(machine, path(), kArchive); });
  on.next([&] { Kill(machine, path()); });
}

void Form2Code::showPlugInInfo() {
  ResumeNext on;
  FileNumbers& numbers = context_.numbers;
  LangText(context_.tracks, "046");  // read, and the text goes no further
  std::string title;
  std::string author;
  std::string description;
  const int number = numbers.freeFile();
  on.next([&] {
    numbers.open(number,
                 programFile(context_.machine, "plugins\\" + definitionOfSelectedRow() + ".tv"),
                 OpenMode::kInput);
    for (std::string* line : {&title, &author, &description}) *line = numbers.lineInput(number);
  });
  on.next([&] { numbers.close(number); });
  context_.host.showMessage(kApplicationTitle, description + "\r\n\r  Designed By : " + author,
                            title);
}

void Form2Code::importPlugIn() {
  Machine& machine = context_.machine;
  const auto chosen = machine.desktop.chooseFile(
      std::string(kDefinitions) + "|" + std::string(kDefinitions), kDefinitions);
  if (!chosen) return;
  const std::string_view path = Trim(*chosen);
  const std::string_view name = path.substr(path.find_last_of('\\') + 1);
  // A copy that fails is passed over like any other error of this form.
  (void)machine.files.copy(path, programFile(machine, "plugins\\" + std::string(name)));
}

// A browser that comes at once is not hidden by the form.
void Form2Code::downloadPlugIns() {
  form.setTopmost(false);
  context_.machine.shell.execute("open", std::string(kMakerSite) + std::string(kPlugInPage),
                                 kShowNormal);
  form.setTopmost(true);
}

void Form2Code::runPlugInMaker() {
  context_.machine.shell.execute("open", programFile(context_.machine, "plug-in maker.exe"),
                                 kShowNormal);
}

void Form2Code::openHelp() {
  context_.machine.shell.htmlHelp(programFile(context_.machine, "tavrwork-helpdoc.chm>sec"),
                                  kHelpContext, kHelpOfSettings);
}

}  // namespace tavr
