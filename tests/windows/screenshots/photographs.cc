#include "tests/windows/screenshots/photographs.h"

#include <cstdio>
#include <stdexcept>

#include "platform/win32/wide.h"

namespace tavr::testing {

namespace {

constexpr DWORD kSettled = 700;       // ms until everything stands on the screen
constexpr DWORD kPhotograph = 30000;  // ms
constexpr int kTries = 3;
constexpr std::uint32_t kAnswer = 3000;     // ms
constexpr std::uint32_t kTwoTicks = 25000;  // ms, of the timer that asks
constexpr int kShadow = 10;                 // px at any resolution
constexpr POINT kAside = {2, 2};
constexpr POINT kFarCorner = {1800, 800};
constexpr POINT kMenuPlace = {600, 400};
constexpr wchar_t kMenuClass[] = L"#32768";

void see(const DrivenProgram& program, std::string_view name) {
  if (!program.comesUp(name)) throw std::runtime_error("never came: " + std::string(name));
}

// The dialogs open in the middle of the screen, which the main form is not to
// share with them.
void moveAside(const DrivenProgram& program, std::string_view form = "Form1",
               POINT to = {kShadow, kShadow}) {
  SetWindowPos(program.form(form), nullptr, to.x, to.y, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// On a busy machine a click may come before the window is ready for it.
void leave(const DrivenProgram& program, std::string_view control, std::string_view form) {
  for (int tries = 0; tries < kTries; ++tries) {
    program.click(control);
    if (comes([&] { return !program.sees(form); }, kAnswer)) return;
  }
  throw std::runtime_error("stays open: " + std::string(form));
}

}  // namespace

void Photographs::take(const std::string& name, HWND window) {
  movePointer(kAside);
  Sleep(kSettled);
  takeAtOnce(name, window);
}

void Photographs::takeAtOnce(const std::string& name, HWND window) const {
  RECT area;
  GetWindowRect(window, &area);
  InflateRect(&area, kShadow, kShadow);
  const std::wstring path = win32::wide(folder_ + "\\" + name + ".ask");
  const std::wstring unfinished = path + L"~";
  FILE* const file = _wfopen(unfinished.c_str(), L"w");
  if (file == nullptr) throw std::runtime_error(folder_ + ": not to be written");
  std::fprintf(file, "%ld %ld %ld %ld\n", area.left, area.top, area.right - area.left,
               area.bottom - area.top);
  std::fclose(file);
  MoveFileW(unfinished.c_str(), path.c_str());
  const auto taken = [&] { return GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES; };
  if (!comes(taken, kPhotograph)) throw std::runtime_error("nobody takes a picture of " + name);
}

void Photographs::take(const DrivenProgram& program, const std::string& name,
                       std::string_view form) {
  see(program, form);
  take(name, program.form(form));
}

void Photographs::choose(const DrivenProgram& program) const {
  see(program, "Form1.View100");
  program.click("Form1.chameleonButton12");
  const std::string row = "Form1.lbllanguage(" + std::to_string(language_) + ")";
  see(program, row);
  leave(program, row, "Form1.pictrlang");
}

void Photographs::ofMain(const DrivenProgram& program) {
  take(program, "main", "Form1");
  program.click("Form1.chameleonButton12");
  see(program, "Form1.pictrlang");
  take(program, "main-languages", "Form1");
  leave(program, "Form1.chameleonButton12", "Form1.pictrlang");
  program.click("Form1.cmd_test");
  comes([&] { return program.enabled("Form1.cmd_stop"); }, 2000);  // a short run is over by then
  if (!comes([&] { return program.enabled("Form1.cmd_test"); }, 60000)) {
    throw std::runtime_error("the run does not end");
  }
  take(program, "main-results", "Form1");
}

void Photographs::ofSettings(const DrivenProgram& program) {
  program.click("Form1.cmd_settings");
  take(program, "erasing-settings-browsers", "Form2");
  program.click("Form2.chameleonButton30");
  see(program, "Form2.Check1(13)");
  take(program, "erasing-settings-windows", "Form2");
  program.click("Form2.chameleonButton31");
  see(program, "Form2.View1");
  take(program, "erasing-settings-applications", "Form2");
  leave(program, "Form2.chameleonButton4", "Form2");
}

void Photographs::ofOptions(const DrivenProgram& program) {
  program.click("Form1.cmd_option");
  take(program, "options-general", "Form3");
  program.click("Form3.chameleonButton8");
  see(program, "Form3.Option1");
  take(program, "options-schedule", "Form3");
  leave(program, "Form3.chameleonButton19", "Form3");
}

void Photographs::ofSmallForms(const DrivenProgram& program) {
  program.click("Form1.chameleonButton13");
  take(program, "about", "frmabout");
  leave(program, "frmabout.chameleonButton1", "frmabout");
  program.click("Form1.cmd_clear");
  take(program, "message", "frmmsg");
  leave(program, "frmmsg.chameleonButton1", "frmmsg");
}

void Photographs::ofMenu(const DrivenProgram& program, const TaskBar& bar) {
  leave(program, "Form1.chameleonButton10", "Form1");
  if (!bar.showsIcon()) throw std::runtime_error("no icon beside the clock");
  movePointer(kMenuPlace);
  bar.mouse(WM_RBUTTONDOWN);
  HWND menu = nullptr;
  if (!comes([&] { return (menu = program.windowOfClass(kMenuClass)) != nullptr; })) {
    throw std::runtime_error("no menu");
  }
  take("tray-menu", menu);
}

void Photographs::ofUsual() {
  const TaskBar bar;
  const DrivenProgram program;
  choose(program);
  ofMain(program);
  moveAside(program);
  ofSettings(program);
  ofOptions(program);
  ofSmallForms(program);
  ofMenu(program, bar);
}

void Photographs::ofLarge() {
  const DrivenProgram program;
  choose(program);
  take(program, "main-200", "Form1");
}

void Photographs::ofAlone() {
  {
    const DrivenProgram program("Form52");
    see(program, "Form52");
    moveAside(program, "Form1", kFarCorner);
    moveAside(program, "Form52");
    take(program, "keep-list", "Form52");
  }
  const DrivenProgram program("Form4");
  see(program, "Form4");
  moveAside(program);
  take(program, "browser-note", "Form4");
}

void Photographs::ofRunning() {
  const DrivenProgram program;
  choose(program);
  program.click("Form1.cmd_test");
  movePointer(kAside);
  const auto counts = [&] { return program.text("Form1.Label4").size() > 2; };
  if (!comes(counts, kTwoTicks)) throw std::runtime_error("the run finds too little");
  takeAtOnce("main-running", program.form("Form1"));
  if (!program.enabled("Form1.cmd_stop")) throw std::runtime_error("the run was over too soon");
}

void Photographs::ofQuestion() {
  const DrivenProgram program;
  choose(program);
  const HWND box = program.waitForBox(kTwoTicks);
  if (box == nullptr) throw std::runtime_error("no question");
  take("start-page", box);
}

}  // namespace tavr::testing
