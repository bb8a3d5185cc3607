// Every control of every form is pressed once on the fresh program: what that
// changes, in files, registry, shell and forms, is what the control is for and
// nothing else, and the program goes on.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "tests/support/browser_traces.h"
#include "tests/support/press_effects.h"
#include "tests/support/whole_state.h"

namespace tavr {
namespace {

using namespace testing;
using ::testing::UnorderedElementsAreArray;

constexpr int kChrome = 2;  // a group of addCookies

// The program with one form open, on a machine with a trace, a plug-in, and what
// is nobody's business.
class Stage {
 public:
  explicit Stage(std::string_view form) {
    machine.setting(kOptionSetting, "firsttime", "1").select("52");
    machine.value("HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\Main", "Start Page",
                  "http://a");
    machine.value("HKEY_CURRENT_USER\\Software\\Other", "kept", "1");
    machine.value("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run", "Other",
                  "other.exe");
    machine.file("C:\\Users\\user\\Documents\\letter.txt")
        .file("C:\\Windows\\system.ini")
        .file(std::string(kProgramFolder) + "\\plugins\\alpha.tv", "Alpha\r\nAnn\r\nText\r\n");
    addCookies(machine, kChrome, 1);
    program = std::make_unique<StartedProgram>(machine);
    program->start();
    FormDesk& desk = program->program().desk;
    if (form == "Form2") desk.openSettings();
    if (form == "Form3") desk.openOptions();
    if (form == "Form4") desk.openBrowserNote("Firefox");
    if (form == "Form52") desk.openKeepList("Current Cookies List", "1");
    if (form == "frmmsg") desk.showMessage("heading", "text", "");
    if (form == "frmabout") desk.openAbout();
  }

  Form& form(std::string_view name) { return *program->program().desk.loaded(name); }
  WholeState state() { return wholeState(machine, *program); }

  TestMachine machine;
  std::unique_ptr<StartedProgram> program;
};

std::vector<std::string> controlsOf(std::string_view form) {
  Stage stage(form);
  std::vector<std::string> names;
  for (const Control* const control : stage.form(form).controls()) {
    names.push_back(fullName(control->design.name, control->design.index));
  }
  return names;
}

void replaceAll(std::string& text, std::string_view what, std::string_view with) {
  for (std::size_t at = text.find(what); at != text.npos; at = text.find(what, at + with.size())) {
    text.replace(at, what.size(), with);
  }
}

Effects readableEffects(Effects effects) {
  for (std::string& effect : effects) {
    replaceAll(effect, "HKLM\\software\\wow6432node\\tavrwork\\", "~\\");
    replaceAll(effect, kProgramFolder, "<p>");
    if (effect.starts_with("+<p>\\eraselog.txt=")) effect = "+<p>\\eraselog.txt";
  }
  return effects;
}

// One panel, of those that take one another's place, is seen inside the form.
void expectOnePanel(const Form& form, const std::vector<const char*>& panels) {
  int seen = 0;
  for (const char* name : panels) {
    const Control& panel = *form.find(name);
    if (panel.visible && panel.box.left < form.width) ++seen;
  }
  EXPECT_EQ(seen, 1) << form.name();
}

// Nothing is stuck: the dialogs and the main form agree, no run is left halfway,
// and what a person would do next still works.
void expectTheProgramGoesOn(StartedProgram& program) {
  FormDesk& desk = program.program().desk;
  Form1& form = program.form();
  desk.freeUnloaded();
  const bool dialog = program.open("Form2") || program.open("Form3") || program.open("frmabout");
  EXPECT_EQ(form.enabled, !dialog);
  EXPECT_FALSE(form.Timer2.enabled());
  EXPECT_FALSE(form.bar1.visible());
  EXPECT_FALSE(form.Gif89a1.visible);
  if (const Form* settings = desk.loaded("Form2")) {
    expectOnePanel(*settings, {"Frame1", "Frame2", "Frame3", "Frame4", "Frame5", "Frame7", "Frame8",
                               "Frame9"});
  }
  if (const Form* options = desk.loaded("Form3")) {
    expectOnePanel(*options, {"Frame1", "Frame2", "Frame3"});
  }
  const std::size_t runs = program.runs.size();
  form.chameleonButton6.press();
  EXPECT_EQ(program.runs.size(), runs + 1);
  desk.openSettings();
  EXPECT_TRUE(program.open("Form2"));
}

class EveryButton : public ::testing::TestWithParam<const char*> {};

TEST_P(EveryButton, DoesWhatItIsForAndNothingElse) {
  const std::string form = GetParam();
  const std::map<std::string, Effects> table = pressEffects(form);
  const std::vector<std::string> controls = controlsOf(form);
  for (const auto& [name, effects] : table) {
    EXPECT_THAT(controls, ::testing::Contains(name)) << form;
  }
  std::unique_ptr<Stage> stage;
  for (const std::string& name : controls) {
    SCOPED_TRACE(form + "." + name);
    if (!stage) stage = std::make_unique<Stage>(form);
    const WholeState before = stage->state();
    const bool ended = stage->program->ends([&] { stage->form(form).find(name)->press(); });
    Effects effects = readableEffects(changes(before, stage->state()));
    if (ended) effects.emplace_back("ends");
    const auto row = table.find(name);
    EXPECT_THAT(effects, UnorderedElementsAreArray(row == table.end() ? Effects() : row->second));
    if (effects.empty()) continue;  // the stage is as fresh as it was
    if (!ended) expectTheProgramGoesOn(*stage->program);
    stage.reset();
  }
}

INSTANTIATE_TEST_SUITE_P(Forms, EveryButton, ::testing::ValuesIn(kForms),
                         [](const auto& form) { return std::string(form.param); });

}  // namespace
}  // namespace tavr
