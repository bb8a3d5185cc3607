// The icon in the notification area, its menu, and the ways out of sight.
#include "services/settings_keys.h"
#include "tests/windows/window/task_bar.h"
#include "tests/windows/window/window_test.h"

namespace tavr::testing {
namespace {

constexpr wchar_t kMenuClass[] = L"#32768";
constexpr int kEraseEntry = 3;
constexpr int kOptionsEntry = 4;  // steps down from above the first entry
constexpr int kSettingsEntry = 5;
constexpr int kExitEntry = 7;

class Tray : public WindowTest {
 protected:
  void minimise() {
    program().click("Form1.chameleonButton10");
    EXPECT_TRUE(program().goes("Form1"));
  }
  // Separators are passed over by the keys.
  void choose(int entry) {
    bar.mouse(WM_RBUTTONDOWN);
    EXPECT_TRUE(comes([this] { return program().windowOfClass(kMenuClass) != nullptr; }));
    for (int i = 0; i < entry; ++i) pressKey(VK_DOWN);
    pressKey(VK_RETURN);
  }

  TaskBar bar;
};

TEST_F(Tray, MinimisingPutsTheIconThereInPlaceOfTheWindow) {
  start();
  EXPECT_FALSE(bar.icon());
  minimise();
  EXPECT_TRUE(bar.showsIcon());
}

TEST_F(Tray, ALeftPressOnTheIconBringsTheWindowBack) {
  start();
  minimise();
  ASSERT_TRUE(bar.showsIcon());
  bar.mouse(WM_LBUTTONDOWN);
  EXPECT_TRUE(program().comesUp("Form1"));
  EXPECT_TRUE(bar.losesIcon());
}

TEST_F(Tray, ADoubleClickOnTheIconBringsTheWindowBack) {
  start();
  minimise();
  ASSERT_TRUE(bar.showsIcon());
  bar.mouse(WM_LBUTTONDBLCLK);
  EXPECT_TRUE(program().comesUp("Form1"));
}

TEST_F(Tray, TheIconComesAgainWhenTheTaskBarStartsAnew) {
  start();
  minimise();
  ASSERT_TRUE(bar.showsIcon());
  bar.startAnew();
  EXPECT_TRUE(bar.showsIcon());
}

TEST_F(Tray, TheMenuOpensTheSettings) {
  start();
  minimise();
  ASSERT_TRUE(bar.showsIcon());
  choose(kSettingsEntry);
  EXPECT_TRUE(program().comesUp("Form2"));
}

TEST_F(Tray, TheMenuOpensTheOptions) {
  start();
  minimise();
  ASSERT_TRUE(bar.showsIcon());
  choose(kOptionsEntry);
  EXPECT_TRUE(program().comesUp("Form3"));
}

TEST_F(Tray, TheMenuErases) {
  start();
  minimise();
  ASSERT_TRUE(bar.showsIcon());
  choose(kEraseEntry);
  EXPECT_TRUE(comes([] { return exists("eraselog.txt"); }));
  EXPECT_TRUE(comes([this] { return list("Form1.View100").text(9, 1) == "Finished"; }));
}

TEST_F(Tray, TheMenuIsLeftWithoutAChoice) {
  start();
  minimise();
  ASSERT_TRUE(bar.showsIcon());
  bar.mouse(WM_RBUTTONDOWN);
  EXPECT_TRUE(comes([this] { return program().windowOfClass(kMenuClass) != nullptr; }));
  pressKey(VK_ESCAPE);
  EXPECT_TRUE(comes([this] { return program().windowOfClass(kMenuClass) == nullptr; }));
  bar.mouse(WM_LBUTTONDOWN);
  EXPECT_TRUE(program().comesUp("Form1"));
}

TEST_F(Tray, TheMenuEndsTheProgramAndTheIconGoesWithIt) {
  start();
  minimise();
  ASSERT_TRUE(bar.showsIcon());
  choose(kExitEntry);
  EXPECT_EQ(program().waitForEnd(), 0U);
  EXPECT_TRUE(bar.losesIcon());
}

TEST_F(Tray, TheSilentStartShowsTheIconAlone) {
  start("s");
  EXPECT_TRUE(bar.showsIcon());
  EXPECT_FALSE(program().sees("Form1"));
  bar.mouse(WM_LBUTTONDOWN);
  EXPECT_TRUE(program().comesUp("Form1"));
}

class Stealth : public Tray {
 protected:
  void SetUp() override {
    Tray::SetUp();
    set(settings::kOptionsKey, "5", "1");
    set(settings::kMainKey, "key", "S");
  }
};

TEST_F(Stealth, MinimisingShowsNoIcon) {
  start();
  minimise();
  EXPECT_FALSE(bar.showsIcon(500));
}

TEST_F(Stealth, TheHotKeyHidesTheWindowAndBringsItBack) {
  start();
  EXPECT_TRUE(program().comesToFront("Form1"));
  pressKey('S', VK_MENU);
  EXPECT_TRUE(program().goes("Form1"));
  EXPECT_TRUE(program().running());
  pressKey('S', VK_MENU);
  EXPECT_TRUE(program().comesUp("Form1"));
}

TEST_F(Stealth, TheHotKeyClosesTheDialogsToo) {
  start();
  program().click("Form1.cmd_settings");
  EXPECT_TRUE(program().comesUp("Form2"));
  EXPECT_TRUE(program().comesToFront("Form2"));
  pressKey('S', VK_MENU);
  EXPECT_TRUE(program().goes("Form1"));
  EXPECT_TRUE(program().goes("Form2"));
  pressKey('S', VK_MENU);
  EXPECT_TRUE(program().comesUp("Form1"));
  EXPECT_FALSE(program().sees("Form2"));
}

}  // namespace
}  // namespace tavr::testing
