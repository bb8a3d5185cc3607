// The options and the schedule.
#include "services/settings_keys.h"
#include "tests/windows/window/window_test.h"

namespace tavr::testing {
namespace {

constexpr std::uint32_t kTwoTicks = 25000;  // ms

class Options : public WindowTest {
 protected:
  void open() {
    start();
    program().click("Form1.cmd_option");
    ASSERT_TRUE(program().comesUp("Form3"));
  }
  void openSchedule() {
    open();
    program().click("Form3.chameleonButton8");
    ASSERT_TRUE(program().comesUp("Form3.Option1"));
  }
  // The text of a box, typed over what stands in it.
  void typeInto(std::string_view control, std::string_view text) {
    program().click(control);
    pressKey('A', VK_CONTROL);
    pressKey(VK_DELETE);
    const int before = GetWindowTextLengthW(program().window(control));
    for (int i = 0; i < before; ++i) pressKey(VK_BACK);
    typeText(text);
  }
};

TEST_F(Options, StealthAndItsKeyAreStored) {
  open();
  program().click("Form3.Label2(16)");
  EXPECT_TRUE(comes([] { return setting(settings::kOptionsKey, "5") == "1"; }));
  EXPECT_TRUE(program().checked("Form3.Check1(5)"));
  const HWND letters = program().window("Form3.Combo2");
  clickAt(letters, {8, middleOf(letters).y});
  typeText("K");
  program().click("Form3.chameleonButton9");
  EXPECT_TRUE(comes([] { return setting(settings::kMainKey, "key") == "K"; }));
}

TEST_F(Options, LeftByTheKeyboardNothingOfThemIsSaved) {
  for (const int with : {0, VK_MENU}) {
    openSchedule();
    program().click("Form3.Option2");
    EXPECT_TRUE(comes([this] { return program().checked("Form3.Option2"); }));
    EXPECT_TRUE(program().comesToFront("Form3"));
    pressKey(with == 0 ? VK_ESCAPE : VK_F4, with);
    EXPECT_TRUE(program().goes("Form3"));
    Sleep(300);
    for (const char* name : {"option", "value", "nextday"}) {
      EXPECT_EQ(setting(settings::kTimerKey, name), "") << name;
    }
    EXPECT_EQ(setting(settings::kMainKey, "homepage"), "");
    end();
  }
}

TEST_F(Options, ALetterIsChosenFromTheList) {
  open();
  const HWND letters = program().window("Form3.Combo2");
  clickAt(letters, {8, middleOf(letters).y});
  for (int i = 0; i < 3; ++i) pressKey(VK_DOWN);
  EXPECT_TRUE(comes([this] { return program().text("Form3.Combo2") == "C"; }));
  program().click("Form3.chameleonButton9");
  EXPECT_TRUE(comes([] { return setting(settings::kMainKey, "key") == "C"; }));
}

TEST_F(Options, SecureErasingKeepsItsNumberOfTimes) {
  open();
  program().click("Form3.Check1(3)");
  EXPECT_TRUE(comes([] { return setting(settings::kOptionsKey, "3") == "1"; }));
  const HWND times = program().window("Form3.Combo1");
  clickAt(times, {8, middleOf(times).y});
  typeText("7");
  program().click("Form3.chameleonButton19");
  EXPECT_TRUE(program().goes("Form3"));
  EXPECT_EQ(setting(settings::kMainKey, "secure_value"), "7");
}

TEST_F(Options, AScheduleIsSaved) {
  openSchedule();
  program().click("Form3.Option2");
  EXPECT_TRUE(comes([this] { return program().checked("Form3.Option2"); }));
  typeInto("Form3.Text2", "3");
  program().click("Form3.chameleonButton5");
  EXPECT_TRUE(comes([] { return setting(settings::kTimerKey, "option") == "2"; }));
  EXPECT_EQ(setting(settings::kTimerKey, "value"), "3");
  EXPECT_EQ(setting(settings::kTimerKey, "winstart"), "0");
}

TEST_F(Options, OneChoiceOfTheScheduleTakesTheOtherAway) {
  openSchedule();
  program().click("Form3.Option1");
  EXPECT_TRUE(comes([this] { return program().checked("Form3.Option1"); }));
  program().click("Form3.Option5");
  EXPECT_TRUE(comes([this] { return program().checked("Form3.Option5"); }));
  EXPECT_FALSE(program().checked("Form3.Option1"));
}

TEST_F(Options, TheScrollBarCountsUpAndDown) {
  openSchedule();
  const HWND bar = program().window("Form3.VScroll1");
  RECT area;
  GetClientRect(bar, &area);
  clickAt(bar, {area.right / 2, 3});
  EXPECT_TRUE(comes([this] { return program().text("Form3.Text1") == "44"; }));
  clickAt(bar, {area.right / 2, area.bottom - 3});
  EXPECT_TRUE(comes([this] { return program().text("Form3.Text1") == "45"; }));
}

TEST_F(Options, ADueScheduleErasesByItself) {
  SYSTEMTIME now;
  GetLocalTime(&now);
  if (now.wSecond > 35) {  // the schedule looks at minutes
    Sleep((61U - now.wSecond) * 1000U);
    GetLocalTime(&now);
  }
  set(settings::kTimerKey, "option", "1");
  set(settings::kTimerKey, "value", "45");
  set(settings::kTimerKey, "nextmin", std::to_string(now.wMinute));
  set(settings::kTimerKey, "nexthoure", std::to_string(now.wHour));
  start();
  EXPECT_TRUE(comes([this] { return list("Form1.View100").text(0, 1) == "Finished"; }, kTwoTicks));
  EXPECT_TRUE(exists("eraselog.txt"));
  EXPECT_EQ(setting(settings::kTimerKey, "finish"), "0");
}

class StartPage : public WindowTest {
 protected:
  // Another page than the one that is held.
  void SetUp() override {
    WindowTest::SetUp();
    set(settings::kMainKey, "protect_home", "1");
    set(settings::kMainKey, "homepage", "about:home");
    RegSetKeyValueW(HKEY_CURRENT_USER, kBrowser, L"Start Page", REG_SZ, kOther, sizeof(kOther));
  }
  static std::wstring page() {
    wchar_t text[256] = L"";
    DWORD size = sizeof(text);
    RegGetValueW(HKEY_CURRENT_USER, kBrowser, L"Start Page", RRF_RT_REG_SZ, nullptr, text, &size);
    return text;
  }
  HWND question() { return program().waitForBox(kTwoTicks); }

