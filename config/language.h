// The languages of the forms: captions from a file per language, chosen by the
// person. (The numbered message texts are LangText of the tracks.)
#pragma once

#include <string>
#include <string_view>

#include "forms/form.h"
#include "platform/machine.h"
#include "services/registry_layer.h"

namespace tavr {

/// One value of a caption file. Lines are trimmed; the wanted section, once
/// found, stays found, so a key missing from it is taken from a later one; only
/// the text up to a second "=" counts; all double quotes are dropped. "" when
/// there is no such file or key.
std::string readlangfile(Machine& machine, std::string_view path, std::string_view section,
                         std::string_view key);

/// The language in force, shared by all forms; filled by the last applying.
class Language {
 public:
  Language(Machine& machine, const RegistryLayer& registry)
      : machine_(machine), registry_(registry) {}

  int langcode = 0;       ///< character set of the captions' font
  std::string lang;       ///< code of the language, "de"
  int langindex = 0;      ///< row of the picker
  std::string file_name;  ///< "tavrwipe-de.lang"

  /// ApplyLanguage of a form: reads the choice and writes the captions of its
  /// controls. Without a file for the language the captions stay as they are, and
  /// so does the language that the form is in.
  void apply(Form& form);

 private:
  Machine& machine_;
  const RegistryLayer& registry_;
};

}  // namespace tavr
