// What the code of a settings form asks of the program around it. The engine
// gives it; the forms know nothing of the engine.
#pragma once

#include <string_view>

#include "forms/form1.h"
#include "platform/machine.h"
#include "services/file_statements.h"
#include "services/registry_layer.h"
#include "tracks/track_context.h"

namespace tavr {

class Language;

class FormHost {
 public:
  virtual ~FormHost() = default;

  virtual Form1& form1() = 0;
  /// "d" when only the settings dialog was asked for: it ends the program then.
  virtual std::string_view dialogMode() const = 0;

  /// Unloads a form by its name ("Form2"). Its object stays until the event at
  /// hand has been served.
  virtual void unload(std::string_view form) = 0;

  /// Brings the Keep List up with the heading of its left list, in mode "1"
  /// (cookies) or "2" (location bar history).
  virtual void openKeepList(std::string_view heading, std::string_view mode) = 0;

  /// The message dialog: heading, text, and a subject that goes unused.
  virtual void showMessage(std::string_view heading, std::string_view text,
                           std::string_view subject) = 0;

  /// Takes the shadow from a form.
  virtual void detachShadow(std::string_view form) = 0;

  [[noreturn]] virtual void endProcess() = 0;
};

/// What every form's code works with.
struct FormContext {
  Machine& machine;
  RegistryLayer& registry;
  FileNumbers& numbers;
  TrackContext& tracks;  ///< for numbered texts (LangText)
  Language& language;
  FormHost& host;
};

}  // namespace tavr
