// The scheduler on a virtual clock: a person at the message boxes, and a
// recorder in the place of the runs.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "config/form3_code.h"
#include "config/scheduler.h"
#include "tests/support/machine_with.h"
#include "tests/support/options_form.h"

namespace tavr::testing {

inline constexpr std::uint32_t kDay = 86'400'000;  // ms

// A person who answers every box alike.
class Person : public Dialogs {
 public:
  struct Box {
    std::string text;
    std::uint32_t flags;
    std::string title;
    bool operator==(const Box&) const = default;
  };
  int messageBox(std::string_view text, std::uint32_t flags, std::string_view title) override {
    boxes.push_back({std::string(text), flags, std::string(title)});
    if (onBox) onBox();
    return answer;
  }
  void beep() override {}

  int answer = kAnswerYes;
  std::function<void()> onBox;  ///< while a box is open
  std::vector<Box> boxes;
};

class Scheduler : public ::testing::Test {
 protected:
  void timerSetting(std::string_view name, std::string_view text) {
    machine.setting(kTimerSettings, name, text);
  }
  void startClockAt(const std::string& time) {
    machine.ini("[clock]\nstart=2026-11-20T" + time + "\n");
  }

  // The program on the machine, a recorder in the place of the runs.
  FormStage& stage() {
    if (stage_) return *stage_;
    stage_ = std::make_unique<FormStage>(machine);
    const Machine& m = stage_->program.machine;
    machine_ =
        std::make_unique<Machine>(machineWith(m, locale != nullptr ? *locale : m.locale, person));
    context_ = std::make_unique<FormContext>(
        FormContext{*machine_, stage_->program.registry, stage_->program.numbers,
                    stage_->program.tracks, stage_->language, stage_->host});
    form().Text5.onChange = [this] {
      changes.push_back(form().Text5.text());
      if (form().Text5.text() != "2") return;
      fired.push_back(now());
      if (onRun) onRun();
    };
    return *stage_;
  }
  Form1& form() { return stage_->program.form; }
  Events& events() { return stage().context.machine.events; }

  void tick() {
    stage();
    Timer1_Timer(*context_);
  }
  // The timer of the main form, for a time.
  void play(std::uint32_t milliseconds) {
    stage();
    const TimerId timer = events().startTimer(kSchedulerInterval, [this] { tick(); });
    events().wait(milliseconds);
    events().stopTimer(timer);
  }
  // A schedule as the options form saves it now.
  void save(OptionButton Form3::*option, Form3::CaretBox Form3::*box, std::string_view interval) {
    stage();
    Form3Code options(*context_);
    (options.form.*option).setValue(true);
    (options.form.*box).setText(interval);
    options.chameleonButton5_Click();
  }

  std::string now() {
    const LocalTime time = stage().context.machine.clock.now();
    char text[64];
    std::snprintf(text, sizeof text, "%d/%d %02d:%02d:%02d", time.month, time.day, time.hour,
                  time.minute, time.second);
    return text;
  }
  std::string stored(std::string_view name) {
    return machine.registryText(Root::kLocalMachine, "software\\tavrwork\\tavr wipe\\timer", name);
  }
  std::string storedMain(std::string_view name) {
    return machine.registryText(Root::kLocalMachine, "software\\tavrwork\\tavr wipe", name);
  }
  std::string storedOfBrowser(std::string_view name) {
    return machine.registryText(Root::kCurrentUser, kBrowserSettings.substr(18), name);
  }

  TestMachine machine;
  Person person;
  Locale* locale = nullptr;          // in place of the machine's own
  std::vector<std::string> fired;    // when the Erase run was started
  std::vector<std::string> changes;  // of Text5
  std::function<void()> onRun;

 private:
  std::unique_ptr<FormStage> stage_;
  std::unique_ptr<Machine> machine_;
  std::unique_ptr<FormContext> context_;
};

}  // namespace tavr::testing
