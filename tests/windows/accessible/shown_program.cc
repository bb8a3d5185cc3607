#include "tests/windows/accessible/shown_program.h"

#include "platform/win32/wide.h"
#include "services/settings_keys.h"
#include "ui/win32/common_controls.h"

namespace tavr::win32::testing {

namespace {

struct Search {
  std::wstring form;
  HWND found = nullptr;
};

BOOL CALLBACK findForm(HWND window, LPARAM data) {
  auto& search = *reinterpret_cast<Search*>(data);
  if (GetPropW(window, search.form.c_str()) != nullptr) search.found = window;
  return search.found == nullptr;
}

BOOL CALLBACK collect(HWND window, LPARAM data) {
  BoundControl* const bound = BoundControl::of(window);
  if (bound && IsWindowVisible(window)) {
    reinterpret_cast<std::vector<BoundControl*>*>(data)->push_back(bound);
  }
  return TRUE;
}

}  // namespace

ShownProgram::ShownProgram(std::string_view language)
    : program_(machine_.machine()), windows_(program_, actions_) {
  loadCommonControls();
  program_.registry.saveSetting(settings::kLanguageKey, "lang", std::string(language));
  program_.desk.loadLanguages();
  program_.form.visible = true;
  windows_.mainLoaded();
  pump();
}

void ShownProgram::open(std::string_view form) {
  FormDesk& desk = program_.desk;
  if (form == "Form2") desk.openSettings();
  if (form == "Form3") desk.openOptions();
  if (form == "Form4") desk.openBrowserNote("Firefox");
  if (form == "Form52") desk.openKeepList("Cookies", "1");
  if (form == "frmmsg") program_.message.showMessage("Spoorwipe", "The log is empty.", "");
  if (form == "frmabout") desk.openAbout();
  pump();
}

void ShownProgram::serveMessages() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void ShownProgram::pump() {
  serveMessages();
  actions_.drain();
  windows_.sync();
  program_.desk.freeUnloaded();
  serveMessages();
}

HWND ShownProgram::formWindow(std::string_view form) const {
  Search search{wide(form)};
  EnumThreadWindows(GetCurrentThreadId(), &findForm, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

HWND ShownProgram::window(std::string_view form_name, std::string_view name) {
  const Control& wanted = control(form_name, name);
  for (const BoundControl* const bound : shown(form_name)) {
    if (&bound->control() == &wanted) return bound->window();
  }
  return nullptr;
}

std::vector<BoundControl*> ShownProgram::shown(std::string_view form) const {
  std::vector<BoundControl*> controls;
  EnumChildWindows(formWindow(form), &collect, reinterpret_cast<LPARAM>(&controls));
  return controls;
}

std::string nameOfPanel(const ::testing::TestParamInfo<FormPanel>& panel) {
  std::string name(panel.param.form);
  if (!panel.param.opened_by.empty()) name += "_" + std::string(panel.param.opened_by);
  return name;
}

void open(ShownProgram& shown, const FormPanel& panel) {
  if (panel.form != "Form1") shown.open(panel.form);
  if (panel.opened_by.empty()) return;
  shown.control(panel.form, panel.opened_by).press();
  shown.pump();
}

}  // namespace tavr::win32::testing
