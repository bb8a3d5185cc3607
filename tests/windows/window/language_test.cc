// The language list: every language that ships, there and back.
#include <gmock/gmock.h>

#include <sstream>

#include "basic/text.h"
#include "services/settings_keys.h"
#include "tests/windows/window/window_test.h"

namespace tavr::testing {
namespace {

constexpr const char* kCodes[] = {"en", "de", "fr", "es", "it", "pt",
                                  "pl", "ru", "tr", "zh", "ja", "ar"};

class InALanguage : public WindowTest, public ::testing::WithParamInterface<int> {
 protected:
  static std::string caption(std::string_view code, std::string_view form, std::string_view key) {
    std::istringstream file(contents("lang\\tavrwipe-" + std::string(code) + ".lang"));
    const std::string section = "[" + std::string(form) + "]";
    bool own = false;
    for (std::string line; std::getline(file, line);) {
      if (line.ends_with('\r')) line.pop_back();
      if (line.starts_with('[')) own = line == section;
      if (own && line.starts_with(std::string(key) + "=")) return line.substr(key.size() + 1);
    }
    return {};
  }
  void choose(int row) {
    program().click("Form1.chameleonButton12");
    ASSERT_TRUE(program().comesUp("Form1.pictrlang"));
    program().click("Form1.lbllanguage(" + std::to_string(row) + ")");
    EXPECT_TRUE(program().goes("Form1.pictrlang"));
  }
  bool shows(std::string_view control, std::string_view code, std::string_view key) {
    const std::string name(control);
    const std::string wanted = caption(code, name.substr(0, name.find('.')), key);
    EXPECT_NE(wanted, "") << code << " " << key;
    return comes([&] { return program().text(control) == wanted; });
  }
};

TEST_P(InALanguage, CaptionsFollowTheChoiceAndComeBack) {
  const int row = GetParam();
  const char* const code = kCodes[row];
  start();
  choose(row);
  EXPECT_TRUE(shows("Form1.cmd_start", code, "cmd_start"));
  EXPECT_TRUE(shows("Form1.cmd_settings", code, "cmd_settings"));
  EXPECT_TRUE(comes([&] {
    return list("Form1.View100").header(0) ==
           caption(code, "Form1", "View100.ColumnHeaders.Item(1)");
  }));
  EXPECT_EQ(setting(settings::kLanguageKey, "lang"), code);
  EXPECT_EQ(setting(settings::kLanguageKey, "langindex"), std::to_string(row));
  program().click("Form1.cmd_settings");
  ASSERT_TRUE(program().comesUp("Form2"));
  EXPECT_TRUE(shows("Form2.chameleonButton27", code, "chameleonButton27"));
  EXPECT_TRUE(shows("Form2.Label2(4)", code, "Label2(4)"));
  program().click("Form2.chameleonButton4");
  EXPECT_TRUE(program().goes("Form2"));
  program().click("Form1.cmd_option");
  ASSERT_TRUE(program().comesUp("Form3"));
  EXPECT_TRUE(shows("Form3.chameleonButton9", code, "chameleonButton9"));
  EXPECT_TRUE(shows("Form3.Label2(18)", code, "Label2(18)"));
  pressKey(VK_ESCAPE);
  EXPECT_TRUE(program().goes("Form3"));
  program().click("Form1.chameleonButton13");
  ASSERT_TRUE(program().comesUp("frmabout"));
  EXPECT_TRUE(shows("frmabout.Label2(2)", code, "Label2(2)"));
  pressKey(VK_ESCAPE);
  EXPECT_TRUE(program().goes("frmabout"));
  choose(0);
  EXPECT_TRUE(shows("Form1.cmd_start", "en", "cmd_start"));
  EXPECT_TRUE(shows("Form1.cmd_settings", "en", "cmd_settings"));
  EXPECT_TRUE(comes([&] {
    return list("Form1.View100").header(0) ==
           caption("en", "Form1", "View100.ColumnHeaders.Item(1)");
  }));
}

bool isMirrored(const DrivenProgram& program) {
  RECT form;
  RECT command;
  GetWindowRect(program.form("Form1"), &form);
  GetWindowRect(program.window("Form1.cmd_start"), &command);
  return command.left > (form.left + form.right) / 2;
}

TEST_P(InALanguage, TheCommandsStandWhereReadingBegins) {
  const int row = GetParam();
  start();
  choose(row);
  const bool to_the_left = std::string_view(kCodes[row]) == "ar";
  EXPECT_TRUE(comes([&] { return isMirrored(program()) == to_the_left; }));
}

TEST_P(InALanguage, IsInForceAtTheNextStart) {
  const int row = GetParam();
  start();
  choose(row);
  end();
  start();
  EXPECT_TRUE(shows("Form1.cmd_start", kCodes[row], "cmd_start"));
}

INSTANTIATE_TEST_SUITE_P(Languages, InALanguage, ::testing::Range(0, 12),
                         [](const auto& row) { return std::string(kCodes[row.param]); });

class WithoutArabic : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    ASSERT_TRUE(MoveFileW(file_.c_str(), away_.c_str()));
  }
  void TearDown() override {
    WindowTest::TearDown();
    EXPECT_TRUE(MoveFileW(away_.c_str(), file_.c_str()));
  }

 private:
  const std::wstring file_ = place("lang\\tavrwipe-ar.lang");
  const std::wstring away_ = place("lang\\away.lang");
};

// The captions stay English then, and so does their direction.
TEST_F(WithoutArabic, NothingIsTurnedAround) {
  set(settings::kLanguageKey, "lang", "ar");
  start();
  EXPECT_EQ(program().text("Form1.cmd_start"), "Erase");
  EXPECT_FALSE(isMirrored(program()));
}

TEST_F(WindowTest, TheLanguageListClosesByItsButton) {
  start();
  program().click("Form1.chameleonButton12");
  EXPECT_TRUE(program().comesUp("Form1.pictrlang"));
  program().click("Form1.chameleonButton12");
  EXPECT_TRUE(program().goes("Form1.pictrlang"));
}

}  // namespace
}  // namespace tavr::testing
