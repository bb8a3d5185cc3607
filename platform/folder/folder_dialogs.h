// Message boxes of a machine folder: answered by machine.ini, or by the person
// at the terminal when it has no [answers].
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/folder/machine_folder.h"
#include "platform/folder/machine_ini.h"

namespace tavr::folder {

class FolderDialogs : public Dialogs {
 public:
  /// Without answers and without `ask` every question is answered "no".
  FolderDialogs(std::optional<Answers> answers, AskPerson ask, Events& events);

  int messageBox(std::string_view text, std::uint32_t flags, std::string_view title) override;
  void beep() override {}

 private:
  std::optional<Answers> answers_;
  AskPerson ask_;
  Events& events_;
};

}  // namespace tavr::folder
