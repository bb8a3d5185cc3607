// The machine-folder program: the whole program on a Windows machine that is
// kept in a folder.
#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include <unistd.h>

#include "app/options.h"
#include "app/version.h"
#include "basic/resume_next.h"
#include "basic/text.h"
#include "engine/play.h"
#include "engine/start.h"
#include "engine/window.h"
#include "platform/folder/folder_desktop.h"
#include "platform/folder/machine_folder.h"
#include "ui/terminal/report.h"

namespace {

constexpr int kDone = 0;
constexpr int kNotAsExpected = 1;
constexpr int kWrongCall = 2;

std::atomic<tavr::folder::MachineFolder*> interrupted_machine;  // for the signal handler alone

int fail(std::string what) {
  std::replace(what.begin(), what.end(), '\n', ' ');  // one line, whatever a path holds
  std::fprintf(stderr, "tavrwipe: %s\n", what.c_str());
  return kWrongCall;
}

bool onTerminal() { return isatty(STDIN_FILENO) != 0 && isatty(STDERR_FILENO) != 0; }

// The person at the terminal; an answer that begins with "y" is Yes.
int askPerson(std::string_view text, std::string_view title) {
  std::fprintf(stderr, "%.*s: %.*s [y/N] ", static_cast<int>(title.size()), title.data(),
               static_cast<int>(text.size()), text.data());
  std::string answer;
  std::getline(std::cin, answer);
  return answer.starts_with('y') || answer.starts_with('Y') ? tavr::kAnswerYes : tavr::kAnswerNo;
}

// The first interrupt asks the run to stop, as the Stop button does; the second
// ends the process.
void onInterrupt(int) {
  if (auto* const machine = interrupted_machine.load()) machine->interrupt();
  std::signal(SIGINT, SIG_DFL);
}

// Every unattended start ends by ending the process. False: by an error that no
// statement caught.
bool runToItsEnd(tavr::Program& program) {
  try {
    tavr::Form_Load(program);
  } catch (const tavr::ProcessEnd&) {
    return true;
  } catch (const tavr::RuntimeError&) {
  }
  return false;
}

tavr::PlayActions actionsOn(tavr::folder::MachineFolder& folder, tavr::Program& program) {
  tavr::PlayActions actions;
  actions.form = [&program](std::string_view name) -> tavr::Form* {
    program.desk.freeUnloaded();
    if (tavr::sameText(name, program.form.name())) return &program.form;
    return program.desk.loaded(name);
  };
  actions.wait = [&program](std::uint32_t ms) { program.machine.events.wait(ms); };
  // A combination that is not registered brings no message.
  actions.hotkey = [&folder, &program] {
    if (!folder.desktop().hotKeys().contains(1)) return;
    tavr::hotKeyProcedure(program, tavr::kHotKeyMessage, 1);
  };
  actions.minimise = [&program] { tavr::setWindowState(program, tavr::WindowState::kMinimised); };
  actions.close = [&program] { tavr::closeWindow(program); };
  actions.choose = [&folder](std::string_view file) { folder.desktop().chooseNext(file); };
  return actions;
}

// Loads the main form as a person's start does and plays the script on it. A
// script may end the program.
int playOn(tavr::folder::MachineFolder& folder, tavr::Program& program,
           const tavr::Options& options) {
  std::ifstream file(options.play, std::ios::binary);
  if (!file) return fail(options.play + ": cannot be read");
  const std::string script{std::istreambuf_iterator<char>(file), {}};
  std::string message;
  auto result = tavr::PlayResult::kDone;
  try {
    tavr::Form_Load(program);
    result = tavr::play(script, actionsOn(folder, program), stdout, message);
  } catch (const tavr::ProcessEnd&) {
    // The script, or an unattended start, has ended the program.
  } catch (const tavr::RuntimeError&) {
    return fail(options.play + ": the program could not go on");
  }
  if (!folder.save()) return fail(options.machine + "/registry.reg: cannot be written");
  if (result == tavr::PlayResult::kDone) return kDone;
  fail(options.play + ":" + message);
  return result == tavr::PlayResult::kExpectFailed ? kNotAsExpected : kWrongCall;
}

int runOn(tavr::folder::MachineFolder& folder, const tavr::Options& options) {
  tavr::Program program(folder.machine());
  tavr::Form_Initialize(program, options.arguments);
  if (!options.play.empty()) return playOn(folder, program, options);
  if (program.form.unattended != 1) {
    return fail(
        "these arguments open the window, which needs the Windows program; "
        "see --help for the unattended ones");
  }
  const auto printed = options.rows    ? tavr::Printed::rows
                       : options.quiet ? tavr::Printed::nothing
                                       : tavr::Printed::tables;
  tavr::TerminalReport report(program, printed, stdout,
                              !options.quiet && isatty(STDERR_FILENO) != 0 ? stderr : nullptr);
  folder.setInterruptHandler([&program] { program.form.cmd_stop.click(); });
  interrupted_machine = &folder;
  std::signal(SIGINT, onInterrupt);
  std::signal(SIGPIPE, SIG_IGN);  // a reader that leaves must not end an Erase in its middle
  const bool ended = runToItsEnd(program);
  interrupted_machine = nullptr;
  // Saved first: what is printed may meet a closed pipe.
  const bool saved = folder.save();
  report.finish();
  if (!ended) return fail("the run could not be carried out");
  if (!saved) return fail(options.machine + "/registry.reg: cannot be written");
  return kDone;
}

}  // namespace

int main(int argc, char** argv) {
  const tavr::Options options = tavr::parseOptions(argc, argv);
  if (!options.error.empty()) return fail(options.error + "; see tavrwipe --help");
  if (options.help) {
    std::fputs(tavr::helpText(), stdout);
    return kDone;
  }
  if (options.version) {
    std::printf("tavrwipe %s\n", tavr::kVersion);
    return kDone;
  }
  try {
    tavr::folder::MachineFolder folder(options.machine, onTerminal() ? askPerson : nullptr);
    return runOn(folder, options);
  } catch (const std::exception& error) {
    return fail(error.what());
  }
}
