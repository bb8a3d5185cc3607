#include "engine/commands.h"

#include <functional>
#include <string>
#include <string_view>

#include "config/maker_site.h"
#include "engine/log_commands.h"
#include "engine/runs.h"
#include "services/program_folder.h"
#include "tracks/primitives.h"

namespace tavr {

namespace {

constexpr int kStyleNormal = 1;
// What a program gets that is started without a style: minimised, with the
// focus.
constexpr int kStyleNone = 2;
constexpr std::uint32_t kHelpContext = 15;
constexpr std::uint32_t kMainWindowTopic = 21;
constexpr int kStop = 10;
constexpr int kToolbarCommands[] = {1, 2, 4, 6, 8, 11, 12};

Button& tool(Form1& form, int index) { return form.toolbar[static_cast<std::size_t>(index)]; }

void setToolbar(Form1& form, bool enabled) {
  for (const int index : kToolbarCommands) tool(form, index).enabled = enabled;
  tool(form, kStop).enabled = !enabled;
}

void toolbarTest(Form1& form) {
  setToolbar(form, false);
  form.Gif89a1.visible = true;
  form.chameleonButton6.click();
  form.Gif89a1.visible = false;
}

// The other buttons stay as they are.
void toolbarErase(Form1& form) {
  tool(form, kStop).enabled = true;
  form.Gif89a1.visible = true;
  form.chameleonButton5.click();
  form.Gif89a1.visible = false;
}

void toolbarStop(Form1& form) {
  form.stopflag = 1;
  form.Gif89a1.visible = false;
  setToolbar(form, true);
  form.bar1.setVisible(false);
  form.Label1[0].visible = false;
}

// "Start" is a word of the command interpreter and no program, so as a rule the
// message with the address comes.
void openPage(Program& program, std::string_view page, std::string_view subject) {
  const std::string address = std::string(kMakerSite) + std::string(page);
  if (program.machine.shell.run("Start " + address, kStyleNone) == kSuccess) return;
  program.desk.showMessage("Tavr Wipe Pro", LangText(program.tracks, "018") + "\r" + address,
                           subject);
}

void leadsTo(Button& road, const Button& core) {
  road.onClick = [&core] { core.click(); };
}

void connectCore(Program& program) {
  Form1& form = program.form;
  form.chameleonButton1.onClick = [&program] { viewLog(program); };
  form.chameleonButton2.onClick = [&program] { clearLog(program); };
  form.chameleonButton3.onClick = [&program] {
    program.machine.shell.run(programFile(program.machine, "plug-in maker.exe"), kStyleNone);
  };
  form.chameleonButton4.onClick = [&program] {
    program.machine.shell.htmlHelp(programFile(program.machine, "tavrwork-helpdoc.chm") + ">sec",
                                   kHelpContext, kMainWindowTopic);
  };
  form.chameleonButton5.onClick = [&program] { eraseRun(program); };
  form.chameleonButton6.onClick = [&program] { testRun(program); };
  form.chameleonButton7.onClick = [&program] { program.desk.openSettings(); };
  form.chameleonButton8.onClick = [&program] { program.desk.openOptions(); };
  form.chameleonButton13.onClick = [&program] { program.desk.openAbout(); };
  form.Image44.onClick = [&form] { form.chameleonButton4.click(); };
}

void connectButtons(Program& program) {
  Form1& form = program.form;
  leadsTo(form.cmd_settings, form.chameleonButton7);
  leadsTo(form.cmd_option, form.chameleonButton8);
  leadsTo(form.cmd_plugin, form.chameleonButton3);
  leadsTo(form.cmd_view, form.chameleonButton1);
  leadsTo(form.cmd_clear, form.chameleonButton2);
  form.cmd_start.onClick = [&program] { cmd_start_Click(program); };
  form.cmd_test.onClick = [&program] { cmd_test_Click(program); };
  form.cmd_stop.onClick = [&program] { cmd_stop_Click(program); };
}

void connectToolbar(Program& program) {
  Form1& form = program.form;
  leadsTo(tool(form, 1), form.chameleonButton7);
  leadsTo(tool(form, 2), form.chameleonButton8);
  leadsTo(tool(form, 4), form.chameleonButton3);
  tool(form, 6).onClick = [&form] { toolbarTest(form); };
  tool(form, 8).onClick = [&form] { toolbarErase(form); };
  tool(form, kStop).onClick = [&form] { toolbarStop(form); };
  leadsTo(tool(form, 11), form.chameleonButton1);
  leadsTo(tool(form, 12), form.chameleonButton2);
  tool(form, 14).onClick = [&program] {
    program.machine.shell.run(programFile(program.machine, "tavrclean.exe"), kStyleNormal);
  };
}

// The menu closes before its entry acts. "a9" is shown and does nothing.
void connectMenu(Program& program) {
  Form1& form = program.form;
  const auto entry = [&form](std::size_t number, const std::function<void()>& action) {
    form.menu[number].onClick = [&form, action] {
      form.bccc.visible = false;
      if (action) action();
    };
  };
  entry(10, [&program] { openPage(program, "", ""); });
  entry(9, nullptr);
  entry(7, [&form] { form.chameleonButton5.click(); });
  entry(5, [&form] { form.chameleonButton8.click(); });
  entry(4, [&form] { form.chameleonButton7.click(); });
  entry(2, [&program] { openPage(program, kPlugInPage, "Plug-ins"); });
  entry(0, [&form] { form.chameleonButton11.click(); });
}

void connectHover(Program& program) {
  const auto hover = [&program](ChameleonButton& button, std::string_view number) {
    button.onMouseMove = [&program, &button, number] {
      button.tool_tip = LangText(program.tracks, number);
    };
  };
  Form1& form = program.form;
  hover(form.chameleonButton1, "127");
  hover(form.chameleonButton2, "128");
  hover(form.chameleonButton3, "129");
  hover(form.chameleonButton5, "120");
  hover(form.chameleonButton6, "121");
  hover(form.chameleonButton7, "122");
  hover(form.chameleonButton8, "123");
  hover(form.chameleonButton11, "125");

  // The big buttons lie under the command column, which speaks for them.
  const auto speaksFor = [](Button& road, ChameleonButton& core) {
    road.onMouseMove = [&road, &core] {
      core.onMouseMove();
      road.tool_tip = core.tool_tip;
    };
  };
  speaksFor(form.cmd_view, form.chameleonButton1);
  speaksFor(form.cmd_clear, form.chameleonButton2);
  speaksFor(form.cmd_plugin, form.chameleonButton3);
  speaksFor(form.cmd_start, form.chameleonButton5);
  speaksFor(form.cmd_test, form.chameleonButton6);
  speaksFor(form.cmd_settings, form.chameleonButton7);
  speaksFor(form.cmd_option, form.chameleonButton8);
}

}  // namespace

void connectCommands(Program& program) {
  connectCore(program);
  connectButtons(program);
  connectToolbar(program);
  connectMenu(program);
  connectHover(program);
}

}  // namespace tavr