  static constexpr wchar_t kOther[] = L"http://other.example/";

 private:
  static constexpr wchar_t kBrowser[] = L"software\\microsoft\\internet explorer\\main";
};

TEST_F(StartPage, IsAskedAboutWhenItChangedAndPutBack) {
  start();
  const HWND box = question();
  ASSERT_NE(box, nullptr);
  constexpr std::string_view kText =
      "The start page of your browser has been changed. Do you want to restore the page that you "
      "protected?";
  const std::string text = DrivenProgram::textOfBox(box);
  EXPECT_TRUE(text.starts_with(kText)) << text;
  EXPECT_TRUE(text.ends_with(kText)) << text;
  EXPECT_EQ(text.size(), 2 * kText.size() + 1) << "twice, a line's end between them";
  DrivenProgram::answer(box, IDYES);
  EXPECT_TRUE(comes([] { return page() == L"about:home"; }));
  EXPECT_EQ(setting(settings::kMainKey, "homepage"), "about:home");
}

TEST_F(StartPage, IsTheOneThatIsHeldWhenThePersonWantsIt) {
  start();
  const HWND box = question();
  ASSERT_NE(box, nullptr);
  DrivenProgram::answer(box, IDNO);
  EXPECT_TRUE(
      comes([] { return setting(settings::kMainKey, "homepage") == "http://other.example/"; }));
  EXPECT_EQ(page(), kOther);
}

}  // namespace
}  // namespace tavr::testing
