// A box of the system that stands while no form is seen: the program is in the
// notification area, and its icon is all that a person can reach it by.
#include "services/settings_keys.h"
#include "tests/windows/window/task_bar.h"
#include "tests/windows/window/window_test.h"

namespace tavr::testing {
namespace {

constexpr std::uint32_t kTwoTicks = 25000;  // ms
constexpr wchar_t kMenuClass[] = L"#32768";
// Steps down from above the first entry.
constexpr int kSettingsEntry = 5;
constexpr int kExitEntry = 7;

// The schedule's timer asks when another program has changed the start page.
class BoxAlone : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    constexpr wchar_t kOther[] = L"http://other.example/";
    set(settings::kMainKey, "protect_home", "1");
    set(settings::kMainKey, "homepage", "about:home");
    RegSetKeyValueW(HKEY_CURRENT_USER, kBrowser, L"Start Page", REG_SZ, kOther, sizeof(kOther));
  }
  void TearDown() override {
    WindowTest::TearDown();
    RegDeleteKeyValueW(HKEY_CURRENT_USER, kBrowser, L"Start Page");
  }
  // Without a form from the start, as Windows starts it.
  void startSilently() {
    start("s");
    ASSERT_TRUE(bar.showsIcon());
    box_ = program().waitForBox(kTwoTicks);
    ASSERT_NE(box_, nullptr);
    ASSERT_FALSE(program().sees("Form1"));
  }
  bool menuComes() {
    bar.mouse(WM_RBUTTONDOWN);
    return comes([this] { return program().windowOfClass(kMenuClass) != nullptr; });
  }
  bool menuGoes() {
    return comes([this] { return program().windowOfClass(kMenuClass) == nullptr; });
  }
  static void choose(int entry) {
    for (int i = 0; i < entry; ++i) pressKey(VK_DOWN);
    pressKey(VK_RETURN);
  }

  static constexpr wchar_t kBrowser[] = L"software\\microsoft\\internet explorer\\main";
  TaskBar bar;
  HWND box_ = nullptr;
};

TEST_F(BoxAlone, LeavesTheMenuOfTheIconAndIsAnsweredBehindIt) {
  startSilently();
  ASSERT_TRUE(menuComes());
  pressKey(VK_ESCAPE);
  ASSERT_TRUE(menuGoes());
  EXPECT_TRUE(IsWindow(box_)) << "the key was for the menu";
  DrivenProgram::answer(box_, IDYES);
  EXPECT_TRUE(comes([this] { return !IsWindow(box_); }));
  EXPECT_TRUE(program().running());
}

TEST_F(BoxAlone, GoesWithTheProgramThatTheMenuEnds) {
  startSilently();
  ASSERT_TRUE(menuComes());
  choose(kExitEntry);
  EXPECT_EQ(program().waitForEnd(), 0U);
  EXPECT_TRUE(bar.losesIcon());
}

TEST_F(BoxAlone, LeavesTheOtherEntriesToo) {
  startSilently();
  ASSERT_TRUE(menuComes());
  choose(kSettingsEntry);
  EXPECT_TRUE(program().comesUp("Form2"));
  EXPECT_TRUE(IsWindow(box_));
  ASSERT_TRUE(menuGoes());
  EXPECT_TRUE(menuComes()) << "it opens again";
}

// The menu makes the icon's own window the active one, by which the box that
// comes next would be owned.
TEST_F(BoxAlone, ComingAfterTheMenuLeavesItToo) {
  start("s");
  ASSERT_TRUE(bar.showsIcon());
  ASSERT_TRUE(menuComes());
  pressKey(VK_ESCAPE);
  ASSERT_TRUE(menuGoes());
  box_ = program().waitForBox(kTwoTicks);
  ASSERT_NE(box_, nullptr);
  ASSERT_TRUE(menuComes());
  choose(kExitEntry);
  EXPECT_EQ(program().waitForEnd(), 0U);
}

// The question is asked again at each tick, and would come while the menu has the mouse.
TEST_F(BoxAlone, GetsNoOtherAboveItWhileTheMenuIsOpen) {
  startSilently();
  ASSERT_TRUE(menuComes());
  EXPECT_FALSE(comes([this] { return program().waitForBox(0) != box_; }, kTwoTicks));
  EXPECT_NE(program().windowOfClass(kMenuClass), nullptr);
  pressKey(VK_ESCAPE);
  ASSERT_TRUE(menuGoes());
  ASSERT_TRUE(comes([this] { return program().waitForBox(0) != box_; }, kTwoTicks));
  const HWND above = program().waitForBox(0);
  ASSERT_NE(above, nullptr);
  EXPECT_NE(above, box_);
  EXPECT_TRUE(IsWindow(box_));
  DrivenProgram::answer(above, IDYES);
  EXPECT_TRUE(comes([above] { return !IsWindow(above); }));
}

TEST_F(BoxAlone, HoldsTheWindowThatTheIconBringsBack) {
  startSilently();
  bar.mouse(WM_LBUTTONDOWN);
  ASSERT_TRUE(program().comesUp("Form1"));
  EXPECT_FALSE(IsWindowEnabled(program().form("Form1")));
  // Not by the mouse: Wine leaves a box among the windows that are not on top.
  SendMessageW(box_, WM_COMMAND, IDYES, 0);
  EXPECT_TRUE(comes([this] { return !IsWindow(box_); }));
  EXPECT_TRUE(comes([this] { return IsWindowEnabled(program().form("Form1")) != FALSE; }));
}

}  // namespace
}  // namespace tavr::testing
