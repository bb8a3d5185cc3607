// The options form on a machine of its own, and what it left in the settings.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "config/form3_code.h"
#include "tests/support/fake_form_host.h"

namespace tavr::testing {

inline constexpr std::string_view kTimerSettings = "Tavr Wipe\\timer";
inline constexpr std::string_view kMainSettings = "Tavr Wipe";
inline constexpr std::string_view kOptionSettings = "tavr wipe\\option\\option";
inline const std::string kBrowserSettings =
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\Main";
inline const std::string kCreate =
    "run 0 schtasks /create /SC ONLOGON /rl highest /tn \"Tavrwork Spoorwipe\" /tr "
    "\"'C:\\Program Files\\Tavr Wipe\\tavrwipe.exe s'\"\n";
inline const std::string kDelete = "run 0 schtasks /Delete /TN \"Tavrwork Spoorwipe\" /F\n";

class Options : public ::testing::Test {
 protected:
  Form3Code& code() {
    if (!code_) {
      stage_ = std::make_unique<FormStage>(machine);
      code_ = std::make_unique<Form3Code>(stage_->context);
    }
    return *code_;
  }
  Form3& form() { return code().form; }
  FormStage& stage() {
    code();
    return *stage_;
  }
  void load() { code().Form_Load(); }

  std::string stored(std::string_view key, std::string_view name) {
    return machine.registryText(Root::kLocalMachine, "software\\tavrwork\\" + std::string(key),
                                name);
  }
  std::string storedOfBrowser(std::string_view name) {
    return machine.registryText(Root::kCurrentUser, kBrowserSettings.substr(18), name);
  }
  // The values of a key as they came into being, "name=text".
  std::vector<std::string> values(Root root, const std::string& key) {
    std::vector<std::string> lines;
    const OpenedKey opened = machine.machine().registry.open(root, key, 0x20019);
    if (opened.status != kSuccess) return lines;
    std::string name;
    std::uint32_t type = 0;
    std::uint32_t size = 0;
    for (std::uint32_t i = 0; opened.key->enumValue(i, name, type, size) == kSuccess; ++i) {
      lines.push_back(name + "=" + machine.registryText(root, key, name));
    }
    return lines;
  }
  std::vector<std::string> timerValues() {
    return values(Root::kLocalMachine, "software\\tavrwork\\Tavr Wipe\\timer");
  }
  std::string shellLog() { return machine.readMachineFile("shell.log"); }
  Control& control(std::string_view name) {
    Control* const found = form().find(name);
    if (found == nullptr) throw std::runtime_error("no control " + std::string(name));
    return *found;
  }

  TestMachine machine;

 private:
  std::unique_ptr<FormStage> stage_;
  std::unique_ptr<Form3Code> code_;
};

}  // namespace tavr::testing
