// How the program comes up.
#include <gmock/gmock.h>
#include <windows.h>
// Behind windows.h.
#include <psapi.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "basic/text.h"
#include "platform/win32/wide.h"
#include "services/settings_keys.h"
#include "tests/windows/window/window_test.h"

namespace tavr::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class Start : public WindowTest {};

TEST_F(Start, TheVeryFirstOneOpensErasingSettings) {
  set(settings::kFirstTimeKey, "firsttime", "0");
  start();
  EXPECT_TRUE(program().comesUp("Form2"));
  EXPECT_EQ(program().text("Form2"), "Erasing Settings");
  EXPECT_FALSE(IsWindowEnabled(program().form("Form1")));
  EXPECT_EQ(setting(settings::kFirstTimeKey, "firsttime"), "1");
}

TEST_F(Start, ALaterOneShowsTheMainFormAlone) {
  start();
  EXPECT_FALSE(program().sees("Form2"));
  EXPECT_TRUE(IsWindowEnabled(program().form("Form1")));
  EXPECT_EQ(program().text("Form1"), "Spoorwipe");
}

TEST_F(Start, TheMainFormStandsInTheMiddleOfTheScreen) {
  start();
  RECT at;
  GetWindowRect(program().form("Form1"), &at);
  EXPECT_NEAR(at.left + at.right, GetSystemMetrics(SM_CXSCREEN), 2);
  // The main form is laid out with its strip.
  EXPECT_NEAR(at.top + at.bottom, GetSystemMetrics(SM_CYSCREEN), 2);
}

TEST_F(Start, TheTaskTableHoldsTheSelectedTracksAndTheTenBrowsers) {
  select(13);
  select(8);
  start();
  EXPECT_TRUE(comes([this] { return list("Form1.View100").rows() == 12; }));
  EXPECT_EQ(list("Form1.View100").text(0), "Recent Documents History");
  EXPECT_EQ(list("Form1.View100").text(1), "Recycle Bin");
  EXPECT_EQ(list("Form1.View100").header(0), "Task");
}

// Not of the old one, which has the same name and lies in the system's folder.
TEST_F(Start, ItsListsAreThoseOfTheVersionThatTheManifestNames) {
  start();
  std::array<HMODULE, 512> modules{};
  DWORD bytes = 0;
  ASSERT_TRUE(EnumProcessModules(program().process(), modules.data(), sizeof(modules), &bytes));
  std::vector<std::string> found;
  for (std::size_t i = 0; i < std::min(bytes / sizeof(HMODULE), modules.size()); ++i) {
    std::array<wchar_t, MAX_PATH> path{};
    GetModuleFileNameExW(program().process(), modules[i], path.data(), MAX_PATH);
    const std::string name = LCase(win32::narrow(path.data()));
    if (name.ends_with("\\comctl32.dll")) found.push_back(name);
  }
  EXPECT_THAT(found, ElementsAre(HasSubstr("\\winsxs\\")));
}

TEST_F(Start, StopIsDisabledWhileNothingRuns) {
  start();
  EXPECT_FALSE(program().enabled("Form1.cmd_stop"));
  EXPECT_FALSE(program().enabled("Form1.Toolbar1(10)"));
  EXPECT_TRUE(program().enabled("Form1.cmd_start"));
}

TEST_F(Start, TheSettingsAloneAreShownForTheirArgument) {
  start("d");
  EXPECT_TRUE(program().comesUp("Form2"));
  EXPECT_FALSE(program().sees("Form1"));
  program().click("Form2.chameleonButton4");
  EXPECT_EQ(program().waitForEnd(), 0U);
}

// Nothing would be left of a program whose only window has gone.
TEST_F(Start, TheSettingsAloneEndTheProgramByTheKeyboardToo) {
  start("d");
  EXPECT_TRUE(program().comesUp("Form2"));
  EXPECT_TRUE(program().comesToFront("Form2"));
  pressKey(VK_ESCAPE);
  EXPECT_EQ(program().waitForEnd(), 0U);
}

// Wine's registry provider does not answer the question for another colour.
TEST_F(Start, TheStripHasTheColourOfTheDesign) {
  start();
  constexpr COLORREF kStrip = 10118205;
  const auto shown = [this] { return program().pixels("Form1")[20 * 960 + 500]; };
  EXPECT_TRUE(comes([&] { return shown() == kStrip; })) << std::hex << shown();
}

}  // namespace
}  // namespace tavr::testing
