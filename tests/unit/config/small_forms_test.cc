// The message form, the browser note and the About box.
#include "config/small_forms_code.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>

#include "config/maker_site.h"
#include "services/settings_keys.h"
#include "tests/support/fake_form_host.h"
#include "tests/support/machine_with.h"

namespace tavr {
namespace {

using ::testing::ElementsAre;
using testing::FormStage;
using ::testing::HasSubstr;
using testing::TestMachine;

// Events whose pumping does one thing after another.
class ScriptedEvents : public Events {
 public:
  std::vector<std::function<void()>> steps;
  std::size_t pumped = 0;
  void doEvents() override {
    ASSERT_LT(pumped, steps.size()) << "pumped on after the answer";
    steps[pumped++]();
  }
  void wait(std::uint32_t /*milliseconds*/) override {}
  TimerId startTimer(std::uint32_t /*interval_ms*/, std::function<void()> /*on_tick*/) override {
    return 0;
  }
  void stopTimer(TimerId /*id*/) override {}
};

// Where a fresh form's boxes stand: inside it, and on nobody else's.
void expectSoundLayout(const Form& form) {
  const auto& controls = form.controls();
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const Box& a = controls[i]->box;
    const std::string name = fullName(controls[i]->design.name, controls[i]->design.index);
    EXPECT_TRUE(a.left >= 0 && a.top >= 0 && a.left + a.width <= form.width &&
                a.top + a.height <= form.height)
        << form.name() << "." << name;
    for (std::size_t k = i + 1; k < controls.size(); ++k) {
      const Box& b = controls[k]->box;
      const bool apart = a.left + a.width <= b.left || b.left + b.width <= a.left ||
                         a.top + a.height <= b.top || b.top + b.height <= a.top;
      EXPECT_TRUE(apart) << form.name() << "." << name << " on " << controls[k]->design.name;
      EXPECT_NE(name, fullName(controls[k]->design.name, controls[k]->design.index));
    }
  }
}

TEST(SmallForms, TheirControlsLieInsideAndApart) {
  TestMachine machine;
  expectSoundLayout(frmmsg(machine.machine().events));
  expectSoundLayout(Form4());
  expectSoundLayout(frmabout(machine.machine().events));
}

TEST(SmallForms, TheirDesignsPlaceEveryControl) {
  TestMachine machine;
  EXPECT_EQ(frmmsg(machine.machine().events).controls().size(), frmmsgDesign().size());
  EXPECT_EQ(Form4().controls().size(), form4Design().size());
  EXPECT_EQ(frmabout(machine.machine().events).controls().size(), frmaboutDesign().size());
}

// --- The message form ------------------------------------------------------------------

TEST(MessageForm, LoadsOnTopInTheMiddleOfTheScreen) {
  TestMachine machine;
  frmmsg form(machine.machine().events);
  connectMessageForm(machine.machine(), form);
  form.showMessage("Spoorwipe", "text", "subject");
  const ScreenSize screen = machine.machine().desktop.screen();
  EXPECT_TRUE(form.topmost);
  EXPECT_TRUE(form.visible);
  EXPECT_EQ(form.left, (screen.width - form.width) / 2);
  EXPECT_EQ(form.top, (screen.height - form.height) / 2);
}

TEST(MessageForm, ShowsHeadingAndTextAndTheSubjectNowhere) {
  TestMachine machine;
  frmmsg form(machine.machine().events);
  form.showMessage("heading", "text", "subject");
  EXPECT_EQ(form.caption, "heading");
  EXPECT_EQ(form.Text1.text(), "text");
  for (const Control* const control : form.controls()) {
    EXPECT_THAT(control->shown(), ::testing::Not(HasSubstr("subject")));
  }
}

TEST(MessageForm, ItsButtonsSetTheStateTextAndClose) {
  TestMachine machine;
  frmmsg form(machine.machine().events);
  form.showMessage("", "", "");
  form.find("chameleonButton1")->press();
  EXPECT_EQ(form.state, "vbYes");
  EXPECT_FALSE(form.visible);
  form.visible = true;
  form.find("command2")->press();
  EXPECT_EQ(form.state, "vbNo");
  EXPECT_FALSE(form.visible);
}

TEST(MessageForm, ThatWasClosedKeepsNoHeadingOfTheLastMessage) {
  TestMachine machine;
  frmmsg form(machine.machine().events);
  form.showMessage("heading", "text", "");
  form.load();
  EXPECT_EQ(form.caption, "heading");
  form.command2.press();
  form.load();
  EXPECT_EQ(form.caption, "");
}

TEST(MessageQuestion, PumpsEventsUntilAButtonIsPressed) {
  TestMachine test_machine;
  ScriptedEvents events;
  Machine machine = testing::machineWith(test_machine.machine(), events);
  frmmsg form(machine.events);
  form.state = "vbYes";  // of the question before
  events.steps = {
      [&] {
        EXPECT_EQ(form.state, "");
        EXPECT_TRUE(form.visible);
        EXPECT_TRUE(form.topmost);
        EXPECT_EQ(form.Text1.text(), "Really?");
      },
      [] {},
      [&] { form.command2.press(); },
  };
  chkmsg(machine, form, "Really?");
  EXPECT_EQ(events.pumped, 3U);
  EXPECT_EQ(form.state, "vbNo");
}

TEST(MessageQuestion, ComesBeforeWhatStandsOpenOnTop) {
  TestMachine test_machine;
  ScriptedEvents events;
  Machine machine = testing::machineWith(test_machine.machine(), events);
  frmmsg form(machine.events);
  const int shown = form.shown_again;
  events.steps = {[&] { EXPECT_EQ(form.shown_again, shown + 1); }, [&] { form.command2.press(); }};
  chkmsg(machine, form, "Sure?");
  EXPECT_EQ(form.state, "vbNo");
}

TEST(MessageQuestion, ClosingTheFormWithoutAButtonIsNoAnswer) {
  TestMachine test_machine;
  ScriptedEvents events;
  Machine machine = testing::machineWith(test_machine.machine(), events);
  frmmsg form(machine.events);
  events.steps = {[&] { form.visible = false; }, [&] { EXPECT_EQ(form.state, ""); },
                  [&] { form.chameleonButton1.press(); }};
  chkmsg(machine, form, "Really?");
  EXPECT_EQ(events.pumped, 3U);
  EXPECT_EQ(form.state, "vbYes");
}

// --- The browser note --------------------------------------------------------------------

TEST(BrowserNote, PutsTheNameInOnceAndFindsNothingToReplaceLater) {
  TestMachine machine;
  FormStage stage(machine);
  Form4Code code(stage.context, stage.program.message);
  const std::string note = code.form.Label1.caption;
  ASSERT_EQ(std::count(note.begin(), note.end(), '$'), 1);
  code.form.Text1.setText("Firefox");
  const std::string named = code.form.Label1.caption;
  EXPECT_TRUE(named.starts_with("Firefox is running.")) << named;
  code.form.Text1.setText("Opera");
  EXPECT_EQ(code.form.Label1.caption, named);
}

TEST(BrowserNote, AnEmptyNameThatDoesNotChangeTheBoxReplacesNothing) {
  TestMachine machine;
  FormStage stage(machine);
  Form4Code code(stage.context, stage.program.message);
  code.form.Text1.setText("");
  EXPECT_THAT(code.form.Label1.caption, HasSubstr("bnam$"));
}

TEST(BrowserNote, ItsBoxIsStoredAtEveryClick) {
  TestMachine machine;
  FormStage stage(machine);
  Form4Code code(stage.context, stage.program.message);
  const auto msg = [&] {
    return machine.registryText(Root::kLocalMachine,
                                "software\\WOW6432Node\\tavrwork\\tavr wipe\\option", "msg");
  };
  EXPECT_EQ(code.form.Check1.caption, "Don't show this window again.");
  EXPECT_EQ(msg(), "<none>");
  code.form.Check1.press();
  EXPECT_EQ(msg(), "1");
  code.form.Check1.press();
  EXPECT_EQ(msg(), "0");
}

TEST(BrowserNote, ItsLoadPutsTheMessageFormOnTopAndNotItself) {
  TestMachine machine;
  FormStage stage(machine);
  Form4Code code(stage.context, stage.program.message);
  code.Form_Load();
  const ScreenSize screen = stage.program.machine.desktop.screen();
  EXPECT_TRUE(stage.program.message.topmost);
  EXPECT_FALSE(code.form.topmost);
  EXPECT_EQ(code.form.left, (screen.width - code.form.width) / 2);
  EXPECT_EQ(code.form.top, (screen.height - code.form.height) / 2);
}

TEST(BrowserNote, ItsButtonEndsIt) {
  TestMachine machine;
  FormStage stage(machine);
  Form4Code code(stage.context, stage.program.message);
  code.form.visible = true;
  code.form.find("command2")->press();
  EXPECT_FALSE(code.form.visible);
  EXPECT_THAT(stage.host.calls, ElementsAre("unload Form4"));
}

// --- The About box -------------------------------------------------------------------------

const std::string kLook = "HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\tavrwork\\tavrwork brightbox";

TEST(AboutBox, WritesTheYearsFromTheFirstToTheClocks) {
  TestMachine machine;
  FormStage stage(machine);
  FrmaboutCode code(stage.context);
  code.Form_Load();
  EXPECT_EQ(code.form.Label3.caption, "Copyright 2008 - 2026 Tavrwork");
}

TEST(AboutBox, TakesTheColourOfTheLookItsDefaultOrTheDesigns) {
  const auto color = [](TestMachine& machine) {
    FormStage stage(machine);
    FrmaboutCode code(stage.context);
    code.Form_Load();
    return code.form.back_color;
  };
  TestMachine none;
  EXPECT_EQ(color(none), 10118205);
  TestMachine set;
  set.value(kLook, "color", "255");
  EXPECT_EQ(color(set), 255);
  TestMachine bad;
  bad.value(kLook, "color", "blue");
  EXPECT_EQ(color(bad), 0);
}

TEST(AboutBox, ItsCloseButtonTakesTheColourOfTheForm) {
  TestMachine machine;
  machine.value(kLook, "color", "255");
  FormStage stage(machine);
  FrmaboutCode code(stage.context);
  code.Form_Load();
  EXPECT_EQ(code.form.chameleonButton1.color, 255);
  EXPECT_EQ(code.form.chameleonButton1.hover_color, 255);
}

TEST(AboutBox, ReadsItsCaptions) {
  TestMachine machine;
  machine.value(kLook + "\\tavrwipe", "lang", "xx");
  machine.file("C:\\Program Files\\Tavr Wipe\\lang\\tavrwipe-xx.lang",
               "[frmabout]\nLabel2(3)=a\nLabel2(2)=b\nLabel2(1)=c\nLabel2(0)=d\nLabel222(1)=e\n");
  FormStage stage(machine);
  FrmaboutCode code(stage.context);
  code.Form_Load();
  EXPECT_EQ(code.form.Label2[3].caption, "a");
  EXPECT_EQ(code.form.Label2[0].caption, "d");
  EXPECT_EQ(code.form.Label222.caption, "e");
}

TEST(AboutBox, ItsLinksOpenPagesAndTheTranslationTool) {
  TestMachine machine;
  machine.file("C:\\Program Files\\Tavr Wipe\\tavrlocale.exe");
  FormStage stage(machine);
  FrmaboutCode code(stage.context);
  for (const char* name : {"Label2(3)", "Label2(2)", "Label2(1)", "Label2(0)"}) {
    code.form.find(name)->press();
  }
  const std::string log = machine.readMachineFile("shell.log");
  const std::string open = "execute 1 open ";
  const std::string site(kMakerSite);
  EXPECT_EQ(log, open + site + "\n" +                                 //
                     open + site + std::string(kPlugInPage) + "\n" +  //
                     open + site + "/support.htm\n" +                 //
                     open + "C:\\Program Files\\Tavr Wipe\\tavrlocale.exe\n");
}

TEST(AboutBox, ClosingItBringsTheMainFormBack) {
  TestMachine machine;
  FormStage stage(machine);
  FrmaboutCode code(stage.context);
  stage.program.form.enabled = false;
  code.form.visible = true;
  code.form.find("chameleonButton1")->press();
  EXPECT_TRUE(stage.program.form.enabled);
  EXPECT_FALSE(code.form.visible);
  EXPECT_THAT(stage.host.calls, ElementsAre("unload frmabout"));
}

}  // namespace
}  // namespace tavr
