// What the tests of the windows have in common: a fresh machine for each, and
// the program's settings as another program reads them.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

#include "tests/windows/window/driven_program.h"
#include "tests/windows/window/remote_list.h"

namespace tavr::testing {

class WindowTest : public ::testing::Test {
 protected:
  /// Nothing set, nothing of an earlier test in the program's folder, and the
  /// first start behind it.
  void SetUp() override;
  void TearDown() override;

  /// Starts the program; with a window this waits for the main form.
  DrivenProgram& start(std::string_view arguments = "");
  DrivenProgram& program() { return *program_; }
  void end() { program_.reset(); }

  /// Values below HKLM, and the key that selects the tracks.
  static std::string setting(std::string_view key, std::string_view name);
  static void set(std::string_view key, std::string_view name, std::string_view text);
  static void select(int track);

  /// Files in the program's folder: "lang\\x". An absolute path is taken as it is.
  static std::wstring place(std::string_view file);
  static void write(std::string_view file, std::string_view contents);
  static void removeFolder(const std::wstring& folder);
  static bool exists(std::string_view file);
  static std::string contents(std::string_view file);

  RemoteList list(std::string_view control) {
    return {program().process(), program().window(control)};
  }

 private:
  std::unique_ptr<DrivenProgram> program_;
};

}  // namespace tavr::testing
