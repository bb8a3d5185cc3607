// Form2 on a test machine, started at the first use of the form.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>

#include "config/form2_code.h"
#include "services/settings_keys.h"
#include "tests/support/fake_form_host.h"

namespace tavr {

inline constexpr std::size_t kBoxes = 55;

class Form2Test : public ::testing::Test {
 protected:
  testing::FormStage& stage() {
    if (!stage_) stage_ = std::make_unique<testing::FormStage>(machine);
    return *stage_;
  }
  Form2Code& code() {
    if (!code_) code_ = std::make_unique<Form2Code>(stage().context);
    return *code_;
  }
  Form2& form() { return code().form; }
  CheckBox& box(int index) { return form().Check1.at(static_cast<std::size_t>(index)); }
  Button& button(std::size_t number) { return form().chameleonButton.at(number); }
  std::string stored(int index) {
    return machine.registryText(Root::kLocalMachine, settings::kSelectionKey,
                                std::to_string(index));
  }
  void setAll(int value) {
    for (CheckBox& check : form().Check1) check.setValue(value);
  }
  std::set<int> on() {
    std::set<int> indices;
    for (int i = 0; i < static_cast<int>(kBoxes); ++i) {
      if (box(i).value() == 1) indices.insert(i);
    }
    return indices;
  }
  std::set<int> visiblePanels() {
    std::set<int> numbers;
    for (int i = 1; i <= 9; ++i) {
      if (i != 6 && form().frame[static_cast<std::size_t>(i)].visible) numbers.insert(i);
    }
    return numbers;
  }
  bool standsAt(int panel, int left, int top) {
    const Box& place = form().frame[static_cast<std::size_t>(panel)].box;
    return place.left == left && place.top == top;
  }

  testing::TestMachine machine;

 private:
  std::unique_ptr<testing::FormStage> stage_;
  std::unique_ptr<Form2Code> code_;
};

}  // namespace tavr
