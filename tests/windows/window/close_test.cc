// The roads out of the program, and the run that closing may ask for.
#include "services/settings_keys.h"
#include "tests/windows/window/task_bar.h"
#include "tests/windows/window/window_test.h"

namespace tavr::testing {
namespace {

constexpr wchar_t kRecent[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RunMRU";
constexpr wchar_t kTrace[] = L"a";
constexpr int kRunHistory = 11;
constexpr std::uint32_t kRun = 20000;  // ms

class Closing : public WindowTest {
 protected:
  // A trace that only an Erase takes: a command of the start menu.
  void SetUp() override {
    WindowTest::SetUp();
    select(kRunHistory);
    constexpr wchar_t kCommand[] = L"regedit\\1";
    RegSetKeyValueW(HKEY_CURRENT_USER, kRecent, kTrace, REG_SZ, kCommand, sizeof(kCommand));
  }
  static bool traceIsThere() {
    return RegGetValueW(HKEY_CURRENT_USER, kRecent, kTrace, RRF_RT_REG_SZ, nullptr, nullptr,
                        nullptr) == ERROR_SUCCESS;
  }
  // As the start with Windows leaves it, brought up by its icon.
  void startSilently() {
    set(settings::kOptionsKey, "1", "1");
    start("s");
    ASSERT_TRUE(bar.showsIcon());
    bar.mouse(WM_LBUTTONDOWN);
    ASSERT_TRUE(program().comesUp("Form1"));
  }

  TaskBar bar;
};

TEST_F(Closing, TheStripsCloseEndsTheProgram) {
  start();
  program().click("Form1.chameleonButton9");
  EXPECT_EQ(program().waitForEnd(), 0U);
  EXPECT_FALSE(exists("eraselog.txt"));
}

TEST_F(Closing, ExitEndsTheProgram) {
  start();
  program().click("Form1.chameleonButton11");
  EXPECT_EQ(program().waitForEnd(), 0U);
}

TEST_F(Closing, TheSystemsCloseEndsTheProgram) {
  start();
  EXPECT_TRUE(program().comesToFront("Form1"));
  pressKey(VK_F4, VK_MENU);
  EXPECT_EQ(program().waitForEnd(), 0U);
  EXPECT_TRUE(traceIsThere());
}

TEST_F(Closing, WithTheOptionButAUsualStartNothingRuns) {
  set(settings::kOptionsKey, "1", "1");
  start();
  EXPECT_TRUE(program().comesToFront("Form1"));
  pressKey(VK_F4, VK_MENU);
  EXPECT_EQ(program().waitForEnd(), 0U);
  EXPECT_FALSE(exists("eraselog.txt"));
}

TEST_F(Closing, AfterTheSilentStartTheSystemsCloseErases) {
  startSilently();
  EXPECT_TRUE(program().comesToFront("Form1"));
  pressKey(VK_F4, VK_MENU);
  EXPECT_EQ(program().waitForEnd(kRun), 0U);
  EXPECT_TRUE(exists("eraselog.txt"));
  EXPECT_FALSE(traceIsThere());
}

TEST_F(Closing, AfterTheSilentStartExitTests) {
  startSilently();
  program().click("Form1.chameleonButton11");
  EXPECT_EQ(program().waitForEnd(kRun), 0U);
  EXPECT_TRUE(exists("eraselog.txt"));
  EXPECT_TRUE(traceIsThere());
}

TEST_F(Closing, AfterTheSilentStartTheStripsCloseTests) {
  startSilently();
  program().click("Form1.chameleonButton9");
  EXPECT_EQ(program().waitForEnd(kRun), 0U);
  EXPECT_TRUE(exists("eraselog.txt"));
  EXPECT_TRUE(traceIsThere());
}

// An Erase takes longer than Windows waits for: the session is held by it.
TEST_F(Closing, TheEndOfTheSessionTakesTheSystemsRoad) {
  startSilently();
  const HWND form = program().form("Form1");
  EXPECT_EQ(SendMessageW(form, WM_QUERYENDSESSION, 0, 0), FALSE);
  EXPECT_EQ(program().waitForEnd(kRun), 0U);
  EXPECT_FALSE(traceIsThere());
}

TEST_F(Closing, ADialogInTheWayDoesNotKeepTheSystemsCloseFromWorking) {
  start();
  program().click("Form1.chameleonButton13");
  ASSERT_TRUE(program().comesUp("frmabout"));
  PostMessageW(program().form("Form1"), WM_CLOSE, 0, 0);
  EXPECT_EQ(program().waitForEnd(), 0U);
}

class Shadow : public WindowTest {
 protected:
  static HWND of(HWND form) { return static_cast<HWND>(GetPropW(form, L"TrickShadow")); }
  static int count() {
    int shadows = 0;
    for (HWND at = nullptr;
         (at = FindWindowExW(nullptr, at, L"TrickShadow", nullptr)) != nullptr;) {
      ++shadows;
    }
    return shadows;
  }
};

TEST_F(Shadow, StandsOnceBehindTheMainFormHoweverOftenItIsActivated) {
  start();
  const HWND form = program().form("Form1");
  ASSERT_TRUE(comes([&] { return of(form) != nullptr; }));
  for (int i = 0; i < 3; ++i) {
    program().click("Form1.chameleonButton13");
    ASSERT_TRUE(program().comesUp("frmabout"));
    pressKey(VK_ESCAPE);
    ASSERT_TRUE(program().goes("frmabout"));
  }
  EXPECT_EQ(count(), 1);
  RECT around;
  RECT at;
  GetWindowRect(of(form), &around);
  GetWindowRect(form, &at);
  EXPECT_EQ(around.right - around.left, at.right - at.left + 20);
}

TEST_F(Shadow, LeavesTheKeyboardWithItsForm) {
  start();
  const HWND form = program().form("Form1");
  ASSERT_TRUE(comes([&] { return of(form) != nullptr; }));
  EXPECT_EQ(GetForegroundWindow(), form);
}

TEST_F(Shadow, IsNotThereAfterAStartWithArguments) {
  start("x");
  ASSERT_TRUE(program().comesUp("Form1.View100"));
  Sleep(300);
  EXPECT_EQ(count(), 0);
}

TEST_F(Shadow, GoesWithItsDialog) {
  start();
  program().click("Form1.cmd_settings");
  ASSERT_TRUE(program().comesUp("Form2"));
  EXPECT_TRUE(comes([] { return count() == 2; }));
  program().click("Form2.chameleonButton32");
  EXPECT_TRUE(program().goes("Form2"));
  EXPECT_TRUE(comes([] { return count() == 1; }));
}

TEST_F(Shadow, MovesWithItsForm) {
  start();
  const HWND form = program().form("Form1");
  ASSERT_TRUE(comes([&] { return of(form) != nullptr; }));
  SetWindowPos(form, nullptr, 100, 80, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  EXPECT_TRUE(comes([&] {
    RECT around;
    GetWindowRect(of(form), &around);
    return around.left == 90 && around.top == 70;
  }));
}

}  // namespace
}  // namespace tavr::testing
