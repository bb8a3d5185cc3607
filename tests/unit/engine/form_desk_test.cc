// The forms beside the main one, as the program opens and closes them.
#include "engine/form_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/start.h"
#include "forms/form2.h"
#include "forms/form3.h"
#include "tests/support/whole_state.h"

namespace tavr {
namespace {

using namespace testing;
using ::testing::UnorderedElementsAre;

class FormDeskTest : public ::testing::Test {
 protected:
  FormDeskTest() {
    machine.setting(kOptionSetting, "firsttime", "1");
    program = std::make_unique<StartedProgram>(machine);
    program->start();
  }
  FormDesk& desk() { return program->program().desk; }

  TestMachine machine;
  std::unique_ptr<StartedProgram> program;
};

// As its title bar does: of all that was set, only the clicks are stored.
TEST_F(FormDeskTest, UnloadingTheOptionsSavesNothing) {
  desk().openOptions();
  auto& options = dynamic_cast<Form3&>(*desk().loaded("Form3"));
  options.Combo1.setText("7");
  options.Combo2.setText("Q");
  options.Option1.press();
  options.Text1.type("5");
  options.Text10.type("http://other");
  const WholeState before = wholeState(machine, *program);
  desk().unload("Form3");
  EXPECT_THAT(changes(before, wholeState(machine, *program)),
              UnorderedElementsAre("-Form3", "Form1.enabled=yes"));
}

TEST_F(FormDeskTest, UnloadingTheSettingsChangesNothing) {
  desk().openSettings();
  dynamic_cast<Form2&>(*desk().loaded("Form2")).Check1[52].press();
  const WholeState before = wholeState(machine, *program);
  desk().unload("Form2");
  EXPECT_THAT(changes(before, wholeState(machine, *program)),
              UnorderedElementsAre("-Form2", "Form1.enabled=yes"));
}

TEST_F(FormDeskTest, TheKeepListStandsOverTheFormThatOpensIt) {
  desk().openSettings();
  Form& settings = *desk().loaded("Form2");
  settings.left = 300;
  settings.top = 200;
  desk().openKeepList("heading", "1");
  const Form& list = *desk().loaded("Form52");
  EXPECT_EQ(list.left + list.width / 2, settings.left + settings.width / 2);
  EXPECT_EQ(list.top + list.height / 2, settings.top + settings.height / 2);
}

TEST_F(FormDeskTest, AKeepListThatIsOpenStaysWhereThePersonPutIt) {
  desk().openSettings();
  desk().openKeepList("heading", "1");
  Form& list = *desk().loaded("Form52");
  list.left = 11;
  list.top = 12;
  desk().openKeepList("heading", "2");
  EXPECT_EQ(list.left, 11);
  EXPECT_EQ(list.top, 12);
}

// The object outlives its unloading until the event at hand is over.
TEST_F(FormDeskTest, TheTimerOfAFormThatWasUnloadedTicksNoMore) {
  desk().openOptions();
  auto& options = dynamic_cast<Form3&>(*desk().loaded("Form3"));
  EXPECT_TRUE(options.Timer1.enabled());
  desk().unload("Form3");
  machine.machine().events.wait(1000);
  EXPECT_FALSE(options.Timer1.enabled());
  EXPECT_FALSE(options.shadow);
  desk().freeUnloaded();
}

// The settings pump events while their boxes load, and the hot key may close
// them then.
TEST_F(FormDeskTest, AFormThatIsUnloadedWhileItLoadsStaysClosed) {
  program.reset();
  machine.stop();
  folder::MachineFolder folder(machine.directory().string());
  Program own(folder.machine());
  Form_Initialize(own, "");
  Form_Load(own);
  folder.setInterruptHandler([&own] { own.desk.unload("Form2"); });
  folder.interrupt();
  own.form.chameleonButton7.press();
  EXPECT_EQ(own.desk.loaded("Form2"), nullptr);
  EXPECT_TRUE(own.form.enabled);
  own.desk.freeUnloaded();
  own.form.chameleonButton7.press();
  ASSERT_NE(own.desk.loaded("Form2"), nullptr);
  EXPECT_TRUE(own.desk.loaded("Form2")->visible);
}

}  // namespace
}  // namespace tavr
