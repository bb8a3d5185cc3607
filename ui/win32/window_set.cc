#include "ui/win32/window_set.h"

#include "basic/resume_next.h"
#include "config/language_keys.h"
#include "engine/window.h"
#include "forms/form2.h"
#include "forms/form3.h"
#include "ui/win32/color.h"

namespace tavr::win32 {

namespace {

constexpr std::string_view kMain = "Form1";
constexpr std::string_view kForms[] = {kMain,    "Form2",    "Form3", "Form4",
                                       "Form52", "frmabout", "frmmsg"};
// The title strip's own colour, where the configured one could not be read.
constexpr COLORREF kDesignedStrip = 10118205;

// Shown by Windows below the program's name.
constexpr wchar_t kHoldsSession[] = L"Erasing before the session ends";

constexpr std::string_view kRightToLeftLanguage = "ar";

// When an active window goes the system looks at its owner, which a dialog below
// it has disabled; then it looks among other programs, too.
void activateBelow(HWND closing) {
  if (GetForegroundWindow() != closing) return;
  for (HWND at = GetWindow(closing, GW_HWNDNEXT); at != nullptr; at = GetWindow(at, GW_HWNDNEXT)) {
    const bool own = GetWindowThreadProcessId(at, nullptr) == GetCurrentThreadId();
    if (!own || !FormWindow::of(at) || !IsWindowVisible(at) || !IsWindowEnabled(at)) continue;
    SetForegroundWindow(at);
    return;
  }
}

// The message form answers a question; closing it is the answer No.
bool isQuestion(std::string_view name) { return name == "frmmsg"; }

}  // namespace

WindowSet::WindowSet(Program& program, ActionQueue& actions)
    : program_(program), actions_(actions) {
  windows_[kMain] = std::make_unique<FormWindow>(program.form, nullptr, actions,
                                                 program.machine.dialogs, eventsOf(kMain));
}

WindowSet::~WindowSet() {
  actions_.discard(this);
  // The others are owned by the main window and go before it.
  while (!windows_.empty()) windows_.erase(std::prev(windows_.end()));
}

HWND WindowSet::mainWindow() const { return windows_.at(kMain)->window(); }

bool WindowSet::rightToLeft() const { return program_.form.language == kRightToLeftLanguage; }

// A form without captions of a language stands as the main form does.
std::string_view WindowSet::languageOf(const Form& form) const {
  return languageKeys(form.name()).empty() ? program_.form.language : form.language;
}

FormEvents WindowSet::eventsOf(std::string_view name) {
  FormEvents events;
  if (name == kMain) {
    events.has_task_button = true;
    events.close = [this] { closeWindow(program_); };
    events.minimise = [this] { setWindowState(program_, WindowState::kMinimised); };
    events.activate = [this] { Form_Activate(program_); };
    events.other = [this](UINT message, WPARAM wparam, LPARAM lparam, LRESULT& answer) {
      return onMainMessage(message, wparam, lparam, answer);
    };
    return events;
  }
  events.close = [this, name] {
    if (isQuestion(name)) return program_.message.command2.press();
    program_.desk.unload(name);
    // The dialog was all there was.
    if (!program_.form.dialog_mode.empty() && name == "Form2") program_.desk.endProcess();
  };
  return events;
}

bool WindowSet::onMainMessage(UINT message, WPARAM wparam, LPARAM lparam, LRESULT& answer) {
  switch (message) {
    case WM_HOTKEY:
      actions_.post(this, [this, id = static_cast<int>(wparam)] {
        hotKeyProcedure(program_, kHotKeyMessage, id);
      });
      return true;
    case WM_QUERYENDSESSION:
      answer = holdsSession(lparam) ? FALSE : TRUE;
      return true;
    case WM_ENDSESSION:
      if (wparam != FALSE) endSession();
      return true;
    default:
      return false;
  }
}

// A run on exit takes longer than Windows waits for a program. The session is
// held until it is over, and then ends by itself.
bool WindowSet::holdsSession(LPARAM reasons) {
  if (closing_) return true;
  bool runs = false;
  ResumeNext on;
  on.next([&] { runs = runsOnExit(program_); });
  if (!runs || (reasons & ENDSESSION_CRITICAL) != 0) return false;
  closing_ = true;
  ShutdownBlockReasonCreate(mainWindow(), kHoldsSession);
  actions_.post(this, [this] { closeForSession(); });
  return true;
}

void WindowSet::closeForSession() {
  ResumeNext on;
  on.next([this] { closeWindow(program_); });
  // A run that was there before goes on.
  closing_ = false;
  ShutdownBlockReasonDestroy(mainWindow());
}

// Windows ends the process when this message has been answered, so the closing
// cannot wait for the pump. What it throws is thrown there.
void WindowSet::endSession() {
  if (closing_) return;
  try {
    closeWindow(program_);
  } catch (const ProcessEnd&) {
    actions_.post(this, [] { throw ProcessEnd{}; });
  } catch (const RuntimeError&) {
  }
}

COLORREF WindowSet::stripOf(const Form& form) const {
  if (form.name() != kMain && form.has_look_color) return fromControlColor(form.back_color);
  const Form1& main = program_.form;
  return main.has_look_color ? fromControlColor(main.strip_color) : kDesignedStrip;
}

void WindowSet::syncShadow(std::string_view name, FormWindow& window) {
  if (name == kMain) window.setShadow(program_.form.shadow);
  if (const auto* const settings = dynamic_cast<const Form2*>(&window.form())) {
    window.setShadow(settings->shadow);
  }
  if (const auto* const options = dynamic_cast<const Form3*>(&window.form())) {
    window.setShadow(options->shadow);
  }
}

void WindowSet::syncForm(std::string_view name) {
  Form* const form = program_.desk.loaded(name);
  std::unique_ptr<FormWindow>& window = windows_[name];
  if (window && &window->form() != form) {
    activateBelow(window->window());
    window.reset();
  }
  if (!form) return;
  if (!window) {
    if (!form->visible) return;
    const FormWindow* const from = FormWindow::of(GetActiveWindow());
    window = std::make_unique<FormWindow>(*form, mainWindow(), actions_, program_.machine.dialogs,
                                          eventsOf(name));
    // Opened by the keyboard, it shows where the keyboard is.
    if (from && from->showsFocus()) window->showFocus();
  }
  const std::string_view language = languageOf(*form);
  window->setLanguage(language);
  window->sync(stripOf(*form), language == kRightToLeftLanguage, name != kMain || main_loaded_);
  syncShadow(name, *window);
}

// The main form first: it is enabled before the dialog above it goes, or the
// focus would leave the program.
void WindowSet::sync() {
  for (const std::string_view name : kForms) syncForm(name);
}

}  // namespace tavr::win32
