// Which forms have windows: one for each that is loaded, made and destroyed as
// the program opens and closes its forms.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <string_view>

#include "engine/program.h"
#include "ui/win32/action_queue.h"
#include "ui/win32/form_window.h"

namespace tavr::win32 {

class WindowSet {
 public:
  /// Makes the main form's window, hidden: the machine needs one for hot keys.
  WindowSet(Program& program, ActionQueue& actions);
  ~WindowSet();
  WindowSet(const WindowSet&) = delete;
  WindowSet& operator=(const WindowSet&) = delete;

  HWND mainWindow() const;
  /// Whether the main form is read so.
  bool rightToLeft() const;
  /// The main form has been loaded: it is shown from now on.
  void mainLoaded() { main_loaded_ = true; }
  /// Brings the windows up to the forms.
  void sync();

 private:
  FormEvents eventsOf(std::string_view name);
  bool onMainMessage(UINT message, WPARAM wparam, LPARAM lparam, LRESULT& answer);
  bool holdsSession(LPARAM reasons);
  void closeForSession();
  void endSession();
  void syncForm(std::string_view name);
  void syncShadow(std::string_view name, FormWindow& window);
  COLORREF stripOf(const Form& form) const;
  std::string_view languageOf(const Form& form) const;

  Program& program_;
  ActionQueue& actions_;
  std::map<std::string_view, std::unique_ptr<FormWindow>> windows_;
  bool main_loaded_ = false;
  bool closing_ = false;  ///< the session waits for the end of it
};

}  // namespace tavr::win32
