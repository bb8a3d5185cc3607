// Procedures called by name, as a run calls them, on a machine of their own.
// The machine's event pump and registry are wrapped: a test may act at the nth
// pump and may ask for the registry calls in their order. A suite may put doubles
// of its own between the machine and these.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "engine/program.h"
#include "tests/support/machine_with.h"
#include "tests/support/test_machine.h"
#include "tests/unit/tracks/wrapped_machine.h"
#include "tracks/catalogue.h"
#include "tracks/primitives.h"

namespace tavr::testing {

class TrackTest : public ::testing::Test {
 protected:
  /// The program goes before the doubles that a suite lays below it.
  void TearDown() override { program_.reset(); }

  /// The program on the wrapped machine, made at the first call, as the head of
  /// a run leaves it, with one task row in progress.
  Program& program() {
    if (!program_) start();
    return *program_;
  }
  Form1& form() { return program().form; }
  TrackContext& tracks() { return program().tracks; }

  /// The procedure as a run calls it: the task's count and size start at 0.
  void call(std::string_view procedure) {
    form().trackcount = 0;
    form().tracksize = 0;
    callProcedure(tracks(), procedure);
  }

  std::vector<std::string> rows() {
    std::vector<std::string> texts;
    for (std::size_t i = 1; i <= form().View200.count(); ++i) {
      texts.emplace_back(form().View200.text(i));
    }
    return texts;
  }
  bool ghosted(std::size_t row) { return form().View200.ghosted(row); }
  ListCell& countCell() { return form().View100.item(1).subItem(2); }
  const std::string& count() { return countCell().text; }
  const std::string& registryCount() { return form().txtregcount.text(); }
  const std::string& fileCount() { return form().txtfilecount.text(); }
  const std::string& fileSize() { return form().txtfilesize.text(); }

  static std::vector<std::string> texts(const TextList& list) {
    std::vector<std::string> all;
    for (int i = 0; i < list.count(); ++i) all.push_back(list.at(i));
    return all;
  }

  /// The user presses stop while the nth pump from now is served.
  void stopAtPump(int nth) {
    program();
    events_->actAt(nth, [this] { form().stopflag = 1; });
  }
  ActingEvents& events() {
    program();
    return *events_;
  }
  /// The registry calls so far that begin with one of these.
  RegistryCalls calls(const std::vector<std::string>& beginnings) {
    program();
    RegistryCalls found;
    for (const std::string& made : registry_->calls) {
      for (const std::string& beginning : beginnings) {
        if (made.starts_with(beginning)) found.push_back(made);
      }
    }
    return found;
  }

  std::string value(std::string_view key, std::string_view name) {
    return world_.registryText(Root::kCurrentUser, key, name);
  }
  bool keyExists(std::string_view key) { return world_.keyExists(Root::kCurrentUser, key); }

  static std::string user(std::string_view below) {
    return std::string(kUser) + std::string(below);
  }
  static std::string hkcu(std::string_view key) { return "HKEY_CURRENT_USER\\" + std::string(key); }

  /// The machine that the program gets below the wraps.
  virtual Machine machineBelow(const Machine& real) { return real; }

  TestMachine world_;

 private:
  void start() {
    const Machine m = machineBelow(world_.machine());
    events_ = std::make_unique<ActingEvents>(m.events);
    registry_ = std::make_unique<RecordingRegistry>(m.registry);
    machine_ = std::make_unique<Machine>(testing::machineWith(m, *registry_, *events_));
    program_ = std::make_unique<Program>(*machine_);
    Form1& f = program_->form;
    f.View100.add("Task", "a");
    f.taskrow = 1;
    for (TextBox* total : {&f.txtregcount, &f.txtfilecount, &f.txtfilesize}) total->setText("0");
  }

  std::unique_ptr<ActingEvents> events_;
  std::unique_ptr<RecordingRegistry> registry_;
  std::unique_ptr<Machine> machine_;
  std::unique_ptr<Program> program_;
};

}  // namespace tavr::testing
