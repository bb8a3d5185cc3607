// Every dialog on every road that a person has to it and out of it. (The roads
// of the tray's menu stand with the tray.)
#include "services/settings_keys.h"
#include "tests/windows/window/window_test.h"

namespace tavr::testing {
namespace {

struct Road {
  const char* form;
  const char* way_in;
  const char* way_out;  ///< a control, or "Esc" or "close" for the key and the system's close
};

void PrintTo(const Road& road, std::ostream* out) {
  *out << road.form << " by " << road.way_in << " and " << road.way_out;
}

class Dialog : public WindowTest, public ::testing::WithParamInterface<Road> {};

TEST_P(Dialog, OpensAboveTheDisabledMainFormAndGivesItBack) {
  const Road& road = GetParam();
  start();
  program().click(road.way_in);
  ASSERT_TRUE(program().comesUp(road.form));
  const bool is_message = std::string_view(road.form) == "frmmsg";
  EXPECT_EQ(IsWindowEnabled(program().form("Form1")) != FALSE, is_message);
  EXPECT_TRUE(program().comesToFront(road.form));
  const std::string_view out = road.way_out;
  if (out == "Esc") {
    pressKey(VK_ESCAPE);
  } else if (out == "close") {
    pressKey(VK_F4, VK_MENU);
  } else {
    program().click(out);
  }
  EXPECT_TRUE(program().goes(road.form));
  EXPECT_TRUE(comes([this] { return IsWindowEnabled(program().form("Form1")) != FALSE; }));
  EXPECT_TRUE(program().running());
  EXPECT_TRUE(comes([this] { return GetForegroundWindow() == program().form("Form1"); }));
}

constexpr Road kRoads[] = {
    {"Form2", "Form1.cmd_settings", "Form2.chameleonButton4"},
    {"Form2", "Form1.Toolbar1(1)", "Form2.chameleonButton32"},
    {"Form2", "Form1.cmd_settings", "Esc"},
    {"Form2", "Form1.cmd_settings", "close"},
    {"Form3", "Form1.cmd_option", "Form3.chameleonButton19"},
    {"Form3", "Form1.Toolbar1(2)", "Form3.chameleonButton32"},
    {"Form3", "Form1.cmd_option", "Esc"},
    {"Form3", "Form1.cmd_option", "close"},
    {"frmabout", "Form1.chameleonButton13", "frmabout.chameleonButton1"},
    {"frmabout", "Form1.chameleonButton13", "Esc"},
    {"frmabout", "Form1.chameleonButton13", "close"},
    {"frmmsg", "Form1.cmd_clear", "frmmsg.chameleonButton1"},
    {"frmmsg", "Form1.Toolbar1(12)", "frmmsg.command2"},
    {"frmmsg", "Form1.cmd_clear", "Esc"},
    {"frmmsg", "Form1.cmd_clear", "close"},
};
INSTANTIATE_TEST_SUITE_P(Roads, Dialog, ::testing::ValuesIn(kRoads));

// No control leads to it any more.
TEST_F(WindowTest, TheNoteOfABrowserNamesItAndStoresItsBox) {
  const DrivenProgram note("Form4", L"form_alone.exe");
  ASSERT_TRUE(note.comesUp("Form4.command2"));
  EXPECT_EQ(note.text("Form4.Label1"),
            "Firefox is running. Please close it first: the traces that it holds open cannot be "
            "erased.");
  note.click("Form4.Check1");
  EXPECT_TRUE(comes([] { return setting(settings::kOptionKeyOfNote, "msg") == "1"; }));
  EXPECT_TRUE(note.checked("Form4.Check1"));
  note.click("Form4.command2");
  EXPECT_TRUE(note.goes("Form4"));
}

TEST_F(WindowTest, TheNoteOfABrowserIsLeftByTheKeyboardToo) {
  for (const int with : {0, VK_MENU}) {
    const DrivenProgram note("Form4", L"form_alone.exe");
    ASSERT_TRUE(note.comesUp("Form4.command2"));
    EXPECT_TRUE(note.comesToFront("Form4"));
    pressKey(with == 0 ? VK_ESCAPE : VK_F4, with);
    EXPECT_TRUE(note.goes("Form4")) << with;
  }
}

TEST_F(WindowTest, AToolTellsItsNameUnderTheMouse) {
  start();
  program().hover("Form1.Toolbar1(8)");
  const auto tip = [] {
    HWND found = nullptr;
    while ((found = FindWindowExW(nullptr, found, L"tooltips_class32", nullptr)) != nullptr) {
      if (IsWindowVisible(found)) return found;
    }
    return found;
  };
  ASSERT_TRUE(comes([&] { return tip() != nullptr; }));
  RECT at;
  GetWindowRect(tip(), &at);
  EXPECT_GT(at.right - at.left, 20);
  wchar_t text[64] = L"";
  SendMessageW(tip(), WM_GETTEXT, 64, reinterpret_cast<LPARAM>(text));
  EXPECT_STREQ(text, L"Erase");
  program().hover("Form1.View200");
  EXPECT_TRUE(comes([&] { return tip() == nullptr; }));
}

class Settings : public WindowTest {
 protected:
  void open() {
    start();
    program().click("Form1.cmd_settings");
    ASSERT_TRUE(program().comesUp("Form2"));
  }
  std::string box(int number) { return setting(settings::kSelectionKey, std::to_string(number)); }
};

TEST_F(Settings, AClickOnABoxIsStoredAtOnceAndShown) {
  open();
  program().click("Form2.Check1(52)");
  EXPECT_TRUE(comes([this] { return box(52) == "1"; }));
  EXPECT_TRUE(program().checked("Form2.Check1(52)"));
  program().click("Form2.Check1(52)");
  EXPECT_TRUE(comes([this] { return box(52) == "0"; }));
  EXPECT_FALSE(program().checked("Form2.Check1(52)"));
}

TEST_F(Settings, AClickOnTheLabelTogglesItsBox) {
  open();
  program().click("Form2.Label2(4)");
  EXPECT_TRUE(comes([this] { return box(52) == "1"; }));
  EXPECT_TRUE(program().checked("Form2.Check1(52)"));
}

TEST_F(Settings, ATickedBoxLooksTicked) {
  open();
  const auto before = program().pixels("Form2.Check1(44)");
  program().click("Form2.Check1(44)");
  program().hover("Form2.Label2(6)");
  EXPECT_TRUE(comes([&] { return program().pixels("Form2.Check1(44)") != before; }));
}

TEST_F(Settings, TheButtonsTickAllNoneAndTheRecommended) {
  open();
  program().click("Form2.chameleonButton27");
  EXPECT_TRUE(comes([this] { return box(52) == "1" && box(44) == "1" && box(49) == "1"; }));
  program().click("Form2.chameleonButton29");
  EXPECT_TRUE(comes([this] { return box(52) == "1" && box(44) == "0" && box(49) == "0"; }));
  program().click("Form2.chameleonButton28");
  EXPECT_TRUE(comes([this] { return box(52) == "0"; }));
}

TEST_F(Settings, TheSignsOfTheWindowsPanelLeaveItsLastTwoBoxes) {
  open();
  program().click("Form2.chameleonButton30");
  EXPECT_TRUE(program().comesUp("Form2.Check1(53)"));
  program().click("Form2.Check1(54)");
  EXPECT_TRUE(comes([this] { return box(54) == "1"; }));
  program().click("Form2.chameleonButton17");
  EXPECT_TRUE(comes([this] { return box(13) == "1"; }));
  EXPECT_FALSE(program().checked("Form2.Check1(53)"));
  program().click("Form2.chameleonButton18");
  EXPECT_TRUE(comes([this] { return box(13) == "0"; }));
  EXPECT_TRUE(program().checked("Form2.Check1(54)"));
}

TEST_F(Settings, AClickOnAHeadingTogglesNothing) {
  open();
  program().click("Form2.Label2(6)");
  Sleep(300);
  for (int number = 0; number <= 54; ++number) EXPECT_NE(box(number), "1") << number;
}

TEST_F(Settings, EachPanelTakesThePlaceOfTheOther) {
  open();
  program().click("Form2.chameleonButton30");
  EXPECT_TRUE(program().comesUp("Form2.Check1(13)"));
  EXPECT_TRUE(program().goes("Form2.Check1(44)"));
  program().click("Form2.chameleonButton31");
  EXPECT_TRUE(program().comesUp("Form2.View1"));
  EXPECT_TRUE(program().goes("Form2.Check1(13)"));
  program().click("Form2.cmd_plugin");
  EXPECT_TRUE(program().comesUp("Form2.Check1(44)"));
}

TEST_F(Settings, TheTaskTableFollowsTheSelection) {
  open();
  program().click("Form2.chameleonButton30");
  EXPECT_TRUE(program().comesUp("Form2.Check1(13)"));
  program().click("Form2.Check1(13)");
  EXPECT_TRUE(comes([this] { return box(13) == "1"; }));
  program().click("Form2.chameleonButton4");
  EXPECT_TRUE(program().goes("Form2"));
  program().click("Form1.cmd_test");
  EXPECT_TRUE(comes([this] { return list("Form1.View100").rows() == 11; }));
}

}  // namespace
}  // namespace tavr::testing
