#include "engine/window.h"

#include "basic/like.h"
#include "basic/number.h"
#include "basic/text.h"
#include "basic/utf.h"
#include "services/settings_keys.h"

namespace tavr {

namespace {

constexpr std::uint32_t kAlt = 1;
constexpr int kTwipsPerPixel = 15;
constexpr int kFirstHotKey = 1;
constexpr int kRightButton = 2;

bool option(Program& program, std::string_view number) {
  return Val(program.registry.setting(settings::kOptionsKey, number)) == 1;
}

// `trigger` chooses the run; it is over when the change of Text5 has been served.
void runOnExit(Program& program, std::string_view trigger) {
  Form1& form = program.form;
  if (!runsOnExit(program)) return;
  form.Text10.setText("1");
  form.Text5.setText("");
  form.Text5.setText(trigger);
}

// While a run on exit is still in progress the process goes on.
void endUnlessRunning(Program& program) {
  if (Val(program.form.Text10.text()) != 0) return;
  Command5_Click(program);
  throw ProcessEnd{};
}

}  // namespace

bool runsOnExit(Program& program) {
  return option(program, "1") && Like(Trim(program.form.Text11.text()), "s");
}

void setWindowState(Program& program, WindowState state) {
  if (program.form.window_state == state) return;
  program.form.window_state = state;
  Form_Resize(program);
}

void Form_Resize(Program& program) {
  Form1& form = program.form;
  const bool stealth = option(program, "5");
  if (form.window_state != WindowState::kMinimised) return;
  form.visible = false;
  form.TrayArea1.setVisible(!stealth);
}

void Form_Activate(Program& program) {
  if (!program.form.hasArguments) program.form.shadow = true;
}

void restoreFromTray(Program& program) {
  Form1& form = program.form;
  form.visible = true;
  form.TrayArea1.setVisible(false);
  setWindowState(program, WindowState::kNormal);
  form.visible = true;
}

void Command5_Click(Program& program) {
  for (int id = 1; id <= program.hot_key_count; ++id) program.machine.desktop.unregisterHotKey(id);
  program.hot_key_count = 0;
  program.hot_key_installed = false;
}

void Command6_Click(Program& program) {
  const Form1& form = program.form;
  program.settings_button_left = (form.left + form.chameleonButton7.box.left) * kTwipsPerPixel;
  program.settings_button_top = (form.top + form.chameleonButton7.box.top) * kTwipsPerPixel;
}

// A combination that is taken is not noticed: the procedure stays and never
// sees the message.
void installHotKey(Program& program) {
  const bool stealth = option(program, "5");
  const std::string setting = program.registry.setting(settings::kMainKey, "key");
  const std::string_view key = Trim(setting);
  if (key.empty() || !stealth) return;
  program.hot_key_installed = true;
  program.hot_key_count += 1;
  std::size_t pos = 0;
  program.machine.desktop.registerHotKey(program.hot_key_count, kAlt, nextCharacter(key, pos));
}

void hotKeyProcedure(Program& program, std::uint32_t message, int id) {
  if (!program.hot_key_installed || message != kHotKeyMessage || id != kFirstHotKey) return;
  Form1& form = program.form;
  if (!form.visible) {
    form.visible = true;
    setWindowState(program, WindowState::kNormal);
    form.visible = true;
    setWindowState(program, WindowState::kNormal);
    return;
  }
  form.visible = false;
  for (const std::string_view dialog : {"Form2", "Form3", "Form52"}) program.desk.unload(dialog);
}

void Form_QueryUnload(Program& program) {
  program.form.TrayArea1.setVisible(false);
  Command5_Click(program);
  runOnExit(program, "2");
  endUnlessRunning(program);
}

void chameleonButton11_Click(Program& program) {
  Command5_Click(program);
  runOnExit(program, "1");
  endUnlessRunning(program);
}

void Form_Terminate(Program& program) {
  Command5_Click(program);
  runOnExit(program, "2");
  endUnlessRunning(program);
}

void closeWindow(Program& program) {
  Form_QueryUnload(program);
  program.form.visible = false;
  Form_Terminate(program);
}

void connectWindow(Program& program) {
  Form1& form = program.form;
  form.Command5.onClick = [&program] { Command5_Click(program); };
  form.Command6.onClick = [&program] { Command6_Click(program); };
  form.chameleonButton9.onClick = [&program] {
    program.desk.detachShadow("Form1");
    program.form.chameleonButton11.click();
  };
  form.chameleonButton10.onClick = [&program] { setWindowState(program, WindowState::kMinimised); };
  form.chameleonButton11.onClick = [&program] { chameleonButton11_Click(program); };
  form.TrayArea1.onDblClick = [&program] { restoreFromTray(program); };
  form.TrayArea1.onMouseDown = [&program](int button) {
    if (button == kRightButton) {
      program.form.bccc.visible = true;
    } else {
      restoreFromTray(program);
    }
  };
}

}  // namespace tavr
