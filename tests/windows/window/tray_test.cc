// The icon in the notification area, its menu, and the ways out of sight.
#include "config/maker_site.h"
#include "services/settings_keys.h"
#include "tests/windows/window/task_bar.h"
#include "tests/windows/window/window_test.h"

namespace tavr::testing {
namespace {

constexpr wchar_t kMenuClass[] = L"#32768";
// Steps down from above the first entry.
constexpr int kSiteEntry = 1;
constexpr int kHelpEntry = 2;
constexpr int kEraseEntry = 3;
constexpr int kOptionsEntry = 4;
constexpr int kSettingsEntry = 5;
constexpr int kPlugInsEntry = 6;
constexpr int kExitEntry = 7;

// As lang\\english.ini has it.
const std::string kNotOpened =
    "The web page could not be opened. Please visit this address with your browser:\r\n";

class Tray : public WindowTest {
 protected:
  void minimise() {
    program().click("Form1.chameleonButton10");
    EXPECT_TRUE(program().goes("Form1"));
  }
  bool isAway() {
    start();
    minimise();
    return bar.showsIcon();
  }
  void comesBackBy(UINT message) {
    ASSERT_TRUE(isAway());
    bar.mouse(message);
    EXPECT_TRUE(program().comesUp("Form1"));
    EXPECT_TRUE(bar.losesIcon());
  }
  // Separators are passed over by the keys.
  void choose(int entry) {
    bar.mouse(WM_RBUTTONDOWN);
    EXPECT_TRUE(comes([this] { return program().windowOfClass(kMenuClass) != nullptr; }));
    for (int i = 0; i < entry; ++i) pressKey(VK_DOWN);
    pressKey(VK_RETURN);
  }

  // An icon of one size, 16 x 16 in red.
  static std::string redPicture() {
    constexpr int kSide = 16;
    const std::string header("\0\0\1\0\1\0\x10\x10\0\0\1\0\x20\0\x68\4\0\0\x16\0\0\0", 22);
    BITMAPINFOHEADER format{sizeof(format), kSide, 2 * kSide, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    std::string picture = header;
    picture.append(reinterpret_cast<const char*>(&format), sizeof(format));
    for (int i = 0; i < kSide * kSide; ++i) picture.append("\0\0\xFF\xFF", 4);
    return picture.append(kSide * 4, '\0');  // the mask
  }

  TaskBar bar;
};

TEST_F(Tray, MinimisingPutsTheIconThereInPlaceOfTheWindow) {
  start();
  EXPECT_FALSE(bar.icon());
  minimise();
  EXPECT_TRUE(bar.showsIcon());
}

TEST_F(Tray, ALeftPressOnTheIconBringsTheWindowBack) { comesBackBy(WM_LBUTTONDOWN); }

TEST_F(Tray, ADoubleClickOnTheIconBringsTheWindowBack) { comesBackBy(WM_LBUTTONDBLCLK); }

TEST_F(Tray, TheIconComesAgainWhenTheTaskBarStartsAnew) {
  ASSERT_TRUE(isAway());
  bar.startAnew();
  EXPECT_TRUE(bar.showsIcon());
}

TEST_F(Tray, TheMenuOpensTheSettings) {
  ASSERT_TRUE(isAway());
  choose(kSettingsEntry);
  EXPECT_TRUE(program().comesUp("Form2"));
}

TEST_F(Tray, TheMenuOpensTheOptions) {
  ASSERT_TRUE(isAway());
  choose(kOptionsEntry);
  EXPECT_TRUE(program().comesUp("Form3"));
}

// Windows has no program "Start", so a message with the address comes. Wine has
// one, which is out of the way here.
class TrayPages : public Tray {
 protected:
  void SetUp() override {
    Tray::SetUp();
    if (GetFileAttributesW(kStart) == INVALID_FILE_ATTRIBUTES) return;
    moved_ = MoveFileW(kStart, kAway) != FALSE;
    ASSERT_TRUE(moved_);
  }
  void TearDown() override {
    Tray::TearDown();
    EXPECT_TRUE(!moved_ || MoveFileW(kAway, kStart));
  }

