// A host for the code of one form: it notes what the form asks of the program
// and does none of it.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "basic/resume_next.h"
#include "config/form_host.h"
#include "config/language.h"
#include "platform/folder/folder_desktop.h"
#include "tests/support/test_machine.h"

namespace tavr::testing {

class FakeFormHost : public FormHost {
 public:
  explicit FakeFormHost(Form1& main_form) : form1_(main_form) {}

  struct KeepList {
    std::string heading;
    std::string mode;
    bool operator==(const KeepList&) const = default;
  };
  struct Message {
    std::string heading;
    std::string text;
    std::string subject;
    bool operator==(const Message&) const = default;
  };

  /// Every call in its order: "unload Form2", "keep list", "message",
  /// "detach Form2", "end".
  std::vector<std::string> calls;
  std::vector<KeepList> keep_lists;
  std::vector<Message> messages;
  std::function<void()> onKeepList;  ///< while the keep list opens

  Form1& form1() override { return form1_; }
  std::string_view dialogMode() const override { return form1_.dialog_mode; }
  void unload(std::string_view form) override { calls.push_back("unload " + std::string(form)); }
  void openKeepList(std::string_view heading, std::string_view mode) override {
    calls.emplace_back("keep list");
    keep_lists.push_back({std::string(heading), std::string(mode)});
    if (onKeepList) onKeepList();
  }
  void showMessage(std::string_view heading, std::string_view text,
                   std::string_view subject) override {
    calls.emplace_back("message");
    messages.push_back({std::string(heading), std::string(text), std::string(subject)});
  }
  void detachShadow(std::string_view form) override {
    calls.push_back("detach " + std::string(form));
  }
  [[noreturn]] void endProcess() override {
    calls.emplace_back("end");
    throw ProcessEnd{};
  }

 private:
  Form1& form1_;
};

/// What the code of a form works with, over the program of a test machine. The
/// machine starts here: what it holds is laid out before.
struct FormStage {
  explicit FormStage(TestMachine& test_machine)
      : program(test_machine.program()),
        host(program.form),
        language(program.machine, program.registry),
        context{program.machine, program.registry, program.numbers,
                program.tracks,  language,         host} {}

  folder::FolderDesktop& desktop() const {
    return dynamic_cast<folder::FolderDesktop&>(program.machine.desktop);
  }

  Program& program;
  FakeFormHost host;
  Language language;
  FormContext context;
};

}  // namespace tavr::testing