 private:
  static constexpr wchar_t kStart[] = L"C:\\windows\\system32\\start.exe";
  static constexpr wchar_t kAway[] = L"C:\\windows\\system32\\start.away";
  bool moved_ = false;
};

TEST_F(TrayPages, TheMenuTellsTheAddressOfTheSite) {
  ASSERT_TRUE(isAway());
  choose(kSiteEntry);
  ASSERT_TRUE(program().comesUp("frmmsg"));
  EXPECT_EQ(program().text("frmmsg"), "Tavr Wipe Pro");
  EXPECT_EQ(program().text("frmmsg.Text1"), kNotOpened + std::string(kMakerSite));
  program().click("frmmsg.chameleonButton1");
  EXPECT_TRUE(program().goes("frmmsg"));
  EXPECT_FALSE(program().sees("Form1"));
}

TEST_F(TrayPages, TheMenuTellsTheAddressOfThePlugIns) {
  ASSERT_TRUE(isAway());
  choose(kPlugInsEntry);
  ASSERT_TRUE(program().comesUp("frmmsg"));
  EXPECT_EQ(program().text("frmmsg.Text1"),
            kNotOpened + std::string(kMakerSite) + std::string(kPlugInPage));
  program().click("frmmsg.command2");
  EXPECT_TRUE(program().goes("frmmsg"));
}

TEST_F(Tray, TheMenusHelpDoesNothing) {
  ASSERT_TRUE(isAway());
  choose(kHelpEntry);
  EXPECT_TRUE(comes([this] { return program().windowOfClass(kMenuClass) == nullptr; }));
  Sleep(500);
  EXPECT_TRUE(program().running());
  for (const char* const form : {"Form1", "Form2", "Form3", "frmabout", "frmmsg"}) {
    EXPECT_FALSE(program().sees(form)) << form;
  }
  choose(kOptionsEntry);
  EXPECT_TRUE(program().comesUp("Form3"));
}

TEST_F(Tray, ADialogOfTheMenuClosesAndLeavesTheIcon) {
  ASSERT_TRUE(isAway());
  choose(kSettingsEntry);
  ASSERT_TRUE(program().comesUp("Form2"));
  program().click("Form2.chameleonButton4");
  EXPECT_TRUE(program().goes("Form2"));
  EXPECT_FALSE(program().sees("Form1"));
  EXPECT_TRUE(bar.icon());
}

TEST_F(Tray, AMoveAndTheEndOfAPressAreNoCommands) {
  ASSERT_TRUE(isAway());
  for (const UINT message : {WM_MOUSEMOVE, WM_LBUTTONUP, WM_RBUTTONUP}) bar.mouse(message);
  Sleep(500);
  EXPECT_FALSE(program().sees("Form1"));
  EXPECT_EQ(program().windowOfClass(kMenuClass), nullptr);
  EXPECT_TRUE(bar.icon());
}

TEST_F(Tray, ADoubleClickOfTheRightButtonBringsTheWindowBackToo) { comesBackBy(WM_RBUTTONDBLCLK); }

TEST_F(Tray, APictureBesideTheProgramTakesThePlaceOfItsOwn) {
  ASSERT_TRUE(isAway());
  const std::string own = bar.icon()->picture;
  EXPECT_NE(own, "");
  end();
  bar.forget();
  write("tray.ico", redPicture());
  ASSERT_TRUE(isAway());
  const std::string other = bar.icon()->picture;
  DeleteFileW(place("tray.ico").c_str());
  EXPECT_NE(other, "");
  EXPECT_NE(other, own);
}

TEST_F(Tray, TheMenuErases) {
  ASSERT_TRUE(isAway());
  choose(kEraseEntry);
  EXPECT_TRUE(comes([] { return exists("eraselog.txt"); }));
  EXPECT_TRUE(comes([this] { return list("Form1.View100").text(9, 1) == "Finished"; }));
}

TEST_F(Tray, TheMenuIsLeftWithoutAChoice) {
  ASSERT_TRUE(isAway());
  bar.mouse(WM_RBUTTONDOWN);
  EXPECT_TRUE(comes([this] { return program().windowOfClass(kMenuClass) != nullptr; }));
  pressKey(VK_ESCAPE);
  EXPECT_TRUE(comes([this] { return program().windowOfClass(kMenuClass) == nullptr; }));
  bar.mouse(WM_LBUTTONDOWN);
  EXPECT_TRUE(program().comesUp("Form1"));
}

TEST_F(Tray, TheMenuEndsTheProgramAndTheIconGoesWithIt) {
  ASSERT_TRUE(isAway());
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

// There is no way back but a start without stealth.
TEST_F(Stealth, WithoutAKeyTheWindowIsGoneUntilAStartWithoutStealth) {
  set(settings::kMainKey, "key", "");
  start();
  minimise();
  EXPECT_FALSE(bar.showsIcon(500));
  pressKey('S', VK_MENU);
  Sleep(500);
  EXPECT_TRUE(program().running());
  EXPECT_FALSE(program().sees("Form1"));
  end();
  set(settings::kOptionsKey, "5", "0");
  start();
  minimise();
  EXPECT_TRUE(bar.showsIcon());
  bar.mouse(WM_LBUTTONDOWN);
  EXPECT_TRUE(program().comesUp("Form1"));
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
